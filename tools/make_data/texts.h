// The texts: a version of the scriptures between its source and the book files, and the sources themselves,
// which are programs of the distribution or a file of the person's own.
#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "tools/make_data/sword_module.h"

namespace lectern::make_data {

// The data cannot be made; the reason is a sentence for the person at the terminal.
class Obstacle : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

using Chapter = std::map<int, std::string>;  // verse to text
using Book = std::map<int, Chapter>;         // chapter to verses

// The text of every verse by book (its position in the canon, from 0), chapter and verse (from 1).
struct Version {
  std::vector<Book> books;  // one for each book of the canon
  // Of a text that stands in for another: what it is, and on what terms it may be used. "" for any other.
  std::string name;
  std::string terms;

  std::size_t VerseCount() const;
};

// Each of these throws an Obstacle that says what to install or what is wrong with the file.

// The King James text, and the World English text, which stands in for the second version.
Version KingJames(const std::vector<MarkedVerse>& module);
Version WorldEnglish(const std::vector<MarkedVerse>& module);
Version ReadKingJames();
Version ReadWorldEnglish();

// A person's own second version: one verse a line ("Ge1:1 In the …"), or OSIS XML.
Version ReadOwnText(const std::string& path);

// The output of a command of the distribution; an Obstacle that names the package where the command is
// missing, fails or prints nothing.
std::string OutputOf(const std::string& command, const std::string& program, const std::string& packages);

// The font in which this machine shows a serif text.
std::string SerifFont();

}  // namespace lectern::make_data
