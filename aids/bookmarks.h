// Bookmarks: named places in the text, each kept in a small file of its own in the data folder. The panel
// lists them, and shows the one in hand: its name, book and chapter are the labels LBLMRK of the reader,
// which are all that the panel knows. A bookmark holds no verse and no version.
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

  // Label19(3), the heading.
  forms::Label Label19_3{Picture1_, "Label19", {.caption = "BOOK MARKER"}};
  forms::Label C_4{Picture1_, "C", {.caption = "Chapter"}};  // C(4), stands before the chapter
  // The stored bookmarks.
  forms::FileListBox File1{Picture1_, "File1", {.name = "Bookmarks", .pattern = "*.bkm"}};
  // Opens the chosen bookmark.
  forms::CommandButton Command5{Picture1_, "Command5", {.caption = "Open", .is_default = true}};
  // Stores the place under the bookmark's name.
  forms::CommandButton Command6{Picture1_, "Command6", {.caption = "Update"}};
  // Stores the place under a new name.
  forms::CommandButton Command10{Picture1_, "Command10", {.caption = "New"}};
  // Deletes the chosen bookmark.
  forms::CommandButton Command11{Picture1_, "Command11", {.caption = "Delete"}};
  // Closes the panel.
  forms::CommandButton Command7{Picture1_, "Command7", {.caption = "Close", .is_cancel = true}};

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
  void WritePlace(const std::string& name);  // the place that is open, as a record
  void Leave();
};

}  // namespace lectern::aids
