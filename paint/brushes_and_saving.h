// The five brushes, and the buttons that begin and save a picture.
#pragma once

#include <functional>
#include <string>

#include "gallery/viewer.h"
#include "paint/palette.h"
#include "paint/zoom_and_saves.h"

namespace lectern::paint {

// A click on a brush sets the width of the strokes, and the pointer, which shows their size.
class Brushes {
  forms::Window& form_;
  gallery::PictureCatalogue& gallery_;
  Canvas& canvas_;
  PenSettings& pen_;
  SaveSlots& slots_;

 public:
  Brushes(forms::Window& the_form, gallery::PictureCatalogue& the_gallery, Canvas& the_canvas,
          PenSettings& the_pen, SaveSlots& the_slots);

  // Sets the pointer for a newly opened picture: that of the second brush, whatever the width.
  void ShowFirstPointer();

  forms::Frame Frame5{form_, "Frame5", {.caption = "Paint Brush Size"}};  // holds the brushes
  // The brushes from thin to thick, and the selected one.
  forms::ControlArray<forms::PictureBox> picpbs{Frame5,
                                                "picpbs",
                                                {{.name = "Brush 1, the thinnest"},
                                                 {.name = "Brush 2"},
                                                 {.name = "Brush 3"},
                                                 {.name = "Brush 4"},
                                                 {.name = "Brush 5, the thickest"},
                                                 {.name = "The chosen brush"}}};

 private:
  void picpbs_Click(int index);
  void ShowPointer(int brush);
};

// Begins a blank page, and saves a painting as a file and a record in the catalogue.
class PictureSaving {
  Palette& palette_;
  forms::Window& form_;
  gallery::PictureCatalogue& gallery_;
  gallery::Viewer& viewer_;
  Canvas& canvas_;

 public:
  PictureSaving(forms::Window& the_form, gallery::PictureCatalogue& the_gallery, gallery::Viewer& the_viewer,
                Canvas& the_canvas, Palette& palette);

  // Called when the picture has been saved, with the path of its file in the data folder.
  std::function<void(const std::string& file)> saved = [](const std::string&) {};

  forms::CommandButton Command5{palette_.Picture1, "Command5", {.caption = "New"}};  // begins a blank page
  forms::CommandButton Command2{form_, "Command2", {.caption = "Save Picture"}};     // saves the picture

 private:
  void Command2_Click();
  bool IsInCatalogue(const std::string& name);
};

}  // namespace lectern::paint
