#include <algorithm>
#include <array>

#include "base/files/text_encoding.h"
#include "base/text/characters.h"
#include "reader/canon.h"
#include "reader/reference.h"
#include "tools/make_data/dictionary.h"

namespace lectern::make_data {

namespace {

constexpr std::size_t kLongestDefinition = 400;  // bytes, of text that is nearly all ASCII

bool IsSee(std::string_view words) { return words.starts_with("See "); }

// Headings without meaning of their own: what lies below them stands for itself.
bool SaysNothing(std::string_view words) {
  constexpr std::array<std::string_view, 5> kEmptyHeads = {
      "UNCLASSIFIED SCRIPTURES RELATING TO", "MISCELLANY OF MINOR SUB-TOPICS", "SCRIPTURES RELATING TO",
      "General scriptures concerning", "UNCLASSIFIED"};
  return std::find(kEmptyHeads.begin(), kEmptyHeads.end(), words) != kEmptyHeads.end();
}

// Whether a text describes the layout of the index, or holds a reference that was not marked as one.
bool SpeaksOfTheIndex(std::string_view words) {
  constexpr std::array<std::string_view, 5> kLayout = {" above", " below", " following", " printed",
                                                       " paragraph"};
  if (words == "See" || words.ends_with(" subtopic")) return true;
  if (IsSee(words)) {
    return std::any_of(kLayout.begin(), kLayout.end(),
                       [&](std::string_view sign) { return words.find(sign) != std::string_view::npos; });
  }
  const std::size_t colon = words.find(':');
  return colon != std::string_view::npos && colon > 0 && text::StartsWithDigit(words.substr(colon - 1)) &&
         text::StartsWithDigit(words.substr(colon + 1));
}

// The index omits its subject: "Lineage of", "Desert of, a wilderness". It is added behind a word that needs
// it.
std::string WithSubject(std::string words, const std::string& subject) {
  constexpr std::array<std::string_view, 13> kWanting = {
      " of",   " concerning", " in",      " to",   " at",    " by",    " for",
      " from", " with",       " against", " upon", " among", " before"};
  for (const std::string_view wanting : kWanting) {
    const std::string inside = std::string(wanting) + ", ";
    const std::size_t at = words.find(inside);
    if (at != std::string::npos) words.insert(at + wanting.size(), " " + subject);
  }
  const bool ends_wanting = std::any_of(kWanting.begin(), kWanting.end(), [&](std::string_view wanting) {
    return text::Lower(words).ends_with(wanting) || text::Lower(words) == wanting.substr(1);
  });
  return ends_wanting ? words + " " + subject : words;
}

std::string WithoutEnd(std::string words) {
  while (!words.empty() && std::string_view(" .,;:=").find(words.back()) != std::string_view::npos)
    words.pop_back();
  return words;
}

// A field cannot hold double quotes.
std::string WithoutQuotes(std::string words) {
  std::replace(words.begin(), words.end(), '"', '\'');
  return words;
}

std::string Plain(std::string words) {
  for (std::size_t at = words.find("' s "); at != std::string::npos; at = words.find("' s "))
    words.erase(at + 1, 1);
  const bool in_brackets = words.size() > 1 && words.front() == '(' && words.find(')') == words.size() - 1;
  if (in_brackets) words = words.substr(1, words.size() - 2);
  return WithoutEnd(std::move(words));
}

// Grows sentence by sentence, and stops as soon as something does not fit.
class SentenceWriter {
 public:
  // A piece that begins a sentence, or goes on with the one before behind `joint`.
  void Add(std::string_view joint, const std::string& piece) {
    if (piece.empty() || full_) return;
    const std::string addition = (text_.empty() ? "" : std::string(joint)) + piece;
    full_ = text_.size() + addition.size() + 1 > kLongestDefinition;
    if (!full_) text_ += addition;
  }
  bool IsEmpty() const { return text_.empty(); }
  std::string Text() const { return text_.empty() || text_.ends_with('?') ? text_ : text_ + "."; }

 private:
  std::string text_;
  bool full_ = false;
};

}  // namespace

std::string Definition(const Topic& topic, const Wording& wording) {
  const std::string subject = Wording::Subject(Wording::Heading(topic.heading));
  SentenceWriter writer;
  enum class Before { kNothing, kSilentHead, kHead, kNested, kSee } before = Before::kNothing;
  for (const Item& item : topic.items) {
    std::string words = Plain(item.words);
    if (SpeaksOfTheIndex(words)) continue;
    if (SaysNothing(words)) {
      before = Before::kSilentHead;
      continue;
    }
    words = wording.Sentence(words);
    const bool see = IsSee(words);
    if (item.see.empty()) words = WithSubject(std::move(words), subject);
    if (words.empty()) continue;
    std::string_view joint = ". ";
    if (see && before == Before::kSee) {
      joint = "; ";
      words.erase(0, std::string_view("See ").size());
    } else if (item.nested && (before == Before::kHead || before == Before::kNested)) {
      joint = before == Before::kHead ? ": " : "; ";
      if (see) words[0] = 's';
    }
    writer.Add(joint, words);
    if (see) {
      before = Before::kSee;
    } else if (!item.nested) {
      before = Before::kHead;
    } else if (before != Before::kSilentHead) {
      before = Before::kNested;
    }
  }
  if (writer.IsEmpty() && !topic.items.empty()) writer.Add("", "Scriptures concerning " + subject);
  return writer.Text();
}

std::string DictionaryRecords(const std::vector<Topic>& topics, const Version& king_james) {
  const Wording wording(king_james);
  const VerseFinder finder(topics, king_james);
  std::string records;
  for (const Topic& topic : topics) {
    const std::string definition = Definition(topic, wording);
    const VerseFinder::Verse* const use = finder.Use(topic);
    if (definition.empty() || use == nullptr) continue;
    const std::string reference = reader::ReferenceText({use->book, use->chapter, use->verse});
    std::string record;
    for (const std::string& field : {Wording::Heading(topic.heading), definition, *use->words, reference}) {
      record += (record.empty() ? "\"" : ",\"") + WithoutQuotes(field) + "\"";
    }
    records += files::Encode(record) + "\r\n";
  }
  return records;
}

}  // namespace lectern::make_data
