// Bookmarks: named places in the text, each in its own small file in the data folder. The panel lists them
// and shows the current one: all it knows of it are the name, book and chapter in the reader's labels LBLMRK.
// A bookmark holds no verse and no version.
#pragma once

#include "forms/buttons.h"
#include "forms/containers.h"
#include "forms/lists.h"
#include "forms/picture_box.h"
#include "forms/text_controls.h"
#include "reader/reader.h"
#include "reader/tool_buttons.h"

namespace lectern::aids {

class Bookmarks {
  reader::Reader& reader_;
  forms::PictureBox& Picture1_;
  forms::PictureBox& Picture2_;
  forms::PictureBox& picp_;
  reader::ToolButtons& tools_;

 public:
  Bookmarks(reader::Reader& the_reader, forms::PictureBox& Picture1, forms::PictureBox& Picture2,
            forms::PictureBox& picp, reader::ToolButtons& the_tools, forms::Menu& xb);

  forms::Label Label19_3{Picture1_, "Label19", {.caption = "BOOK MARKER"}};  // Label19(3), the heading
  forms::Label C_4{Picture1_, "C", {.caption = "Chapter"}};                  // C(4), in front of the chapter
  forms::FileListBox File1{Picture1_, "File1", {.name = "Bookmarks", .pattern = "*.bkm"}};
  // Opens the chosen bookmark.
  forms::CommandButton Command5{Picture1_, "Command5", {.caption = "Open", .is_default = true}};
  forms::CommandButton Command6{Picture1_, "Command6", {.caption = "Update"}};    // under the same name
  forms::CommandButton Command10{Picture1_, "Command10", {.caption = "New"}};     // under a new name
  forms::CommandButton Command11{Picture1_, "Command11", {.caption = "Delete"}};  // the chosen bookmark
  forms::CommandButton Command7{Picture1_, "Command7", {.caption = "Close", .is_cancel = true}};

 private:
  void xb_Click();
  void File1_Click();
  void Command6_Click();
  void Command10_Click();
  void Command11_Click();

  std::string PathOf(const std::string& name) const;
  void WritePlace(const std::string& name);  // a record of the open book and chapter
  void Close();
};

}  // namespace lectern::aids
