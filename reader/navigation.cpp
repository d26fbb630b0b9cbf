#include "reader/navigation.h"

#include "base/error_modes.h"
#include "base/text/characters.h"
#include "base/text/letter_case.h"
#include "base/text/numbers.h"

namespace lectern::reader {

Navigation::Navigation(Reader& the_reader, Panels& the_panels, Catalogue& the_catalogue)
    : reader_(the_reader), panels_(the_panels), catalogue_(the_catalogue) {
  reader_.lst.Click = [this] { lst_Click(); };
  reader_.scr.Change = [this] { scr_Change(); };
  reader_.lblbk.Change = [this] { lblbk_Change(); };
  reader_.List1.DblClick = [this] { List1_DblClick(); };
  reader_.List1.KeyDown = [this](int code) { List1_KeyDown(code); };
}

void Navigation::scr_Change() { reader_.lblc.Caption = std::to_string(reader_.scr.Value); }

void Navigation::lblbk_Change() {
  const std::string& chapter = reader_.lblc.Caption;
  if (reader_.lblbk.Caption == "" || chapter == "00" || chapter.empty()) return;
  const base::Ignoring ignore;
  ignore([&] { reader_.lblbk.Visible = true; });
  ignore([&] {
    if (!panels_.frms.Visible) reader_.scr.Value = 1;
  });
  ignore([&] { catalogue_.LoadChapterRange(); });
  ignore([&] { reader_.ExtractBookPictures(); });
  ignore([&] { reader_.FillPictureLists(); });
}

void Navigation::lst_Click() {
  reader_.form.MousePointer = forms::kPointerHourglass;
  for (int i = 0; i < reader_.lst.ListCount(); ++i) {
    if (!reader_.lst.Selected(i)) continue;
    // The blank stem keeps the chapter that the name's Change writes from loading in the old book.
    reader_.lblbook.Caption = "";
    reader_.lblbk.Caption = reader_.lst.List(i);
    reader_.lblbook.Caption = reader_.lst.List(i);
    break;
  }
  reader_.lblc.Caption = "";
  reader_.lblc.Caption = "1";
  reader_.form.MousePointer = forms::kPointerArrow;
}

// Jumps to the chapter that the selected line names: "Chapter 12".
void Navigation::List1_DblClick() {
  const std::string& line = reader_.List1.List(reader_.List1.SelectedIndex());
  if (text::Lower(text::Left(line, 7)) != "chapter") return;
  const std::string chapter(text::Mid(line, 9));
  if (text::IsNumeric(chapter)) reader_.lblc.Caption = chapter;
}

void Navigation::List1_KeyDown(int code) {
  if (code == forms::kEnterKey) List1_DblClick();
}

}  // namespace lectern::reader
