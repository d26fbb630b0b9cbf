// A version of the scriptures as the data tool handles it on the way from its source to the book files: the
// text of every verse by book (its position in the canon, from 0), chapter and verse (from 1).
#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace lectern::make_data {

// Something that keeps the data from being made, in a sentence for the person at the terminal.
class Obstacle : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

using Chapter = std::map<int, std::string>;  // verse to text
using Book = std::map<int, Chapter>;         // chapter to verses

struct Version {
  std::vector<Book> books;     // one for each book of the canon
  std::string chapter_remark;  // behind each chapter's number, "" for none

  std::size_t VerseCount() const;
};

}  // namespace lectern::make_data
