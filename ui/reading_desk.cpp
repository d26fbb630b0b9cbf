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

}  // namespace lectern::ui
