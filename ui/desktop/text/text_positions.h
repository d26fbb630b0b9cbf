// Converts positions in a text between the forms and Qt. A line end is two characters for the forms and one
// for Qt; a character beyond U+FFFF is one for the forms and two for Qt; a character that is not shown is one
// for the forms and none for Qt. Both count from 0.
#pragma once

#include <QString>
#include <cstddef>
#include <string_view>
#include <vector>

namespace lectern::desktop {

class TextPositions {
 public:
  // `hidden` are the bytes of the characters that are not shown, in ascending order.
  void Read(std::string_view text, const std::vector<std::size_t>& hidden = {});

  // The place of a hidden character is that of the next one that is shown, and the other way around the place
  // is behind the hidden ones.
  int ToQt(std::size_t position) const;
  std::size_t ToForms(int position) const;

  // Records that `inserted` has replaced `removed` characters from `at` on, in positions of Qt.
  void Edited(int at, int removed, std::string_view inserted);

 private:
  // The position after a character that the two count differently.
  struct Mark {
    std::size_t forms = 0;
    int qt = 0;
  };
  struct Measured {
    std::vector<Mark> marks;
    Mark end;
  };
  static Measured Measure(std::string_view text, const std::vector<std::size_t>& hidden = {});

  // The last mark at or before a position, in the count of the forms or of Qt; a mark at 0 if there is none.
  template <class Position, class Count>
  Mark LastMark(Position position, Count count) const;

  std::vector<Mark> marks_;
};

// The text with the line ends of a Qt document.
QString ToDocument(std::string_view text);

}  // namespace lectern::desktop
