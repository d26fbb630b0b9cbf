// Takes a chapter out of its book's file and puts it into the pane: the file is read from its first line to
// the end of the chapter, the lines go through the scratch file `temp.txt`, and the pane loads that. Nothing
// is kept in memory from one load to the next.
//
// A book file has three kinds of line, told apart by how they begin: a chapter line ("Chap"), a verse line (a
// digit, and no "-" behind it) and any other. What follows the four letters is never read; a chapter's number
// is the count of chapter lines above it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/errors.h"
#include "base/files/file_system.h"

namespace lectern::reader {

class Reader;

// Where the text in the pane was taken from.
struct ShownChapter {
  std::string book;     // as displayed
  std::string chapter;  // "" where the book has no such chapter: its last line then stands alone
  std::string version;  // "KJV"
};

// How many verses each chapter of a book's file has. Errors are those of reading the file.
std::vector<int> VersesOfChapters(const files::FileSystem& files, std::string_view path);

class ChapterStore {
 public:
  explicit ChapterStore(Reader& the_reader) : reader_(the_reader) {}

  // Loads the chapter of the reader's position. Where that fails the pane keeps its text.
  void Load();

  const ShownChapter& Shown() const { return shown_; }

 private:
  bool CopyChapter(const base::Ignoring& trap, std::string& held);

  Reader& reader_;
  ShownChapter shown_;
};

}  // namespace lectern::reader
