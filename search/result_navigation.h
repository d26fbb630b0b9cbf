// From a found verse to its chapter: a click on an entry opens the chapter behind the panel and colours the
// terms in it.
#pragma once

#include "forms/label.h"
#include "reader/reader.h"
#include "search/text_search.h"

namespace lectern::search {

class ResultNavigation {
 public:
  ResultNavigation(reader::Reader& the_reader, reader::Panels& panels, TextSearch& the_search);

  forms::Label LBLCC;  // on the concordance's panel: the entry in hand

 private:
  void lsts_Click();

  reader::Reader& reader_;
  TextSearch& search_;
};

}  // namespace lectern::search
