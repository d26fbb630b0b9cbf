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

// The window grows while it is printed, so that more lines come onto the paper, and loses its buttons.
void PrintedPage::Command1_Click() {
  constexpr double kPrintedHeight = 14000;  // twips
  constexpr double kMoreText = 7000;
  constexpr double kHeight = 7050;
  const base::Ignoring ignore;
  Command1.Visible = false;
  Command2.Visible = false;
  form.Height = kPrintedHeight;
  Text1.Height = Text1.Height + kMoreText;
  // ODDITY(no-printer-untold): where no printer answers nothing is printed, and nothing is told.
  ignore([&] { form.Platform().PrintForm(form); });
  Text1.Height = Text1.Height - kMoreText;
  form.Height = kHeight;
  Command1.Visible = true;
  Command2.Visible = true;
}

namespace {

constexpr int kNote = 1;  // slot

}  // namespace

PagePrinting::PagePrinting(reader::Reader& the_reader, forms::PictureBox& Picture1,
                           std::function<forms::Window&()> page)
    : Picture1_(Picture1), reader_(the_reader), page_(std::move(page)) {
  Command30.Click = [this] { Command30_Click(); };
}

// ODDITY(print-page-empty): the button sees to it that there is a note of the bookmark's name, or of the name
// NAME, and reads its first field; but nothing of it comes to the page, which shows what it showed before.
void PagePrinting::Command30_Click() {
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
