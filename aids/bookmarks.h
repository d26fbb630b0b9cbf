// Bookmarks: named places in the text, each kept in a small file of its own in the data folder. The panel
// lists them, and shows the one in hand: its name, book and chapter are the labels LBLMRK of the reader,
// which are all that the panel knows. A bookmark holds no verse and no version.
#pragma once

#include "forms/buttons.h"
#include "forms/folder_lists.h"
#include "forms/label.h"
#include "reader/menus.h"
#include "reader/panels.h"
#include "reader/reader.h"
#include "reader/tool_buttons.h"

namespace lectern::aids {

class Bookmarks {
 public:
  Bookmarks(reader::Reader& the_reader, reader::Panels& the_panels, reader::ToolButtons& the_tools,
            reader::Menus& menus);

  forms::Label Label19_3;  // Label19(3), the heading
  forms::Label C_4;        // C(4), before the chapter
  forms::FileListBox File1;
  forms::CommandButton Command5;
  forms::CommandButton Command6;
  forms::CommandButton Command10;
  forms::CommandButton Command11;
  forms::CommandButton Command7;

 private:
  void Command3_Click();
  void xb_Click();
  void File1_Click();
  void Command5_Click();
  void Command6_Click();
  void Command7_Click();
  void Command10_Click();
  void Command11_Click();
  void Picture2_MouseMove();

  std::string PathOf(const std::string& name) const;
  void AppendPlace(const std::string& name);
  void Leave();

  reader::Reader& reader_;
  reader::Panels& panels_;
  reader::ToolButtons& tools_;
};

}  // namespace lectern::aids
