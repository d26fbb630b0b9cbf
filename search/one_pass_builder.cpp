#include "search/one_pass_builder.h"

#include <cassert>

#include "base/text/characters.h"
#include "base/text/numbers.h"
#include "reader/canon.h"
#include "search/text_scan.h"

namespace lectern::search {

namespace {

constexpr int kBook = 1;  // slots
constexpr int kTarget = 2;
constexpr int kTruth = -1;  // what a true comparison counts as

}  // namespace

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
  // Whatever version is set.
  const std::string target = reader_.DataFile(text::Lower(reader::kVersions[0].concordance));
  reader_.form.Files().DeleteKeepingBackup(target);
  slots.OpenForAppending(kTarget, target);
  char32_t next = 0;  // lives through the whole click
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
    // Set to whether it stands at 1, so that it never leaves 0.
    pbar3.Value = pbar3.Value == 1 ? kTruth : 0;
    search_.text7.Caption = reader_.lst.List(search_.SearchBookIndex + 1);
    const std::string name = reader::ShortStem(book);
    slots.OpenForReading(kBook, reader_.DataFile(name + ".txt"));
    const LineRules rules{ScanKind::kOnePass, text::Length(search_.wrd.Caption())};
    TakeFindings(word, book, ScanText(slots.ReadRest(kBook), terms, name, rules, next));
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
