// The concordance panel: its words, the verses of a chosen word, and the way to a verse's chapter with the
// word coloured.
#pragma once

#include "forms/buttons.h"
#include "reader/menus.h"
#include "reader/panels.h"
#include "reader/reader.h"
#include "reader/tool_buttons.h"
#include "search/text_search.h"

namespace lectern::search {

class ConcordanceViewer {
  reader::Reader& reader_;
  reader::Panels& panels_;
  reader::ToolButtons& tools_;
  TextSearch& search_;

 public:
  ConcordanceViewer(reader::Reader& the_reader, reader::Panels& the_panels, reader::ToolButtons& the_tools,
                    reader::Menus& menus, TextSearch& the_search);

  forms::Label lblwords{panels_.frmc, "lblwords", {.caption = "Words"}};  // heading of the words
  // The words, in upper case.
  forms::ListBox lstc{panels_.frmc, "lstc", {.name = "Words of the concordance", .sorted = true}};
  forms::Label lblw{panels_.frmc, "lblw", {.caption = "click on word"}};  // the chosen word
  // Stands before the number of verses.
  forms::Label lblmatches2{panels_.frmc, "lblmatches2", {.caption = "Matches "}};
  forms::Label text6{panels_.frmc, "text6", {.caption = "00"}};                 // number of its verses
  forms::ListBox lstc2{panels_.frmc, "lstc2", {.name = "Verses of the word"}};  // its verses
  // Closes the panel.
  forms::CommandButton Command9{
      panels_.frmc, "Command9", {.caption = "Close Concordance", .is_cancel = true}};

  void LoadConcordanceWords();

 private:
  void Command8_Click();
  void cc1_Click();
  void lstc_Click();
  void lstc2_Click();
  void Command9_Click();
};

}  // namespace lectern::search
