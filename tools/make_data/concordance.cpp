#include "tools/make_data/concordance.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>

#include "base/files/file_slots.h"
#include "base/files/record_reader.h"
#include "base/files/text_encoding.h"
#include "base/text/characters.h"
#include "reader/canon.h"
#include "reader/reference.h"
#include "search/text_scan.h"

namespace lectern::make_data {

namespace {

constexpr int kNone = -1;

// Finds all words of a list that a text begins with.
class WordTree {
 public:
  explicit WordTree(const std::vector<std::string>& words) : nodes_(1) {
    for (std::size_t i = 0; i < words.size(); ++i) {
      std::size_t node = 0;
      for (const char c : text::Lower(words[i])) {
        if (nodes_[node].next[Index(c)] == kNone) {
          nodes_[node].next[Index(c)] = static_cast<int>(nodes_.size());
          nodes_.emplace_back();
        }
        node = static_cast<std::size_t>(nodes_[node].next[Index(c)]);
      }
      nodes_[node].word = static_cast<int>(i);
    }
  }

  // Calls `take` with the number of each word and the place behind it.
  template <class Take>
  void ForEachAt(std::string_view text, std::size_t at, Take take) const {
    for (int node = 0; at < text.size() && Index(text[at]) < kLetters; ++at) {
      node = nodes_[static_cast<std::size_t>(node)].next[Index(text[at])];
      if (node == kNone) return;
      const int word = nodes_[static_cast<std::size_t>(node)].word;
      if (word != kNone) take(static_cast<std::size_t>(word), at + 1);
    }
  }

 private:
  static constexpr std::size_t kLetters = 27;
  static std::size_t Index(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<std::size_t>(c - 'a') : c == '-' ? kLetters - 1 : kLetters;
  }

  struct Node {
    Node() { next.fill(kNone); }
    std::array<int, kLetters> next;
    int word = kNone;
  };
  std::vector<Node> nodes_;
};

// Looks up all words in one book after the other, by the rules of the scan of the whole text.
class Lookup {
 public:
  explicit Lookup(const std::vector<std::string>& words)
      : words_(words), tree_(words), states_(words.size()) {}

  void Read(const std::string& bytes, std::string book) {
    for (State& state : states_) state.next = 0;
    book_ = std::move(book);
    chapter_ = 0;
    for (files::RecordReader lines(bytes); !lines.AtEnd();) ReadLine(lines.Line());
  }

  std::string Records() const {
    std::string records;
    for (const State& state : states_) records += state.records;
    return records;
  }

 private:
  struct State {
    int line = 0;       // the last one in which the word was found
    char32_t next = 0;  // the character behind it there, if there was one
    std::string records;
  };

  void ReadLine(std::string_view line) {
    const search::LineKind kind = search::KindOf(line);
    if (kind == search::LineKind::kVerse) {
      ++verse_;
      return ReadVerse(text::Lower(files::Decode(line)));
    }
    verse_ = 0;
    if (kind == search::LineKind::kChapter) {
      ++chapter_;
      return;
    }
    chapter_ = 0;
    const std::string heading = text::Lower(files::Decode(line));
    book_ = text::Upper(text::Left(heading, 1)) + heading.substr(text::ByteOf(heading, 2));
  }

  void ReadVerse(const std::string& line) {
    constexpr std::size_t kFirstPlace = 3;  // before it is the verse's number
    constexpr std::size_t kLongest = 1000;  // in a longer line a word may count several times
    const bool is_long = line.size() > kLongest;
    std::string entry;
    ++line_;
    for (std::size_t at = line.find(' ', text::ByteOf(line, kFirstPlace + 1)); at != std::string::npos;
         at = line.find(' ', at + 1)) {
      tree_.ForEachAt(line, at + 1, [&](std::size_t word, std::size_t end) {
        State& state = states_[word];
        if (std::exchange(state.line, line_) == line_) return;  // the first place decides
        const int hits = is_long ? HitsInLongLine(line, word) : Accepts(line, end, state) ? 1 : 0;
        if (hits > 0 && entry.empty()) entry = files::FieldText(Entry());
        for (int i = 0; i < hits && !book_.empty(); ++i) {
          ((((state.records += '"') += words_[word]) += "\",\"") += entry) += "\"\r\n";
        }
      });
    }
  }

  static bool Accepts(const std::string& line, std::size_t end, State& state) {
    if (end < line.size()) state.next = text::NextCharacter(line, end);
    return !search::LineRules{search::ScanKind::kWholeText}.Rejects(state.next);
  }

  int HitsInLongLine(const std::string& line, std::size_t word) {
    const search::LineRules rules{search::ScanKind::kWholeText, words_[word].size()};
    const search::ScanFindings found =
        search::ScanText(line, search::Terms(words_[word], ""), "a book", rules, states_[word].next);
    states_[word].next = found.next;
    return found.count;
  }

  std::string Entry() const {
    return files::Encode(reader::ReferenceText(book_, std::to_string(chapter_), std::to_string(verse_), ' '));
  }

  const std::vector<std::string>& words_;
  WordTree tree_;
  std::vector<State> states_;
  std::string book_;
  int chapter_ = 0;
  int verse_ = 0;
  int line_ = 0;
};

}  // namespace

std::string ConcordanceRecords(const std::string& data_folder, const reader::Version& version,
                               const std::vector<std::string>& words) {
  Lookup lookup(words);
  for (const std::string_view book : reader::kCanon) {
    std::ifstream file(std::filesystem::path(data_folder) / version.folder /
                           (std::string(version.prefix) + std::string(book) + ".txt"),
                       std::ios::binary);
    lookup.Read({std::istreambuf_iterator<char>(file), {}}, std::string(book));
  }
  return lookup.Records();
}

}  // namespace lectern::make_data
