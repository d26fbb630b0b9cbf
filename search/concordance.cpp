#include "search/concordance.h"

#include "base/text/characters.h"
#include "reader/reference.h"
#include "search/results.h"

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

std::string ConcordanceFile(const reader::Reader& reader) {
  return reader.DataFile(reader.CurrentVersion().concordance);
}

void ReadConcordanceRecord(files::FileSlots& slots, int slot, ConcordanceRecord& record) {
  record.word = slots.ReadField(slot);
  record.reference = slots.ReadField(slot);
}

void WriteConcordanceRecord(files::FileSlots& slots, int slot, const ConcordanceRecord& record) {
  slots.WriteRecord(slot, record.word, record.reference);
}

// ODDITY(concordance-limit): the words behind the limit are not shown, without a word about it; being counted
// in the order of the file, they are the ones that a person added.
std::string FillWordList(files::FileSlots& slots, int slot, forms::ListBox& list) {
  std::string last;
  ConcordanceRecord record;
  for (int count = 0; count < kMostWords && !slots.EndOfFile(slot);) {
    ReadConcordanceRecord(slots, slot, record);
    if (record.word == last) continue;
    list.AddItem(text::Upper(record.word));
    ++count;
    last = record.word;
  }
  return last;
}

namespace {

constexpr int kWorkFile = 2;

}  // namespace

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
  Command21.MouseDown = [this](forms::MouseEvent) {
    search_.Command22.MousePointer = forms::kPointerHourglass;
  };
  Command21.Click = [this] { Command21_Click(); };
  Command18.Click = [this] { Command18_Click(); };
}

// A search for two terms is kept under its first; a word that is there already gets its records once more.
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
  CopyOtherWords(text::Upper(results_.LBLCC.Caption()));
  slots.Close(kConcordance);
  slots.Close(kWorkFile);
  reader_.form.Files().DeleteKeepingBackup(path);
  reader_.form.Files().Rename(work_file, path);

  viewer_.lstc.Clear();
  slots.OpenForReading(kConcordance, path);
  const std::string last = FillWordList(slots, kConcordance, viewer_.lstc);
  slots.Close(kConcordance);
  viewer_.lstc2.Clear();
  // ODDITY(deletion-names-another): the message names the word that was loaded last, not the one that was
  // deleted.
  reader_.form.Platform().Message(
      last + " has been removed from the Concordance. You can add words to Concordance with search feature.");
  frmc_.Visible = true;
  search_.Command22.MousePointer = forms::kPointerDefault;
}

// Copies the records of all words but one, which goes in whatever case it stands.
void ConcordanceEditing::CopyOtherWords(const std::string& word) {
  files::FileSlots& slots = reader_.form.Slots();
  ConcordanceRecord record;
  while (!slots.EndOfFile(kConcordance)) {
    ReadConcordanceRecord(slots, kConcordance, record);
    if (text::Upper(record.word) != word) WriteConcordanceRecord(slots, kWorkFile, record);
  }
}

// Keeps what stands up to the true end of the second version's concordance and drops the block that the
// builder repeats. A second click copies nothing until a search or the builder has set the index anew.
void ConcordanceEditing::Command18_Click() {
  constexpr int kStop = 5;
  files::FileSlots& slots = reader_.form.Slots();
  slots.OpenForReading(kConcordance, reader_.DataFile(reader::kVersions[1].concordance));
  slots.OpenForAppending(kWorkFile, reader_.DataFile("CONCORD22.DAT"));
  ConcordanceRecord record;
  while (!slots.EndOfFile(kConcordance) && search_.SearchBookIndex != kStop) {
    ReadConcordanceRecord(slots, kConcordance, record);
    if (record.word == "Zion" && record.reference == "1 Peter 2 6") search_.SearchBookIndex = kStop;
    WriteConcordanceRecord(slots, kWorkFile, record);
  }
  slots.Close(kConcordance);
  slots.Close(kWorkFile);
}

}  // namespace lectern::search
