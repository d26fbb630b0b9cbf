// A window on the screen: its title, its place, its menu bar, its controls and the focus. The frame is made
// when the window is first shown.
//
// The view is destroyed with its window, whose widgets must not be in use then. Therefore the close box
// closes the window by `Events::RunLater`, and nothing else closes it.
#pragma once

#include <QKeyEvent>
#include <QMenuBar>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "forms/window.h"
#include "ui/desktop/app/events.h"
#include "ui/desktop/layout/face_layout.h"

namespace lectern::desktop {

class ChildViews;
class ControlView;
class FittedFace;
class MenuBarView;
class WindowFocus;

class WindowView : public QObject, public LayerView {
 public:
  // Calls `close` in a separate event after the close box is pressed. It may destroy the window and this
  // view.
  WindowView(forms::Window& window, Events& events, std::function<void(forms::Window&)> close);
  ~WindowView() override;

  void Changed() override;
  void Refresh() override;
  void TakeFocus() override;

  // Keeps this window in front of that one, which outlives it.
  // Requires: this window has not been shown.
  void StayInFrontOf(WindowView& other) { behind_ = &other; }

  void Commit();        // before an event: copies pending changes to the controls
  void Settle();        // after an event: stacks the widgets and sets the tab order and the focus
  void FocusArrived();  // after the focus has moved to another widget of the window

  QWidget* Frame() const { return frame_.get(); }  // nullptr until the window is first shown
  QWidget& Face();                                 // the part of the frame with the controls
  QMenuBar* MenuBar() const;                       // nullptr if the window has none
  bool IsOf(const forms::Window& window) const { return &window_ == &window; }

  // For the views of the controls.
  using LayerView::GetEvents;
  void NeedsArranging() { needs_arranging_ = true; }
  void FocusIsWanted();
  void WantsToCommit(ControlView& view);

  // Presses the button with that access key. Returns whether there is one. The top panel comes first, and a
  // button always comes before a menu.
  bool PressAccessKey(int letter);
  bool HasAccessKey(int letter) const { return ButtonWith(letter) != nullptr; }

  // Runs within an event what Escape does. What is around the panels may do more.
  std::function<void(const std::function<void()>& press)> escaping = [](const auto& press) { press(); };

  // Handles a key that works wherever the focus is. Returns whether it did.
  bool HandleKey(const QKeyEvent& key);

  // Moves the focus through the open panels and the window's main control, by a step of 1 or -1.
  void ChangeBetweenPanels(int step);

  // Where the controls of the window lie now.
  const FaceLayout& Layout() const { return layout_; }

  // A panel was opened, closed or moved, or the face has another size.
  void LayOut();
  void MovePanel(const forms::PlacedControl& panel, const QPoint& corner);
  void PutPanelBack(const forms::PlacedControl& panel);

  void PutOnBench(const forms::PlacedControl& panel, const QSize& size) { layout_.PutOnBench(panel, size); }

  void ChangeFullScreen();

  // The factor that enlarges the text of pages. It is kept as long as the window. 0 steps return to 1.
  double Enlargement() const;
  void Enlarge(int steps);

 private:
  class FrameWidget;
  void Build();
  void ApplySize();
  void FrameResized();
  bool IsFree() const;  // to be resized by the person
  void ApplyPlace();
  void ApplyPointer();
  void ApplyColours();
  forms::Control* ButtonWith(int letter) const;
  bool KeyPressed(const QKeyEvent& key);  // in the frame itself

  forms::Window& window_;
  FaceLayout layout_{window_};
  std::function<void(forms::Window&)> close_;
  std::unique_ptr<MenuBarView> menu_bar_;
  std::unique_ptr<ChildViews> children_;
  std::unique_ptr<WindowFocus> focus_;
  std::unique_ptr<FittedFace> fitted_;
  std::unique_ptr<QWidget> frame_;  // destroyed before the views, because its widgets report to them
  QWidget* face_ = nullptr;
  WindowView* behind_ = nullptr;
  std::vector<ControlView*> uncommitted_;
  std::optional<std::pair<double, double>> place_;  // as applied, in twips
  QSize size_;                                      // of the client area, as applied
  QSize start_;                                     // the face's own size
  int enlarged_ = 0;                                // steps
  int pointer_ = forms::kPointerDefault;
  bool front_is_wanted_ = false;
  bool needs_arranging_ = false;
};

}  // namespace lectern::desktop
