// A book's page: its name and its best-known verse, set with an initial as in a fine edition.
#pragma once

#include <string>
#include <vector>

#include "tools/make_data/plates/lettering.h"

namespace lectern::plates {

class BookPlate {
 public:
  // `words` are the words of the passage in the text.
  BookPlate(std::string book, std::string passage, const std::string& words, Colour ground);

  std::string AsJpeg() const;

 private:
  struct Word {
    std::string markup;
    double width_of_em;
  };
  struct Line {
    std::size_t first, count;
  };

  void MeasureWords();
  std::vector<Line> Broken() const;
  double LineWidth(const Line& line) const;
  // How far the page is from a full page with even blanks; 0 is best.
  double Unevenness() const;
  bool Try(double size, int initial_lines);
  double IndentOf(std::size_t line) const;
  void DrawWord(cairo_t* context, const Word& word, Point at) const;

  std::string book_, passage_, initial_;
  std::vector<std::string> plain_;  // the words, the first without its initial
  Colour ground_;
  Box room_{};

  double size_ = 0, blank_ = 0, leading_ = 0;
  std::size_t initial_lines_ = 0;
  double initial_side_ = 0;
  std::vector<Word> words_;
  std::vector<Line> lines_;
};

}  // namespace lectern::plates
