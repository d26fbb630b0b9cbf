// The doors of the main window to the notes: the tool button and the menu entry.
#pragma once

#include <functional>

#include "aids/notes.h"
#include "reader/menus.h"
#include "reader/panels.h"
#include "reader/tool_buttons.h"

namespace lectern::aids {

class NotesDoors {
 public:
  // `notes` makes the window of the notes where there is none yet.
  NotesDoors(reader::Panels& panels, reader::ToolButtons& tools, reader::Menus& menus,
             std::function<Notes&()> notes);
};

}  // namespace lectern::aids
