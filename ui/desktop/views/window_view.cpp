#include "ui/desktop/views/window_view.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <cmath>
#include <utility>

#include "forms/buttons.h"
#include "ui/desktop/app/pictures.h"
#include "ui/desktop/app/theme.h"
#include "ui/desktop/layout/fitted_face.h"
#include "ui/desktop/layout/places.h"
#include "ui/desktop/layout/window_focus.h"
#include "ui/desktop/views/child_views.h"
#include "ui/desktop/views/control_view.h"
#include "ui/desktop/views/keys.h"
#include "ui/desktop/views/menu_views.h"

namespace lectern::desktop {

constexpr QSize kDecoration(8, 36);  // the most that a desktop adds to a window for borders and a title

class WindowView::FrameWidget : public QWidget {
 public:
  explicit FrameWidget(WindowView& view) : view_(view) {}

 protected:
  void closeEvent(QCloseEvent* event) override {
    event->ignore();  // the program decides whether to close the window
    if (view_.GetEvents().AtWork()) return;
    view_.GetEvents().RunLater([view = QPointer<WindowView>(&view_)] {
      if (view == nullptr) return;      // the close box was pressed twice
      const auto close = view->close_;  // the view may be destroyed meanwhile
      close(view->window_);
    });
  }

  void keyPressEvent(QKeyEvent* event) override {
    const int letter = AccessKey(*event);
    const bool taken = letter != 0 ? view_.PressAccessKey(letter) : view_.KeyPressed(*event);
    if (!taken) QWidget::keyPressEvent(event);
  }

  void resizeEvent(QResizeEvent* event) override {
    QWidget::resizeEvent(event);
    if (view_.children_) view_.FrameResized();
  }

  bool event(QEvent* event) override {
    if (event->type() == QEvent::ShortcutOverride) {
      // Qt would alternate between a menu and a button with the same letter.
      const int letter = AccessKey(static_cast<const QKeyEvent&>(*event));
      if (letter != 0 && view_.HasAccessKey(letter)) {
        event->accept();
        return true;
      }
    }
    const bool theme_changes =
        event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::ApplicationFontChange;
    if (theme_changes && view_.children_) {
      view_.Changed();
      view_.children_->Recolour();
      if (!view_.GetEvents().AtWork()) view_.GetEvents().Run([] {});
    }
    return QWidget::event(event);
  }

