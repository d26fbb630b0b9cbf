#include "aids/notes_doors.h"

#include <utility>

namespace lectern::aids {

NotesDoors::NotesDoors(core::Panels& panels, core::ToolButtons& tools, core::Menus& menus,
                       std::function<Notes&()> notes) {
  menus.cc0.Click = [notes] { notes().Open(); };
  tools.Command14.Click = [notes = std::move(notes), &panels] {
    panels.picp.Visible = false;
    notes().Open();
  };
}

}  // namespace lectern::aids
