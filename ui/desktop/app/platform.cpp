#include "ui/desktop/app/platform.h"

#include <QApplication>
#include <QDate>
#include <QDesktopServices>
#include <QFontDatabase>
#include <QInputDialog>
#include <QMessageBox>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QScreen>
#include <QUrl>
#include <algorithm>
#include <chrono>

#include "forms/window.h"
#include "ui/desktop/app/pictures.h"

namespace lectern::desktop {

namespace {

QString Decoded(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// A font of symbols claims to have Latin letters too, but those of no other script.
bool ShowsLetters(const QString& family) {
  const QList<QFontDatabase::WritingSystem> scripts = QFontDatabase::writingSystems(family);
  const bool is_of_symbols = scripts.contains(QFontDatabase::Symbol) && scripts.size() <= 2;
  return !is_of_symbols && scripts.contains(QFontDatabase::Latin) && !QFontDatabase::isPrivateFamily(family);
}

// A box that belongs to a window.
class MessageDialog : public QMessageBox {
 public:
  MessageDialog(QWidget* window, std::string_view text, std::string_view title) : QMessageBox(window) {
    setTextFormat(Qt::PlainText);
    setText(Decoded(text));
    setWindowTitle(Decoded(title));
  }
};

}  // namespace

DesktopPlatform::DesktopPlatform()
    : before_box([] { return nullptr; }), with_face([](auto&, const auto&) {}) {}

void DesktopPlatform::Message(std::string_view text, std::string_view title) {
  MessageDialog(before_box(), text, title).exec();
}

bool DesktopPlatform::Question(std::string_view text, std::string_view title) {
  MessageDialog box(before_box(), text, title);
  box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
  box.setDefaultButton(QMessageBox::Yes);
  return box.exec() == QMessageBox::Yes;
}

std::string DesktopPlatform::Input(std::string_view prompt, std::string_view title,
                                   std::string_view proposed) {
  constexpr int kWidth = 360;
  QInputDialog box(before_box());
  box.setWindowTitle(Decoded(title));
  box.setLabelText(Decoded(prompt));
  box.setTextValue(Decoded(proposed));
  box.resize(kWidth, box.sizeHint().height());
  return box.exec() == QDialog::Accepted ? box.textValue().toStdString() : std::string();
}

void DesktopPlatform::Report(const base::RunTimeError& error) {
  MessageDialog box(before_box(), error.Report(), base::kProgramName);
  box.setIcon(QMessageBox::Critical);
  box.exec();
}

void DesktopPlatform::Beep() { QApplication::beep(); }

base::Date DesktopPlatform::Today() {
  const QDate today = QDate::currentDate();
  return {today.year(), today.month(), today.day()};
}

void DesktopPlatform::SeedRandom() {
  const auto now = std::chrono::system_clock::now().time_since_epoch().count();
  random_.seed(static_cast<std::mt19937::result_type>(now));
}

double DesktopPlatform::Random() {
  constexpr double kRange = 4294967296.0;  // one more than the largest number that the generator gives
  return static_cast<double>(random_()) / kRange;
}

std::vector<std::string> DesktopPlatform::FontNames() {
  std::vector<std::string> names;
  for (const QString& family : QFontDatabase::families()) {
    const std::string name = family.section(" [", 0, 0).toStdString();
    const bool is_known = !names.empty() && names.back() == name;
    if (!is_known && ShowsLetters(family)) names.push_back(name);
  }
  return names;
}

base::ScreenSize DesktopPlatform::Screen() {
  const QSize size = QApplication::primaryScreen()->size();
  return {size.width() * forms::kTwipsPerPixel, size.height() * forms::kTwipsPerPixel};
}

forms::Picture DesktopPlatform::DecodePicture(std::string_view bytes) { return Decode(bytes); }

// Prints the window in its size on the screen, reduced if the paper is smaller.
void DesktopPlatform::PrintForm(forms::Window& window) {
  constexpr double kDotsPerInch = 96;  // of the screen
  const base::RunTimeError no_answer(base::ErrorNumber::kPrinter);
  if (QPrinterInfo::defaultPrinter().isNull()) throw no_answer;
  QPrinter printer(QPrinterInfo::defaultPrinter(), QPrinter::HighResolution);
  QPainter painter;
  if (!painter.begin(&printer)) throw no_answer;
  with_face(window, [&](QWidget& face) {
    const QRectF paper = printer.pageLayout().paintRectPixels(printer.resolution());
    const double natural = printer.resolution() / kDotsPerInch;
    const double scale = std::min({natural, paper.width() / face.width(), paper.height() / face.height()});
    painter.scale(scale, scale);
    // The caret and the focus ring are not part of the page.
    QWidget* const focused = face.window()->focusWidget();
    if (focused != nullptr) focused->clearFocus();
    face.render(&painter);
    if (focused != nullptr && focused->isVisible()) focused->setFocus(Qt::OtherFocusReason);
  });
  if (!painter.end()) throw no_answer;
}

bool DesktopPlatform::OpenInBrowser(std::string_view address) {
  return QDesktopServices::openUrl(QUrl(Decoded(address)));
}

}  // namespace lectern::desktop
