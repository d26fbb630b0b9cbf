#include "ui/desktop/layout/fitted_face.h"

#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>
#include <utility>

namespace lectern::desktop {

namespace {

// Where a face begins whose controls are centred in a frame that they just fit into.
int Middle(int covered_begin, int covered_size, int face, int room) {
  if (face <= room) return 0;
  return std::clamp((room - covered_size) / 2 - covered_begin, room - face, 0);
}

}  // namespace

FittedFace::FittedFace(QWidget& frame) : frame_(frame), face_(*new QWidget(&frame)) {
  face_.setAutoFillBackground(true);
}

QSize FittedFace::Place(QSize face, const QRect& covered, int menu_bar, QSize room) {
  room.rheight() -= menu_bar;
  const bool too_wide = covered.width() > room.width();
  const bool too_high = covered.height() > room.height();
  QSize shown = face.boundedTo(room);
  if (too_wide || too_high) {
    Scroll();
    // Each scroll bar takes its thickness from the other direction.
    if (too_high) shown.rwidth() += area_->verticalScrollBar()->sizeHint().width();
    if (too_wide) shown.rheight() += area_->horizontalScrollBar()->sizeHint().height();
    shown = shown.boundedTo(room);
    face_.resize(face);
    area_->setGeometry(QRect(QPoint(0, menu_bar), shown));
  } else {
    ShowAtOnce();
    const QPoint corner(Middle(covered.left(), covered.width(), face.width(), room.width()),
                        Middle(covered.top(), covered.height(), face.height(), room.height()));
    face_.setGeometry(QRect(corner + QPoint(0, menu_bar), face));
  }
  return shown + QSize(0, menu_bar);
}

void FittedFace::Scroll() {
  if (area_ != nullptr) return;
  area_ = new QScrollArea(&frame_);
  area_->setFrameShape(QFrame::NoFrame);
  area_->setFocusPolicy(Qt::NoFocus);
  area_->setWidget(&face_);
  area_->lower();
  area_->show();
}

void FittedFace::ShowAtOnce() {
  if (area_ == nullptr) return;
  area_->takeWidget();
  face_.setParent(&frame_);
  face_.lower();
  face_.show();
  delete std::exchange(area_, nullptr);
}

void FittedFace::BringIntoSight(QWidget& widget) {
  constexpr int kBeside = 8;  // pixels
  if (area_ != nullptr && face_.isAncestorOf(&widget)) {
    area_->ensureWidgetVisible(&widget, kBeside, kBeside);
  }
}

}  // namespace lectern::desktop
