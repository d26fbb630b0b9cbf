// The concordance panel: its words, the verses of a chosen word, and the way to a verse's chapter with the
// word coloured.
#pragma once

#include <string>

#include "forms/buttons.h"
#include "forms/containers.h"
#include "forms/picture_box.h"
#include "reader/reader.h"
#include "reader/tool_buttons.h"
#include "search/results.h"
#include "search/text_search.h"

namespace lectern::search {

// The path of the current version's concordance: "CONCORD.DAT" or "CONCORD2.DAT" in the data folder. Every
// use reads the file from the beginning.
std::string ConcordanceFile(const reader::Reader& reader);

struct ConcordanceRecord {
  std::string word;
  std::string reference;
};

void WriteConcordanceRecord(files::FileSlots& slots, int slot, const ConcordanceRecord& record);

class ConcordanceViewer {
  reader::Reader& reader_;
  forms::Frame& frmc_;
  forms::PictureBox& picp_;
  reader::ToolButtons& tools_;
  TextSearch& search_;

 public:
  ConcordanceViewer(reader::Reader& the_reader, forms::Frame& frmc, forms::PictureBox& picp,
                    reader::ToolButtons& the_tools, forms::Menu& cc1, TextSearch& the_search);

  forms::Label lblwords{frmc_, "lblwords", {.caption = "Words"}};  // heading of the words
  // In upper case.
  forms::ListBox lstc{frmc_, "lstc", {.name = "Words of the concordance", .sorted = true}};
  forms::Label lblw{frmc_, "lblw", {.caption = "click on word"}};           // the chosen word
  forms::Label lblmatches2{frmc_, "lblmatches2", {.caption = "Matches "}};  // in front of text6
  forms::Label text6{frmc_, "text6", {.caption = "00"}};                    // number of its verses
  forms::ListBox lstc2{frmc_, "lstc2", {.name = "Verses of the word"}};
  forms::CommandButton Command9{frmc_, "Command9", {.caption = "Close Concordance", .is_cancel = true}};

  void LoadConcordanceWords();

 private:
  void cc1_Click();
  void lstc_Click();
  void lstc2_Click();
  void Command9_Click();
};

// Adds the results of a search to the concordance and deletes words from it. New records go to the end of the
// file; a deletion rewrites the file through a work file.
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

  forms::CommandButton Command21{frmc_, "Command21", {.caption = "Delete Word/Phrase"}};
  // On the builder's panel.
  forms::CommandButton Command18{
      Frame2_, "Command18", {.caption = "Command18", .name = "Cut the file back to its true end"}};

 private:
  void cmdadd_Click();
  void AddEntry(const std::string& text);
  void Command21_Click();
  void Command18_Click();
};

}  // namespace lectern::search
