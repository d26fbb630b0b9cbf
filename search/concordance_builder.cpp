#include "search/concordance_builder.h"

#include "base/errors.h"
#include "base/text/numbers.h"
#include "search/concordance_file.h"

namespace lectern::search {

namespace {

constexpr int kWords = 1;  // slots
constexpr int kBookmarks = 1;
constexpr int kTarget = 5;

}  // namespace

ConcordanceBuilder::ConcordanceBuilder(reader::Reader& the_reader, forms::Frame& frms, forms::Frame& frmscale,
                                       forms::Frame& Frame2, TextSearch& the_search)
    : reader_(the_reader), frms_(frms), frmscale_(frmscale), Frame2_(Frame2), search_(the_search) {
  Command27.Click = [this] { Command27_Click(); };
  Command23.Click = [this] { Timer2.Enabled = false; };
  Timer2.Tick = [this] { Timer2_Timer(); };
  List2.Click = [this] { List2_Click(); };
}

void ConcordanceBuilder::Command27_Click() {
  // The first run needs a file to be there.
  reader_.form.Files().DeleteKeepingBackup(ConcordanceFile(reader_));
  frms_.Visible = true;
  search_.txts.Text = "";
  search_.lsts.Clear();
  frmscale_.Visible = true;
  Timer2.Enabled = true;
  lbln.Caption = "-1";
  search_.pbar.Max = reader_.lst.ListCount() - 1;
  search_.SearchBookIndex = -1;
}

void ConcordanceBuilder::Timer2_Timer() {
  frmscale_.Visible = true;
  if (search_.tmrb.Enabled) return;  // a word is still being looked up
  const base::Ignoring ignore;
  search_.pbar.Value = 0;
  Label32.Caption = lbln.Caption + " of " + std::to_string(List2.ListCount());
  if (lbln.Caption == "-1") {
    LoadWords();
    pbar2.Value = 1;
  } else {
    ignore([&] { pbar2.Value = text::IntegerValue(lbln.Caption()); });
    pbar2.Max = List2.ListCount();
    WriteResults();
  }
  const int next = static_cast<int>(text::LeadingDigits(lbln.Caption())) + 1;
  lbln.Caption = std::to_string(next);
  search_.wrd.Caption = List2.List(next);
  if (next > List2.ListCount() - 1) {
    pbar2.Max = List2.ListCount() - 1;
    pbar2.Value = 1;
    // ODDITY(last-word-twice): the last word's verses are written once more, and Command18 is
    // there to cut them.
    WriteResults();
    Timer2.Enabled = false;
    reader_.form.Platform().Beep();
  } else {
    search_.tmrb.Enabled = true;
  }
  search_.txts.Text = List2.List(next);
  pbar2.Value = pbar2.Value + 1;
}

// A file that cannot be opened adds no words; the number is free again in any case.
void ConcordanceBuilder::LoadWords() {
  const base::Ignoring ignore;
  files::FileSlots& slots = reader_.form.Slots();
  ignore([&] { slots.OpenForReading(kWords, reader_.DataFile("conc.txt")); });
  ignore([&] {
    while (!slots.EndOfFile(kWords)) List2.AddItem(std::string(slots.ReadLine(kWords)));
  });
  ignore([&] { slots.Close(kWords); });
}

// The verses of the word that was looked up, as the search lists them.
void ConcordanceBuilder::WriteResults() {
  const base::Ignoring ignore;
  files::FileSlots& slots = reader_.form.Slots();
  ignore([&] { slots.OpenForAppending(kTarget, ConcordanceFile(reader_)); });
  for (int i = 0; i < search_.lsts.ListCount(); ++i) {
    ignore([&] { WriteConcordanceRecord(slots, kTarget, {search_.txts.Text(), search_.lsts.List(i)}); });
  }
  ignore([&] { slots.Close(kTarget); });
}

// Goes by a file of leftover bookmarks, which nothing in the program writes: name, book, chapter.
void ConcordanceBuilder::List2_Click() {
  const int selected = List2.SelectedIndex();
  if (selected >= 0) Text2.Text = List2.List(selected);
  files::FileSlots& slots = reader_.form.Slots();
  reader::BookmarkRecord record;
  slots.OpenForReading(kBookmarks, reader_.DataFile("BKMK.DAT"));
  while (!slots.EndOfFile(kBookmarks)) {
    record = reader::ReadBookmarkRecord(slots, kBookmarks);
    if (Text2.Text != record.name) continue;
    reader_.TakeBookmark(record);
    break;
  }
  slots.Close(kBookmarks);
  reader_.NameBook(record.book);
}

}  // namespace lectern::search
