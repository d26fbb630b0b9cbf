// Images, shapes, lines and progress bars.
#include <QPainter>
#include <QPixmap>
#include <QProgressBar>
#include <QTimer>
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
    rests_.setSingleShot(true);
    connect(&rests_, &QTimer::timeout, widget, [widget] { widget->update(); });
    return widget;
  }

  void Apply() override {
    if (Control().Picture == shown_) return;
    shown_ = Control().Picture;
    scaled_ = {};
    Widget()->update();
  }

  // While its place changes from one event to the next, the picture is stretched as it is; then it is made
  // anew.
  void Resized() override {
    constexpr int kUntilItRests = 120;  // milliseconds
    constexpr int kAfterTheOneBefore = 25;
    rests_.start(kUntilItRests + kAfterTheOneBefore * std::max(Control().Index(), 0));
  }

  // A picture fills its place as far as its shape allows.
  QRectF PictureArea() const {
    const QRectF area(Widget()->rect());
    const QSizeF natural(shown_.Width(), shown_.Height());
    if (!Control().Stretch) return {area.topLeft(), natural};
    QRectF fitted(QPointF(), natural.scaled(area.size(), Qt::KeepAspectRatio));
    fitted.moveCenter(area.center());
    return fitted.toAlignedRect().intersected(Widget()->rect());
  }

  void Paint(QPainter& painter) {
    if (shown_) PaintPicture(painter, PictureArea());
    if (Control().BorderStyle != 0 && !Control().Stretch) {
      painter.setPen(LineColor(Widget()->palette()));
      painter.drawRect(OutlineOf(Widget()->rect()));
    }
  }

  void PaintPicture(QPainter& painter, const QRectF& area) {
    const QSize pixels = (area.size() * Widget()->devicePixelRatioF()).toSize();
    if (scaled_.isNull() || (scaled_.size() != pixels && !rests_.isActive()))
      scaled_ = Scaled(shown_, pixels);
    if (!Control().Stretch) return painter.drawPixmap(area.toRect(), scaled_);
    constexpr double kPictureCorner = 4;
    const QPalette& palette = Widget()->palette();
    QBrush brush(scaled_);
    brush.setTransform(QTransform::fromTranslate(area.x(), area.y())
                           .scale(area.width() / scaled_.width(), area.height() / scaled_.height()));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, scaled_.size() != pixels);
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    const QRectF outline = area.adjusted(0.5, 0.5, -0.5, -0.5);
    painter.drawRoundedRect(outline, kPictureCorner, kPictureCorner);
    painter.setPen(LineColor(palette));
    const bool is_dark = IsDark(palette.color(QPalette::Base));
    painter.setBrush(is_dark ? QBrush(QColor(0, 0, 0, 26)) : QBrush(Qt::NoBrush));  // by a tenth
    painter.drawRoundedRect(outline, kPictureCorner, kPictureCorner);
  }

  forms::Picture shown_;
  QPixmap scaled_;  // to screen pixels, made when first painted
  QTimer rests_;    // active while the place changes
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
