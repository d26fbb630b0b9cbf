// Moving through the text: the list of books and the chapter bar. Both end in a write of the chapter label,
// which loads the chapter.
#pragma once

#include "reader/catalogue.h"
#include "reader/reader.h"

namespace lectern::reader {

class Navigation {
 public:
  Navigation(Reader& the_reader, Panels& the_panels, Catalogue& the_catalogue);

 private:
  void lst_Click();
  void scr_Change();
  void lblbk_Change();
  void List1_DblClick();
  void List1_KeyDown(int code);

  Reader& reader_;
  Panels& panels_;
  Catalogue& catalogue_;
};

}  // namespace lectern::reader
