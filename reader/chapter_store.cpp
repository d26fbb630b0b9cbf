#include "reader/chapter_store.h"

#include "base/errors.h"
#include "base/files/record_reader.h"
#include "base/text/characters.h"
#include "base/text/numbers.h"
#include "reader/reader.h"

namespace lectern::reader {

namespace {

constexpr int kBook = 1;  // slots
constexpr int kScratch = 2;

constexpr std::string_view kChapterMark = "Chap";

bool IsChapterLine(std::string_view line) { return line.starts_with(kChapterMark); }

}  // namespace

std::vector<int> VersesOfChapters(const files::FileSystem& files, std::string_view path) {
  files::Contents book;
  files.Read(path, book);
  files::RecordReader lines(book.Bytes());
  std::vector<int> verses;
  while (!lines.AtEnd()) {
    const std::string_view line = lines.Line();
    if (IsChapterLine(line)) {
      verses.push_back(0);
    } else if (!verses.empty() && text::StartsWithDigit(line) && line.substr(1, 1) != "-") {
      ++verses.back();
    }
  }
  return verses;
}

void ChapterStore::Load() {
  files::FileSlots& slots = reader_.form.Slots();
  const base::Ignoring trap{[&] { slots.Close(kBook); }};
  if (!trap([&] { slots.OpenForReading(kBook, reader_.BookFile(reader_.Stem())); })) return;
  const std::string scratch = reader_.Dir3.Path + "\\temp.txt";
  // Lines that an interrupted run left in the scratch file come first.
  bool written = trap([&] { slots.OpenForAppending(kScratch, scratch); });
  std::string held;
  const bool found = CopyChapter(trap, held);
  slots.Close(kBook);
  // ODDITY(next-heading): the last line read is written too. It is the heading of the next chapter or the
  // last line of the book.
  written = trap([&] { slots.PrintLine(kScratch, held); }) && written;
  written = trap([&] { slots.Close(kScratch); }) && written;
  // The pane does not show a chapter that a full disk cut off.
  if (written && trap([&] { reader_.rtxt.LoadFile(scratch); })) {
    shown_ = {reader_.Book(), found ? reader_.Chapter() : "", std::string(reader_.CurrentVersion().label)};
  }
  trap([&] { reader_.form.Files().Delete(scratch); });
}

// Copies the chapter, except the last line read (`held`), to the scratch file. Returns whether the book has
// the chapter. A failure closes the book, which ends the loop.
bool ChapterStore::CopyChapter(const base::Ignoring& trap, std::string& held) {
  files::FileSlots& slots = reader_.form.Slots();
  int counter = 0;  // 16 bits
  bool done = false;
  std::string_view line;
  const auto more = [&] { return slots.IsOpen(kBook) && !slots.EndOfFile(kBook); };
  while (!done && more()) {
    line = slots.ReadLineStarting(kBook, kChapterMark);
    if (!IsChapterLine(line)) continue;  // the book's last line
    trap([&] { counter = text::RoundToInteger(counter + 1); });
    // A chapter line directly after another one is not counted.
    trap([&] { line = slots.ReadLine(kBook); });
    bool wanted = false;
    trap([&] { wanted = text::ToNumber(reader_.Chapter()) == counter; });
    if (!wanted) continue;
    while (!IsChapterLine(line) && more()) {
      trap([&] { slots.PrintLine(kScratch, line); });
      trap([&] { line = slots.ReadLine(kBook); });
    }
    done = true;
  }
  held = line;
  return done;
}

}  // namespace lectern::reader
