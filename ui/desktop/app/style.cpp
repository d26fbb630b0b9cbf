// The style that `MakeStyle` returns.
#include <QApplication>
#include <QPainter>
#include <QPainterPath>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <algorithm>

#include "ui/desktop/app/theme.h"

namespace lectern::desktop {

namespace {

constexpr int kScrollBarThickness = 12;
constexpr int kRowMargin = 10;  // in the rows of a list
constexpr int kMenuBarHeight = 26;
constexpr int kBesideText = 6;  // in a box to type in

// A bar that belongs to a text or list is a thin thumb. One that is a control of its own stands upright in a
// box, with an arrow at each end.
bool IsThin(const QStyleOptionSlider& option) { return option.orientation == Qt::Vertical; }

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
        if (widget == nullptr || !IsAtRest(*option, *widget)) DrawButton(*option, *painter);
        break;
      case PE_IndicatorRadioButton:
        return DrawRadio(*option, *painter);
      case PE_Frame:
      case PE_PanelLineEdit:
      case PE_FrameLineEdit:
        DrawField(*option, *painter, element, widget);
        break;
      case PE_PanelItemViewItem:
        if ((option->state & State_Selected) != 0)
          painter->fillRect(option->rect, AccentGround(option->palette));
        break;
      case PE_PanelMenuBar:
        break;
      case PE_FrameTabBarBase:
        painter->fillRect(QRect(option->rect.left(), option->rect.bottom(), option->rect.width(), 1),
                          LineColor(option->palette));
        break;
      case PE_FrameFocusRect:
        return DrawFocusRing(*painter, option->rect, option->palette);
      default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
  }

  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element == CE_PushButtonLabel && button != nullptr && IsFilled(*button)) {
      QStyleOptionButton on_accent = *button;
      on_accent.palette.setColor(QPalette::ButtonText, option->palette.color(QPalette::HighlightedText));
      QProxyStyle::drawControl(element, &on_accent, painter, widget);
    } else if (element == CE_TabBarTabShape) {
      DrawTab(*option, *painter);
    } else if (element == CE_MenuBarItem || element == CE_MenuBarEmptyArea) {
      DrawMenuBar(element, *option, *painter);
    } else {
      QProxyStyle::drawControl(element, option, painter, widget);
    }
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override {
    const auto* const slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ScrollBar && slider != nullptr) {
      DrawScrollBar(*slider, *painter, widget);
    } else if (control == CC_ComboBox) {
      DrawField(*option, *painter, PE_PanelLineEdit, nullptr);
      DrawArrow(*painter, proxy()->subControlRect(control, option, SC_ComboBoxArrow, widget), Qt::DownArrow,
                MutedColor(option->palette.color(QPalette::Text), option->palette.color(QPalette::Base)));
    } else {
      QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
  }

  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override {
    const auto* const slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || slider == nullptr) {
      const auto* const box = qstyleoption_cast<const QStyleOptionComboBox*>(option);
      const bool has_text = box != nullptr && !box->editable && part == SC_ComboBoxEditField;
      const QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
      return has_text ? rect.adjusted(kBesideText, 0, 0, 0) : rect;
    }
    // Along the bar: an arrow at each end of a bar in a box, and the thumb between.
    const bool across = slider->orientation == Qt::Horizontal;
    const QRect all = slider->rect;
    const int whole = across ? all.width() : all.height();
    const int arrow = IsThin(*slider) ? 0 : std::min(all.height(), whole / 3);
    const int room = whole - 2 * arrow;
    const qint64 values = qint64{slider->maximum} - slider->minimum + slider->pageStep + 1;
    const int length =
        std::clamp(static_cast<int>(room * qint64{slider->pageStep} / std::max<qint64>(values, 1)),
                   std::min(kShortestThumb, room), room);
    const int begin =
        arrow + sliderPositionFromValue(slider->minimum, slider->maximum, slider->sliderPosition,
                                        room - length, slider->upsideDown);
    const auto along = [&](int from, int to) {
      return across ? QRect(all.left() + from, all.top(), to - from, all.height())
                    : QRect(all.left(), all.top() + from, all.width(), to - from);
    };
    switch (part) {
      case SC_ScrollBarSlider:
        return along(begin, begin + length);
      case SC_ScrollBarSubLine:
        return along(0, arrow);
      case SC_ScrollBarAddLine:
        return along(whole - arrow, whole);
      case SC_ScrollBarSubPage:
        return along(arrow, begin);
      case SC_ScrollBarAddPage:
        return along(begin + length, whole - arrow);
      case SC_ScrollBarGroove:
        return along(arrow, whole - arrow);
      default:
        return {};
    }
  }

  QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override {
    const QRect rect = QProxyStyle::subElementRect(element, option, widget);
    return element == SE_LineEditContents ? rect.adjusted(kBesideText, 0, -kBesideText, 0) : rect;
  }

  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override {
    constexpr int kBesideMenu = 20;
    if (type == CT_MenuBarItem) return {size.width() + kBesideMenu, kMenuBarHeight - 1};
    return QProxyStyle::sizeFromContents(type, option, size, widget);
  }

  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    switch (metric) {
      case PM_ScrollBarExtent:
        return kScrollBarThickness;
      case PM_FocusFrameHMargin:
        return kRowMargin;
      case PM_DefaultFrameWidth:
        return 2;
      case PM_ExclusiveIndicatorWidth:
      case PM_ExclusiveIndicatorHeight:
        return kRadioSide;
      case PM_RadioButtonLabelSpacing:
        return 8;
      case PM_MenuBarPanelWidth:
      case PM_MenuBarHMargin:
      case PM_MenuBarItemSpacing:
      case PM_MenuBarVMargin:
        return 0;
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
  static constexpr int kShortestThumb = 32;
  static constexpr int kRadioSide = 15;

  // The button that Enter presses is filled.
  static bool IsFilled(const QStyleOptionButton& button) {
    return (button.features & QStyleOptionButton::DefaultButton) != 0 && (button.state & State_Enabled) != 0;
  }

  // A sign that is a button only while it is used.
  static bool IsAtRest(const QStyleOption& option, const QWidget& widget) {
    const bool in_use = (option.state & (State_MouseOver | State_Sunken | State_HasFocus)) != 0;
    return widget.property(kQuietProperty).toBool() && !in_use;
  }

  static void DrawButton(const QStyleOption& option, QPainter& painter) {
    const QPalette& palette = option.palette;
    const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    const bool filled = button != nullptr && IsFilled(*button);
    const bool enabled = (option.state & State_Enabled) != 0;
    const bool has_focus = (option.state & State_HasFocus) != 0;
    const QColor ground = palette.color(QPalette::Window);
    const QColor ink = palette.color(filled ? QPalette::HighlightedText : QPalette::ButtonText);
    QColor face = palette.color(filled ? QPalette::Highlight : QPalette::Button);
    if (!enabled) face = Mixed(face, ground, 0.7);
    if (enabled && (option.state & State_MouseOver) != 0) face = Mixed(face, ink, filled ? 0.1 : 0.04);
    if ((option.state & (State_Sunken | State_On)) != 0) face = Mixed(face, ink, filled ? 0.2 : 0.12);
    const QColor line = filled ? face : Mixed(LineColor(palette), ground, enabled ? 0.0 : 0.4);

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(line);
    painter.setBrush(face);
    painter.drawRoundedRect(OutlineOf(option.rect), kCorner, kCorner);
    if (filled && has_focus) {
      painter.setBrush(Qt::NoBrush);
      painter.setPen(ink);
      painter.drawRoundedRect(OutlineOf(option.rect.adjusted(2, 2, -2, -2)), kCorner - 2, kCorner - 2);
    }
    painter.restore();
    if (has_focus && !filled) DrawFocusRing(painter, option.rect, palette);
  }

  static void DrawRadio(const QStyleOption& option, QPainter& painter) {
    const QPalette& palette = option.palette;
    const bool enabled = (option.state & State_Enabled) != 0;
    const QColor ground = palette.color(QPalette::Window);
    const QColor ink = palette.color(QPalette::WindowText);
    const double side = std::min({option.rect.width(), option.rect.height(), kRadioSide}) - 1;
    QRectF circle(0, 0, side, side);
    circle.moveCenter(QRectF(option.rect).center());

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const bool set = (option.state & State_On) != 0;
    const QColor mark = enabled ? palette.color(QPalette::Highlight) : Mixed(ground, ink, 0.4);
    const QColor page = palette.color(QPalette::Base);
    painter.setPen(set ? mark : Mixed(ground, ink, enabled ? 0.4 : 0.2));
    painter.setBrush(set ? mark : (option.state & State_Sunken) != 0 ? Mixed(ground, ink, 0.2) : page);
    painter.drawEllipse(circle);
    if (set) {
      const double inset = side * 0.32;
      painter.setPen(Qt::NoPen);
      painter.setBrush(page);
      painter.drawEllipse(circle.adjusted(inset, inset, -inset, -inset));
    }
    painter.restore();
    if ((option.state & State_HasFocus) != 0 && (option.state & State_KeyboardFocusChange) != 0) {
      painter.save();
      painter.setRenderHint(QPainter::Antialiasing);
      painter.setPen(QPen(palette.color(QPalette::Highlight), 1.5));
      painter.setBrush(Qt::NoBrush);
      painter.drawEllipse(circle.adjusted(-2, -2, 2, 2));
      painter.restore();
    }
  }

  // A box to type in, or the frame of a list or text.
  static void DrawField(const QStyleOption& option, QPainter& painter, PrimitiveElement element,
                        const QWidget* widget) {
    const auto* const frame = qstyleoption_cast<const QStyleOptionFrame*>(&option);
    const bool is_box = element != PE_Frame;
    // The inner field of a box with a list.
    if (is_box && frame != nullptr && frame->lineWidth == 0) return;
    const QPalette& palette = option.palette;
    if (widget != nullptr && widget->property(kPageProperty).toBool()) {
      const QRect area = widget->rect();
      const bool at_edge =
          widget->mapTo(widget->window(), area.topRight()).x() >= widget->window()->width() - 1;
      if (!at_edge) painter.fillRect(area.right(), 0, 1, area.height(), LineColor(QApplication::palette()));
      return;
    }
    const bool enabled = (option.state & State_Enabled) != 0;
    const bool writes = widget == nullptr || !widget->property("readOnly").toBool() || !is_box;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor page = palette.color(QPalette::Base);
    painter.setBrush(enabled && writes ? page : Mixed(page, palette.color(QPalette::Window), 0.5));
    painter.setPen(LineColor(palette));
    painter.drawRoundedRect(OutlineOf(option.rect), kCorner, kCorner);
    painter.restore();
    if ((option.state & State_HasFocus) != 0 && enabled) DrawFocusRing(painter, option.rect, palette);
  }

  // A line under the page that is open.
  static void DrawTab(const QStyleOption& option, QPainter& painter) {
    constexpr int kLine = 2;
    const QRect line(option.rect.left(), option.rect.bottom() + 1 - kLine, option.rect.width(), kLine);
    if ((option.state & State_Selected) != 0)
      painter.fillRect(line, option.palette.color(QPalette::Highlight));
  }

  static void DrawMenuBar(ControlElement element, const QStyleOption& option, QPainter& painter) {
    const QPalette& palette = option.palette;
    painter.fillRect(option.rect, palette.color(QPalette::Window));
    const auto* const item = qstyleoption_cast<const QStyleOptionMenuItem*>(&option);
    if (element == CE_MenuBarItem && item != nullptr) {
      if ((option.state & State_Selected) != 0) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(AccentGround(palette));
        painter.drawRoundedRect(QRectF(option.rect).adjusted(2, 2, -2, -2), kCorner, kCorner);
        painter.restore();
      }
      painter.setPen(palette.color(
          (option.state & State_Enabled) != 0 ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
      painter.drawText(option.rect, Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextSingleLine, item->text);
    }
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
      if ((option.activeSubControls & which) == 0) return which == SC_ScrollBarSlider ? 0.5 : 0.6;
      return (option.state & State_Sunken) != 0 ? 0.8 : 0.7;
    };

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const bool is_thin = IsThin(option);
    if (!is_thin) {
      painter.setPen(LineColor(palette));
      painter.setBrush(palette.color(QPalette::Base));
      painter.drawRoundedRect(OutlineOf(option.rect), kCorner, kCorner);
      DrawArrow(painter, part(SC_ScrollBarSubLine), across ? Qt::LeftArrow : Qt::UpArrow,
                Mixed(ground, ink, share(SC_ScrollBarSubLine)));
      DrawArrow(painter, part(SC_ScrollBarAddLine), across ? Qt::RightArrow : Qt::DownArrow,
                Mixed(ground, ink, share(SC_ScrollBarAddLine)));
    }
    if (moves) {
      const double inset = is_thin ? 3 : 5;
      const QRectF slider = QRectF(part(SC_ScrollBarSlider));
      const QRectF thumb =
          across ? slider.adjusted(0.5, inset, -0.5, -inset) : slider.adjusted(inset, 2, -inset, -2);
      const double corner = std::min(thumb.width(), thumb.height()) / 2;
      const bool has_focus = (option.state & State_HasFocus) != 0;
      painter.setPen(Qt::NoPen);
      painter.setBrush(has_focus ? palette.color(QPalette::Highlight)
                                 : Mixed(ground, ink, share(SC_ScrollBarSlider) * (is_thin ? 0.7 : 1)));
      painter.drawRoundedRect(thumb, corner, corner);
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
