#include "aids/notes_doors.h"

#include <utility>

namespace lectern::aids {

NotesDoors::NotesDoors(forms::PictureBox& picp, reader::ToolButtons& tools, forms::Menu& cc0,
                       std::function<Notes&()> notes) {
  cc0.Click = [notes] { notes().Open(); };
  tools.Command14.Click = [notes = std::move(notes), &picp] {
    picp.Visible = false;
    notes().Open();
  };
}

}  // namespace lectern::aids
