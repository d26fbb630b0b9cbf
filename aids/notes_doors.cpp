#include "aids/notes_doors.h"

#include <utility>

namespace lectern::aids {

NotesDoors::NotesDoors(reader::Panels& panels, reader::ToolButtons& tools, reader::Menus& menus,
                       std::function<Notes&()> notes) {
  menus.cc0.Click = [notes] { notes().Open(); };
  tools.Command14.Click = [notes = std::move(notes), &panels] {
    panels.picp.Visible = false;
    notes().Open();
  };
}

}  // namespace lectern::aids
