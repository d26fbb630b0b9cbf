#include "paint/pen_settings.h"

#include "base/errors.h"
#include "base/text/numbers.h"

namespace lectern::paint {

void PenSettings::Apply(forms::PictureBox& canvas) const {
  const base::Ignoring ignore;
  const auto number = [this](int index) { return text::ToInteger(mde(index).Text()); };
  ignore([&] { canvas.DrawWidth = number(kDrawWidth); });
  ignore([&] { canvas.DrawStyle = number(kDrawStyle); });
  ignore([&] { canvas.FillStyle = number(kFillStyle); });
  ignore([&] { canvas.DrawMode = number(kDrawMode); });
  ignore([&] { canvas.FillColor = text::ToLong(mde(kFillColor).Text()); });
  canvas.ForeColor = clr1.BackColor;
}

}  // namespace lectern::paint
