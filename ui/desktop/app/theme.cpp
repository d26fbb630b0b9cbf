#include "ui/desktop/app/theme.h"

#include <QApplication>
#include <algorithm>
#include <cassert>
#include <cmath>

namespace lectern::desktop {

namespace {

constexpr double kSmallestOwnSize = 8;  // points
constexpr double kLargestOwnSize = 10;

// How bright a colour appears to the eye, from 0 to 1.
double Luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double Contrast(const QColor& a, const QColor& b) {
  const double brighter = std::max(Luminance(a), Luminance(b));
  const double darker = std::min(Luminance(a), Luminance(b));
  return (brighter + 0.05) / (darker + 0.05);
}

}  // namespace

QPalette OwnPalette() {
  const QColor ink(0x24, 0x27, 0x2b);
  const QColor faint(0x9a, 0x9c, 0x9f);
  QPalette palette(ink, QColor(0xfa, 0xfa, 0xf8), Qt::white, QColor(0xb9, 0xb8, 0xb3),
                   QColor(0xd6, 0xd5, 0xd0), ink, Qt::white, Qt::white, QColor(0xf1, 0xf0, 0xed));
  palette.setColor(QPalette::AlternateBase, QColor(0xf7, 0xf6, 0xf3));
  palette.setColor(QPalette::Highlight, QColor(0x2f, 0x61, 0x8f));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::ToolTipBase, QColor(0xff, 0xfd, 0xf0));
  palette.setColor(QPalette::ToolTipText, ink);
  palette.setColor(QPalette::PlaceholderText, faint);
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, faint);
  }
  palette.setColor(QPalette::Disabled, QPalette::Highlight, faint);
  return palette;
}

void ApplyTheme() {
  assert(qApp != nullptr);
  QStyle* const style = MakeStyle();
  const QPalette plain = style->standardPalette();
  QApplication::setStyle(style);
  const QPalette given = QApplication::palette();
  const bool desktop_has_its_own =
      given.color(QPalette::Window) != plain.color(QPalette::Window) || IsDark(given.color(QPalette::Base));
  if (!desktop_has_its_own) QApplication::setPalette(OwnPalette());
}

QIcon ProgramIcon() {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
    icon.addFile(QString(":/icons/lectern-%1.png").arg(size));
  }
  return icon;
}

QFont OwnFont() {
  QFont font = QApplication::font();
  if (font.pointSizeF() > 0) {
    const double size = std::clamp(font.pointSizeF(), kSmallestOwnSize, kLargestOwnSize);
    if (size != font.pointSizeF()) font.setPointSizeF(size);
  }
  return font;
}

QFont FontOf(const forms::TextControl& control) {
  QFont font = OwnFont();
  if (!control.FontName->empty()) font.setFamily(QString::fromStdString(control.FontName));
  if (control.FontSize > 0) font.setPointSizeF(control.FontSize);
  if (control.FontBold) font.setBold(true);
  if (control.FontItalic) font.setItalic(true);
  return font;
}

QFont ForWriting(QFont font) {
  constexpr double kSmallest = 10.5;  // points
  if (font.pointSizeF() > 0 && font.pointSizeF() < kSmallest) font.setPointSizeF(kSmallest);
  return font;
}

QColor ToColor(forms::Colour colour, const QPalette& palette) {
  if (!forms::IsSystemColour(colour)) {
    return {forms::RedOf(colour), forms::GreenOf(colour), forms::BlueOf(colour)};
  }
  switch (colour) {
    case forms::kWindowBackground:
      return palette.color(QPalette::Base);
    case forms::kWindowText:
      return palette.color(QPalette::Text);
    case forms::kButtonText:
      return palette.color(QPalette::WindowText);
    default:
      return palette.color(QPalette::Window);
  }
}

bool IsDark(const QColor& colour) { return Luminance(colour) < 0.18; }

QColor Legible(const QColor& text, const QColor& ground) {
  constexpr double kReadable = 4.5;
  constexpr double kStep = 0.05;
  if (!IsDark(ground) || text.rgb() == ground.rgb()) return text;
  QColor lightened = text;
  for (double share = kStep; Contrast(lightened, ground) < kReadable && share <= 1; share += kStep) {
    lightened = Mixed(text, Qt::white, share);
  }
  return lightened;
}

QString NameOf(const QColor& colour) {
  constexpr int kGrey = 40;  // of 255
  constexpr int kBlack = 30;
  constexpr int kWhite = 235;
  const int light = colour.lightness();
  if (light < kBlack) return "black";
  if (light > kWhite) return "white";
  const QString shade = light < 90 ? "dark " : light > 190 ? "light " : "";
  if (colour.hslSaturation() < kGrey) return shade + "grey";
  constexpr std::pair<int, const char*> kHues[] = {{15, "red"},     {45, "orange"}, {70, "yellow"},
                                                   {165, "green"},  {195, "cyan"},  {255, "blue"},
                                                   {285, "violet"}, {340, "pink"}};
  for (const auto& [end, name] : kHues) {
    if (colour.hslHue() >= end) continue;
    const bool is_brown = name == std::string_view("orange") && light < 110;
    return is_brown ? "brown" : shade + name;
  }
  return shade + "red";
}

QColor ShadowOn(const QColor& ground) { return Mixed(ground, Qt::black, IsDark(ground) ? 0.5 : 0.2); }

QColor TextOn(const QColor& ground) {
  return Contrast(Qt::white, ground) > Contrast(Qt::black, ground) ? Qt::white : Qt::black;
}

QColor Mixed(const QColor& a, const QColor& b, double share_of_b) {
  const auto mix = [share_of_b](float from, float to) {
    return from + (to - from) * static_cast<float>(share_of_b);
  };
  return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()), mix(a.blueF(), b.blueF()));
}

QColor LineColor(const QPalette& palette) {
  constexpr double kShare = 0.22;
  return Mixed(palette.color(QPalette::Window), palette.color(QPalette::WindowText), kShare);
}

}  // namespace lectern::desktop
