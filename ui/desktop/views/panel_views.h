// Panels: frames, and picture boxes, which show a picture and what is drawn on it as well. What lies in a
// panel gets its views when the panel is first seen.
#pragma once

#include <memory>

#include "forms/containers.h"
#include "forms/picture_box.h"
#include "ui/desktop/views/child_views.h"
#include "ui/desktop/views/clickable_view.h"
#include "ui/desktop/views/key_pen.h"

namespace lectern::desktop {

class PanelView : public ClickableView {
 public:
  PanelView(forms::PlacedControl& control, forms::Container& container, WindowView& window, QWidget& parent)
      : ClickableView(control, window, parent), container_(container) {}

  void Refresh() override;
  void Stacked() override;
  ChildViews* Children() override { return children_.get(); }

 protected:
  QWidget* Make(QWidget* parent) override;
  void Apply() override;
  void Resized() override;
  Ground GetGround() const override { return Ground::kPanel; }

  virtual void Paint(QPainter& painter, const QRect& exposed) = 0;

  // Fine lines along the edges of the panel, but for those that lie on an edge of what it lies in.
  void PaintEdges(QPainter& painter) const;

 private:
  void CastShadow();

  forms::Container& container_;
  std::unique_ptr<ChildViews> children_;
  QWidget* shadow_ = nullptr;  // of a panel that was opened over its window
  unsigned shown_at_ = 0;
  QRgb ground_ = 0;  // as the children know it
};

class FrameView : public PanelView {
 public:
  FrameView(forms::Frame& frame, WindowView& window, QWidget& parent)
      : PanelView(frame, frame, window, parent), frame_(frame) {}

 protected:
  void Apply() override;
  void Paint(QPainter& painter, const QRect& exposed) override;

 private:
  forms::Frame& frame_;
};

class PictureBoxView : public PanelView {
 public:
  PictureBoxView(forms::PictureBox& box, WindowView& window, QWidget& parent)
      : PanelView(box, box, window, parent), box_(box) {}

 protected:
  void Apply() override;
  void Paint(QPainter& painter, const QRect& exposed) override;
  forms::MouseEvent InScale(forms::MouseEvent mouse) const override;
  QCursor Pointer() const override;
  bool HandleKey(const QKeyEvent& key) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  forms::MouseEvent LeftAt(const QPoint& place) const;

  forms::PictureBox& box_;
  KeyPen pen_;
  forms::Picture icon_;  // of its pointer
};

}  // namespace lectern::desktop
