// Places in a text as the forms count them and as Qt does. A line end is two characters to the forms and one
// to Qt; a character beyond U+FFFF is one to the forms and two to Qt. Both count from 0.
#pragma once

#include <QString>
#include <cstddef>
#include <string_view>
#include <vector>

namespace lectern::desktop {

class TextPositions {
 public:
  // Takes the measure of a whole text.
  void Read(std::string_view text);

  int ToQt(std::size_t position) const;
  std::size_t ToForms(int position) const;

  // Of `removed` characters, by Qt's count, from `at` on, `inserted` took the place.
  void Edited(int at, int removed, std::string_view inserted);

 private:
  // The place right behind a character that the two count differently.
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

// As a document of Qt takes it in, a line end being a line feed.
QString ToDocument(std::string_view text);

}  // namespace lectern::desktop
