// A window on the screen: its title, its place, its menu bar, its face with the controls, and the focus. The
// frame is made when the window is first shown.
//
// The view is destroyed with its window. The widgets of the window must not be in use then: a close box asks
// for the closing by `Events::RunLater`, and nothing else closes a window.
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
  // `close` is called when the person has pressed the close box, in an event of its own. It may destroy the
  // window and this view.
  WindowView(forms::Window& window, Events& events, std::function<void(forms::Window&)> close);
  ~WindowView() override;

  void Changed() override;
  void Refresh() override;
  void TakeFocus() override;

  // Ahead of an event: takes over what the person did without one.
  void Commit();

  // After an event: stacks what overlaps, and puts the focus where it belongs.
  void Settle();

  // The keyboard's focus has moved to another widget of the window.
  void FocusArrived();

  QWidget* Frame() const { return frame_.get(); }  // nullptr until it was first shown
  QWidget& Face();                                 // the frame without the menu bar
  bool IsOf(const forms::Window& window) const { return &window_ == &window; }

  // For the views of the controls.
  using LayerView::GetEvents;
  void NeedsArranging() { needs_arranging_ = true; }
  void FocusIsWanted();
  void WantsToCommit(ControlView& view);

  // Presses the button whose caption marks that letter. Returns whether there is one. Of several panels the
  // one on top comes first, and a button always comes before a menu.
  bool PressAccessKey(int letter);
  bool HasAccessKey(int letter) const { return ButtonWith(letter) != nullptr; }

  // Handles a key that counts wherever the focus is. Returns whether it does.
  bool HandleKey(const QKeyEvent& key);

  // The factor by which pages show their text larger than it is set. Lasts as long as the window. 0 steps
  // return to the size that is set.
  double Enlargement() const;
  void Enlarge(int steps);

 private:
  class FrameWidget;
  void Build();
  void ApplySize();
  void ApplyPlace();
  void ApplyPointer();
  void ApplyColours();
  void Arrange();
  forms::Control* ButtonWith(int letter) const;

  // What reaches the frame itself.
  void ThemeChanged();
  void CloseAsked();
  bool KeyPressed(const QKeyEvent& key);

  forms::Window& window_;
  std::function<void(forms::Window&)> close_;
  std::unique_ptr<MenuBarView> menu_bar_;
  std::unique_ptr<ChildViews> children_;
  std::unique_ptr<WindowFocus> focus_;
  std::unique_ptr<FittedFace> fitted_;
  // Goes before the views, so that its widgets never report to one that is gone.
  std::unique_ptr<QWidget> frame_;
  QWidget* face_ = nullptr;
  std::vector<ControlView*> uncommitted_;
  std::optional<std::pair<double, double>> place_;  // as applied, in twips
  int enlarged_ = 0;                                // steps
  int pointer_ = forms::kPointerDefault;
  bool front_is_wanted_ = false;
  bool needs_arranging_ = false;
};

}  // namespace lectern::desktop
