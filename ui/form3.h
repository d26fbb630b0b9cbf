// The window of the notes. A failure in it is told and the window goes on, so that nothing unsaved is lost.
#pragma once

#include "aids/notes.h"

namespace lectern::ui {

class Form3 : public forms::Window {
 public:
  explicit Form3(forms::Services services);

  void Form_Load() override { notes.Form_Load(); }
  void Form_Unload() override { notes.Form_Unload(); }
  forms::AfterFailure AfterUntrappedFailure() const override { return forms::AfterFailure::kGoOn; }

  aids::Notes notes{*this};
};

}  // namespace lectern::ui
