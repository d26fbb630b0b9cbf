#include "tools/make_data/sword_module.h"

#include <charconv>
#include <optional>

#include "base/files/record_reader.h"
#include "tools/make_data/markup.h"
#include "tools/make_data/texts.h"

namespace lectern::make_data {

namespace {

// Reads the places of a module, "Genesis 1:1", of which each follows many of the same book.
class PlaceReader {
 public:
  // Nothing for a book outside the canon.
  std::optional<reader::Reference> Read(std::string_view place) {
    const std::size_t blank = place.rfind(' ');
    const std::size_t colon = place.rfind(':');
    if (blank == std::string_view::npos || colon == std::string_view::npos || colon < blank)
      return std::nullopt;
    if (place.substr(0, blank) != name_) {
      name_ = place.substr(0, blank);
      book_ = reader::FindBook(name_);
    }
    if (!book_) return std::nullopt;
    reader::Reference reference{*book_, 0, 0};
    std::from_chars(place.data() + blank + 1, place.data() + colon, reference.chapter);
    std::from_chars(place.data() + colon + 1, place.data() + place.size(), reference.verse);
    return reference;
  }

 private:
  std::string name_;
  std::optional<int> book_;
};

}  // namespace

std::vector<MarkedVerse> ReadModule(const std::string& module, const std::string& package) {
  const std::string output =
      OutputOf("mod2imp " + module + " </dev/null", "mod2imp", "libsword-utils " + package);
  std::vector<MarkedVerse> verses;
  PlaceReader places;
  bool is_wanted = false;
  for (files::RecordReader lines(output); !lines.AtEnd();) {
    const std::string_view line = lines.Line();
    if (line.starts_with("$$$")) {
      const auto place = places.Read(line.substr(3));
      is_wanted = place.has_value();
      if (place) verses.push_back({*place, ""});
    } else if (is_wanted) {
      verses.back().markup.append(line).append(1, ' ');
    }
  }
  return verses;
}

std::vector<MarkedVerse> ReadKingJamesModule() { return ReadModule("engKJV2006eb", "sword-text-kjv"); }
std::vector<MarkedVerse> ReadWorldEnglishModule() { return ReadModule("engWEB2015eb", "sword-text-web"); }

std::vector<NumberedWords> NumberedWordsOf(std::string_view markup) {
  constexpr std::string_view kStrong = "strong:";
  std::vector<NumberedWords> result;
  for (std::size_t open = markup.find("<w "); open != std::string_view::npos;
       open = markup.find("<w ", open)) {
    const std::size_t start = std::min(markup.find('>', open), markup.size() - 1) + 1;
    const std::size_t end = std::min(markup.find("</w>", start), markup.size());
    NumberedWords words{PlainWords(markup.substr(start, end - start)), {}};
    std::string_view lemma = Attribute(markup.substr(open, start - open), "lemma");
    for (std::size_t at = lemma.find(kStrong); at != std::string_view::npos; at = lemma.find(kStrong)) {
      lemma.remove_prefix(at + kStrong.size());
      words.numbers.emplace_back(lemma.substr(0, lemma.find(' ')));
    }
    result.push_back(std::move(words));
    open = end;
  }
  return result;
}

}  // namespace lectern::make_data
