// A page that shows a chapter, as the rest of the desktop uses it. A verse is named by the number at the
// start of its line.
#pragma once

namespace lectern::desktop {

class VersePage {
 public:
  virtual ~VersePage() = default;

  // At the page's next update, brings the verse into the part that no panel covers and marks it beside its
  // number. Changes nothing if the page has no such verse.
  virtual void ShowVerse(int verse) = 0;

  // At the page's next update, scrolls back to what is at the top of the page now.
  virtual void KeepInSight() = 0;
};

}  // namespace lectern::desktop
