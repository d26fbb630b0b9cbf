// Positions in a text as the forms count them and as Qt does. A line end is two characters for the forms and
// one for Qt; a character beyond U+FFFF is one for the forms and two for Qt. Both count from 0.
#pragma once

#include <QString>
#include <cstddef>
#include <string_view>
#include <vector>

namespace lectern::desktop {

class TextPositions {
 public:
  // Measures a whole text.
  void Read(std::string_view text);

  int ToQt(std::size_t position) const;
  std::size_t ToForms(int position) const;

  // `inserted` has replaced `removed` characters from `at` on, as Qt counts.
  void Edited(int at, int removed, std::string_view inserted);

 private:
  // The position after a character that the two count differently.
  struct Mark {
    std::size_t forms;
    int qt;
  };
  struct Measured {
    std::vector<Mark> marks;
    Mark end;
  };
  static Measured Measure(std::string_view text);

  std::vector<Mark> marks_;
};

// The text for a document of Qt, where a line ends with a line feed.
QString ToDocument(std::string_view text);

}  // namespace lectern::desktop
