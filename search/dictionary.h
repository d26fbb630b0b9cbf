// The dictionary: a list of words, each with a definition and a verse that uses it, read from `cdxdic.dat`.
// A click on a word shows its entry; the verse is text only, and nothing leads from it into the reader.
//
// The file is read again for every opening and every click. Of two records of one word the first is shown.
#pragma once

#include "forms/label.h"
#include "forms/shape.h"
#include "reader/error_report.h"
#include "reader/menus.h"
#include "reader/reader.h"
#include "reader/tool_buttons.h"

namespace lectern::search {

class Dictionary {
 public:
  Dictionary(reader::Reader& the_reader, reader::Panels& the_panels, reader::ToolButtons& the_tools,
             reader::Menus& menus, reader::ErrorReport& the_error_report);

 private:
  void Command17_Click();
  void cc2_Click();
  void lstd_MouseDown();
  void lstd_Click();
  void Command19_Click();

  bool Open();
  bool LoadWords();
  std::string DataFile() const;

  reader::Reader& reader_;
  reader::Panels& panels_;
  reader::ToolButtons& tools_;
  reader::ErrorReport& error_report_;

  forms::ListBox lstd;  // the words, in file order

  // Each text stands twice, the second one below and a little aside, as the shadow of the first.
  forms::Label dwd2;
  forms::Label ddf2;
  forms::Label dex2;
  forms::Line linedic;  // between the definition and the verse
  forms::Label dwd;     // the word that was chosen
  forms::Label ddf;     // its definition
  forms::Label dex;     // a verse that uses it, and where that stands

  forms::CommandButton Command19;
};

}  // namespace lectern::search
