// The window of the page that is printed.
#pragma once

#include "aids/printed_page.h"

namespace lectern::ui {

class Form2 : public forms::Window {
 public:
  explicit Form2(forms::Services services);

  void Form_Load() override { page_.Form_Load(); }
  forms::CloseBox OnCloseBox() const override { return forms::CloseBox::kHides; }  // the page keeps its text

 private:
  aids::PrintedPage page_{*this};
};

}  // namespace lectern::ui
