#include "reader/chapter_store.h"

#include <filesystem>
#include <system_error>

#include "base/errors.h"
#include "base/files/record_reader.h"
#include "base/files/text_encoding.h"
#include "base/text/characters.h"
#include "base/text/numbers.h"
#include "reader/reader.h"

namespace lectern::reader {

namespace {

constexpr int kBook = 1;  // slot

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
  const Loaded loaded = LoadInto(reader_.rtxt, reader_.BookFile(reader_.Stem()));
  if (loaded == Loaded::kNothing) return;
  shown_ = {reader_.Book(), loaded == Loaded::kChapter ? reader_.Chapter() : "",
            std::string(reader_.CurrentVersion().label)};
}

ChapterStore::Loaded ChapterStore::LoadInto(forms::RichTextBox& pane, std::string_view book) {
  files::FileSlots& slots = reader_.form.Slots();
  const base::Ignoring trap{[&] { slots.Close(kBook); }};
  if (!trap([&] { slots.OpenForReading(kBook, book); })) return Loaded::kNothing;
  std::string text = TakeScratchFile();
  const bool found = CopyChapter(trap, text);
  slots.Close(kBook);
  pane.LoadBytes(text);
  return found ? Loaded::kChapter : Loaded::kLastLine;
}

// Returns the lines of a scratch file, which come first, and deletes it. The data folder may be somebody
// else's: anything of that name that is not a plain file is left alone.
std::string ChapterStore::TakeScratchFile() const {
  files::FileSystem& files = reader_.form.Files();
  std::string lines;
  const base::Ignoring ignore;
  ignore([&] {
    // The name is known to the letter. Comparing all names of the folder would take as long as the book.
    const std::string path = files.HostPath(reader_.Dir3.Path()) + "/temp.txt";
    std::error_code failure;
    if (!std::filesystem::is_regular_file(std::filesystem::symlink_status(path, failure))) return;
    files::Contents contents;
    files.Read(path, contents);
    lines = contents.Bytes();
    files.Delete(path);
  });
  return lines;
}

// Appends the chapter, in the encoding of files, and the last line read. Returns whether the book has the
// chapter. A failure closes the book, which ends the loop.
bool ChapterStore::CopyChapter(const base::Ignoring& trap, std::string& text) {
  files::FileSlots& slots = reader_.form.Slots();
  int counter = 0;  // 16 bits
  bool done = false;
  std::string_view line;
  const auto more = [&] { return slots.IsOpen(kBook) && !slots.EndOfFile(kBook); };
  const auto copy_line = [&] { text.append(files::Encode(line)).append("\r\n"); };
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
      copy_line();
      trap([&] { line = slots.ReadLine(kBook); });
    }
    done = true;
  }
  // ODDITY(next-heading): the last line read is copied too. It is the heading of the next chapter or the
  // last line of the book.
  copy_line();
  return done;
}

}  // namespace lectern::reader
