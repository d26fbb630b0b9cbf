// The texts: a version of the scriptures between its source and the book files, and the sources themselves,
// which are programs of the distribution or a file of the person's own.
#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

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
  std::vector<Book> books;     // one for each book of the canon
  std::string chapter_remark;  // behind each chapter's number, "" for none

  std::size_t VerseCount() const;
};

// The words of a verse without their markup: notes, headings and tags are dropped, character references
// resolved and typographic quotes made plain, so that a typed word finds them.
std::string PlainWords(std::string_view markup);

// Each of these throws an Obstacle that says what to install or what is wrong with the file.

// The King James text, read with the program `bible`.
Version ReadKingJames();

// The World English text, which stands in for the second version, read with `mod2imp`.
Version ReadWorldEnglish();

// A person's own second version: one verse a line ("Ge1:1 In the …"), or OSIS XML.
Version ReadOwnText(const std::string& path);

// The output of a command of the distribution; an Obstacle that names the package where the command is
// missing, fails or prints nothing.
std::string OutputOf(const std::string& command, const std::string& program, const std::string& packages);

// The font in which this machine shows a serif text.
std::string SerifFont();

}  // namespace lectern::make_data
