// The dictionary: a list of words, each with a definition and a verse that uses it, read from `cdxdic.dat`.
// A click on a word shows its entry; the verse is only text, without a way into the reader.
//
// Each opening and each click reads the file again. If a word has two records, the first is shown.
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
  void lstd_Click();
  bool Open();  // returns whether it could read the words; otherwise the panel stays as it was

  reader::Reader& reader_;
  forms::Frame& frmd_;
  forms::PictureBox& picp_;
  reader::ToolButtons& tools_;

  // In file order.
  forms::ListBox lstd{frmd_, "lstd", {.name = "Words of the dictionary"}};

  // The shadows of dwd, ddf and dex: the same texts again, a little lower and to the side.
  static constexpr forms::Colour kShadow = forms::kButtonShadow;
  forms::Label dwd2{frmd_, "dwd2", {.caption = "Word", .is_echo = true, .fore_color = kShadow}};
  forms::Label ddf2{frmd_, "ddf2", {.caption = "Definition", .is_echo = true, .fore_color = kShadow}};
  forms::Label dex2{frmd_, "dex2", {.caption = "used in a verce", .is_echo = true, .fore_color = kShadow}};
  forms::Line linedic{frmd_, "linedic"};                      // between the definition and the verse
  forms::Label dwd{frmd_, "dwd", {.caption = "Word"}};        // the chosen word
  forms::Label ddf{frmd_, "ddf", {.caption = "Definition"}};  // its definition
  // A verse that uses it, and its reference. ODDITY(kept-spelling).
  forms::Label dex{frmd_, "dex", {.caption = "used in a verce"}};
  forms::CommandButton Command19{frmd_, "Command19", {.caption = "Close Dictionary", .is_cancel = true}};
};

}  // namespace lectern::search
