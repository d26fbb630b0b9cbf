#include "gallery/book_converter.h"

#include <string_view>

#include "base/text/characters.h"
#include "reader/books.h"

namespace lectern::gallery {

namespace {

constexpr int kSource = 1;  // slots
constexpr int kBook = 3;

}  // namespace

BookConverter::BookConverter(forms::Frame& Frame5) : Frame5_(Frame5), form_(RTB1.HostWindow()) {
  Dir2.Change = [this] { File2.Path = Dir2.Path; };
  Command33.Click = [this] { Command33_Click(); };
}

void BookConverter::Command33_Click() {
  constexpr std::size_t kShortestSource = 20;
  if (text::Length(RTB1.Text()) < kShortestSource) {
    form_.Platform().Message("SELECT OPTION");
    return;
  }
  files::FileSlots& slots = form_.Slots();
  const std::string scratch = Dir2.Path + "\\TEMP.TXT";
  WriteSource(scratch);
  slots.OpenForReading(kSource, scratch);
  NME.Caption = ReadBookName();
  const std::string book_file = Dir2.Path + "\\" + NME.Caption() + ".TXT";
  // ODDITY(converted-twice-doubles): appends to what an earlier conversion wrote.
  slots.OpenForAppending(kBook, book_file);
  slots.PrintLine(kBook, NME.Caption());
  ConvertVerses();
  slots.Close(kSource);
  slots.Close(kBook);
  RTB1.Text = "";
  RTB2.LoadFile(book_file);
  form_.Files().Delete(scratch);
  File2.Refresh();
}

// Writes the source line by line, because each line has its own encoding.
void BookConverter::WriteSource(const std::string& scratch) {
  files::FileSlots& slots = form_.Slots();
  slots.OpenForAppending(kSource, scratch, files::Lasting::kNo);
  std::string_view left = RTB1.Text();
  for (std::size_t end = left.find("\r\n"); end != std::string_view::npos; end = left.find("\r\n")) {
    slots.PrintLine(kSource, left.substr(0, end));
    left.remove_prefix(end + 2);
  }
  slots.PrintLine(kSource, left);
  slots.Close(kSource);
}

// Returns the line after the header and a blank line, or after two blank lines.
std::string BookConverter::ReadBookName() {
  files::FileSlots& slots = form_.Slots();
  std::string line;
  int passed = 0;
  const std::string header = "Codex, " + std::string(reader::kVersions[0].name);
  while (!slots.EndOfFile(kSource) && passed < 2) {
    if (line == header) ++passed;
    line = slots.ReadLine(kSource);
    if (line.empty()) ++passed;
  }
  return std::string(slots.ReadLine(kSource));
}

void BookConverter::ConvertVerses() {
  files::FileSlots& slots = form_.Slots();
  int chapter = 0;
  while (!slots.EndOfFile(kSource)) {
    std::string line(slots.ReadLine(kSource));
    if (line.starts_with('-')) {
      // ODDITY(dash-counts-a-chapter): a rule between chapters counts as a chapter, so that the next number
      // is too high. It does no harm: the number of a chapter line is never read.
      ++chapter;
    } else if (line.starts_with('[')) {
      line.erase(0, 1);
      // A verse that is very short on its first line continues on the next one.
      constexpr std::size_t kShortestVerse = 10;
      if (text::Length(line) < kShortestVerse) line += slots.ReadLine(kSource);
      const std::size_t bracket = line.find(']');
      if (bracket == std::string::npos) throw base::RunTimeError(base::ErrorNumber::kInvalidCall);
      const std::string number = line.substr(0, bracket);
      if (number == "1") slots.PrintLine(kBook, "Chapter " + std::to_string(++chapter));
      slots.PrintLine(kBook, number + "." + line.substr(bracket + 1));
    }
  }
}

}  // namespace lectern::gallery
