// The search panel: finds the verses that hold one or two terms, in the open book or in the whole text. There
// is no index; every search reads the book files.
//
// The scan of the open book is finished within the click. The scan of the whole text reads one book at each
// tick of a timer, so that clicks on Cancel or on a result are handled between two books. The builder of the
// concordance uses it too.
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

  forms::Label lblfor{frms_, "lblfor", {.caption = "for"}};
  forms::TextBox txts{frms_, "txts", {.name = "Search for"}};  // first term
  forms::Label lbland{frms_, "lbland", {.caption = "and"}};
  forms::TextBox txts2{frms_, "txts2", {.name = "and"}};                                // second term
  forms::SSOption SSOption1{frms_, "SSOption1", {.caption = "Book", .checked = true}};  // the open book
  forms::SSOption op1{frms_, "op1", {.caption = "Codex"}};  // the whole text; only this option is ever read
  forms::CommandButton Command22{frms_, "Command22", {.caption = "Search", .is_default = true}};
  forms::CommandButton Command15{frms_, "Command15", {.caption = "How long will it take?"}};
  forms::Label lblmatches{frms_, "lblmatches", {.caption = "Matches"}};  // in front of text5
  forms::Label text5{frms_, "text5", {.caption = "00"}};                 // number of verses found
  forms::ListBox lsts{frms_, "lsts", {.name = "Verses found"}};
  forms::CommandButton cmdadd{frms_, "cmdadd", {.caption = "Add to Concordance", .enabled = false}};
  forms::CommandButton Command20{frms_, "Command20", {.caption = "Close Search", .is_cancel = true}};

  forms::Label text7{frmscale_, "text7", {.caption = "Chapter"}};  // the book that is read next
  forms::ProgressBar pbar{frmscale_, "pbar", {.name = "Books searched"}};
  forms::CommandButton Command25{frmscale_, "Command25", {.caption = "Cancel"}};

  // Reads one book of the whole text at each tick.
  forms::Timer tmrb{reader_.form, "tmrb", {.enabled = false, .interval = 1}};
  // On the builder's panel: the length of its caption is the margin of the whole-text scan.
  forms::Label wrd{Frame2_, "wrd", {.caption = "Label32"}};

  int SearchBookIndex = 0;  // the next book of a scan of the whole text

  // Shows a note in the help panel.
  std::function<void(const std::string& text)> ShowHelpNote = [](const std::string&) {};

 private:
  void cc3_Click();
  void txts_Change(const forms::TextBox& box);
  void Command22_Click();
  void tmrb_Timer();
  void StopScan();
  void Command20_Click();

  void ScanOpenBook();
  void TakeFindings(const struct ScanFindings& findings);
};

}  // namespace lectern::search
