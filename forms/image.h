// A picture on a panel. With Stretch off, assigning a picture gives the control the picture's size; with it
// on, the picture fills the control, whatever its proportions.
#pragma once

#include "forms/control.h"
#include "forms/picture.h"

namespace lectern::forms {

struct ImageDesign {
  bool visible = true;
  bool enabled = true;
  std::string_view name{};
  bool stretch = false;
};

class Image : public PlacedControl {
 public:
  using Design = ImageDesign;

  Image(Container& parent, std::string name, const Design& design = {});

  RuledProperty<forms::Picture> Picture;
  RuledProperty<bool> Stretch;
  Property<int> BorderStyle;

 private:
  void TakePictureSize();
};

}  // namespace lectern::forms
