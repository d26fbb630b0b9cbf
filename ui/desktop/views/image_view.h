// A picture, stretched to its place where the control says so.
#pragma once

#include <QPixmap>

#include "forms/figures.h"
#include "ui/desktop/views/clickable_view.h"

namespace lectern::desktop {

class ImageView : public ClickableView {
 public:
  ImageView(forms::Image& image, WindowView& window, QWidget& parent)
      : ClickableView(image, window, parent), image_(image) {}

 protected:
  QWidget* Make(QWidget* parent) override;
  void Apply() override;
  void Resized() override { filled_ = {}; }

 private:
  void Paint(QPainter& painter);

  forms::Image& image_;
  forms::Picture shown_;
  QPixmap filled_;  // the picture in the pixels of the screen, made when it is painted
};

}  // namespace lectern::desktop
