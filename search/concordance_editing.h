// Extends the concordance by what a search found, and deletes words from it. New records go to the end of the
// file; a deletion rewrites the file through a work file.
#pragma once

#include "forms/buttons.h"
#include "forms/containers.h"
#include "reader/reader.h"
#include "search/concordance_viewer.h"
#include "search/result_navigation.h"
#include "search/text_search.h"

namespace lectern::search {

class ConcordanceEditing {
  reader::Reader& reader_;
  forms::Frame& frmc_;
  forms::Frame& Frame2_;
  TextSearch& search_;
  ResultNavigation& results_;
  ConcordanceViewer& viewer_;

 public:
  ConcordanceEditing(reader::Reader& the_reader, forms::Frame& frmc, forms::Frame& Frame2,
                     TextSearch& the_search, ResultNavigation& the_results, ConcordanceViewer& the_viewer);

  // Deletes the chosen word.
  forms::CommandButton Command21{frmc_, "Command21", {.caption = "Delete Word/Phrase"}};
  // On the builder's panel: cuts the file back to its true end.
  forms::CommandButton Command18{
      Frame2_, "Command18", {.caption = "Command18", .name = "Cut the file back to its true end"}};

 private:
  void cmdadd_Click();
  void AddEntry(const std::string& text);
  void Command21_Click();
  void CopyOtherWords(const std::string& word);
  void Command18_Click();
};

}  // namespace lectern::search
