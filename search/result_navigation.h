// From a found verse to its chapter: a click on an entry opens the chapter behind the panel and colours the
// terms in it.
#pragma once

#include "forms/containers.h"
#include "forms/text_controls.h"
#include "reader/reader.h"
#include "search/text_search.h"

namespace lectern::search {

class ResultNavigation {
  forms::Frame& frmc_;
  reader::Reader& reader_;
  TextSearch& search_;

 public:
  ResultNavigation(reader::Reader& the_reader, forms::Frame& frmc, TextSearch& the_search);

  // On the concordance's panel: the chosen entry.
  forms::Label LBLCC{frmc_, "LBLCC", {.caption = "Genesis", .visible = false}};

 private:
  void lsts_Click();
};

}  // namespace lectern::search
