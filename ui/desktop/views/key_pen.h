// A pen for whoever draws by keys: a cross on a surface that follows the pointer. The arrows move it by 8
// pixels, with Shift by 1; Space puts it down and lifts it. While it is down each pixel on its way is a
// movement of the mouse with its left button held.
#pragma once

#include <QKeyEvent>
#include <QPainter>
#include <QWidget>
#include <functional>

namespace lectern::desktop {

class KeyPen {
 public:
  // What a press or a movement with the button held does, at that pixel of the surface. The pen may be gone
  // when it returns.
  struct Strokes {
    std::function<void(const QPoint&)> press;
    std::function<void(const QPoint&)> move;
  };

  // Whether the key is the pen's.
  bool HandleKey(const QKeyEvent& key, QWidget& surface, const Strokes& strokes);

  // The Tab key led to the surface.
  void TakeUp(QWidget& surface);

  // The focus went elsewhere, or the mouse took over.
  void PutAway(QWidget& surface);

  void Paint(QPainter& painter) const;

 private:
  QRect Cross() const;

  QPoint place_;
  bool in_hand_ = false;
  bool down_ = false;
};

}  // namespace lectern::desktop
