#include "aids/help.h"

#include <array>
#include <string_view>

#include "base/text/characters.h"

namespace lectern::aids {

namespace {

// In the order of the topics' labels.
constexpr std::array kTopicFiles = {"bookmark.txt",    "search.txt",     "notes.txt",  "pictures.txt",
                                    "concordance.txt", "dictionary.txt", "trivia.txt", "paint.txt"};

constexpr std::string_view kDefaultPage = "http://www.example.org";

// The short notes that the program itself holds. A note replaces the text of the pane; most are reached only
// by the name of their routine. Their wording, slips included, is kept.
struct StoredNote {
  std::string_view routine;
  std::string_view text;
};

constexpr std::array<StoredNote, 13> kStoredNotes = {{
    {"HelpTextSearch",
     "To use the Text Search, click its button. (Make sure that the concordance does not have the word you "
     "are searching for, before searching). Select whether to search the open book, or the whole codex. Type "
     "in text/phrase that you are searching for and press OK. When searching the whole codex, you will see "
     "the current book being searched. Once the search is complete, you should see a list, and a total, of "
     "matches. Double-click a match to read a scripture. You will also have the option of seeing next or "
     "previous verses. You have the option to add your word to the concordance, along with the results, "
     "after search, by clicking the command button."},
    {"HelpConcordance",
     "To use the Concordance, click it's button. Double-click desired word, from the list and then "
     "double-click a verse. The concordance will show the single verse, and give you the option to go back, "
     "or forward a verse. To delete a word from the Concordance, Double-click Concordance button. Click the "
     "word only once, so that the word is high-lighted. Then click the Delete button."},
    {"HelpDictionary",
     "To use the Dictionary click it's button. You will see a window with a list of words, along with a "
     "definition, and the word used in a verse. From the list click desired word. Dictionary will give a "
     "definition, the word used in a verse, and the location of the verse."},
    {"HelpChangingBook",
     "To change the book, close the Text search and the Concordance, and click on desired book from list "
     "box, on the right side of the screen. The program will show the first 10 chapters."},
    {"HelpChangingChapter",
     "To change chapters, just click the appropriate arrow under the list of books of the codex, at the "
     "lower right of your screen. You can also type in the chapter, however numbers higher than 10, you "
     "would have to open the first didget file first. You are also able to change chapters by "
     "double-clicking a chapter on the page. The program will show 10 chapters at a time."},
    {"HelpNotes",
     "You can select verses, to add to your notes, by clicking on the first line, then holding the shift key "
     "down and clicking the last line. You can also hold ctrl button and sselect the lines one by one. By "
     "pressing Add to Notes button all lines selected will be added to your notes. You must save notes "
     "before they will appear on the print page. This page holds all of your notes saved. This page can also "
     "be altered before printing."},
    {"HelpFontColour",
     "To change the color of the font click OPTIONS, at the top of the sceen. Click appropriate color."},
    {"HelpFontSize",
     "To change the size of the font click OPTIONS, at the top of the sceen. Click appropriate number under "
     "font size."},
    {"HelpKnownProblems",
     "The following is a list of possible problems that will encounter errors: 1. Program cannot find "
     "required file, error would occur when changing books. Make sure you have the file, (Genisis would be "
     "genisis.txt).  2. Overloading memery,(for example typing a number in chapter box that is way out of "
     "range). 3 Information in a file has been altered, error would occur when changing books, chapters, or "
     "verses. Error would be in book file. A file editor is able to change file, rendering it error-prone. "
     "If you edit the txt files, with another program, do not save changes."},
    {"HelpTips",
     "The page-up and page-down keys work in place of the arrows, and pressing C scrolls down through the "
     "chapters, once the text has been clicked. In a list box, such as the dictionary's, click inside and "
     "press a letter key to jump to that letter. A concordance that has had much data added takes longer to "
     "read and open. Double-clicking a chapter on the page changes chapters. When saving a bookmark, you "
     "should double click a chapter first."},
    {"HelpDonation",
     "Lectern 2 is given freely by the makers of Lectern, 2026. If it is of use to you and you would like to "
     "help, please see us on the web by clicking ''Internet'', at the top menu bar."},
    {"HelpSecondDonation",
     "The makers of Lectern, 2026, thank everyone who has sent a donation, or a picture for the gallery. To "
     "send one, please see us on the web by clicking ''Internet'', at the top menu bar."},
    {"HelpContact",
     "To reach the makers of Lectern, please see us on the web by clicking ''Internet'', at the top menu "
     "bar."},
}};

constexpr std::string_view kAboutText =
    "Lectern 2, by the makers of Lectern, 2026. It is free to use and to pass on. If you would like to give "
    "a donation, or pictures for the gallery, please see us on the web by clicking ''Internet'', at the top "
    "menu bar.";

}  // namespace

Help::Help(reader::Reader& the_reader, forms::PictureBox& frmhelp, reader::ToolButtons& the_tools,
           forms::Menu& xh2, forms::Menu& aboutlt, forms::Menu& webb1, forms::Menu& webb2)
    : reader_(the_reader), frmhelp_(frmhelp), tools_(the_tools) {
  Label19_4.PutInArray(4);
  xh2.Click = [this] { frmhelp_.Visible = true; };
  aboutlt.Click = [this] { reader_.form.Platform().Message(kAboutText); };
  webb1.Click = [this] { OpenWebPage(std::string(kDefaultPage) + "/lectern/"); };
  webb2.Click = [this] { OpenWebPage(std::string(kDefaultPage) + "/"); };
  lblhp.ForEach(
      [this](int index, forms::Label& label) { label.Click = [this, index] { lblhp_Click(index); }; });
  // ODDITY(help-close-unlocks): only the other Close button enables the tool buttons, even if another open
  // panel has disabled them.
  Command4.Click = [this] { frmhelp_.Visible = false; };
  Command44.Click = [this] {
    frmhelp_.Visible = false;
    tools_.Enable();
  };

  for (const StoredNote& note : kStoredNotes) {
    reader_.form.routines[std::string(note.routine)] = [this, &note](const std::string&) {
      ShowText(std::string(note.text));
    };
  }
  reader_.form.routines["OpenWebPage"] = [this](const std::string& address) { OpenWebPage(address); };
  // The text of a first opening has its own font; every later text uses the window's.
  txthelp.Text = std::string(kAboutText);
  txthelp.FontBold = true;
  txthelp.FontSize = 12;
}

void Help::UseWindowFont() {
  txthelp.FontBold = false;
  txthelp.FontSize.EditInPlace([](double& points) { points = 0; });
}

void Help::lblhp_Click(int index) {
  txthelp.LoadFile(reader_.DataFile(kTopicFiles[static_cast<std::size_t>(index)]));
  UseWindowFont();
}

void Help::OpenWebPage(const std::string& address) {
  constexpr std::string_view kScheme = "http";
  const bool has_scheme = text::EqualFolded(std::string_view(address).substr(0, kScheme.size()), kScheme);
  // ODDITY(bare-address-replaced): an address without "http" is replaced by the default page, not completed.
  reader_.form.Platform().OpenInBrowser(has_scheme ? std::string_view(address) : kDefaultPage);
}

void Help::ShowNote(const std::string& text) {
  frmhelp_.Visible = true;
  ShowText(text);
}

void Help::ShowText(const std::string& text) {
  txthelp.Text = text;
  UseWindowFont();
}

}  // namespace lectern::aids
