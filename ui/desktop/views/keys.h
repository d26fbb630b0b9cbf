// Key codes for handlers, access keys of captions, and the program's own keys.
#pragma once

#include <QAbstractSlider>
#include <QKeyEvent>
#include <QKeySequence>
#include <QPoint>
#include <optional>
#include <string>

namespace lectern::desktop {

// 0 for a key without a code.
int KeyCode(const QKeyEvent& key);

// The letter after the `&` of a caption, as a key of Qt; 0 if there is none.
int AccessKey(const std::string& caption);

// The letter that is pressed together with Alt; 0 for any other key.
int AccessKey(const QKeyEvent& key);

// The direction of an arrow key of Qt, as a step of one; null for any other key.
QPoint DirectionOf(int key);

// How the key scrolls a page that is only read.
std::optional<QAbstractSlider::SliderAction> ScrollActionOf(const QKeyEvent& key);

QKeySequence QuoteKey();  // copies the selection of a page with its reference

// By how many steps the key enlarges the text of pages; 0 returns to the normal size.
std::optional<int> ZoomOf(const QKeyEvent& key);

// Whether the key and the modifiers match.
bool IsKey(const QKeyEvent& key, const QKeySequence& named);

bool MovesCaret(const QKeyEvent& key);  // with or without Shift

}  // namespace lectern::desktop
