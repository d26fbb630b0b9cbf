// What the desktop offers around the text: any place in one line, chapters to pick from, the way back after a
// search, what can be done with a word, and both versions at once. But for opening the second pane,
// everything is done by the handlers of the window's controls, as a person would do it with the mouse. A call
// is part of one event.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "reader/reader.h"
#include "reader/second_pane.h"
#include "ui/panels.h"

namespace lectern::ui {

class ReadingDesk {
 public:
  ReadingDesk(reader::Reader& the_reader, Panels& panels, reader::SecondPane& second_pane)
      : reader_(the_reader), panels_(panels), second_pane_(second_pane) {}

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
  void TurnChapter(int step);           // by the bar, if it goes so far

  // Does what Escape does, and goes back to the open chapter where that leaves it: closing the search or the
  // concordance opens chapter 1. Returns whether it did, so that the page is to be shown as it was.
  bool KeepPlace(const std::function<void()>& escape);

  // Searches the whole text for words, and opens their entry in the dictionary or the concordance: that of a
  // word's plain form where it has none of its own. Says so where there is no entry.
  void SearchFor(const std::string& words);
  void LookUp(const std::string& words);
  void OpenConcordanceAt(const std::string& words);

  // The second pane with the other version. It does not follow the chapter by itself.
  bool ShowsBothVersions() const { return second_pane_.IsOpen(); }
  void ShowBothVersions();
  void ShowOneVersion();
  bool SecondPaneIsBehind() const { return ShowsBothVersions() && second_place_ != OpenPlace(); }

  // What the text of a version's folder says that it is: "World English Bible"; "" if it says nothing.
  std::string TextOf(const reader::Version& version) const;

 private:
  struct Place {
    std::string stem, chapter;
    std::string_view version;
    bool operator==(const Place&) const = default;
  };
  Place OpenPlace() const { return {reader_.Stem(), reader_.Chapter(), reader_.CurrentVersion().label}; }

  void ScrollToChapter(int chapter);
  forms::Control& Control(std::string_view name) const { return *reader_.form.Find(name); }
  void Open(const forms::Control& panel, std::string_view button, std::string_view menu);
  void PickWord(std::string_view list, const std::string& words, const std::string& where);

  reader::Reader& reader_;
  Panels& panels_;
  reader::SecondPane& second_pane_;
  Place second_place_;  // in the second pane
};

}  // namespace lectern::ui
