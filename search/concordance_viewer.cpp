#include "search/concordance_viewer.h"

#include <optional>

#include "base/text/characters.h"
#include "base/text/letter_case.h"
#include "base/text/numbers.h"
#include "search/concordance_file.h"
#include "search/highlight.h"

namespace lectern::search {

namespace {

constexpr int kConcordance = 1;  // slot

struct Passage {
  std::string book;
  std::string chapter;
};

// The book and the chapter of "1 Peter 2 6". The first character is passed over, so that the digit of a
// numbered book is not taken for the chapter. Nothing where no chapter and verse stand behind a book.
std::optional<Passage> ParseReference(std::string_view reference) {
  const std::size_t start = text::ByteOf(reference, 2);
  const std::size_t digit = reference.find_first_of("0123456789", start);
  if (digit == std::string_view::npos) return std::nullopt;
  const std::string_view before = reference.substr(0, digit);
  const std::string_view rest = reference.substr(digit);
  const std::size_t blank = rest.rfind(' ');
  if (blank == std::string_view::npos) return std::nullopt;
  return Passage{std::string(text::Left(before, text::Length(before) - 1)),
                 std::string(rest.substr(0, blank))};
}

}  // namespace

ConcordanceViewer::ConcordanceViewer(reader::Reader& the_reader, reader::Panels& the_panels,
                                     reader::ToolButtons& the_tools, reader::Menus& menus,
                                     TextSearch& the_search)
    : reader_(the_reader), panels_(the_panels), tools_(the_tools), search_(the_search) {
  tools_.Command8.Click = [this] { Command8_Click(); };
  menus.cc1.Click = [this] { cc1_Click(); };
  lstc.Click = [this] { lstc_Click(); };
  lstc2.Click = [this] { lstc2_Click(); };
  Command9.Click = [this] { Command9_Click(); };
}

// The one tool button that locks nothing.
void ConcordanceViewer::Command8_Click() {
  panels_.picp.Visible = false;
  panels_.frmc.Visible = true;
  LoadConcordanceWords();
}

void ConcordanceViewer::cc1_Click() {
  panels_.frmc.Visible = true;
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
  std::string last;  // the records of a word stand together: it is compared once
  bool last_fits = wanted.empty();
  while (!slots.EndOfFile(kConcordance)) {
    const std::string_view word = slots.ReadField(kConcordance);
    if (word != last) {
      last = word;
      last_fits = text::Upper(last) == wanted;
    }
    const std::string_view reference = slots.ReadField(kConcordance);
    if (last_fits) references.Add(reference);
  }
  text6.Caption = std::to_string(references.Count());
  lstc2.AddItems(references);
  slots.Close(kConcordance);
}

void ConcordanceViewer::lstc2_Click() {
  const std::optional<Passage> passage = ParseReference(lstc2.List(lstc2.SelectedIndex()));
  if (!passage) return;
  reader_.ShowPassage(passage->book, passage->chapter);
  HighlightText(reader_.rtxt, lblw.Caption(), kMarkColour);
}

void ConcordanceViewer::Command9_Click() {
  lstc.Clear();
  reader_.ReturnToChapter1();
  panels_.frmc.Visible = false;
  tools_.Enable();
}

}  // namespace lectern::search