 private:
  WindowView& view_;
};

WindowView::WindowView(forms::Window& window, Events& events, std::function<void(forms::Window&)> close)
    : LayerView(events), window_(window), close_(std::move(close)) {
  window_.Attach(this);
  LayerView::Changed();
}

// Moves the focus out of the window while all widgets are intact.
WindowView::~WindowView() {
  window_.Attach(nullptr);
  if (frame_) frame_->hide();
}

// The pointer changes at once, because it shows that the current handler is busy.
void WindowView::Changed() {
  LayerView::Changed();
  if (frame_) ApplyPointer();
}

void WindowView::Refresh() {
  if (!frame_) {
    if (!window_.Visible) return;
    Build();
  }
  frame_->setWindowTitle(ToQString(window_.Title == "" ? window_.Caption() : window_.Title()));
  ApplySize();
  ApplyPlace();
  ApplyPointer();
  ApplyColours();
  const bool appears = window_.Visible() && frame_->isHidden();
  frame_->setVisible(window_.Visible);
  if (std::exchange(front_is_wanted_, false) || appears) {
    frame_->setWindowState(frame_->windowState() & ~Qt::WindowMinimized);
    frame_->raise();
    frame_->activateWindow();
  }
}

void WindowView::TakeFocus() {
  front_is_wanted_ = true;
  LayerView::Changed();
}

void WindowView::Build() {
  frame_ = std::make_unique<FrameWidget>(*this);
  frame_->setObjectName(ToQString(window_.Name()));
  if (behind_ != nullptr && behind_->frame_) {
    frame_->winId();  // makes the window handle
    frame_->windowHandle()->setTransientParent(behind_->frame_->windowHandle());
  }
  fitted_ = std::make_unique<FittedFace>(*frame_);
  face_ = &fitted_->Face();
  if (window_.HasMenuBar()) menu_bar_ = std::make_unique<MenuBarView>(window_, *this, *frame_);
  ApplySize();
  children_ = std::make_unique<ChildViews>(window_, *this, *face_);
  focus_ = std::make_unique<WindowFocus>(window_, GetEvents(), *frame_, *children_);
  needs_arranging_ = true;
}

QWidget& WindowView::Face() {
  if (!frame_) {
    Build();
    GetEvents().ShowAll();
  }
  return *face_;
}

QMenuBar* WindowView::MenuBar() const { return menu_bar_ ? &menu_bar_->Bar() : nullptr; }

// The window starts in the size of its client area, below the menu bar. A menu bar that is higher than the
// model has it takes the difference from the face.
void WindowView::ApplySize() {
  const QSize client(ToPixels(window_.ClientWidth()), ToPixels(window_.ClientHeight()));
  const int above = menu_bar_ ? menu_bar_->Place(client.width()) : 0;
  if (std::exchange(size_, client) == client) return;
  const QSize available = frame_->screen()->availableSize() - kDecoration;
  start_ = client;
  if (IsFree() && menu_bar_) start_.rheight() -= std::max(above - ToPixels(forms::kMenuBarHeight), 0);
  const QSize size = fitted_->Place(start_, CoveredPart(window_, start_), above, available);
  if (IsFree()) {
    constexpr QSize kSmallest(400, 300);
    frame_->setMinimumSize(kSmallest.boundedTo(size));
    frame_->resize(size);
  } else {
    frame_->setFixedSize(size);
  }
  LayOut();
}

// The face takes the frame's size. Where that is too small for it, it is scrolled.
void WindowView::FrameResized() {
  if (!IsFree()) return;
  const int above = menu_bar_ ? menu_bar_->Place(frame_->width()) : 0;
  const QSize room = frame_->size() - QSize(0, above);
  fitted_->Place(start_.expandedTo(room), CoveredPart(window_, start_), above, frame_->size());
  LayOut();
  if (!GetEvents().AtWork()) GetEvents().Run([] {});
}

bool WindowView::IsFree() const { return window_.GetResizing() == forms::Resizing::kFree; }

void WindowView::LayOut() {
  if (layout_.Update(face_->size()) && children_) children_->MarkStale();
}

void WindowView::MovePanel(const forms::PlacedControl& panel, const QPoint& corner) {
  layout_.Move(panel, corner);
  layout_.Update(face_->size());
  GetEvents().Run([this] { children_->MarkStale(); });
}

void WindowView::PutPanelBack(const forms::PlacedControl& panel) {
  layout_.PutBack(panel);
  layout_.Update(face_->size());
  GetEvents().Run([this] { children_->MarkStale(); });
}

void WindowView::ChangeFullScreen() {
  if (IsFree()) frame_->setWindowState(frame_->windowState() ^ Qt::WindowFullScreen);
}

// Moves the frame only when the program moves the window, because the user may have moved it. A frame that
// fills the screen starts at the screen's edge.
void WindowView::ApplyPlace() {
  const std::pair<double, double> wanted{window_.Left, window_.Top};
  if (place_ == wanted) return;
  place_ = wanted;
  const QRect available = frame_->screen()->availableGeometry();
  const QSize left_over = available.size() - kDecoration - frame_->size();
  const int left = left_over.width() > 0 ? std::max(ToPixels(wanted.first), 0) : available.left();
  const int top = left_over.height() > 0 ? std::max(ToPixels(wanted.second), 0) : available.top();
  frame_->move(left, top);
}

void WindowView::ApplyPointer() {
  if (pointer_ == window_.MousePointer) return;
  pointer_ = window_.MousePointer;
  if (pointer_ == forms::kPointerDefault) {
    frame_->unsetCursor();
  } else {
    frame_->setCursor(PointerOf(pointer_));
  }
}

void WindowView::ApplyColours() {
  const QPalette theme = QApplication::palette();
  QPalette palette;
  if (window_.BackColor != forms::kButtonFace) {
    const QColor ground = ToColor(window_.BackColor, theme);
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::WindowText, TextOn(ground));
  }
  if (face_->palette().color(QPalette::Window) == ToColor(window_.BackColor, theme)) return;
  face_->setPalette(palette);
  if (children_) children_->Recolour();
}

