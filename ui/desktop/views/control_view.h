// What all views of controls have in common: place, visibility, pointer, font and colours of the widget, and
// how keys and focus come in. The widget is made when the control first has to be seen.
//
// A view belongs to the view of its window or panel and ends with it, ahead of the control.
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

  // Brings in what the person did that is no event, such as selecting text. Called ahead of the next event
  // where the view asked for it.
  virtual void Commit() {}

  // The theme or the ground behind the control changed.
  void Recolour();

  forms::PlacedControl& Control() const { return control_; }
  QWidget* Widget() const { return widget_; }  // nullptr until it was first seen
  bool IsSeen() const { return widget_ != nullptr && !widget_->isHidden(); }
  QRect Place() const;

  // The upper left corner of its parent widget is its place from now on, wherever the control stands.
  void StandInTheCorner() { corner_ = QPoint(0, 0); }
  bool StandsInTheCorner() const { return corner_.has_value(); }

  // Its widget has come to lie where it belongs, above or below its siblings.
  virtual void Stacked() {}

  // A key that the control answers to wherever the focus is in its window; whether it does.
  virtual bool HandleWindowKey(const QKeyEvent& /*key*/) { return false; }

  // What lies in it; nullptr for anything but a panel that was seen.
  virtual ChildViews* Children() { return nullptr; }

 protected:
  // What the control's colours go to; nowhere where the view paints with them itself.
  enum class Ground { kNone, kTransparent, kPanel, kField, kButton };

  virtual QWidget* Make(QWidget* parent) = 0;
  virtual void Apply() = 0;  // what only this kind has
  virtual void Resized() {}
  virtual Ground GetGround() const { return Ground::kTransparent; }
  virtual QFont WantedFont() const;  // of a control with text
  virtual void FontWillChange() {}
  virtual QCursor Pointer() const;

  // Whether a screen reader is told what stands on it, so that it wants no other name unless it was given
  // one.
  virtual bool SpeaksForItself() const { return false; }

  // Whether the widget itself has a use for the key, so that it does not press the panel's buttons.
  virtual bool Needs(const QKeyEvent& /*key*/) const { return false; }
  virtual bool HandleKey(const QKeyEvent& /*key*/) { return false; }

  // Something the person does at the control; the view shows the control's state afterwards, whatever the
  // widget made of it by itself. The view may be gone when it returns.
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
  std::optional<QPoint> corner_;
  int pointer_ = forms::kPointerDefault;
  std::optional<std::pair<forms::Colour, forms::Colour>> colours_;  // as applied
};

// Of a press or movement, in twips.
forms::MouseEvent ToMouseEvent(const QMouseEvent& event, Qt::MouseButtons buttons);

QString ToQString(const std::string& text);

}  // namespace lectern::desktop
