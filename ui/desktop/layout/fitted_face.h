// The face of a window, which holds its controls, in a frame that may have to be smaller: the program's
// windows have one size each, and a screen may have less room than that. Then the empty margin at the sides
// goes first; where controls would be cut off, the face is scrolled.
//
// The face belongs to the frame.
#pragma once

#include <QRect>
#include <QWidget>

class QScrollArea;

namespace lectern::desktop {

class FittedFace {
 public:
  explicit FittedFace(QWidget& frame);

  QWidget& Face() const { return face_; }

  // Lays the face out below a menu bar of that height, in at most that room; the size that the frame is to
  // have. `covered` is what the controls take up of the face.
  QSize Place(QSize face, const QRect& covered, int menu_bar, QSize room);

  // Scrolls to what has come to have the focus.
  void BringIntoSight(QWidget& widget);

 private:
  void Scroll();
  void ShowAtOnce();

  QWidget& frame_;
  QWidget& face_;
  QScrollArea* area_ = nullptr;  // where the face has to be scrolled
};

}  // namespace lectern::desktop
