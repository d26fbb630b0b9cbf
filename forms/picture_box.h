// A box that shows a picture, can be drawn on, and can hold other controls as a panel.
//
// What is seen comes in three layers: the background picture; the persistent bitmap, which holds the
// background and all that was drawn while AutoRedraw was on, and of which Image takes a snapshot; and the
// screen, where drawing with AutoRedraw off appears, to go again as soon as the box's picture or size is
// written or its window is hidden.
//
// Assigning Picture clears every drawing, even if it is the same picture. Drawing
// coordinates are pixels where ScaleMode is 3 and twips otherwise; mouse events report the same.
#pragma once

#include <optional>

#include "forms/containers.h"
#include "forms/picture.h"

namespace lectern::forms {

inline constexpr int kScaleTwips = 1;
inline constexpr int kScalePixels = 3;

struct PictureBoxDesign {
  bool visible = true;
  bool enabled = true;
  std::string_view name{};
  Colour back_color = kButtonFace;
  Colour fore_color = kButtonText;
};

class PictureBox : public Holding<TextControl> {
 public:
  using Design = PictureBoxDesign;

  PictureBox(Container& parent, std::string name, const Design& design = {});

  // A snapshot of the persistent bitmap: a picture of its own at each call.
  forms::Picture Image();

  // One round dot of diameter DrawWidth in ForeColor, under the raster operation DrawMode.
  void PSet(double x, double y);

  // The picture stretched to width by height at (x, y), in the box's scale; 481 where there is none.
  void PaintPicture(const forms::Picture& picture, double x, double y, double width, double height);

  // What is to be seen at the moment; no pixels where the box shows nothing but its colour.
  const Bitmap& Shown() const;

  // The part of Shown that changed since the last call, for the view that paints it.
  Area TakeChangedArea();

  bool ReadIndexed(std::string_view property, const std::vector<int>& arguments, Value& value) const override;
  void WindowWasHidden() override;

  Event<> Change;  // another picture was assigned

  RuledProperty<forms::Picture> Picture;
  Property<forms::Picture> MouseIcon;
  Property<bool> AutoRedraw;
  Property<bool> AutoSize;
  Property<int> BorderStyle;
  RuledProperty<int> ScaleMode;
  RuledProperty<int> DrawMode;
  RuledProperty<int> DrawStyle;
  RuledProperty<int> DrawWidth;
  Property<Colour> FillColor;
  RuledProperty<int> FillStyle;

 private:
  int PixelWidth() const;
  int PixelHeight() const;
  Pixel Background() const;
  void PictureAssigned();
  Bitmap Blank() const;
  Bitmap& Persistent();
  void SizeWritten() override;
  double ToPixels(double coordinate) const;
  template <class Draw>
  void DrawOn(Draw draw);

  Bitmap persistent_;             // empty until something is drawn or shown
  std::optional<Bitmap> screen_;  // set while it differs from the persistent bitmap
  Area changed_;
};

}  // namespace lectern::forms
