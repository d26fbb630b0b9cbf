// The palette: pairs of a pen value, used on the canvas, and a colour, shown by the swatch. They differ
// because the pen is subtracted from what is below it. Three bars mix a new pair, a swatch can be set to the
// current pair, and `colors.dat` stores the palette.
//
// A swatch is a circle below a label. The label's caption is the pen value, in the colour of the circle; the
// label receives the mouse.
#pragma once

#include "gallery/picture_catalogue.h"
#include "paint/zoom_and_saves.h"

namespace lectern::paint {

class Palette {
  forms::Window& form_;
  gallery::PictureCatalogue& gallery_;
  PenSettings& pen_;
  SaveSlots& slots_;
  static constexpr int kSwatches = 24;
  static constexpr forms::Colour kYellow = 65535;

 public:
  Palette(forms::Window& the_form, gallery::PictureCatalogue& the_gallery, PenSettings& the_pen,
          SaveSlots& the_slots);

  void LoadColours();
  void TakeFirstPair();  // for a newly opened picture

  forms::PictureBox Picture1{form_, "Picture1"};                            // the panel
  forms::ControlArray<forms::Shape> clrbox{Picture1, "clrbox", kSwatches};  // the colours
  // The labels over the circles, which a person clicks.
  forms::ControlArray<forms::Label> clrboxs{
      Picture1, "clrboxs", {{.caption = "x", .name = "Colour 1"},  {.caption = " x", .name = "Colour 2"},
                            {.caption = "X", .name = "Colour 3"},  {.caption = "X", .name = "Colour 4"},
                            {.caption = "X", .name = "Colour 5"},  {.caption = "X", .name = "Colour 6"},
                            {.caption = "X", .name = "Colour 7"},  {.caption = "X", .name = "Colour 8"},
                            {.caption = "X", .name = "Colour 9"},  {.caption = "X", .name = "Colour 10"},
                            {.caption = "X", .name = "Colour 11"}, {.caption = "X", .name = "Colour 12"},
                            {.caption = "X", .name = "Colour 13"}, {.caption = "X", .name = "Colour 14"},
                            {.caption = "X", .name = "Colour 15"}, {.caption = "X", .name = "Colour 16"},
                            {.caption = "X", .name = "Colour 17"}, {.caption = "X", .name = "Colour 18"},
                            {.caption = "X", .name = "Colour 19"}, {.caption = "X", .name = "Colour 20"},
                            {.caption = "X", .name = "Colour 21"}, {.caption = "X", .name = "Colour 22"},
                            {.caption = "X", .name = "Colour 23"}, {.caption = "X", .name = "Colour 24"}}};
  // Its background is the current colour.
  forms::PictureBox clr2{Picture1, "clr2", {.name = "The colour in hand", .back_color = kYellow}};
  forms::CommandButton Command4{Picture1, "Command4", {.caption = "More Colors"}};    // shows the colour bars
  forms::CommandButton Command3{Picture1, "Command3", {.caption = "Save Pallette"}};  // saves the colours

  forms::Frame Frame3{form_, "Frame3", {.visible = false}};  // the colour bars
  // Red, green, blue.
  forms::ControlArray<forms::HScrollBar> scr1{
      Frame3,
      "scr1",
      {{.max = 25, .name = "Red"}, {.max = 25, .name = "Green"}, {.max = 25, .name = "Blue"}}};
  forms::ControlArray<forms::Label> Label2{Frame3, "Label2", {"Red", "Blue", "Green"}};  // of the bars
  forms::TextBox Text3{Frame3, "Text3", {.text = "Text3", .name = "Pen value"}};         // the pen value
  forms::CommandButton Clear{Frame3, "Clear", {.caption = "Hide Color Bars", .is_cancel = true}};

 private:
  void clrboxs_MouseDown(int index, const forms::MouseEvent& mouse);
  void scr1_Change();
  void Command3_Click();
  void clr2_Change();
};

}  // namespace lectern::paint
