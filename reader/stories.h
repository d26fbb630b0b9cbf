// The menu of stories: a fixed list of passages, grouped by person or period. Each entry shows a chapter in
// the current version. The chapter bar and the picture lists stay with the previous book.
#pragma once

#include <deque>

#include "forms/containers.h"
#include "reader/reader.h"

namespace lectern::reader {

struct Story;

class Stories {
 public:
  Stories(Reader& the_reader, forms::Menu& dd1);

 private:
  void Entry_Click(const Story& story);

  Reader& reader_;
  std::deque<forms::Menu> submenus_;
  std::deque<forms::Menu> entries_;
};

}  // namespace lectern::reader
