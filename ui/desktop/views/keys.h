// The keys of the keyboard by the codes that handlers know, the access keys of captions, and the program's
// own keys.
#pragma once

#include <QAbstractSlider>
#include <QKeyEvent>
#include <QKeySequence>
#include <QPoint>
#include <optional>
#include <string>

namespace lectern::desktop {

// 0 for a key that the forms have no code for.
int KeyCode(const QKeyEvent& key);

// The letter behind the mark `&` of a caption, as a key of Qt; 0 where there is none.
int AccessKey(const std::string& caption);

// The letter that is pressed together with Alt and nothing else; 0 for any other key.
int AccessKey(const QKeyEvent& key);

// Where an arrow key of Qt points, as a step of one; null for any other key.
QPoint DirectionOf(int key);

// How the key scrolls a page that is only read.
std::optional<QAbstractSlider::SliderAction> ScrollActionOf(const QKeyEvent& key);

// Copies the selection of a page with its reference.
QKeySequence QuoteKey();

// By how many steps the key enlarges the text of pages, or 0 for the size that is set.
std::optional<int> ZoomOf(const QKeyEvent& key);

// Whether the key, with all that is held along with it, is the one that is named.
bool IsKey(const QKeyEvent& key, const QKeySequence& named);

// Whether the key moves a caret, with or without Shift.
bool MovesCaret(const QKeyEvent& key);

}  // namespace lectern::desktop
