// A page that shows a chapter, as the rest of the desktop uses it. A verse is named by the number at the
// start of its line.
#pragma once

#include <QMenu>
#include <QString>
#include <functional>

namespace lectern::desktop {

class VersePage {
 public:
  virtual ~VersePage() = default;

  // At the page's next update, brings the verse into the part that no panel covers and marks it beside its
  // number. Changes nothing if the page has no such verse.
  virtual void ShowVerse(int verse) = 0;

  // At the page's next update, scrolls back to what is at the top of the page now.
  virtual void KeepInSight() = 0;

  // Marks a verse at once without scrolling to it; 0 removes the mark.
  virtual void MarkVerse(int verse) = 0;
  virtual int MarkedVerse() const = 0;

  // The verse at the top of the page, and as a fraction how much of it is above the top: 3.5 for half of
  // verse 3. What follows a verse without a number of its own belongs to it. 0 if the page shows its
  // beginning.
  virtual double VerseAtTop() const = 0;

  // Scrolls a verse to the top, or the next one if there is none of that number; for 0 to the beginning.
  virtual void ScrollToVerse(double verse) = 0;

  // Called when the page has scrolled.
  std::function<void()> on_scroll = [] {};

  // Adds to the menu of the other mouse button what can be done with words: those that are selected, or the
  // word under the mouse.
  std::function<void(QMenu& menu, const QString& words)> add_to_menu = [](QMenu&, const QString&) {};
};

}  // namespace lectern::desktop
