// A small frame that floats above a window: a rounded ground with a hairline and a soft shadow.
#pragma once

#include <QFrame>

namespace lectern::desktop {

class FloatingFrame : public QFrame {
 public:
  explicit FloatingFrame(QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace lectern::desktop
