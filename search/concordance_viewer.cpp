#include "search/concordance_viewer.h"

#include "base/text/characters.h"
#include "search/concordance_file.h"
#include "search/entry.h"
#include "search/highlight.h"

namespace lectern::search {

namespace {

constexpr int kConcordance = 1;  // slot

}  // namespace

ConcordanceViewer::ConcordanceViewer(reader::Reader& the_reader, forms::Frame& frmc, forms::PictureBox& picp,
                                     reader::ToolButtons& the_tools, forms::Menu& cc1, TextSearch& the_search)
    : reader_(the_reader), frmc_(frmc), picp_(picp), tools_(the_tools), search_(the_search) {
  tools_.Command8.Click = [this] { Command8_Click(); };
  cc1.Click = [this] { cc1_Click(); };
  lstc.Click = [this] { lstc_Click(); };
  lstc2.Click = [this] { lstc2_Click(); };
  Command9.Click = [this] { Command9_Click(); };
}

// The one tool button that locks nothing.
void ConcordanceViewer::Command8_Click() {
  picp_.Visible = false;
  frmc_.Visible = true;
  LoadConcordanceWords();
}

void ConcordanceViewer::cc1_Click() {
  frmc_.Visible = true;
  LoadConcordanceWords();
}

void ConcordanceViewer::LoadConcordanceWords() {
  text6.Caption = "0";
  lstc.Clear();
  reader_.List1.Clear();
  search_.text5.Caption = "";
  files::FileSlots& slots = reader_.form.Slots();
  slots.OpenForReading(kConcordance, ConcordanceFile(reader_));
  FillWordList(slots, kConcordance, lstc);
  slots.Close(kConcordance);
}

// Unlike the list of words, the walk for a word's verses has no limit, and finds them wherever they stand.
void ConcordanceViewer::lstc_Click() {
  text6.Caption = "0";
  lstc2.Clear();
  const int selected = lstc.SelectedIndex();
  if (selected >= 0) lblw.Caption = lstc.List(selected);
  const std::string wanted = text::Upper(lblw.Caption());
  files::FileSlots& slots = reader_.form.Slots();
  slots.OpenForReading(kConcordance, ConcordanceFile(reader_));
  text::TextList references;
  ConcordanceRecord record;
  std::string last;  // the records of a word stand together: it is compared once
  bool last_fits = wanted.empty();
  while (!slots.EndOfFile(kConcordance)) {
    ReadConcordanceRecord(slots, kConcordance, record);
    if (record.word != last) {
      last = record.word;
      last_fits = text::Upper(last) == wanted;
    }
    if (last_fits) references.Add(record.reference);
  }
  text6.Caption = std::to_string(references.Count());
  lstc2.AddItems(references);
  slots.Close(kConcordance);
}

void ConcordanceViewer::lstc2_Click() {
  const std::optional<Entry> verse = ParseConcordanceReference(lstc2.List(lstc2.SelectedIndex()));
  if (!verse) return;
  reader_.ShowPassage(verse->book, verse->chapter);
  HighlightText(reader_.rtxt, lblw.Caption(), kMarkColour);
}

void ConcordanceViewer::Command9_Click() {
  lstc.Clear();
  reader_.ReturnToChapter1();
  frmc_.Visible = false;
  tools_.Enable();
}

}  // namespace lectern::search
