// Makes a concordance from a list of words, `conc.txt`: each word is looked up with the scan of the whole
// text, so that the concordance holds just the verses that the scan accepts. A tool of whoever prepares the
// data; its panel lies off the window.
//
// One timer paces the work, a step a word; the other is the search's own, a step a book. They hand over to
// one another by switching the search's timer on and watching it go off.
#pragma once

#include "forms/buttons.h"
#include "forms/progress_bar.h"
#include "forms/text_box.h"
#include "reader/panels.h"
#include "reader/reader.h"
#include "search/text_search.h"

namespace lectern::search {

class ConcordanceBuilder {
 public:
  ConcordanceBuilder(reader::Reader& the_reader, reader::Panels& the_panels, TextSearch& the_search);

  forms::CommandButton Command27;  // makes
  forms::CommandButton Command23;  // cancels
  forms::ListBox List2;            // the words
  forms::Label lbln;               // place of the current one; "-1" before the list is loaded
  forms::Label Label32;            // how far it has come
  forms::ProgressBar pbar2;        // words
  forms::TextBox Text2;
  forms::TextBox Text1;
  forms::Timer Timer2;

 private:
  void Command27_Click();
  void Timer2_Timer();
  void LoadWords();
  void WriteResults();
  void List2_Click();

  reader::Reader& reader_;
  reader::Panels& panels_;
  TextSearch& search_;
};

}  // namespace lectern::search
