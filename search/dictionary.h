// The dictionary: a list of words, each with a definition and a verse that uses it, read from `cdxdic.dat`.
// A click on a word shows its entry; the verse is text only, and nothing leads from it into the reader.
//
// The file is read again for every opening and every click. Of two records of one word the first is shown.
#pragma once

#include "forms/containers.h"
#include "forms/figures.h"
#include "forms/picture_box.h"
#include "reader/reader.h"
#include "reader/tool_buttons.h"

namespace lectern::search {

class Dictionary {
 public:
  Dictionary(reader::Reader& the_reader, forms::Frame& frmd, forms::PictureBox& picp,
             reader::ToolButtons& the_tools, forms::Menu& cc2);

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
  forms::Frame& frmd_;
  forms::PictureBox& picp_;
  reader::ToolButtons& tools_;

  // The words, in file order.
  forms::ListBox lstd{frmd_, "lstd", {.name = "Words of the dictionary"}};

  // Each text stands twice, the second one below and a little aside, as the shadow of the first.
  // Shadow of dwd.
  forms::Label dwd2{frmd_, "dwd2", {.caption = "Word", .is_echo = true, .fore_color = forms::kButtonShadow}};
  // Shadow of ddf.
  forms::Label ddf2{
      frmd_, "ddf2", {.caption = "Definition", .is_echo = true, .fore_color = forms::kButtonShadow}};
  // Shadow of dex.
  forms::Label dex2{
      frmd_, "dex2", {.caption = "used in a verce", .is_echo = true, .fore_color = forms::kButtonShadow}};
  forms::Line linedic{frmd_, "linedic"};                      // between the definition and the verse
  forms::Label dwd{frmd_, "dwd", {.caption = "Word"}};        // the chosen word
  forms::Label ddf{frmd_, "ddf", {.caption = "Definition"}};  // its definition
  // A verse that uses it, and its reference. ODDITY(kept-spelling).
  forms::Label dex{frmd_, "dex", {.caption = "used in a verce"}};

  // Closes the panel.
  forms::CommandButton Command19{frmd_, "Command19", {.caption = "Close Dictionary", .is_cancel = true}};
};

}  // namespace lectern::search
