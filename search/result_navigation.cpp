#include "search/result_navigation.h"

#include "search/entry.h"
#include "search/highlight.h"

namespace lectern::search {

ResultNavigation::ResultNavigation(reader::Reader& the_reader, reader::Panels& panels, TextSearch& the_search)
    : LBLCC(panels.frmc, "LBLCC", {.caption = "Genesis", .visible = false}),
      reader(the_reader),
      search(the_search) {
  search.lsts.Click = [this] { lsts_Click(); };
}

void ResultNavigation::lsts_Click() {
  const int selected = search.lsts.SelectedIndex();
  if (selected >= 0) LBLCC.Caption = search.lsts.List(selected);
  reader.List1.Clear();
  const std::optional<Entry> entry = ParseEntry(LBLCC.Caption());
  if (!entry) return;
  reader.lblc.Caption = "";  // the next two writes load nothing yet
  reader.lblbook.Caption = entry->book;
  reader.lblbk.Caption = entry->book;
  reader.lblc.Caption = entry->chapter;
  // ODDITY(blank-behind-the-book): the name gets its trailing blank, so that the catalogue does not know the
  // book and the chapter bar keeps the range of the one before; it is meant.
  reader.lblbk.Caption = "";
  reader.lblbk.Caption = entry->book_with_blank;
  search.lsts.MousePointer = forms::kPointerDefault;
  HighlightText(reader.rtxt, search.txts.Text(), kMarkColour);
  if (search.txts2.Text != "") HighlightText(reader.rtxt, search.txts2.Text(), kMarkColour);
}

}  // namespace lectern::search
