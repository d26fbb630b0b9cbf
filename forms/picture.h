// A handle to a bitmap that never changes: what a picture box or an image shows. Two handles compare equal
// when they are the same picture, not when their pixels agree. A handle without a bitmap is no picture.
#pragma once

#include <memory>
#include <string>

#include "forms/bitmap.h"

namespace lectern::forms {

// A picture that was found good, but whose pixels are made only when somebody asks for them: most pictures
// of a book are shown small, for which a layer can make them from the source, and are never asked for.
class PictureSource {
 public:
  PictureSource() = default;
  PictureSource(const PictureSource&) = delete;
  PictureSource& operator=(const PictureSource&) = delete;
  virtual ~PictureSource() = default;

  // In pixels.
  virtual int Width() const = 0;
  virtual int Height() const = 0;

  virtual Bitmap Pixels() const = 0;  // of that size

  // The picture made small, which is enough to show it; nullptr if there is none.
  virtual const Bitmap* Small() const { return nullptr; }
};

class Picture {
 public:
  Picture() = default;
  explicit Picture(Bitmap bitmap);
  explicit Picture(std::unique_ptr<const PictureSource> source);  // Requires: there is a source

  explicit operator bool() const { return content_ != nullptr; }

  // Requires: there is a picture.
  const Bitmap& operator*() const;
  const Bitmap* operator->() const { return &**this; }

  // In pixels; 0 without a bitmap.
  int Width() const { return content_ ? content_->width : 0; }
  int Height() const { return content_ ? content_->height : 0; }

  // What the pixels are still to be made from; nullptr where they are there.
  const PictureSource* Source() const { return content_ ? content_->source.get() : nullptr; }

  friend bool operator==(const Picture&, const Picture&) = default;

 private:
  struct Content {
    int width = 0;
    int height = 0;
    std::unique_ptr<const PictureSource> source;
    Bitmap bitmap;  // empty as long as there is a source
  };

  std::shared_ptr<Content> content_;
};

// The bytes of a BMP file of the picture, 24 bits a pixel: what a picture is saved as, whatever the name.
std::string BmpBytes(const Bitmap& bitmap);

}  // namespace lectern::forms
