// The older builder of the concordance, which runs to its end inside one click. Its records have four fields,
// of which nothing in the program can make use, and it reads the books by names cut to eight characters from
// the data folder itself. Kept as a tool of whoever prepares the data.
#pragma once

#include "forms/containers.h"
#include "search/concordance_builder.h"

namespace lectern::search {

class OnePassBuilder {
  forms::Frame& Frame2_;
  reader::Reader& reader_;
  TextSearch& search_;
  ConcordanceBuilder& builder_;

 public:
  OnePassBuilder(reader::Reader& the_reader, forms::Frame& Frame2, TextSearch& the_search,
                 ConcordanceBuilder& the_builder);

  // Builds the concordance in one pass.
  forms::CommandButton Command13{Frame2_, "Command13", {.caption = "Command13", .name = "Build in one pass"}};
  forms::Label books{Frame2_, "books"};                                // the book that is read
  forms::ProgressBar pbar3{Frame2_, "pbar3", {.name = "Books done"}};  // books done

 private:
  void Command13_Click();
  void LookUp(const std::string& word, char32_t& next);
  void TakeFindings(const std::string& word, const std::string& book, const struct ScanFindings& findings);
};

}  // namespace lectern::search
