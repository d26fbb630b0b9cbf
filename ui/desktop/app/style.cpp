// The style that `MakeStyle` returns.
#include <QPainter>
#include <QPainterPath>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <algorithm>

#include "ui/desktop/app/theme.h"

namespace lectern::desktop {

namespace {

constexpr double kCorner = 4;  // radius
constexpr int kScrollBarThickness = 14;
constexpr int kRowMargin = 5;  // in the rows of a list

void DrawArrow(QPainter& painter, const QRect& rect, Qt::ArrowType direction, const QColor& colour) {
  constexpr double kReach = 3.5;
  const QPointF middle = QRectF(rect).center();
  QPainterPath path;
  path.moveTo(-kReach / 2, -kReach);
  path.lineTo(kReach / 2, 0);
  path.lineTo(-kReach / 2, kReach);
  painter.save();
  painter.translate(middle);
  if (direction == Qt::LeftArrow) painter.rotate(180);
  if (direction == Qt::UpArrow) painter.rotate(-90);
  if (direction == Qt::DownArrow) painter.rotate(90);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(colour, 1.5));
  painter.drawPath(path);
  painter.restore();
}

class Style : public QProxyStyle {
 public:
  Style() : QProxyStyle(QStyleFactory::create("Fusion")) {}

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    switch (element) {
      case PE_PanelButtonCommand:
        return DrawButton(*option, *painter);
      case PE_IndicatorRadioButton:
        return DrawRadio(*option, *painter);
      case PE_Frame:
        return DrawFrame(*option, *painter);
      case PE_FrameFocusRect:
        return DrawFocusRing(*painter, option->rect, option->palette);
      default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override {
    const auto* const slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ScrollBar && slider != nullptr) {
      DrawScrollBar(*slider, *painter, widget);
    } else {
      QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
  }

  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    switch (metric) {
      case PM_ScrollBarExtent:
        return kScrollBarThickness;
      case PM_FocusFrameHMargin:
        return kRowMargin;
      case PM_ButtonShiftHorizontal:
      case PM_ButtonShiftVertical:
        return 0;
      default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
  }

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override {
    switch (hint) {
      case SH_UnderlineShortcut:
      case SH_MenuBar_AltKeyNavigation:
        return 1;
      case SH_DialogButtonBox_ButtonsHaveIcons:
      case SH_Widget_Animate:
      case SH_Widget_Animation_Duration:
        return 0;  // no decoration
      default:
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }
  }

  // A menu bar loads the icon for entries that do not fit. Ours always fit.
  QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override {
    if (icon == SP_ToolBarHorizontalExtensionButton) return {};
    return QProxyStyle::standardIcon(icon, option, widget);
  }

 private:
  static void DrawButton(const QStyleOption& option, QPainter& painter) {
    const QPalette& palette = option.palette;
    const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    const bool is_default = button != nullptr && (button->features & QStyleOptionButton::DefaultButton) != 0;
    const bool enabled = (option.state & State_Enabled) != 0;
    QColor face = palette.color(QPalette::Button);
    const QColor ink = palette.color(QPalette::ButtonText);
    if (!enabled) face = Mixed(face, palette.color(QPalette::Window), 0.6);
    if (enabled && (option.state & State_MouseOver) != 0) face = Mixed(face, ink, 0.06);
    if ((option.state & (State_Sunken | State_On)) != 0) face = Mixed(face, ink, 0.16);
    QColor line = Mixed(palette.color(QPalette::Window), ink, enabled ? 0.3 : 0.15);
    if (is_default && enabled) line = palette.color(QPalette::Highlight);

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(line);
    painter.setBrush(face);
    painter.drawRoundedRect(OutlineOf(option.rect), kCorner, kCorner);
    painter.restore();
    if ((option.state & State_HasFocus) != 0) DrawFocusRing(painter, option.rect, palette);
  }

  static void DrawRadio(const QStyleOption& option, QPainter& painter) {
    const QPalette& palette = option.palette;
    const bool enabled = (option.state & State_Enabled) != 0;
    const QColor ground = palette.color(QPalette::Window);
    const QColor ink = palette.color(QPalette::WindowText);
    const double side = std::min(option.rect.width(), option.rect.height()) - 1;
    QRectF circle(0, 0, side, side);
    circle.moveCenter(QRectF(option.rect).center());

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const bool set = (option.state & State_On) != 0;
    const QColor mark = enabled ? palette.color(QPalette::Highlight) : Mixed(ground, ink, 0.4);
    painter.setPen(QPen(set ? mark : Mixed(ground, ink, enabled ? 0.5 : 0.25), set ? 1.5 : 1));
    painter.setBrush((option.state & State_Sunken) != 0 ? Mixed(ground, ink, 0.2)
                                                        : palette.color(QPalette::Base));
    painter.drawEllipse(circle);
    if (set) {
      const double inset = side * 0.28;
      painter.setPen(Qt::NoPen);
      painter.setBrush(mark);
      painter.drawEllipse(circle.adjusted(inset, inset, -inset, -inset));
    }
    painter.restore();
  }

  static void DrawFrame(const QStyleOption& option, QPainter& painter) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    const bool has_focus = (option.state & State_HasFocus) != 0 && (option.state & State_Enabled) != 0;
    painter.setPen(has_focus ? option.palette.color(QPalette::Highlight) : LineColor(option.palette));
    painter.drawRect(OutlineOf(option.rect));
    painter.restore();
  }

