#include "aids/help.h"

#include <array>

#include "aids/stored_notes.h"
#include "base/text/characters.h"

namespace lectern::aids {

namespace {

// The file of each topic, in the order of their labels.
constexpr std::array kTopicFiles = {"bookmark.txt",    "search.txt",     "notes.txt",  "pictures.txt",
                                    "concordance.txt", "dictionary.txt", "trivia.txt", "paint.txt"};

constexpr std::string_view kDefaultHost = "www.example.org";

}  // namespace

Help::Help(reader::Reader& the_reader, forms::PictureBox& frmhelp, reader::ToolButtons& the_tools,
           forms::Menu& xh2, forms::Menu& aboutlt, forms::Menu& webb1, forms::Menu& webb2)
    : reader_(the_reader), frmhelp_(frmhelp), tools_(the_tools) {
  Label19_4.PutInArray(4);
  xh2.Click = [this] { xh2_Click(); };
  aboutlt.Click = [this] { aboutlt_Click(); };
  webb1.Click = [this] { webb1_Click(); };
  webb2.Click = [this] { webb2_Click(); };
  lblhp.ForEach(
      [this](int index, forms::Label& label) { label.Click = [this, index] { lblhp_Click(index); }; });
  Command4.Click = [this] { Command4_Click(); };
  Command44.Click = [this] { Command44_Click(); };

  for (const StoredNote& note : kStoredNotes) {
    reader_.form.routines[std::string(note.routine)] = [this, &note](const std::string&) {
      ShowText(std::string(note.text));
    };
  }
  reader_.form.routines["OpenWebPage"] = [this](const std::string& address) { OpenWebPage(address); };
  ShowAbout();
}

// What a first opening shows, in letters of its own; whatever takes its place comes in the window's.
void Help::ShowAbout() {
  txthelp.Text = std::string(kAboutText);
  txthelp.FontBold = true;
  txthelp.FontSize = 12;
}

void Help::LeaveAbout() {
  txthelp.FontBold = false;
  txthelp.FontSize.EditInPlace([](double& points) { points = 0; });
}

void Help::xh2_Click() { frmhelp_.Visible = true; }

void Help::lblhp_Click(int index) {
  txthelp.LoadFile(reader_.DataFile(kTopicFiles[static_cast<std::size_t>(index)]));
  LeaveAbout();
}

// ODDITY(help-close-unlocks): one of the two Close buttons enables the tool buttons, also where another open
// panel has disabled them.
void Help::Command4_Click() { frmhelp_.Visible = false; }

void Help::Command44_Click() {
  frmhelp_.Visible = false;
  tools_.Enable();
}

void Help::aboutlt_Click() { reader_.form.Platform().Message(kAboutText); }

void Help::webb1_Click() { OpenWebPage("http://" + std::string(kDefaultHost) + "/lectern/"); }
void Help::webb2_Click() { OpenWebPage("http://" + std::string(kDefaultHost) + "/"); }

bool Help::OpenWebPage(const std::string& address) {
  constexpr std::string_view kScheme = "http";
  const bool has_scheme = text::EqualFolded(std::string_view(address).substr(0, kScheme.size()), kScheme);
  // ODDITY(bare-address-replaced): an address without its "http" is not completed but replaced by the default
  // host.
  return reader_.form.Platform().OpenInBrowser(has_scheme ? address : "http://" + std::string(kDefaultHost));
}

void Help::ShowNote(const std::string& text) {
  frmhelp_.Visible = true;
  ShowText(text);
}

void Help::HelpChangingBook() { ShowText(std::string(StoredNoteText("HelpChangingBook"))); }

void Help::ShowText(const std::string& text) {
  txthelp.Text = text;
  LeaveAbout();
}

}  // namespace lectern::aids
