#include "paint/pen_settings.h"

#include "base/error_modes.h"
#include "base/text/numbers.h"

namespace lectern::paint {

PenSettings::PenSettings(forms::Window& form)
    : Frame2(form, "Frame2", {.caption = "needs", .visible = false}),
      Frame1(Frame2, "Frame1"),
      mde(Frame1, "mde", {{.text = "15"}, {.text = "1"}, {.text = "1"}, {.text = "3"}, {.text = "7"}}),
      Text2(Frame2, "Text2", {.text = "3"}),
      xpos(Frame1, "xpos", {.caption = "Label2"}),
      ypos(Frame1, "ypos", {.caption = "Label2"}),
      Label1(Frame1, "Label1",
             {{.caption = "DrawWidth = "},
              {.caption = "DrawStyle ="},
              {.caption = "FillStyle ="},
              {.caption = "X Position"},
              {.caption = "Y Position"},
              {.caption = "DrawMode ="},
              {.caption = "Fill Color  = "},
              {.caption = "DrawWidth = "}}),
      Label3(Frame2, "Label3", {.caption = "Label3"}),
      clr1(Frame2, "clr1", {.back_color = forms::kBlue}) {}

void PenSettings::Apply(forms::PictureBox& canvas) const {
  const base::Ignoring ignore;
  const auto number = [this](int index) { return text::ToInteger(mde(index).Text()); };
  ignore([&] { canvas.DrawWidth = number(kDrawWidth); });
  ignore([&] { canvas.DrawStyle = number(kDrawStyle); });
  ignore([&] { canvas.FillStyle = number(kFillStyle); });
  ignore([&] { canvas.DrawMode = number(kDrawMode); });
  ignore([&] { canvas.FillColor = text::ToLong(mde(kFillColor).Text()); });
  ignore([&] { canvas.ForeColor = clr1.BackColor; });
}

}  // namespace lectern::paint
