// The concordance panel: its words, the verses of a chosen word, and the way to a verse's chapter with the
// word coloured.
#pragma once

#include "forms/buttons.h"
#include "forms/containers.h"
#include "forms/picture_box.h"
#include "reader/reader.h"
#include "reader/tool_buttons.h"
#include "search/text_search.h"

namespace lectern::search {

class ConcordanceViewer {
  reader::Reader& reader_;
  forms::Frame& frmc_;
  forms::PictureBox& picp_;
  reader::ToolButtons& tools_;
  TextSearch& search_;

 public:
  ConcordanceViewer(reader::Reader& the_reader, forms::Frame& frmc, forms::PictureBox& picp,
                    reader::ToolButtons& the_tools, forms::Menu& cc1, TextSearch& the_search);

  forms::Label lblwords{frmc_, "lblwords", {.caption = "Words"}};  // heading of the words
  // The words, in upper case.
  forms::ListBox lstc{frmc_, "lstc", {.name = "Words of the concordance", .sorted = true}};
  forms::Label lblw{frmc_, "lblw", {.caption = "click on word"}};  // the chosen word
  // Stands before the number of verses.
  forms::Label lblmatches2{frmc_, "lblmatches2", {.caption = "Matches "}};
  forms::Label text6{frmc_, "text6", {.caption = "00"}};                 // number of its verses
  forms::ListBox lstc2{frmc_, "lstc2", {.name = "Verses of the word"}};  // its verses
  // Closes the panel.
  forms::CommandButton Command9{frmc_, "Command9", {.caption = "Close Concordance", .is_cancel = true}};

  void LoadConcordanceWords();

 private:
  void Command8_Click();
  void cc1_Click();
  void lstc_Click();
  void lstc2_Click();
  void Command9_Click();
};

}  // namespace lectern::search
