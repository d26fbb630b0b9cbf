// How many chapters a book has: the file `bookschap.txt`, one quoted record a book, read for the range of the
// chapter bar and made by a tool of whoever prepares the data.
#pragma once

#include "reader/reader.h"

namespace lectern::reader {

class Catalogue {
 public:
  explicit Catalogue(Reader& the_reader);

  // Sets the range of the chapter bar for the book in lblbk; shows no failure.
  void LoadChapterRange();

 private:
  void Command12_Click();

  Reader& reader_;
  forms::CommandButton Command12;  // beyond the window's right edge
};

}  // namespace lectern::reader
