// The base of all views of controls: the widget's place, visibility, pointer, font and colours, and the
// handling of keys and focus. The widget is made when the control is first visible.
//
// The view of a window or panel owns the views inside it. A view is destroyed before its control.
#pragma once

#include <QCursor>
#include <QFont>
#include <QMouseEvent>
#include <QWidget>
#include <functional>
#include <optional>
#include <utility>

#include "forms/control.h"
#include "ui/desktop/app/events.h"

namespace lectern::desktop {

class ChildViews;
class WindowView;

class ControlView : public QObject, public LayerView {
 public:
  ControlView(forms::PlacedControl& control, WindowView& window, QWidget& parent);
  ~ControlView() override;

  void Changed() override;
  void TakeFocus() override;
  void Refresh() override;

  // Copies changes that caused no event, such as a selection, to the control. Called before the next event if
  // the view asked for it.
  virtual void Commit() {}

  void Recolour();  // after a change of the theme or of the background

  forms::PlacedControl& Control() const { return control_; }
  QWidget* Widget() const { return widget_; }  // nullptr until the control is first visible
  bool IsSeen() const { return widget_ != nullptr && !widget_->isHidden(); }
  QRect Place() const;  // within the parent widget, in pixels

  // From now on shows the widget in the upper left corner of its parent, whatever the control's place.
  void PutInCorner() { in_corner_ = true; }
  bool IsInCorner() const { return in_corner_; }

  virtual void EventEnded() {}  // called after each event while the widget is visible

  // Called when the widget has been stacked among its siblings, of which that is the lowest panel.
  virtual void Stacked(QWidget& /*lowest_panel*/) {}

  // Handles a key that the control responds to wherever the focus is in its window. Returns whether it did.
  virtual bool HandleWindowKey(const QKeyEvent& /*key*/) { return false; }

  // The views inside; nullptr for anything but a panel that has been visible.
  virtual ChildViews* Children() { return nullptr; }

 protected:
  // What the control's colours apply to. `kNone` is for a view that paints with them itself.
  enum class Ground { kNone, kTransparent, kPanel, kField, kButton };

  virtual QWidget* Make(QWidget* parent) = 0;
  virtual void Apply() = 0;  // shows what only this kind of control has
  virtual void Resized() {}
  virtual Ground GetGround() const { return Ground::kTransparent; }
  virtual QString SpokenName() const;
  virtual QFont WantedFont() const;
  virtual void FontWillChange() {}
  virtual QCursor Pointer() const;

  // Whether the widget shows text that a screen reader reads, so that it needs no other name.
  virtual bool ShowsReadableText() const { return false; }

  // Whether the widget needs the key, which then does not press the panel's buttons.
  virtual bool Needs(const QKeyEvent& /*key*/) const { return false; }
  virtual bool HandleKey(const QKeyEvent& /*key*/) { return false; }

  // Delivers a user's action, unless the control refuses it. The view then shows the control's state, even if
  // the widget has changed by itself.
  void Act(const std::function<void()>& act);

  QColor GroundColor() const;
  WindowView& GetWindow() const { return window_; }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void MakeWidget();
  std::optional<QColor> PictureColor() const;
  void ApplyPointer();
  void ApplyColours();
  bool KeyPressed(const QKeyEvent& key);

  forms::PlacedControl& control_;
  WindowView& window_;
  QWidget& parent_;
  QWidget* widget_ = nullptr;
  bool in_corner_ = false;
  int pointer_ = forms::kPointerDefault;
  std::optional<std::pair<forms::Colour, forms::Colour>> colours_;  // as applied
};

// A view that knows the type of its control.
template <class Kind, class Base = ControlView>
class ViewOf : public Base {
 public:
  ViewOf(Kind& control, WindowView& window, QWidget& parent)
      : Base(control, window, parent), control_(control) {}

 protected:
  Kind& Control() const { return control_; }

 private:
  Kind& control_;
};

// Its place is in twips.
forms::MouseEvent ToMouseEvent(const QMouseEvent& event, Qt::MouseButtons buttons);

QString ToQString(const std::string& text);

// Whether a text is a default such as "Label32". A control may hold it until its first use; it is not shown.
bool IsDesignText(const std::string& text);

}  // namespace lectern::desktop
