// Images, shapes, lines and progress bars.
#include <QPainter>
#include <QPixmap>
#include <QProgressBar>
#include <algorithm>

#include "forms/bars_and_timer.h"
#include "forms/figures.h"
#include "ui/desktop/app/pictures.h"
#include "ui/desktop/app/theme.h"
#include "ui/desktop/views/clickable_view.h"
#include "ui/desktop/views/painted_widget.h"
#include "ui/desktop/views/view_factory.h"

namespace lectern::desktop {

namespace {

class ImageView : public ViewOf<forms::Image, ClickableView> {
  using ViewOf::ViewOf;

  QWidget* Make(QWidget* parent) override {
    auto* const widget =
        new PaintedWidget(parent, [this](QPainter& painter, const QRect&) { Paint(painter); });
    PrepareForInput(*widget);
    return widget;
  }

  void Apply() override {
    if (Control().Picture == shown_) return;
    shown_ = Control().Picture;
    scaled_ = {};
    Widget()->update();
  }

  void Resized() override { scaled_ = {}; }

  void Paint(QPainter& painter) {
    const QRect area = Widget()->rect();
    if (shown_) {
      const double density = Widget()->devicePixelRatioF();
      const QSize natural(shown_.Width(), shown_.Height());
      const QSizeF size = Control().Stretch ? QSizeF(area.size()) : QSizeF(natural);
      const QSize pixels = (size * density).toSize();
      if (scaled_.size() != pixels) scaled_ = Scaled(shown_, pixels);
      painter.drawPixmap(QRect(area.topLeft(), (QSizeF(pixels) / density).toSize()), scaled_);
    }
    if (Control().BorderStyle != 0) {
      painter.setPen(LineColor(Widget()->palette()));
      painter.drawRect(OutlineOf(area));
    }
  }

  forms::Picture shown_;
  QPixmap scaled_;  // to screen pixels, made when first painted
};

class ShapeView : public ViewOf<forms::Shape> {
  using ViewOf::ViewOf;

  QWidget* Make(QWidget* parent) override {
    return MakeFigure(parent, [this](QPainter& painter, const QRect&) { Paint(painter); });
  }

  void Apply() override { Widget()->update(); }
  Ground GetGround() const override { return Ground::kNone; }

  // A square or circle is centred and as large as possible. A figure without a colour is an outline.
  void Paint(QPainter& painter) const {
    const int kind = Control().FigureKind;
    QRectF area = OutlineOf(Widget()->rect());
    if (kind == forms::kShapeSquare || kind == forms::kShapeCircle) {
      const double side = std::min(area.width(), area.height());
      const QPointF middle = area.center();
      area = QRectF(middle.x() - side / 2, middle.y() - side / 2, side, side);
    }
    painter.setRenderHint(QPainter::Antialiasing);
    const QPalette palette = Widget()->palette();
    painter.setPen(LineColor(palette));
    if (!forms::IsSystemColour(Control().BackColor)) painter.setBrush(ToColor(Control().BackColor, palette));
    if (kind == forms::kShapeOval || kind == forms::kShapeCircle) {
      painter.drawEllipse(area);
    } else {
      painter.drawRect(area);
    }
  }
};

class LineView : public ControlView {
  using ControlView::ControlView;

  QWidget* Make(QWidget* parent) override {
    return MakeFigure(parent, [this](QPainter& painter, const QRect& exposed) {
      painter.fillRect(exposed, LineColor(Widget()->palette()));
    });
  }

  void Apply() override {}
};

// A value above the maximum shows as a full bar.
class ProgressView : public ViewOf<forms::ProgressBar> {
  using ViewOf::ViewOf;

  QWidget* Make(QWidget* parent) override {
    widget_ = new QProgressBar(parent);
    widget_->setTextVisible(false);
    return widget_;
  }

  void Apply() override {
    const int end = std::max(Control().Max(), Control().Min() + 1);
    widget_->setRange(Control().Min, end);
    widget_->setValue(std::clamp(Control().Value(), Control().Min(), end));
  }

  QProgressBar* widget_ = nullptr;
};

}  // namespace

ViewMaker* const kMakeImageView = MakeViewOf<ImageView, forms::Image>;
ViewMaker* const kMakeShapeView = MakeViewOf<ShapeView, forms::Shape>;
ViewMaker* const kMakeLineView = MakeViewOf<LineView, forms::Line>;
ViewMaker* const kMakeProgressView = MakeViewOf<ProgressView, forms::ProgressBar>;

}  // namespace lectern::desktop
