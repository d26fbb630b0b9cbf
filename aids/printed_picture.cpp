#include "aids/printed_picture.h"

#include "base/errors.h"

namespace lectern::aids {

PrintedPicture::PrintedPicture(forms::Window& window) : form(window) {
  Command1.Click = [this] { Command1_Click(); };
}

// ODDITY(print-button-on-picture): the button stays where it is and so comes onto the paper.
void PrintedPicture::Command1_Click() {
  try {
    form.Platform().PrintForm(form);
  } catch (const base::RunTimeError&) {
    form.Platform().Message(
        "Printer not found. Make sure that your printer is connected and turned on and ty again.");
  }
}

void PrintedPicture::PrintPaintPicture(const forms::Picture& picture) {
  const base::ScreenSize screen = form.Platform().Screen();
  Image1.Picture = picture;
  form.Visible = true;
  // ODDITY(print-picture-cut): the window gets the picture's size, frame and title bar included, so that the
  // picture's right and lower edges lie outside.
  form.Height = Image1.Height;
  form.Width = Image1.Width;
  form.Left = (screen.width - Image1.Width) / 2;
  form.Top = (screen.height - Image1.Height) / 2;
  Command1.Left = (Image1.Width - Command1.Width) / 2;
}

}  // namespace lectern::aids
