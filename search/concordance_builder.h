// Makes a concordance from a list of words, `conc.txt`. The scan of the whole text looks up each word, so
// that the concordance holds exactly the verses that the scan accepts. It is a tool for preparing the data;
// its panel lies outside the window.
//
// Each tick of the builder's timer handles one word: it starts the timer of the search, which handles one
// book at each tick, and waits until that timer is off again.
#pragma once

#include "forms/bars_and_timer.h"
#include "forms/buttons.h"
#include "forms/containers.h"
#include "forms/text_controls.h"
#include "reader/reader.h"
#include "search/text_search.h"

namespace lectern::search {

class ConcordanceBuilder {
  reader::Reader& reader_;
  forms::Frame& frms_;
  forms::Frame& frmscale_;
  forms::Frame& Frame2_;
  TextSearch& search_;

 public:
  ConcordanceBuilder(reader::Reader& the_reader, forms::Frame& frms, forms::Frame& frmscale,
                     forms::Frame& Frame2, TextSearch& the_search);

  forms::CommandButton Command27{Frame2_, "Command27", {.caption = "Make"}};
  forms::CommandButton Command23{Frame2_, "Command23", {.caption = "Cancel"}};
  forms::ListBox List2{Frame2_, "List2", {.name = "Words to be looked up"}};
  // Index of the current word; "-1" before the list is loaded.
  forms::Label lbln{Frame2_, "lbln", {.caption = "-1"}};
  forms::Label Label32{Frame2_, "Label32"};  // progress, "3 of 90"
  forms::ProgressBar pbar2{Frame2_, "pbar2", {.name = "Words done"}};
  // The chosen word; the number of hits of a build in one pass.
  forms::TextBox Text2{Frame2_, "Text2", {.name = "Hits"}};
  forms::TextBox Text1{Frame2_, "Text1", {.name = "Text1"}};  // nothing uses it
  // Looks up the next word when the search is idle.
  forms::Timer Timer2{reader_.form, "Timer2", {.enabled = false, .interval = 1}};

 private:
  void Command27_Click();
  void Timer2_Timer();
  void EndBuild();
  void ReleaseFile();
  void WriteResults();
  void List2_Click();

  std::string built_;  // the file that is being built, "" for none
};

// The older builder of the concordance, which finishes within one click. Nothing in the program can use its
// records, which have four fields. It reads the books from the data folder itself, by names cut to eight
// characters.
class OnePassBuilder {
  forms::Frame& Frame2_;
  reader::Reader& reader_;
  TextSearch& search_;
  ConcordanceBuilder& builder_;

 public:
  OnePassBuilder(reader::Reader& the_reader, forms::Frame& Frame2, TextSearch& the_search,
                 ConcordanceBuilder& the_builder);

  forms::CommandButton Command13{Frame2_, "Command13", {.caption = "Command13", .name = "Build in one pass"}};
  forms::Label books{Frame2_, "books"};  // the current book
  forms::ProgressBar pbar3{Frame2_, "pbar3", {.name = "Books done"}};

 private:
  void Command13_Click();
  void LookUp(const std::string& word, char32_t& next);
  void TakeFindings(const std::string& word, const std::string& book, const struct ScanFindings& findings);
};

}  // namespace lectern::search
