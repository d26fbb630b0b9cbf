// A window on the screen: its title, its place, its menu bar, its face with the controls, and the focus. The
// frame comes into being when the window is first shown.
//
// The view lives as long as the window. When the window is let go, as from inside one of its own events, the
// view is abandoned: it disappears at once, never looks at a control again, and is deleted when Qt is done
// with it.
#pragma once

#include <QKeyEvent>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "forms/window.h"
#include "ui/desktop/app/events.h"

namespace lectern::desktop {

class ChildViews;
class ControlView;
class FittedFace;
class MenuBarView;
class WindowFocus;

class WindowView : public QObject, public LayerView {
 public:
  WindowView(forms::Window& window, Events& events, std::function<void(forms::Window&)> close);
  ~WindowView() override;

  void Changed() override;
  void Refresh() override;
  void TakeFocus() override;

  // Ahead of an event.
  void Commit();

  // After an event: puts what lies over one another in order, and the focus where it belongs.
  void Settle();

  void Abandon();
  bool IsAbandoned() const { return abandoned_; }

  // The keyboard's focus moved to another widget of the window.
  void FocusArrived();

  QWidget* Frame() const { return frame_.get(); }  // nullptr until it was first shown
  QWidget& Face();                                 // the frame without the menu bar
  bool IsOf(const forms::Window& window) const { return &window_ == &window; }

  // For the views of the controls.
  using LayerView::GetEvents;
  void NeedsArranging() { needs_arranging_ = true; }
  void FocusIsWanted();
  void WantsToCommit(ControlView& view);

  // The button whose caption marks that letter is pressed; whether there is one. Where several panels have
  // one the panel on top comes first, and a button always comes before a menu.
  bool PressAccessKey(int letter);
  bool HasAccessKey(int letter) const { return ButtonWith(letter) != nullptr; }

  // A key that counts wherever the focus is; whether it does.
  bool HandleKey(const QKeyEvent& key);

  // How many times as large as it is set the text of pages is shown, for as long as the window stands. 0
  // steps take it back to the size that is set.
  double Enlargement() const;
  void Enlarge(int steps);

  // What reaches the frame itself.
  void ThemeChanged();
  void CloseAsked();
  bool KeyPressed(const QKeyEvent& key);

 private:
  class FrameWidget;
  void Build();
  QRect Covered(const QSize& client) const;
  void ApplySize();
  void ApplyPlace();
  void ApplyPointer();
  void ApplyColours();
  void Arrange();
  void ComeToFront();
  forms::Control* ButtonWith(int letter) const;

  forms::Window& window_;
  std::function<void(forms::Window&)> close_;
  std::unique_ptr<QWidget> frame_;
  std::unique_ptr<FittedFace> fitted_;
  QWidget* face_ = nullptr;
  std::unique_ptr<MenuBarView> menu_bar_;
  std::unique_ptr<ChildViews> children_;
  std::unique_ptr<WindowFocus> focus_;
  std::vector<ControlView*> uncommitted_;
  std::optional<std::pair<double, double>> place_;  // as applied, in twips
  int enlarged_ = 0;                                // steps
  int pointer_ = forms::kPointerDefault;
  bool front_is_wanted_ = false;
  bool needs_arranging_ = false;
  bool abandoned_ = false;
};

}  // namespace lectern::desktop
