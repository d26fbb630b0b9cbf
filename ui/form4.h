// The paint window: a canvas with brushes, a palette and saved states. Closing only hides it.
#pragma once

#include <functional>

#include "paint/brushes_and_saving.h"

namespace lectern::ui {

class Form4 : public forms::Window {
  gallery::PictureCatalogue& gallery_;
  gallery::Viewer& viewer_;

 public:
  // What reaches beyond the window: the print window opens with a picture; a picture has been saved in a
  // file.
  struct Hooks {
    std::function<void(const forms::Picture&)> print_picture;
    std::function<void(const std::string& file)> saved;
  };
  Form4(forms::Services services, gallery::PictureCatalogue& gallery, gallery::Viewer& viewer,
        const Hooks& hooks);

  void Form_Load() override;

  // Shows the window with a picture, or with a white page if it is empty.
  void Open(const forms::Picture& picture);
  forms::Resizing GetResizing() const override { return forms::Resizing::kFree; }

 private:
  paint::PenSettings pen_{*this};
  paint::Canvas canvas_{*this, pen_};
  paint::Zoom zoom_{*this, canvas_};
  paint::SaveSlots slots_{*this, canvas_, zoom_};
  paint::Palette palette_{*this, gallery_, pen_, slots_};
  paint::Brushes brushes_{*this, gallery_, canvas_, pen_, slots_};
  paint::PictureSaving saving_{*this, gallery_, viewer_, canvas_, palette_};
  forms::CommandButton Command1{*this, "Command1", {.caption = "Close Paint", .is_cancel = true}};
};

}  // namespace lectern::ui
