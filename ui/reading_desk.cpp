#include "ui/reading_desk.h"

#include <algorithm>
#include <vector>

#include "base/text/characters.h"
#include "base/text/numbers.h"
#include "reader/canon.h"

namespace lectern::ui {

namespace {

using Missing = reader::FoundReference::Missing;

std::string_view NameOf(int book) { return reader::kCanon[static_cast<std::size_t>(book)]; }

// The part of a typed reference that should name a book.
std::string_view NameIn(std::string_view typed) {
  const std::size_t first = typed.find_first_not_of(' ');
  if (first == std::string_view::npos) return "";
  return text::TrimEnd(typed.substr(first, typed.find_first_of("0123456789", first + 1) - first));
}

std::string Quoted(std::string_view typed) { return "“" + std::string(text::TrimEnd(typed)) + "”"; }

std::string Has(std::string_view what, int count, std::string_view part) {
  std::string text = std::string(what) + " has " + std::to_string(count) + " ";
  return text.append(part).append(count == 1 ? "." : "s.");
}

std::string BooksThatMayBeMeant(std::string_view typed) {
  constexpr std::size_t kMost = 8;
  const std::vector<int> books = reader::BooksBeginningWith(typed);
  if (books.empty()) return "No book begins with " + Quoted(NameIn(typed)) + ".";
  std::string names;
  for (std::size_t i = 0; i < books.size(); ++i) {
    if (i == kMost) return names + " …";
    if (i > 0) names += ", ";
    names += NameOf(books[i]);
  }
  return names;
}

std::string Explain(const reader::FoundReference& found, std::string_view typed) {
  const auto read = reader::ReadReference(typed);
  const bool is_number = read && read->rest.find_first_not_of(" .:,v0") == std::string_view::npos;
  const std::string book(NameOf(found.reference.book));
  const bool has_chapters = found.reference.chapter > 0;
  switch (found.missing) {
    case Missing::kBook:
      return read ? book + " is not among the texts." : BooksThatMayBeMeant(typed);
    case Missing::kChapter:
      if (!is_number && !has_chapters) return Quoted(read->rest) + " is no chapter of " + book + ".";
      return Has(book, found.available, "chapter");
    case Missing::kVerse: {
      const std::string chapter = reader::ReferenceText({found.reference.book, found.reference.chapter});
      if (!is_number) return Quoted(read->rest) + " is no verse of " + chapter + ".";
      return Has(chapter, found.available, "verse");
    }
    case Missing::kNothing:
      break;
  }
  return reader::ReferenceText(found.reference);
}

// The word itself, then forms that may be the plain one: "shepherds'", "shepherd's" and "shepherds" lead to
// "shepherd".
std::vector<std::string> PlainForms(const std::string& word) {
  std::vector<std::string> forms{word};
  for (const std::string_view ending :
       {"'s", "’s", "'", "’", "s", "es", "d", "ed", "th", "eth", "st", "est", "ing"}) {
    if (word.size() > ending.size() + 1 && word.ends_with(ending)) {
      forms.push_back(word.substr(0, word.size() - ending.size()));
    }
  }
  if (word.ends_with("ies")) forms.push_back(word.substr(0, word.size() - 3) + "y");
  return forms;
}

}  // namespace

ReadingDesk::Answer ReadingDesk::Read(std::string_view typed) const {
  if (text::TrimEnd(typed).empty()) return {"A place, such as John 3:16"};
  const bool is_in_open_book = typed.find_first_not_of("0123456789 .:,-v") == std::string_view::npos;
  const std::string sought = is_in_open_book ? (reader_.Stem() + " ").append(typed) : std::string(typed);
  const reader::FoundReference found = reader_.Find(sought);
  Answer answer{Explain(found, sought)};
  if (found.missing == Missing::kNothing) answer.place = found.reference;
  return answer;
}

void ReadingDesk::GoTo(const reader::Reference& place) {
  const std::string name(NameOf(place.book));
  const int chapter = std::max(place.chapter, 1);
  const auto is_open = [&] { return reader_.Stem() == name && OpenChapter() == chapter; };
  if (reader_.Stem() == name) ScrollToChapter(chapter);
  if (is_open()) return;
  for (int i = 0; i < reader_.lst.ListCount(); ++i) {
    if (reader_.lst.List(i) != name) continue;
    reader_.lst.PersonPicks(i);
    break;
  }
  if (reader_.Stem() == name) ScrollToChapter(chapter);
}

// The bar may still have the range of the book before.
int ReadingDesk::ChapterCount() const { return reader_.Find(reader_.Stem() + " 2147483647").available; }

int ReadingDesk::OpenChapter() const {
  return text::StartsWithDigit(reader_.Chapter()) ? static_cast<int>(text::LeadingDigits(reader_.Chapter()))
                                                  : 0;
}

// Some stories open a file that is not in the list of books.
void ReadingDesk::OpenChapterOfBook(int chapter) {
  const auto book = reader::FindBook(reader_.Stem());
  if (book && reader_.Stem() == NameOf(*book)) return GoTo({*book, chapter});
  ScrollToChapter(chapter);
}

void ReadingDesk::TurnChapter(int step) { ScrollToChapter(reader_.scr.Value + step); }

void ReadingDesk::ScrollToChapter(int chapter) {
  if (reader_.scr.InRange(chapter)) reader_.scr.PersonScrolls(chapter);
}

bool ReadingDesk::KeepPlace(const std::function<void()>& escape) {
  const bool search_was_open = panels_.frms.Visible;
  const bool concordance_was_open = panels_.frmc.Visible;
  const int chapter = OpenChapter();
  escape();
  const bool has_left =
      (search_was_open && !panels_.frms.Visible) || (concordance_was_open && !panels_.frmc.Visible);
  if (has_left) OpenChapterOfBook(chapter);
  return has_left;
}

void ReadingDesk::Open(const forms::Control& panel, std::string_view button, std::string_view menu) {
  if (panel.Visible) return;
  forms::Control& tool = Control(button);
  (tool.RefusesPerson() == forms::Refusal::kNone ? tool : Control(menu)).PersonClicks();
}

void ReadingDesk::SearchFor(const std::string& words) {
  Open(panels_.frms, "Command16", "cc3");
  // The button waits for a change of the term.
  for (const std::string& text : {std::string(), words}) Control("txts").PersonTypes(text);
  Control("txts2").PersonTypes("");
  Control("op1").PersonClicks();
  forms::Control& search = Control("Command22");
  if (search.RefusesPerson() == forms::Refusal::kNone) search.PersonClicks();
}

void ReadingDesk::LookUp(const std::string& words) {
  Open(panels_.frmd, "Command17", "cc2");
  if (panels_.frmd.Visible) PickWord("lstd", words, "dictionary");
}

void ReadingDesk::OpenConcordanceAt(const std::string& words) {
  Open(panels_.frmc, "Command8", "cc1");
  PickWord("lstc", words, "concordance");
}

void ReadingDesk::PickWord(std::string_view list, const std::string& words, const std::string& where) {
  auto& entries = dynamic_cast<forms::ItemList&>(Control(list));
  for (const std::string& form : PlainForms(text::Lower(words))) {
    for (int i = 0; i < entries.ListCount(); ++i) {
      if (text::EqualFolded(entries.List(i), form)) return entries.PersonPicks(i);
    }
  }
  reader_.form.Platform().Message("The " + where + " has no entry for " + Quoted(words) + ".");
}

void ReadingDesk::ShowBothVersions() {
  try {
    second_place_ = OpenPlace();
    second_pane_.Open(reader_);
  } catch (const base::RunTimeError&) {
    const reader::Version& other = reader_.OtherVersion();
    ShowOneVersion();
    reader_.form.Platform().Message("The " + std::string(other.name) + " cannot be shown: the folder " +
                                    std::string(other.folder) + " is missing.");
  }
}

void ReadingDesk::ShowOneVersion() {
  if (ShowsBothVersions()) second_pane_.Command34.PersonClicks();
}

// It stands in brackets behind the number of a chapter.
std::string ReadingDesk::TextOf(const reader::Version& version) const {
  files::Contents book;
  const base::Ignoring ignore;
  ignore([&] {
    const std::string stem = std::string(version.prefix) + std::string(reader::kCanon.front());
    reader_.form.Files().Read(reader_.DataFile(version.folder) + "\\" + stem + ".txt", book);
  });
  const std::string_view line = book.Bytes().substr(0, book.Bytes().find('\r'));
  const std::size_t open = line.find('(');
  const std::size_t close = line.find(')', open);
  return close == std::string_view::npos ? "" : std::string(line.substr(open + 1, close - open - 1));
}

}  // namespace lectern::ui