  void DrawScrollBar(const QStyleOptionSlider& option, QPainter& painter, const QWidget* widget) const {
    const QPalette& palette = option.palette;
    const QColor ground = palette.color(QPalette::Window);
    const QColor ink = palette.color(QPalette::WindowText);
    const bool across = option.orientation == Qt::Horizontal;
    const bool moves = option.maximum > option.minimum && (option.state & State_Enabled) != 0;
    const auto part = [&](SubControl which) {
      return proxy()->subControlRect(CC_ScrollBar, &option, which, widget);
    };
    const auto share = [&](SubControl which) {  // how strongly a part is drawn
      if (!moves) return 0.12;
      if ((option.activeSubControls & which) == 0) return which == SC_ScrollBarSlider ? 0.3 : 0.55;
      return (option.state & State_Sunken) != 0 ? 0.75 : 0.45;
    };

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(option.rect, Mixed(ground, ink, 0.05));
    DrawArrow(painter, part(SC_ScrollBarSubLine), across ? Qt::LeftArrow : Qt::UpArrow,
              Mixed(ground, ink, share(SC_ScrollBarSubLine)));
    DrawArrow(painter, part(SC_ScrollBarAddLine), across ? Qt::RightArrow : Qt::DownArrow,
              Mixed(ground, ink, share(SC_ScrollBarAddLine)));
    if (moves) {
      constexpr double kInset = 3;
      const QRectF slider = QRectF(part(SC_ScrollBarSlider));
      const QRectF thumb =
          across ? slider.adjusted(0.5, kInset, -0.5, -kInset) : slider.adjusted(kInset, 0.5, -kInset, -0.5);
      const bool has_focus = (option.state & State_HasFocus) != 0;
      painter.setPen(Qt::NoPen);
      painter.setBrush(has_focus ? palette.color(QPalette::Highlight)
                                 : Mixed(ground, ink, share(SC_ScrollBarSlider)));
      painter.drawRoundedRect(thumb, kCorner, kCorner);
    }
    painter.restore();
  }
};

}  // namespace

QStyle* MakeStyle() { return new Style; }

QRectF OutlineOf(const QRect& rect) { return QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5); }

void DrawFocusRing(QPainter& painter, const QRectF& around, const QPalette& palette) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(palette.color(QPalette::Highlight), 2));
  painter.drawRoundedRect(around.adjusted(1, 1, -1, -1), kCorner - 1, kCorner - 1);
  painter.restore();
}

}  // namespace lectern::desktop
