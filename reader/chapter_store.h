// Loads a chapter of a book's file into the pane. It reads the file from the first line to the end of the
// chapter. Nothing is cached, and nothing is written, so that a chapter can be read on a full disk. What an
// earlier version left in its scratch file `temp.txt` is shown before the next chapter, once.
//
// A book file has three kinds of lines: chapter lines, which begin with "Chap", verse lines, which begin with
// a digit that no "-" follows, and other lines. The rest of a chapter line is not read: chapters are counted.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/errors.h"
#include "base/files/file_system.h"
#include "forms/rich_text_box.h"

namespace lectern::reader {

class Reader;

// The place of the text in the pane.
struct ShownChapter {
  std::string book;     // as displayed
  std::string chapter;  // "" if the book has no such chapter; the pane then shows its last line
  std::string version;  // "KJV"
};

// Counts the verses of each chapter of a book's file. Raises the errors of reading the file.
std::vector<int> VersesOfChapters(const files::FileSystem& files, std::string_view path);

class ChapterStore {
 public:
  explicit ChapterStore(Reader& the_reader) : reader_(the_reader) {}

  // Loads the chapter at the reader's position. If the book cannot be opened, the pane keeps its text.
  void Load();

  // Loads the same chapter from a book's file into a pane, which keeps its text if that cannot be opened.
  enum class Loaded { kNothing, kLastLine, kChapter };
  Loaded LoadInto(forms::RichTextBox& pane, std::string_view book);

  const ShownChapter& Shown() const { return shown_; }

 private:
  std::string TakeScratchFile() const;
  bool CopyChapter(const base::Ignoring& trap, std::string& text);

  Reader& reader_;
  ShownChapter shown_;
};

}  // namespace lectern::reader
