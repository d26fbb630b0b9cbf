// A table: rows with a name and facts about it, in one or more blocks side by side.
//
//   columns: Month | Feast     the heads
//   blocks: 2
//    Abib | The passover       a row; its first field is the name
#pragma once

#include <string>
#include <vector>

#include "tools/make_data/plates/lettering.h"
#include "tools/make_data/plates/sections.h"

namespace lectern::plates {

class TablePlate {
 public:
  explicit TablePlate(const Section& section);

  std::string AsJpeg() const;
  bool Fits() const { return fits_; }
  std::vector<std::string> Names() const;

 private:
  using Row = std::vector<std::string>;

  bool Try(double size);
  double RowHeight() const;
  Letters LettersOf(std::size_t column) const;
  void DrawBlock(cairo_t* context, double left, std::size_t first, std::size_t count) const;

  std::string title_, passage_;
  Row heads_;
  std::vector<Row> rows_;
  std::size_t blocks_ = 1;
  Box room_{};
  double size_ = 0;
  std::vector<double> widths_;  // of the columns, with the gap behind
  bool fits_ = false;
};

}  // namespace lectern::plates
