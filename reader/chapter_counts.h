// How many chapters each book has: the file `bookschap.txt`, with a record for each book, its name in quotes
// and the count.
#pragma once

#include <optional>
#include <string_view>

#include "forms/buttons.h"
#include "forms/window.h"
#include "reader/reader.h"

namespace lectern::reader {

class ChapterCounts {
 public:
  explicit ChapterCounts(Reader& the_reader);

 private:
  void Command12_Click();

  Reader& reader_;
  // Makes the file, for preparing the data.
  forms::CommandButton Command12{reader_.form, "Command12", {.caption = "make baokschap.txt"}};
};

// The number of chapters of a book, whose name is compared without regard to case; nothing where the file has
// no record of it or cannot be read. Of several records the last one that holds a number counts.
std::optional<int> ChapterCount(forms::Window& form, std::string_view path, std::string_view book);

}  // namespace lectern::reader
