// The search panel: finds the verses that hold one or two terms, in the open book or in the whole text. There
// is no index; every search reads the book files.
//
// The scan of the open book runs to its end inside the click. The scan of the whole text reads one book at
// each tick of a timer, so that a click on Cancel or on what was found so far is served between two books.
// It is also the engine that the concordance is built with.
#pragma once

#include <functional>
#include <string>

#include "forms/buttons.h"
#include "forms/progress_bar.h"
#include "forms/text_box.h"
#include "reader/menus.h"
#include "reader/panels.h"
#include "reader/reader.h"
#include "reader/tool_buttons.h"

namespace lectern::search {

class TextSearch {
  reader::Reader& reader_;
  reader::Panels& panels_;
  reader::ToolButtons& tools_;

 public:
  TextSearch(reader::Reader& the_reader, reader::Panels& the_panels, reader::ToolButtons& the_tools,
             reader::Menus& menus);

  forms::Label lblfor{panels_.frms, "lblfor", {.caption = "for"}};    // before the first term
  forms::TextBox txts{panels_.frms, "txts", {.name = "Search for"}};  // first term
  forms::Label lbland{panels_.frms, "lbland", {.caption = "and"}};    // before the second term
  forms::TextBox txts2{panels_.frms, "txts2", {.name = "and"}};       // second term
  // Searches the open book.
  forms::SSOption SSOption1{panels_.frms, "SSOption1", {.caption = "Book", .checked = true}};
  // Searches the whole text; the only one of the two that is read.
  forms::SSOption op1{panels_.frms, "op1", {.caption = "Codex"}};
  // Starts the search.
  forms::CommandButton Command22{panels_.frms, "Command22", {.caption = "Search", .is_default = true}};
  // Tells how long a search takes.
  forms::CommandButton Command15{panels_.frms, "Command15", {.caption = "How long will it take?"}};
  // Stands before the number of verses found.
  forms::Label lblmatches{panels_.frms, "lblmatches", {.caption = "Matches"}};
  forms::Label text5{panels_.frms, "text5", {.caption = "00"}};         // number of verses found
  forms::ListBox lsts{panels_.frms, "lsts", {.name = "Verses found"}};  // the verses found
  // Adds the verses found to the concordance.
  forms::CommandButton cmdadd{panels_.frms, "cmdadd", {.caption = "Add to Concordance", .enabled = false}};
  // Closes the panel.
  forms::CommandButton Command20{panels_.frms, "Command20", {.caption = "Close Search", .is_cancel = true}};

  forms::Label text7{panels_.frmscale, "text7", {.caption = "Chapter"}};  // the book that is read next
  forms::ProgressBar pbar{panels_.frmscale, "pbar", {.name = "Books searched"}};  // books read so far
  // Cancels the search.
  forms::CommandButton Command25{panels_.frmscale, "Command25", {.caption = "Cancel"}};

  // Reads one book of the whole text at each tick.
  forms::Timer tmrb{reader_.form, "tmrb", {.enabled = false, .interval = 1}};
  // On the builder's panel: the length of its caption is the margin of the whole-text scan.
  forms::Label wrd{panels_.Frame2, "wrd", {.caption = "Label32"}};

  int SearchBookIndex = 0;  // the next book of a scan of the whole text

  // Shows a note in the help panel.
  std::function<void(const std::string& text)> ShowHelpNote = [](const std::string&) {};

 private:
  void Command16_Click();
  void cc3_Click();
  void txts_Change(const forms::TextBox& box);
  void Command22_Click();
  void tmrb_Timer();
  void Command25_Click();
  void Command15_Click();
  void Command20_Click();

  void ScanOpenBook();
  void TakeFindings(const struct ScanFindings& findings);
};

}  // namespace lectern::search
