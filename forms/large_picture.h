// A picture of many pixels, of which a small version is held and the rest is read again from its file.
#pragma once

#include <cstddef>

#include "base/files/descriptor.h"
#include "base/platform.h"
#include "forms/picture.h"

namespace lectern::forms {

class LargePicture : public PictureSource {
 public:
  // Whether so many pixels are worth it.
  static bool IsLarge(const Bitmap& bitmap);

  // The file stays open, so that the picture is the same after its name was given to another one. The
  // platform outlives the picture.
  LargePicture(const Bitmap& bitmap, base::Platform& platform, files::Descriptor file, std::size_t length);

  int Width() const override { return width_; }
  int Height() const override { return height_; }
  const Bitmap* Small() const override { return &small_; }

  // White if another program has damaged the file meanwhile.
  Bitmap Pixels() const override;

 private:
  int width_;
  int height_;
  Bitmap small_;
  base::Platform& platform_;
  files::Descriptor file_;
  std::size_t length_;
};

}  // namespace lectern::forms
