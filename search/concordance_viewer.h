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
 public:
  ConcordanceViewer(reader::Reader& the_reader, reader::Panels& the_panels, reader::ToolButtons& the_tools,
                    reader::Menus& menus, TextSearch& the_search);

  forms::Label lblwords;
  forms::ListBox lstc;  // the words, in upper case
  forms::Label lblw;    // the chosen word
  forms::Label lblmatches2;
  forms::Label text6;    // how many verses it stands in
  forms::ListBox lstc2;  // the verses
  forms::CommandButton Command9;

  void LoadConcordanceWords();

 private:
  void Command8_Click();
  void cc1_Click();
  void lstc_Click();
  void lstc2_Click();
  void Command9_Click();

  reader::Reader& reader_;
  reader::Panels& panels_;
  reader::ToolButtons& tools_;
  TextSearch& search_;
};

}  // namespace lectern::search