void WindowView::WantsToCommit(ControlView& view) {
  if (std::find(uncommitted_.begin(), uncommitted_.end(), &view) == uncommitted_.end()) {
    uncommitted_.push_back(&view);
  }
}

void WindowView::Commit() {
  for (ControlView* view : std::exchange(uncommitted_, {})) view->Commit();
}

void WindowView::Settle() {
  if (!frame_ || frame_->isHidden()) return;
  children_->Any([](ControlView& view) {
    if (view.IsSeen()) view.EventEnded();
    return false;
  });
  if (std::exchange(needs_arranging_, false)) {
    children_->Stack();
    std::vector<ControlView*> order;
    children_->AppendInTabOrder(order);
    SetTabOrder(order);
  }
  focus_->Settle();
}

void WindowView::FocusIsWanted() {
  if (focus_) focus_->IsWanted();
}

void WindowView::FocusArrived() {
  if (!focus_) return;
  if (QWidget* const focus = frame_->focusWidget()) fitted_->BringIntoSight(*focus);
  focus_->Arrived();
}

forms::Control* WindowView::ButtonWith(int letter) const {
  forms::Control* best = nullptr;
  unsigned best_shown_at = 0;
  for (forms::Control* control : window_.Controls()) {
    const auto* const button = dynamic_cast<const forms::Button*>(control);
    if (button == nullptr || AccessKey(button->Caption) != letter) continue;
    if (control->RefusesPerson() != forms::Refusal::kNone) continue;
    const auto* const panel = dynamic_cast<const forms::Control*>(&control->Parent());
    const unsigned shown_at = panel == nullptr ? 0 : panel->ShownAt();
    if (best != nullptr && shown_at <= best_shown_at) continue;
    best = control;
    best_shown_at = shown_at;
  }
  return best;
}

bool WindowView::PressAccessKey(int letter) {
  forms::Control* const button = ButtonWith(letter);
  if (button == nullptr) return false;
  if (ControlView* view = SeenViewOf(button)) focus_->TakeToPress(*view);
  // Leaving the field that had the focus may have disabled or hidden the button.
  if (button->RefusesPerson() != forms::Refusal::kNone) return true;
  GetEvents().Deliver(window_, [button] { button->PersonClicks(); });
  return true;
}

bool WindowView::HandleKey(const QKeyEvent& key) {
  if (key.key() == Qt::Key_F11 && key.modifiers() == Qt::NoModifier && IsFree()) {
    ChangeFullScreen();
    return true;
  }
  return children_ &&
         children_->Any([&key](ControlView& view) { return view.IsSeen() && view.HandleWindowKey(key); });
}

void WindowView::ChangeBetweenPanels(int step) { focus_->ChangeBetweenPanels(step); }

double WindowView::Enlargement() const {
  constexpr double kStep = 1.1;
  return std::pow(kStep, enlarged_);
}

void WindowView::Enlarge(int steps) {
  constexpr int kSmallest = -6;
  constexpr int kLargest = 14;
  const int wanted = steps == 0 ? 0 : std::clamp(enlarged_ + steps, kSmallest, kLargest);
  if (std::exchange(enlarged_, wanted) == wanted) return;
  GetEvents().Run([this] {
    children_->Any([](ControlView& view) {
      view.Changed();
      return false;
    });
  });
}

bool WindowView::KeyPressed(const QKeyEvent& event) {
  if (HandleKey(event)) return true;
  switch (event.key()) {
    case Qt::Key_Escape:
      GetEvents().Deliver(window_, [this] { escaping([this] { window_.PressCancelOfFrontPanel(); }); });
      return true;
    case Qt::Key_F6:
      ChangeBetweenPanels((event.modifiers() & Qt::ShiftModifier) != 0 ? -1 : 1);
      return true;
    case Qt::Key_F10:
      if (menu_bar_) menu_bar_->OpenFirst();
      return menu_bar_ != nullptr;
    default:
      return false;
  }
}

}  // namespace lectern::desktop
