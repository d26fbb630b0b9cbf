#include "search/concordance.h"

#include "base/text/characters.h"
#include "reader/reference.h"

namespace lectern::search {

std::string ConcordanceFile(const reader::Reader& reader) {
  return reader.DataFile(reader.CurrentVersion().concordance);
}

void WriteConcordanceRecord(files::FileSlots& slots, int slot, const ConcordanceRecord& record) {
  slots.WriteRecord(slot, record.word, record.reference);
}

namespace {

constexpr int kConcordance = 1;  // slots
constexpr int kWorkFile = 2;

// Reads into a record that the caller uses again for the next one.
void ReadRecord(files::FileSlots& slots, ConcordanceRecord& record) {
  record.word = slots.ReadField(kConcordance);
  record.reference = slots.ReadField(kConcordance);
}

// Fills the list with the words in upper case, one entry for consecutive records of a word. Returns the last
// word as it is in the file, or "".
//
// ODDITY(concordance-limit): the words after the limit are not shown, without a message. These are the words
// that a person added, as the limit counts in file order.
std::string LoadWords(const reader::Reader& reader, forms::ListBox& list) {
  constexpr int kMostWords = 4000;
  files::FileSlots& slots = reader.form.Slots();
  list.Clear();
  slots.OpenForReading(kConcordance, ConcordanceFile(reader));
  std::string last;
  ConcordanceRecord record;
  for (int count = 0; count < kMostWords && !slots.EndOfFile(kConcordance);) {
    ReadRecord(slots, record);
    if (record.word == last) continue;
    list.AddItem(text::Upper(record.word));
    ++count;
    last = record.word;
  }
  slots.Close(kConcordance);
  return last;
}

}  // namespace

ConcordanceViewer::ConcordanceViewer(reader::Reader& the_reader, forms::Frame& frmc, forms::PictureBox& picp,
                                     reader::ToolButtons& the_tools, forms::Menu& cc1, TextSearch& the_search)
    : reader_(the_reader), frmc_(frmc), picp_(picp), tools_(the_tools), search_(the_search) {
  // The only tool button that disables none.
  tools_.Command8.Click = [this] {
    picp_.Visible = false;
    cc1_Click();
  };
  cc1.Click = [this] { cc1_Click(); };
  lstc.Click = [this] { lstc_Click(); };
  lstc2.Click = [this] { lstc2_Click(); };
  Command9.Click = [this] { Command9_Click(); };
}

void ConcordanceViewer::cc1_Click() {
  frmc_.Visible = true;
  LoadConcordanceWords();
}

void ConcordanceViewer::LoadConcordanceWords() {
  text6.Caption = "0";
  reader_.List1.Clear();
  search_.text5.Caption = "";
  LoadWords(reader_, lstc);
}

// Unlike the list of words, the verses have no limit, and they may be anywhere in the file.
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
  std::string last;  // the word before, which is compared only once
  bool last_fits = wanted.empty();
  while (!slots.EndOfFile(kConcordance)) {
    ReadRecord(slots, record);
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

ConcordanceEditing::ConcordanceEditing(reader::Reader& the_reader, forms::Frame& frmc, forms::Frame& Frame2,
                                       TextSearch& the_search, ResultNavigation& the_results,
                                       ConcordanceViewer& the_viewer)
    : reader_(the_reader),
      frmc_(frmc),
      Frame2_(Frame2),
      search_(the_search),
      results_(the_results),
      viewer_(the_viewer) {
  search_.cmdadd.Click = [this] { cmdadd_Click(); };
  Command21.MouseDown = [this](const auto&) { search_.Command22.MousePointer = forms::kPointerHourglass; };
  Command21.Click = [this] { Command21_Click(); };
  Command18.Click = [this] { Command18_Click(); };
}

// The results of two terms are kept under the first one. A word that is already there gets its records again.
void ConcordanceEditing::cmdadd_Click() {
  try {
    for (int i = 0; i < search_.lsts.ListCount(); ++i) AddEntry(search_.lsts.List(i));
    reader_.form.Platform().Message(text::Upper(search_.txts.Text()) + " has been added to the Concordance");
  } catch (const base::RunTimeError& error) {
    reader_.ReportError(error);
  }
}

void ConcordanceEditing::AddEntry(const std::string& text) {
  const std::optional<Entry> entry = ParseEntry(text);
  if (!entry) return;
  files::FileSlots& slots = reader_.form.Slots();
  slots.OpenForAppending(kConcordance, ConcordanceFile(reader_));
  WriteConcordanceRecord(
      slots, kConcordance,
      {search_.txts.Text(), reader::ReferenceText(entry->book, entry->chapter, entry->verse, ' ')});
  slots.Close(kConcordance);
}

void ConcordanceEditing::Command21_Click() {
  const std::string path = ConcordanceFile(reader_);
  const std::string work_file = reader_.DataFile("concord1.dat");
  files::FileSlots& slots = reader_.form.Slots();
  const int selected = viewer_.lstc.SelectedIndex();
  if (selected >= 0) results_.LBLCC.Caption = viewer_.lstc.List(selected);

  slots.OpenForReading(kConcordance, path);
  slots.OpenForAppending(kWorkFile, work_file);
  const std::string deleted = text::Upper(results_.LBLCC.Caption());
  ConcordanceRecord record;
  while (!slots.EndOfFile(kConcordance)) {
    ReadRecord(slots, record);
    if (text::Upper(record.word) != deleted) WriteConcordanceRecord(slots, kWorkFile, record);
  }
  slots.Close(kConcordance);
  slots.Close(kWorkFile);
  reader_.form.Files().SetAside(path);
  reader_.form.Files().Rename(work_file, path);

  const std::string last = LoadWords(reader_, viewer_.lstc);
  viewer_.lstc2.Clear();
  // ODDITY(deletion-names-another): the message names the word that was loaded last, not the deleted one.
  reader_.form.Platform().Message(
      last + " has been removed from the Concordance. You can add words to Concordance with search feature.");
  frmc_.Visible = true;
  search_.Command22.MousePointer = forms::kPointerDefault;
}

// Copies the second version's concordance up to its true end, without the block that the builder repeats.
// Another click copies nothing until a search or the builder has set the index again.
void ConcordanceEditing::Command18_Click() {
  constexpr int kStop = 5;
  files::FileSlots& slots = reader_.form.Slots();
  slots.OpenForReading(kConcordance, reader_.DataFile(reader::kVersions[1].concordance));
  slots.OpenForAppending(kWorkFile, reader_.DataFile("CONCORD22.DAT"));
  ConcordanceRecord record;
  while (!slots.EndOfFile(kConcordance) && search_.SearchBookIndex != kStop) {
    ReadRecord(slots, record);
    if (record.word == "Zion" && record.reference == "1 Peter 2 6") search_.SearchBookIndex = kStop;
    WriteConcordanceRecord(slots, kWorkFile, record);
  }
  slots.Close(kConcordance);
  slots.Close(kWorkFile);
}

}  // namespace lectern::search
