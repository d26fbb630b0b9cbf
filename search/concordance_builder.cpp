#include "search/concordance_builder.h"

#include <cassert>

#include "base/errors.h"
#include "base/text/characters.h"
#include "base/text/numbers.h"
#include "reader/canon.h"
#include "search/concordance.h"
#include "search/text_scan.h"

namespace lectern::search {

namespace {

constexpr int kWords = 1;  // slots
constexpr int kBookmarks = 1;
constexpr int kTarget = 5;
constexpr int kBook = 1;

}  // namespace

ConcordanceBuilder::ConcordanceBuilder(reader::Reader& the_reader, forms::Frame& frms, forms::Frame& frmscale,
                                       forms::Frame& Frame2, TextSearch& the_search)
    : reader_(the_reader), frms_(frms), frmscale_(frmscale), Frame2_(Frame2), search_(the_search) {
  Command27.Click = [this] { Command27_Click(); };
  Command23.Click = [this] { EndBuild(); };
  Timer2.Tick = [this] { Timer2_Timer(); };
  List2.Click = [this] { List2_Click(); };
}

void ConcordanceBuilder::Command27_Click() {
  // Error 53 if there is no concordance yet.
  ReleaseFile();
  built_ = ConcordanceFile(reader_);
  reader_.form.Files().BeginRewriting(built_);
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
  files::FileSlots& slots = reader_.form.Slots();
  search_.pbar.Value = 0;
  Label32.Caption = lbln.Caption + " of " + std::to_string(List2.ListCount());
  if (lbln.Caption == "-1") {
    // A file that cannot be opened adds no words.
    ignore([&] { slots.OpenForReading(kWords, reader_.DataFile("conc.txt")); });
    ignore([&] {
      while (!slots.EndOfFile(kWords)) List2.AddItem(std::string(slots.ReadLine(kWords)));
    });
    ignore([&] { slots.Close(kWords); });
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
    // ODDITY(last-word-twice): the last word's verses are written again. Command18 exists to cut them.
    WriteResults();
    EndBuild();
    reader_.form.Platform().Beep();
  } else {
    search_.tmrb.Enabled = true;
  }
  search_.txts.Text = List2.List(next);
  pbar2.Value = pbar2.Value + 1;
}

void ConcordanceBuilder::EndBuild() {
  Timer2.Enabled = false;
  ReleaseFile();
}

// Until then, the previous concordance comes back if the program is stopped.
void ConcordanceBuilder::ReleaseFile() {
  if (!built_.empty()) reader_.form.Files().EndRewriting(built_);
  built_.clear();
}

// Writes the verses that the search lists for the current word.
void ConcordanceBuilder::WriteResults() {
  const base::Ignoring ignore;
  files::FileSlots& slots = reader_.form.Slots();
  ignore([&] { slots.OpenForAppending(kTarget, ConcordanceFile(reader_)); });
  for (int i = 0; i < search_.lsts.ListCount(); ++i) {
    ignore([&] { WriteConcordanceRecord(slots, kTarget, {search_.txts.Text(), search_.lsts.List(i)}); });
  }
  ignore([&] { slots.Close(kTarget); });
}

// Uses a file of old bookmarks, which nothing in the program writes.
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

OnePassBuilder::OnePassBuilder(reader::Reader& the_reader, forms::Frame& Frame2, TextSearch& the_search,
                               ConcordanceBuilder& the_builder)
    : Frame2_(Frame2), reader_(the_reader), search_(the_search), builder_(the_builder) {
  Command13.Click = [this] { Command13_Click(); };
}

void OnePassBuilder::Command13_Click() {
  files::FileSlots& slots = reader_.form.Slots();
  builder_.List2.Clear();
  slots.OpenForReading(kBook, reader_.DataFile("conc.txt"));
  while (!slots.EndOfFile(kBook)) builder_.List2.AddItem(std::string(slots.ReadLine(kBook)));
  slots.Close(kBook);
  builder_.pbar2.Max = builder_.List2.ListCount();
  builder_.pbar2.Value = 0;
  // The first version's file, even if another version is current.
  const std::string target = reader_.DataFile(text::Lower(reader::kVersions[0].concordance));
  reader_.form.Files().SetAside(target);
  slots.OpenForAppending(kTarget, target);
  char32_t next = 0;  // kept from word to word and from book to book
  for (int i = 0; i < builder_.List2.ListCount(); ++i) {
    builder_.pbar2.Value = builder_.pbar2.Value + 1;
    pbar3.Max = 65;
    pbar3.Value = 0;
    search_.wrd.Caption = builder_.List2.List(i);
    LookUp(builder_.List2.List(i), next);
    pbar3.Value = 0;
  }
  slots.Close(kTarget);
}

void OnePassBuilder::LookUp(const std::string& word, char32_t& next) {
  files::FileSlots& slots = reader_.form.Slots();
  const Terms terms = Terms::OneWord(word);
  for (search_.SearchBookIndex = 0; search_.SearchBookIndex <= 65; ++search_.SearchBookIndex) {
    const std::string book = reader_.lst.List(search_.SearchBookIndex);
    books.Caption = book;
    // Set to the result of a comparison, with -1 for true. It stays at 0.
    constexpr int kTruth = -1;
    pbar3.Value = pbar3.Value == 1 ? kTruth : 0;
    search_.text7.Caption = reader_.lst.List(search_.SearchBookIndex + 1);
    const std::string name = reader::ShortStem(book);
    slots.OpenForReading(kBook, reader_.DataFile(name + ".txt"));
    const LineRules rules{ScanKind::kOnePass, text::Length(search_.wrd.Caption())};
    const ScanFindings findings = ScanText(slots.ReadRest(kBook), terms, name, rules, next);
    next = findings.next;
    TakeFindings(word, book, findings);
    slots.Close(kBook);
  }
}

void OnePassBuilder::TakeFindings(const std::string& word, const std::string& book,
                                  const ScanFindings& findings) {
  if (findings.count == 0) return;
  search_.cmdadd.Enabled = true;
  for (std::size_t i = 0; i < findings.entries.Count(); ++i) {
    const std::string_view entry = findings.entries[i];
    const std::size_t verse = entry.rfind(' ');
    const std::size_t chapter = entry.rfind(' ', verse - 1);
    assert(verse != std::string_view::npos && chapter != std::string_view::npos);
    reader_.form.Slots().WriteRecord(kTarget, " " + text::Upper(word), book,
                                     text::RoundToLong(text::LeadingDigits(entry.substr(chapter + 1))),
                                     text::RoundToLong(text::LeadingDigits(entry.substr(verse + 1))));
  }
  const auto records = static_cast<double>(findings.entries.Count());
  builder_.Text2.Text = text::NumberText(text::LeadingDigits(builder_.Text2.Text()) + records);
  search_.text5.Caption = text::NumberText(text::LeadingDigits(search_.text5.Caption()) + findings.count);
}

}  // namespace lectern::search
