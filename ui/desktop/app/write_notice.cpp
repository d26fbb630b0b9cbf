#include "ui/desktop/app/write_notice.h"

#include <QApplication>
#include <algorithm>
#include <sys/statvfs.h>
#include <unistd.h>

namespace lectern::desktop {

// Why nothing can be saved; empty if it can.
QString WriteNotice::Reason() const {
  if (::access(data_folder_.c_str(), W_OK) != 0) return "This folder cannot be written.";
  struct statvfs disk = {};
  const bool is_full = ::statvfs(data_folder_.c_str(), &disk) == 0 && disk.f_blocks > 0 && disk.f_bavail == 0;
  return is_full ? "The disk is full." : "";
}

void WriteNotice::Look() {
  const QString reason = Reason();
  for (Place& place : places_) {
    if (!reason.isEmpty() || place.label != nullptr) Show(place, reason);
  }
}

void WriteNotice::Show(Place& place, const QString& text) {
  constexpr int kGap = 8;
  if (place.label == nullptr) {
    QWidget* neighbour = nullptr;
    for (QWidget* const frame : QApplication::topLevelWidgets()) {
      if (neighbour == nullptr) neighbour = frame->findChild<QWidget*>(place.neighbour);
    }
    if (neighbour == nullptr) return;
    place.label = new QLabel(neighbour->parentWidget());
    place.label->setWordWrap(true);
    place.label->setAlignment(place.above ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
  }
  if (place.label->text() != text) place.label->setText(text);
  place.label->setVisible(!text.isEmpty());
  const auto* const neighbour = place.label->parentWidget()->findChild<QWidget*>(place.neighbour);
  if (neighbour == nullptr) return;
  const int height = std::max(neighbour->height(), place.label->heightForWidth(place.width));
  const QPoint corner = place.above ? QPoint(neighbour->x(), neighbour->y() - kGap - height)
                                    : QPoint(neighbour->geometry().right() + 1 + kGap,
                                             neighbour->geometry().center().y() - height / 2);
  place.label->setGeometry({corner, QSize(place.width, height)});
}

}  // namespace lectern::desktop
