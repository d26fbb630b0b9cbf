// What the desktop offers around the text: any place in one line, chapters to pick from, and the way back
// after a search. Everything is done by the handlers of the window's controls, as a person would do it with
// the mouse; a call is part of one event.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "reader/reader.h"
#include "ui/panels.h"

namespace lectern::ui {

class ReadingDesk {
 public:
  ReadingDesk(reader::Reader& the_reader, Panels& panels) : reader_(the_reader), panels_(panels) {}

  // What a typed reference leads to. A number alone is a chapter of the open book.
  struct Answer {
    std::string text;                          // "John 3:16", or what does not exist: "John has 21 chapters."
    std::optional<reader::Reference> place{};  // nothing if it does not exist
  };
  Answer Read(std::string_view typed) const;

  // Opens the book and the chapter unless they are open. Without a chapter, opens the first one.
  void GoTo(const reader::Reference& place);

  // How many chapters the open book has, and which one is open; 0 if unknown.
  int ChapterCount() const;
  int OpenChapter() const;
  void OpenChapterOfBook(int chapter);  // of the open one

  // Does what Escape does, and goes back to the open chapter where that leaves it: closing the search or the
  // concordance opens chapter 1. Returns whether it did, so that the page is to be shown as it was.
  bool KeepPlace(const std::function<void()>& escape);

  const reader::ShownChapter& Shown() const { return reader_.Shown(); }

 private:
  void ScrollToChapter(int chapter);

  reader::Reader& reader_;
  Panels& panels_;
};

}  // namespace lectern::ui
