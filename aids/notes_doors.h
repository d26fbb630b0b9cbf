// The doors of the main window to the notes: the tool button and the menu entry.
#pragma once

#include <functional>

#include "aids/notes.h"
#include "forms/containers.h"
#include "forms/picture_box.h"
#include "reader/tool_buttons.h"

namespace lectern::aids {

class NotesDoors {
 public:
  // `notes` makes the window of the notes where there is none yet.
  NotesDoors(forms::PictureBox& picp, reader::ToolButtons& tools, forms::Menu& cc0,
             std::function<Notes&()> notes);
};

}  // namespace lectern::aids
