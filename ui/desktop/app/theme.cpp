#include "ui/desktop/app/theme.h"

#include <QApplication>
#include <algorithm>
#include <cassert>
#include <cmath>

namespace lectern::desktop {

namespace {

constexpr double kSmallestOwnSize = 9.75;  // points: 13 pixels
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

namespace {

struct Shades {
  QColor window, page, ink, muted, line, button, accent, accent_ground;
};

constexpr QRgb kLightAccent = 0xff2a5d8f;
constexpr QRgb kDarkAccent = 0xff7db1e3;

const Shades& OwnShades(Shade shade) {
  static const Shades kLight{{0xf3, 0xf2, 0xef}, {0xff, 0xfe, 0xfb}, {0x22, 0x21, 0x1f}, {0x6b, 0x67, 0x5f},
                             {0xda, 0xd6, 0xce}, {0xfb, 0xfa, 0xf8}, kLightAccent,       {0xdf, 0xe9, 0xf3}};
  static const Shades kDark{{0x26, 0x25, 0x24}, {0x1d, 0x1c, 0x1b}, {0xe6, 0xe2, 0xda}, {0x9a, 0x95, 0x8b},
                            {0x3c, 0x3a, 0x37}, {0x31, 0x30, 0x2e}, kDarkAccent,        {0x23, 0x38, 0x4d}};
  return shade == Shade::kDark ? kDark : kLight;
}

}  // namespace

QPalette OwnPalette(Shade shade) {
  const Shades& own = OwnShades(shade);
  const QColor on_accent = shade == Shade::kDark ? own.page : Qt::white;
  QPalette palette(own.ink, own.button, own.page, Mixed(own.line, own.ink, 0.2), own.line, own.ink, on_accent,
                   own.page, own.window);
  palette.setColor(QPalette::AlternateBase, own.window);
  palette.setColor(QPalette::Highlight, own.accent);
  palette.setColor(QPalette::HighlightedText, on_accent);
  palette.setColor(QPalette::Link, own.accent);
  palette.setColor(QPalette::ToolTipBase, own.button);
  palette.setColor(QPalette::ToolTipText, own.ink);
  palette.setColor(QPalette::PlaceholderText, own.muted);
  const QColor faint = Mixed(own.window, own.muted, 0.6);
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

QColor ShadowOn(const QColor& ground) { return Mixed(ground, Qt::black, IsDark(ground) ? 0.3 : 0.08); }

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
  constexpr double kShare = 0.12;
  return Mixed(palette.color(QPalette::Window), palette.color(QPalette::WindowText), kShare);
}

QColor MutedColor(const QColor& text, const QColor& ground) {
  constexpr double kReadable = 4.5;
  constexpr double kStep = 0.05;
  double share = 0.4;
  QColor muted = Mixed(text, ground, share);
  while (Contrast(muted, ground) < kReadable && share > kStep) muted = Mixed(text, ground, share -= kStep);
  return muted;
}

QColor AccentGround(const QPalette& palette) {
  const QColor accent = palette.color(QPalette::Highlight);
  for (const Shade shade : {Shade::kLight, Shade::kDark}) {
    const Shades& own = OwnShades(shade);
    if (accent == own.accent && palette.color(QPalette::Base) == own.page) return own.accent_ground;
  }
  const QColor ground = palette.color(QPalette::Base);
  return Mixed(ground, accent, IsDark(ground) ? 0.28 : 0.16);
}

QFont InPixels(QFont font, int pixels, QFont::Weight weight) {
  font.setPixelSize(pixels);
  font.setWeight(weight);
  return font;
}

}  // namespace lectern::desktop
