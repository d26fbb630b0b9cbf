#include "aids/printing.h"

#include <utility>

#include "base/errors.h"

namespace lectern::aids {

PrintedPage::PrintedPage(forms::Window& window) : form(window) {
  Command1.Click = [this] { Command1_Click(); };
  Command2.Click = [this] { form.Visible = false; };
}

void PrintedPage::Form_Load() {
  const base::ScreenSize screen = form.Platform().Screen();
  form.Left = (screen.width - form.Width) / 2;
  form.Top = (screen.height - form.Height) / 2;
}

// While it is printed the window is taller, so that more lines fit on the paper, and has no buttons.
void PrintedPage::Command1_Click() {
  constexpr double kPrintedHeight = 14000;  // twips
  constexpr double kMoreText = 7000;
  constexpr double kHeight = 7050;
  const base::Ignoring ignore;
  Command1.Visible = false;
  Command2.Visible = false;
  form.Height = kPrintedHeight;
  Text1.Height = Text1.Height + kMoreText;
  // ODDITY(no-printer-untold): without a printer nothing is printed and nothing is reported.
  ignore([&] { form.Platform().PrintForm(form); });
  Text1.Height = Text1.Height - kMoreText;
  form.Height = kHeight;
  Command1.Visible = true;
  Command2.Visible = true;
}

PagePrinting::PagePrinting(reader::Reader& the_reader, forms::PictureBox& Picture1,
                           std::function<forms::Window&()> page)
    : Picture1_(Picture1), reader_(the_reader), page_(std::move(page)) {
  Command30.Click = [this] { Command30_Click(); };
}

// ODDITY(print-page-empty): the button opens the note with the bookmark's name, or NAME, creates it if it is
// missing, and reads its first field. The page does not use the field and shows the same text as before.
void PagePrinting::Command30_Click() {
  constexpr int kNote = 1;  // slot
  const base::Ignoring ignore;
  files::FileSlots& slots = reader_.form.Slots();
  const std::string& bookmark = reader_.LBLMRK(0).Caption;
  const std::string note = reader_.DataFile((bookmark.empty() ? "NAME" : bookmark) + ".NOT");
  ignore([&] { slots.OpenForAppending(kNote, note); });
  ignore([&] { slots.Close(kNote); });
  ignore([&] { slots.OpenForReading(kNote, note); });
  ignore([&] { slots.ReadField(kNote); });
  ignore([&] { slots.Close(kNote); });
  ignore([&] { page_().Visible = true; });
  ignore([&] { page_().BringToFront(); });
}

// ODDITY(print-button-on-picture): the button stays visible and so is printed too.
PrintedPicture::PrintedPicture(forms::Window& window) : form(window) {
  Command1.Click = [this] {
    try {
      form.Platform().PrintForm(form);
    } catch (const base::RunTimeError&) {
      form.Platform().Message(
          "Printer not found. Make sure that your printer is connected and turned on and ty again.");
    }
  };
}

void PrintedPicture::PrintPaintPicture(const forms::Picture& picture) {
  const base::ScreenSize screen = form.Platform().Screen();
  Image1.Picture = picture;
  form.Visible = true;
  // ODDITY(print-picture-cut): the picture's size becomes that of the whole window, with frame and title bar,
  // so its right and lower edges are cut off.
  form.Height = Image1.Height;
  form.Width = Image1.Width;
  form.Left = (screen.width - Image1.Width) / 2;
  form.Top = (screen.height - Image1.Height) / 2;
  Command1.Left = (Image1.Width - Command1.Width) / 2;
}

}  // namespace lectern::aids
