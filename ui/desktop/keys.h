// The keys of the keyboard by the codes that handlers know, and the access keys of captions.
#pragma once

#include <QKeyEvent>
#include <string>

namespace lectern::desktop {

// 0 for a key that the forms have no code for.
int KeyCode(const QKeyEvent& key);

// The letter behind the mark `&` of a caption, as a key of Qt; 0 where there is none.
int AccessKey(const std::string& caption);

// The letter that is pressed together with Alt and nothing else; 0 for any other key.
int AccessKey(const QKeyEvent& key);

}  // namespace lectern::desktop
