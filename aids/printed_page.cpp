#include "aids/printed_page.h"

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

}  // namespace lectern::aids
