#include "reader/navigation.h"

#include "base/error_modes.h"
#include "base/text/characters.h"
#include "base/text/letter_case.h"
#include "base/text/numbers.h"

namespace lectern::reader {

Navigation::Navigation(Reader& the_reader, Panels& the_panels, Catalogue& the_catalogue)
    : reader(the_reader), panels(the_panels), catalogue(the_catalogue) {
  reader.lst.Click = [this] { lst_Click(); };
  reader.scr.Change = [this] { scr_Change(); };
  reader.lblbk.Change = [this] { lblbk_Change(); };
  reader.List1.DblClick = [this] { List1_DblClick(); };
  reader.List1.KeyDown = [this](int code) { List1_KeyDown(code); };
}

void Navigation::scr_Change() { reader.lblc.Caption = std::to_string(reader.scr.Value); }

void Navigation::lblbk_Change() {
  const std::string& chapter = reader.lblc.Caption;
  if (reader.lblbk.Caption == "" || chapter == "00" || chapter.empty()) return;
  const base::Ignoring ignore;
  ignore([&] { reader.lblbk.Visible = true; });
  ignore([&] {
    if (!panels.frms.Visible) reader.scr.Value = 1;
  });
  ignore([&] { catalogue.LoadChapterRange(); });
  ignore([&] { reader.ExtractBookPictures(); });
  ignore([&] { reader.FillPictureLists(); });
}

void Navigation::lst_Click() {
  reader.form.MousePointer = forms::kPointerHourglass;
  for (int i = 0; i < reader.lst.ListCount(); ++i) {
    if (!reader.lst.Selected(i)) continue;
    // The blank stem keeps the chapter that the name's Change writes from loading in the old book.
    reader.lblbook.Caption = "";
    reader.lblbk.Caption = reader.lst.List(i);
    reader.lblbook.Caption = reader.lst.List(i);
    break;
  }
  reader.lblc.Caption = "";
  reader.lblc.Caption = "1";
  reader.form.MousePointer = forms::kPointerArrow;
}

// Jumps to the chapter that the selected line names: "Chapter 12".
void Navigation::List1_DblClick() {
  const std::string& line = reader.List1.List(reader.List1.SelectedIndex());
  if (text::Lower(text::Left(line, 7)) != "chapter") return;
  const std::string chapter(text::Mid(line, 9));
  if (text::IsNumeric(chapter)) reader.lblc.Caption = chapter;
}

void Navigation::List1_KeyDown(int code) {
  if (code == forms::kEnterKey) List1_DblClick();
}

}  // namespace lectern::reader
