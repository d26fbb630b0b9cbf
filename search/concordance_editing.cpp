#include "search/concordance_editing.h"

#include "base/text/characters.h"
#include "reader/reference.h"
#include "search/concordance_file.h"
#include "search/entry.h"

namespace lectern::search {

namespace {

constexpr int kConcordance = 1;  // slots
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
