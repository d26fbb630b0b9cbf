// The keys of the keyboard by the codes that handlers know, and the access keys of captions.
#pragma once

#include <QAbstractSlider>
#include <QKeyEvent>
#include <QKeySequence>
#include <optional>
#include <string>

namespace lectern::desktop {

// 0 for a key that the forms have no code for.
int KeyCode(const QKeyEvent& key);

// The letter behind the mark `&` of a caption, as a key of Qt; 0 where there is none.
int AccessKey(const std::string& caption);

// The letter that is pressed together with Alt and nothing else; 0 for any other key.
int AccessKey(const QKeyEvent& key);

// What the key scrolls a page by that is only read; nothing for any other key.
std::optional<QAbstractSlider::SliderAction> ScrollActionOf(const QKeyEvent& key);

// Copies what is selected on a page along with word of where it stands.
QKeySequence QuoteKey();

// How the key changes the size of the text that is read: a number of steps, 0 for the size that is set;
// nothing for any other key.
std::optional<int> ZoomOf(const QKeyEvent& key);

// Whether the key, with all that is held along with it, is the one that is named.
bool IsKey(const QKeyEvent& key, const QKeySequence& named);

// Whether the key moves a caret, be it with Shift.
bool MovesCaret(const QKeyEvent& key);

}  // namespace lectern::desktop
