// The base of panels. The views inside a panel are made when the panel is first visible.
#pragma once

#include <memory>
#include <optional>
#include <utility>

#include "ui/desktop/views/child_views.h"
#include "ui/desktop/views/clickable_view.h"

namespace lectern::desktop {

class PanelView : public ClickableView {
 public:
  // Requires: the control is a container.
  PanelView(forms::PlacedControl& control, WindowView& window, QWidget& parent)
      : ClickableView(control, window, parent), container_(dynamic_cast<forms::Container&>(control)) {}

  void Refresh() override;
  void Stacked(QWidget& lowest_panel) override;
  ChildViews* Children() override { return children_.get(); }

 protected:
  QWidget* Make(QWidget* parent) override;
  void Apply() override;
  void Resized() override;
  Ground GetGround() const override { return Ground::kPanel; }

  virtual void Paint(QPainter& painter, const QRect& exposed) = 0;

  // Paints fine lines along the edges of the panel that are not on an edge of its parent.
  void PaintEdges(QPainter& painter) const;

  // Whether it lies over the text.
  bool Floats() const;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void PaintGround(QPainter& painter) const;
  void PaintTitle(QPainter& painter) const;
  bool IsDragged(const QMouseEvent& mouse);

  forms::Container& container_;
  std::unique_ptr<ChildViews> children_;
  QWidget* shadow_ = nullptr;  // of a panel that has been opened over its window
  unsigned shown_at_ = 0;
  QRgb ground_ = 0;  // as the children were last coloured
  // Where the panel was pressed, within the panel and on the screen, until it is let go.
  std::optional<std::pair<QPoint, QPoint>> pressed_;
  bool dragged_ = false;
};

}  // namespace lectern::desktop
