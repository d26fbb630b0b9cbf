#include "search/result_navigation.h"

#include "search/entry.h"
#include "search/highlight.h"

namespace lectern::search {

ResultNavigation::ResultNavigation(reader::Reader& the_reader, forms::Frame& frmc, TextSearch& the_search)
    : frmc_(frmc), reader_(the_reader), search_(the_search) {
  search_.lsts.Click = [this] { lsts_Click(); };
}

void ResultNavigation::lsts_Click() {
  const int selected = search_.lsts.SelectedIndex();
  if (selected >= 0) LBLCC.Caption = search_.lsts.List(selected);
  reader_.List1.Clear();
  const std::optional<Entry> entry = ParseEntry(LBLCC.Caption());
  if (!entry) return;
  reader_.ShowFoundPassage(entry->book_with_blank, entry->chapter);
  search_.lsts.MousePointer = forms::kPointerDefault;
  HighlightText(reader_.rtxt, search_.txts.Text(), kMarkColour);
  if (search_.txts2.Text != "") HighlightText(reader_.rtxt, search_.txts2.Text(), kMarkColour);
}

}  // namespace lectern::search
