// The search panel: finds the verses that hold one or two terms, in the open book or in the whole text. There
// is no index; every search reads the book files.
//
// The scan of the open book runs to its end inside the click. The scan of the whole text reads one book at
// each tick of a timer, so that a click on Cancel or on what was found so far is served between two books.
// It is also the engine that the concordance is built with.
#pragma once

#include <functional>
#include <string>

#include "forms/bars_and_timer.h"
#include "forms/buttons.h"
#include "forms/containers.h"
#include "forms/picture_box.h"
#include "forms/text_controls.h"
#include "reader/reader.h"
#include "reader/tool_buttons.h"

namespace lectern::search {

class TextSearch {
  reader::Reader& reader_;
  forms::Frame& frms_;
  forms::Frame& frmscale_;
  forms::Frame& Frame2_;
  forms::PictureBox& picp_;
  reader::ToolButtons& tools_;

 public:
  TextSearch(reader::Reader& the_reader, forms::Frame& frms, forms::Frame& frmscale, forms::Frame& Frame2,
             forms::PictureBox& picp, reader::ToolButtons& the_tools, forms::Menu& cc3);

  forms::Label lblfor{frms_, "lblfor", {.caption = "for"}};    // before the first term
  forms::TextBox txts{frms_, "txts", {.name = "Search for"}};  // first term
  forms::Label lbland{frms_, "lbland", {.caption = "and"}};    // before the second term
  forms::TextBox txts2{frms_, "txts2", {.name = "and"}};       // second term
  // Searches the open book.
  forms::SSOption SSOption1{frms_, "SSOption1", {.caption = "Book", .checked = true}};
  // Searches the whole text; the only one of the two that is read.
  forms::SSOption op1{frms_, "op1", {.caption = "Codex"}};
  // Starts the search.
  forms::CommandButton Command22{frms_, "Command22", {.caption = "Search", .is_default = true}};
  // Tells how long a search takes.
  forms::CommandButton Command15{frms_, "Command15", {.caption = "How long will it take?"}};
  // Stands before the number of verses found.
  forms::Label lblmatches{frms_, "lblmatches", {.caption = "Matches"}};
  forms::Label text5{frms_, "text5", {.caption = "00"}};         // number of verses found
  forms::ListBox lsts{frms_, "lsts", {.name = "Verses found"}};  // the verses found
  // Adds the verses found to the concordance.
  forms::CommandButton cmdadd{frms_, "cmdadd", {.caption = "Add to Concordance", .enabled = false}};
  // Closes the panel.
  forms::CommandButton Command20{frms_, "Command20", {.caption = "Close Search", .is_cancel = true}};

  forms::Label text7{frmscale_, "text7", {.caption = "Chapter"}};          // the book that is read next
  forms::ProgressBar pbar{frmscale_, "pbar", {.name = "Books searched"}};  // books read so far
  // Cancels the search.
  forms::CommandButton Command25{frmscale_, "Command25", {.caption = "Cancel"}};

  // Reads one book of the whole text at each tick.
  forms::Timer tmrb{reader_.form, "tmrb", {.enabled = false, .interval = 1}};
  // On the builder's panel: the length of its caption is the margin of the whole-text scan.
  forms::Label wrd{Frame2_, "wrd", {.caption = "Label32"}};

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
