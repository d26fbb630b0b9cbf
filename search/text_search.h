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
 public:
  TextSearch(reader::Reader& the_reader, reader::Panels& the_panels, reader::ToolButtons& the_tools,
             reader::Menus& menus);

  forms::Label lblfor;
  forms::TextBox txts;
  forms::Label lbland;
  forms::TextBox txts2;
  forms::SSOption SSOption1;  // the open book
  forms::SSOption op1;        // the whole text; the only one of the two that is read
  forms::CommandButton Command22;
  forms::CommandButton Command15;
  forms::Label lblmatches;
  forms::Label text5;
  forms::ListBox lsts;
  forms::CommandButton cmdadd;
  forms::CommandButton Command20;

  forms::Label text7;
  forms::ProgressBar pbar;
  forms::CommandButton Command25;

  forms::Timer tmrb;
  forms::Label wrd;  // on the builder's panel: the length of its caption is the margin of the whole-text scan

  int SearchBookIndex = 0;  // the next book of a scan of the whole text

  // Shows a note in the help panel.
  std::function<void(const std::string& text)> ShowHelpNote;

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

  reader::Reader& reader_;
  reader::Panels& panels_;
  reader::ToolButtons& tools_;
};

}  // namespace lectern::search
