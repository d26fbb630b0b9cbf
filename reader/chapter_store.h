// Turns the position into text on the screen: each change of the chapter label reads the book's file from
// its first line to the end of the chapter, carries the lines through a scratch file into the pane, and
// moves what follows the chapter. Nothing is kept in memory from one load to the next.
//
// A book file has three kinds of line, told apart by how they begin: a chapter line ("Chap"), a verse line
// (a digit, and no "-" behind it) and any other. What follows the four letters is never read; a chapter's
// number is the count of chapter lines above it.
#pragma once

#include <string>

#include "base/error_modes.h"
#include "reader/reader.h"

namespace lectern::reader {

// Where the text in the pane was taken from. A load that failed left the text before in the pane, and the
// labels ahead of it.
struct ShownChapter {
  std::string book;     // as displayed
  std::string chapter;  // "" where the book has no such chapter: its last line then stands alone
  std::string version;  // "KJV"
};

class ChapterStore {
 public:
  explicit ChapterStore(Reader& the_reader);

  const ShownChapter& Shown() const { return shown_; }

 private:
  void lblc_Change();
  void optk_Click();
  void optn_Click();

  bool CopyChapter(const base::Trapping& trap, std::string& held);
  void ChangeVersion(const std::string& name, const std::string& folder);

  Reader& reader_;
  ShownChapter shown_;
};

}  // namespace lectern::reader
