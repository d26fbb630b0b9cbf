// What the views of all controls have in common: place, visibility, pointer, font and colours of the widget,
// and how keys and focus come in. The widget is made when the control is first to be seen.
//
// A view belongs to the view of its window or panel, and is destroyed with it, before the control.
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
  // `parent` becomes the parent of the widget.
  ControlView(forms::PlacedControl& control, WindowView& window, QWidget& parent);
  ~ControlView() override;

  void Changed() override;
  void TakeFocus() override;
  void Refresh() override;

  // Takes over what the person did without an event, such as selecting text. Called ahead of the next event
  // where the view asked for it.
  virtual void Commit() {}

  // The theme or the ground behind the control has changed.
  void Recolour();

  forms::PlacedControl& Control() const { return control_; }
  QWidget* Widget() const { return widget_; }  // nullptr until the control was first seen
  bool IsSeen() const { return widget_ != nullptr && !widget_->isHidden(); }
  QRect Place() const;  // within the parent widget, in pixels

  // From now on its place is the upper left corner of its parent widget, wherever the control stands.
  void StandInTheCorner() { stands_in_corner_ = true; }
  bool StandsInTheCorner() const { return stands_in_corner_; }

  // Its widget has been put where it belongs, above or below its siblings.
  virtual void Stacked() {}

  // Handles a key that the control answers wherever the focus is in its window. Returns whether it does.
  virtual bool HandleWindowKey(const QKeyEvent& /*key*/) { return false; }

  // The views of what lies in it; nullptr for anything but a panel that was seen.
  virtual ChildViews* Children() { return nullptr; }

 protected:
  // What the control's colours apply to; nothing where the view paints with them itself.
  enum class Ground { kNone, kTransparent, kPanel, kField, kButton };

  virtual QWidget* Make(QWidget* parent) = 0;
  virtual void Apply() = 0;  // shows what only this kind of control has
  virtual void Resized() {}
  virtual Ground GetGround() const { return Ground::kTransparent; }
  virtual QFont WantedFont() const;
  virtual void FontWillChange() {}
  virtual QCursor Pointer() const;

  // Whether a screen reader reads the text on it, so that it needs no name besides.
  virtual bool SpeaksForItself() const { return false; }

  // Whether the widget has a use for the key, which then does not press the panel's buttons.
  virtual bool Needs(const QKeyEvent& /*key*/) const { return false; }
  virtual bool HandleKey(const QKeyEvent& /*key*/) { return false; }

  // Delivers something that the person does at the control, unless the control refuses it. The view then
  // shows the control's state, whatever the widget made of it by itself.
  void Act(const std::function<void()>& act);

  QColor GroundColor() const;
  WindowView& GetWindow() const { return window_; }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool IsInReach() const;
  void MakeWidget();
  std::optional<QColor> PictureColor() const;
  void ApplyPointer();
  void ApplyFont();
  void ApplyColours();
  bool KeyPressed(const QKeyEvent& key);

  forms::PlacedControl& control_;
  WindowView& window_;
  QWidget& parent_;
  QWidget* widget_ = nullptr;
  bool stands_in_corner_ = false;
  int pointer_ = forms::kPointerDefault;
  std::optional<std::pair<forms::Colour, forms::Colour>> colours_;  // as applied
};

// A view that knows its control by its kind.
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

// A press or movement of the mouse, its place in twips.
forms::MouseEvent ToMouseEvent(const QMouseEvent& event, Qt::MouseButtons buttons);

QString ToQString(const std::string& text);

// Whether a text is only the number that a label or box bears among those of its kind, such as "Label32". A
// control may hold such a text until it is first used; it is not shown.
bool IsDesignText(const std::string& text);

}  // namespace lectern::desktop
