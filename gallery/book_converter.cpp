#include "gallery/book_converter.h"

#include <string_view>

#include "base/text/characters.h"
#include "reader/books.h"

namespace lectern::gallery {

using base::ErrorNumber;
using base::RunTimeError;

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
  LaySourceDown(scratch);
  slots.OpenForReading(kSource, scratch);
  NME.Caption = ReadBookName();
  const std::string book_file = Dir2.Path + "\\" + NME.Caption() + ".TXT";
  // ODDITY(converted-twice-doubles): opened behind what an earlier conversion wrote.
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

// Line by line, so that each line's encoding is its own.
void BookConverter::LaySourceDown(const std::string& scratch) {
  files::FileSlots& slots = form_.Slots();
  slots.OpenForAppending(kSource, scratch);
  std::string_view left = RTB1.Text();
  for (std::size_t end = left.find("\r\n"); end != std::string_view::npos; end = left.find("\r\n")) {
    slots.PrintLine(kSource, left.substr(0, end));
    left.remove_prefix(end + 2);
  }
  slots.PrintLine(kSource, left);
  slots.Close(kSource);
}

// The line behind the header and a blank line, or behind two blank lines.
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
      // ODDITY(dash-counts-a-chapter): a rule between chapters counts as one, and the number of the next is
      // one too high; readers count chapter lines and never read the number.
      ++chapter;
    } else if (line.starts_with('[')) {
      line = WholeVerse(line.substr(1));
      const std::size_t bracket = line.find(']');
      if (bracket == std::string::npos) throw RunTimeError(ErrorNumber::kInvalidCall);
      const std::string number = line.substr(0, bracket);
      if (number == "1") slots.PrintLine(kBook, "Chapter " + std::to_string(++chapter));
      slots.PrintLine(kBook, number + "." + line.substr(bracket + 1));
    }
  }
}

// A verse of which there is next to nothing on its first line goes on on the next one.
std::string BookConverter::WholeVerse(std::string line) {
  constexpr std::size_t kShortestVerse = 10;
  if (text::Length(line) < kShortestVerse) line += form_.Slots().ReadLine(kSource);
  return line;
}

}  // namespace lectern::gallery
