// The doors of the main window to the notes: the tool button and the menu entry.
#pragma once

#include <functional>

#include "aids/notes.h"
#include "core/menus.h"
#include "core/panels.h"
#include "core/tool_buttons.h"

namespace lectern::aids {

class NotesDoors {
 public:
  // `notes` makes the window of the notes where there is none yet.
  NotesDoors(core::Panels& panels, core::ToolButtons& tools, core::Menus& menus,
             std::function<Notes&()> notes);
};

}  // namespace lectern::aids
