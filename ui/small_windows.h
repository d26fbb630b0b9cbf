// The windows that hold one feature each: the page that is printed, the notes, and the picture that is
// printed.
#pragma once

#include "aids/notes.h"
#include "aids/printing.h"

namespace lectern::ui {

// The page that is printed.
class Form2 : public forms::Window {
 public:
  explicit Form2(forms::Services services);

  void Form_Load() override { page_.Form_Load(); }
  // The page keeps its text.
  forms::CloseBox OnCloseBox() const override { return forms::CloseBox::kHides; }

 private:
  aids::PrintedPage page_{*this};
};

// The notes. A failure in it is reported and the window goes on, so that nothing unsaved is lost.
class Form3 : public forms::Window {
 public:
  explicit Form3(forms::Services services);

  void Form_Load() override { notes.Form_Load(); }
  void Form_Unload() override { notes.Form_Unload(); }
  forms::AfterFailure AfterUntrappedFailure() const override { return forms::AfterFailure::kGoOn; }

  aids::Notes notes{*this};
};

// The picture that is printed.
class Form5 : public forms::Window {
 public:
  explicit Form5(forms::Services services);

  aids::PrintedPicture picture{*this};
};

}  // namespace lectern::ui
