// The kings of two kingdoms and their prophets along one line of time, from the top down.
//
//   from: 931                   the first and last year, before Christ
//   to: 586
//    judah king Rehoboam 931 913
//    judah prophet Isaiah 740 690
#pragma once

#include <string>
#include <vector>

#include "tools/make_data/plates/lettering.h"
#include "tools/make_data/plates/sections.h"

namespace lectern::plates {

class ReignPlate {
 public:
  explicit ReignPlate(const Section& section);

  std::string AsJpeg() const;
  bool Fits() const { return fits_; }
  std::vector<std::string> Names() const;

 private:
  struct Reign {
    std::string name;
    double from, to;  // as heights on the plate
    double name_at = 0;
  };
  // One side's kings or prophets.
  struct Lane {
    std::vector<Reign> reigns;
    double bar_left = 0, bar_right = 0;
    double name_at = 0;
    Align align = Align::kLeft;
    Colour colour{};
  };

  double HeightOf(double year) const;
  void SpreadNames(Lane& lane);
  void DrawLane(cairo_t* context, const Lane& lane) const;
  void DrawYears(cairo_t* context) const;

  std::string title_, passage_, left_head_, right_head_;
  double from_, to_;
  Box room_{};
  std::vector<Lane> lanes_;
  bool fits_ = true;
};

}  // namespace lectern::plates
