// The windows with a single feature.
#pragma once

#include "aids/notes.h"
#include "aids/printing.h"

namespace lectern::ui {

// The page that is printed.
class Form2 : public forms::Window {
 public:
  explicit Form2(forms::Services services);

  void Form_Load() override { page_.Form_Load(); }
  // Hidden, so that the page keeps its text.
  forms::CloseBox OnCloseBox() const override { return forms::CloseBox::kHides; }

 private:
  aids::PrintedPage page_{*this};
};

// The notes. After a failure the window goes on, so that unsaved text is not lost.
class Form3 : public forms::Window {
 public:
  explicit Form3(forms::Services services);

  void Form_Load() override { notes.Form_Load(); }
  void Form_Unload() override { notes.Form_Unload(); }
  bool StaysInFront() const override { return true; }
  forms::Resizing GetResizing() const override { return forms::Resizing::kFree; }
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
