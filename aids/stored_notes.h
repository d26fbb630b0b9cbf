// The short help notes that the program carries in itself, and the texts that name its makers. A stored note
// replaces the text of the help pane; most have no door but their name.
#pragma once

#include <array>
#include <string_view>

namespace lectern::aids {

struct StoredNote {
  std::string_view routine;  // the name it is called by
  std::string_view text;
};

extern const std::array<StoredNote, 13> kStoredNotes;

// The text of the note of that name, which has to be one.
std::string_view StoredNoteText(std::string_view routine);

extern const std::string_view kAboutText;

}  // namespace lectern::aids
