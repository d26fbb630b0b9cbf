// The window of a picture that is printed.
#pragma once

#include "aids/printed_picture.h"

namespace lectern::ui {

class Form5 : public forms::Window {
 public:
  explicit Form5(forms::Services services);

  aids::PrintedPicture picture{*this};
};

}  // namespace lectern::ui
