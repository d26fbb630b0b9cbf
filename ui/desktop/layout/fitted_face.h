// The face of a window, which holds its controls, in a frame that may have to be smaller: a window has one
// size, and a screen may be smaller than that. Then the empty margin at the sides goes first; where controls
// would be cut off, the face is scrolled.
#pragma once

#include <QRect>
#include <QWidget>

class QScrollArea;

namespace lectern::desktop {

class FittedFace {
 public:
  // The face becomes a child of the frame.
  explicit FittedFace(QWidget& frame);

  QWidget& Face() const { return face_; }

  // Puts a face of that size below a menu bar of that height, into `room` at most. Returns the size that the
  // frame needs. `covered` is the part of the face that the controls take up.
  QSize Place(QSize face, const QRect& covered, int menu_bar, QSize room);

  // Scrolls to a widget of the face.
  void BringIntoSight(QWidget& widget);

 private:
  void Scroll();
  void ShowAtOnce();

  QWidget& frame_;
  QWidget& face_;
  QScrollArea* area_ = nullptr;  // where the face has to be scrolled
};

}  // namespace lectern::desktop
