// The older builder of the concordance, which runs to its end inside one click. Its records have four fields,
// of which nothing in the program can make use, and it reads the books by names cut to eight characters from
// the data folder itself. Kept as a tool of whoever prepares the data.
#pragma once

#include "search/concordance_builder.h"

namespace lectern::search {

class OnePassBuilder {
 public:
  OnePassBuilder(reader::Reader& the_reader, reader::Panels& panels, TextSearch& the_search,
                 ConcordanceBuilder& the_builder);

  forms::CommandButton Command13;
  forms::Label books;
  forms::ProgressBar pbar3;

 private:
  void Command13_Click();
  void LookUp(const std::string& word, char32_t& next);
  void TakeFindings(const std::string& word, const std::string& book, const struct ScanFindings& findings);

  reader::Reader& reader_;
  TextSearch& search_;
  ConcordanceBuilder& builder_;
};

}  // namespace lectern::search
