// A handle to a bitmap that never changes: what a picture box or an image shows. Two handles compare equal
// when they are the same picture, not when their pixels agree. A handle without a bitmap is no picture.
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "core/forms/bitmap.h"

namespace lectern::forms {

class Picture {
 public:
  Picture() = default;
  explicit Picture(Bitmap bitmap) : bitmap_(std::make_shared<const Bitmap>(std::move(bitmap))) {}

  explicit operator bool() const { return bitmap_ != nullptr; }
  const Bitmap& operator*() const { return *bitmap_; }
  const Bitmap* operator->() const { return bitmap_.get(); }

  // In pixels; 0 without a bitmap.
  int Width() const { return bitmap_ ? bitmap_->Width() : 0; }
  int Height() const { return bitmap_ ? bitmap_->Height() : 0; }

  friend bool operator==(const Picture&, const Picture&) = default;

 private:
  std::shared_ptr<const Bitmap> bitmap_;
};

// The bytes of a BMP file of the picture, 24 bits a pixel: what a picture is saved as, whatever the name.
std::string BmpBytes(const Bitmap& bitmap);

}  // namespace lectern::forms
