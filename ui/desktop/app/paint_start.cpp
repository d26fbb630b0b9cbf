#include "ui/desktop/app/paint_start.h"

#include <algorithm>
#include <utility>

#include "forms/figures.h"

namespace lectern::desktop {

void PaintStart::Settle() {
  const auto& windows = program_.windows.All();
  const auto found =
      std::find_if(windows.begin(), windows.end(), [](const auto* w) { return w->Name() == "Form4"; });
  if (found == windows.end()) return;
  forms::Window& paint = **found;
  const forms::Picture original = dynamic_cast<forms::Image&>(*paint.Find("IMGSPB", 0)).Picture;
  const bool was_open = std::exchange(open_, paint.Visible);
  if (!open_ || !original || (was_open && original == original_)) return;
  original_ = original;
  events_.Deliver(paint, [&paint] {
    paint.Find("clrboxs", 0)->PersonPresses({});
    paint.Find("picpbs", 1)->PersonClicks();
  });
}

}  // namespace lectern::desktop
