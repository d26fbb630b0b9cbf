// The book files against their sources, which are read again in the plainest way; the search and the
// concordance against a count over the words.
#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <set>
#include <sstream>

#include "base/files/record_reader.h"
#include "base/files/text_encoding.h"
#include "base/text/characters.h"
#include "reader/books.h"
#include "reader/canon.h"
#include "reader/word_blanks.h"
#include "search/text_scan.h"
#include "tests/kit/session.h"
#include "tests/real/real_data.h"
#include "tools/make_data/concordance.h"

namespace lectern {
namespace {

using Verses = std::map<std::string, std::string>;  // by their place, "1 John 2:23"

struct Edition {
  const reader::Version& version;
  const char* module;
  make_data::Version (*read)();
};
const Edition kEditions[] = {{reader::kVersions[0], "engKJV2006eb", make_data::ReadKingJames},
                             {reader::kVersions[1], "engWEB2015eb", make_data::ReadWorldEnglish}};

std::string FileOf(const reader::Version& version, std::string_view book) {
  return RealFile(std::string(version.folder) + "/" + std::string(version.prefix) + std::string(book) +
                  ".txt");
}

// The words alone, without stops and marks.
std::string Bare(std::string_view text) {
  std::string bare;
  for (std::size_t at = 0; at < text.size();) {
    const char32_t c = text::NextCharacter(text, at);
    if (c == U'æ' || c == U'Æ') {
      bare += c == U'æ' ? "ae" : "Ae";
    } else if (c < 0x80 && std::isalnum(static_cast<int>(c)) != 0) {
      bare += static_cast<char>(c);
    } else if (!bare.ends_with(' ')) {
      bare += ' ';
    }
  }
  return std::string(text::TrimEnd(bare.starts_with(' ') ? bare.substr(1) : bare));
}

// Takes every element of a name out of a text, and returns what they contain.
std::string Extract(std::string& text, const std::string& name) {
  std::string contents;
  for (std::size_t open = text.find("<" + name); open != std::string::npos; open = text.find("<" + name)) {
    const std::size_t end = text.find("</" + name + ">", open);
    contents += text.substr(open, end - open) + " ";
    text.replace(open, end + name.size() + 3 - open, " ");
  }
  return contents;
}

std::string WithoutTags(const std::string& text) {
  std::string words;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text.compare(at, 4, "\\nd ") == 0) at += 4;  // a mark of the converter
    if (text[at] != '<') {
      words += text[at];
      continue;
    }
    if (text[at + 1] == 'l') words += ' ';  // a line of verse, or its end
    at = text.find('>', at);
  }
  return words;
}

// The bare words of each verse, with a psalm's title in front, or else those of the note that replaces them.
Verses SourceOf(const std::string& module) {
  std::istringstream lines(make_data::OutputOf("mod2imp " + module + " </dev/null", "mod2imp", ""));
  Verses marked;
  std::string place;
  for (std::string line; std::getline(lines, line);) {
    if (!line.starts_with("$$$")) {
      marked[place] += line + " ";
      continue;
    }
    place = line.substr(3);
    for (const char* number : {"III ", "II ", "I "}) {
      if (place.starts_with(number))
        place = std::to_string(std::string_view(number).size() - 1) +
                place.substr(std::string_view(number).size() - 1);
    }
    if (place.starts_with("Revelation of John")) place.erase(10, 8);
  }
  Verses verses;
  marked["Psalms 119:1"].insert(0, marked["Psalms 119:0"]);
  for (auto& [at, text] : marked) {
    if (const std::size_t end = text.find("<chapter eID"); end != std::string::npos) text.resize(end);
    std::string note = Extract(text, "note");
    Extract(text, "speaker");
    std::string title = Extract(text, "title");
    Extract(title, "note");
    Extract(note, "reference");
    const std::string words = Bare(WithoutTags(text));
    verses[at] = words.empty() ? Bare(WithoutTags(note)) : Bare(WithoutTags(title + " ") + words);
  }
  return verses;
}

// The lines of the verses in the files, without their numbers and the blanks behind.
Verses FilesOf(const reader::Version& version) {
  constexpr std::size_t kNumber = 4;
  constexpr std::size_t kBehind = 7;
  Verses verses;
  for (const std::string_view book : reader::kCanon) {
    std::istringstream lines(FileOf(version, book));
    int chapter = 0;
    int verse = 0;
    for (std::string line; std::getline(lines, line);) {
      EXPECT_TRUE(line.ends_with('\r')) << book << line;
      if (line.starts_with("Chap")) {
        ++chapter;
        verse = 0;
        EXPECT_EQ(line.find("Chapter " + std::to_string(chapter)), 0U) << book;
      } else if (text::StartsWithDigit(line)) {
        std::string number = std::to_string(++verse);
        number.resize(kNumber, ' ');
        EXPECT_TRUE(line.starts_with(number) && line.ends_with("       \r")) << book << line;
        verses[reader::ReferenceText(book, std::to_string(chapter), std::to_string(verse))] =
            files::Decode(line.substr(kNumber, line.size() - kNumber - kBehind - 1));
      } else {
        EXPECT_EQ(line, "World English Bible, public domain\r");
        EXPECT_EQ(lines.peek(), EOF);
      }
    }
  }
  return verses;
}

TEST(Texts, AgreeWithTheirSourcesInEveryVerse) {
  for (const Edition& edition : kEditions) {
    Verses source = SourceOf(edition.module);
    const Verses files = FilesOf(edition.version);
    if (edition.version.folder == reader::kVersions[1].folder) {
      // Three verses that the source has behind 14:23.
      std::string& all = source["Romans 14:23"];
      const char* const beginnings[] = {"Now to him who is able", "but now is revealed",
                                        "to the only wise God"};
      for (int i = 2; i >= 0; --i) {
        const std::size_t at = all.find(beginnings[i]);
        source["Romans 16:" + std::to_string(25 + i)] = all.substr(at);
        all.resize(at - 1);
      }
    }
    EXPECT_EQ(files.size(), 31102U);
    int titles = 0;
    for (const auto& [place, words] : files) {
      EXPECT_EQ(Bare(words), source[place]) << place;
      EXPECT_FALSE(words.empty()) << place;
      if (words.starts_with("[ ") && place.starts_with("Psalms")) ++titles;
    }
    EXPECT_EQ(titles, 138);
  }
}

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

bool BeginsWord(std::string_view text, std::size_t at) {
  if (!IsLetter(text[at])) return false;
  if (at == 0) return true;
  const bool is_joined = (text[at - 1] == '-' || text[at - 1] == '\'') && at > 1 && IsLetter(text[at - 2]);
  return !IsLetter(text[at - 1]) && !is_joined;
}

TEST(Texts, HaveABlankBeforeEveryWordThatIsNotShown) {
  for (const Edition& edition : kEditions) {
    const make_data::Version version = edition.read();
    for (const auto& [place, words] : FilesOf(edition.version)) {
      for (std::size_t at = 1; at < words.size(); ++at) {
        EXPECT_FALSE(BeginsWord(words, at) && words[at - 1] != ' ') << place << " " << words.substr(at);
      }
      const auto [book, chapter, verse] = reader::ReadReference(place)->reference;
      const std::string& shown = version.books[static_cast<std::size_t>(book)].at(chapter).at(verse);
      EXPECT_EQ(reader::WithoutWordBlanks("1   " + words + "       "), "1   " + shown);
      for (const char* fault : {"( ", "[ ", " \" ", "  ", " ,", " .", " ;", " :", " )", "\\", "¶"}) {
        EXPECT_EQ(shown.find(fault), std::string::npos) << place << " " << shown;
      }
      for (std::size_t at = 2; at < shown.size(); ++at) {
        const bool is_glued =
            IsLetter(shown[at]) && std::string_view(",.;:?!)").find(shown[at - 1]) != std::string_view::npos;
        const bool has_no_blank = IsLetter(shown[at]) && shown[at - 1] == '"' && shown[at - 2] != ' ' &&
                                  std::string_view("([\"'\x94").find(shown[at - 2]) == std::string_view::npos;
        EXPECT_FALSE(is_glued || has_no_blank) << place << " " << shown;
      }
    }
  }
}

std::string WithoutHyphensAndBlanks(std::string text) {
  std::erase_if(text, [](char c) { return c == ' ' || c == '-'; });
  return text;
}

// Each line of the table names a verse and what the two sources have there: "Genesis 6:5 |GOD|God|".
TEST(Texts, DifferFromAnotherSourceOnlyWhereTheTableSays) {
  std::map<std::string, std::vector<std::pair<std::string, std::string>>> table;
  std::istringstream rows(ReadFile(std::string(std::getenv("LECTERN_TESTS")) + "/real/editions.txt"));
  for (std::string row; std::getline(rows, row);) {
    std::size_t at = row.find(" |");
    if (at == std::string::npos) continue;
    auto& differences = table[row.substr(0, at)];
    for (; at < row.size() && row.compare(at, 2, " |") == 0;) {
      const std::size_t middle = row.find('|', at + 2);
      const std::size_t end = row.find('|', middle + 1);
      differences.emplace_back(WithoutHyphensAndBlanks(row.substr(at + 2, middle - at - 2)),
                               WithoutHyphensAndBlanks(row.substr(middle + 1, end - middle - 1)));
      at = end + 1;
    }
  }
  EXPECT_EQ(table.size(), 254U);
  const Verses files = FilesOf(reader::kVersions[0]);
  std::istringstream other(
      make_data::OutputOf("bible -f 'gen1:1-rev22:21' </dev/null", "bible", "bible-kjv bible-kjv-text"));
  std::size_t verses = 0;
  for (std::string line; std::getline(other, line); ++verses) {
    const auto read = reader::ReadReference(line);
    ASSERT_TRUE(read) << line;
    const std::string place = reader::ReferenceText(read->reference);
    std::string words = reader::WithoutWordBlanks("1   " + files.at(place)).substr(4);
    while (place.starts_with("Psalms") && words.starts_with('[')) words.erase(0, words.find("] ") + 2);
    words = WithoutHyphensAndBlanks(words);
    std::size_t at = 0;
    for (const auto& [here, there] : table[place]) {
      at = words.find(here, at);
      ASSERT_NE(at, std::string::npos) << place << " has no " << here;
      words.replace(at, here.size(), there);
      at += there.size();
    }
    EXPECT_EQ(words, WithoutHyphensAndBlanks(std::string(read->rest))) << place;
  }
  EXPECT_EQ(verses, 31102U);
}

// Counts where words stand in a text, as a person sees it.
class WordCount {
 public:
  explicit WordCount(const make_data::Version& version) {
    for (std::size_t book = 0; book < version.books.size(); ++book) {
      for (const auto& [chapter, verses] : version.books[book]) {
        for (const auto& [verse, words] : verses) {
          places_.push_back(std::string(reader::kCanon[book]) + " " + std::to_string(chapter) + " " +
                            std::to_string(verse));
          verses_.push_back(text::Lower(words));
          for (std::size_t at = 0; at < words.size(); ++at) {
            if (BeginsWord(words, at)) starts_[verses_.back()[at]].emplace_back(verses_.size() - 1, at);
          }
        }
      }
    }
  }

  // The verses that hold a word or phrase, "Genesis 1 1". A term that begins a longer word decides its verse,
  // and "z" ends a word: these are the limits of the search.
  std::vector<std::string> VersesWith(const std::string& term) const {
    std::vector<std::string> found;
    std::size_t decided = std::string::npos;
    for (const auto& [verse, at] : starts_.at(term[0])) {
      const std::string& words = verses_[verse];
      if (verse == decided || words.compare(at, term.size(), term) != 0) continue;
      decided = verse;
      const char next = at + term.size() < words.size() ? words[at + term.size()] : ' ';
      if (next < 'a' || next > 'y') found.push_back(places_[verse]);
    }
    return found;
  }

  // All words, or those behind a mark; with a number of words behind each where no mark stands between.
  std::set<std::string> Terms(bool only_behind_marks, int more) const {
    std::set<std::string> terms;
    for (const auto& [letter, starts] : starts_) {
      for (const auto& [verse, at] : starts) {
        const std::string& words = verses_[verse];
        if (only_behind_marks && (at == 0 || words[at - 1] == ' ')) continue;
        std::size_t end = std::min(words.find_first_not_of(kLetters, at), words.size());
        for (int i = 0; i < more && end + 1 < words.size() && words[end] == ' '; ++i) {
          end = std::min(words.find_first_not_of(kLetters, end + 1), words.size());
        }
        terms.insert(words.substr(at, end - at));
      }
    }
    return terms;
  }

 private:
  static constexpr const char* kLetters = "abcdefghijklmnopqrstuvwxyz";
  std::vector<std::string> verses_, places_;
  std::map<char, std::vector<std::pair<std::size_t, std::size_t>>>
      starts_;  // of words, by their first letter
};

std::vector<std::string> Sample(const std::set<std::string>& all, std::size_t count, unsigned seed) {
  std::vector<std::string> sample;
  std::sample(all.begin(), all.end(), std::back_inserter(sample), count, std::mt19937(seed));
  return sample;
}

TEST(Texts, AreSearchedForWhatAPersonSees) {
  for (const Edition& edition : kEditions) {
    const WordCount count(edition.read());
    std::vector<std::string> books;
    for (const std::string_view book : reader::kCanon) books.push_back(FileOf(edition.version, book));
    std::set<std::string> chosen = count.Terms(true, 0);
    EXPECT_GT(chosen.size(), 70U);
    const std::size_t more = std::max<std::size_t>(500, chosen.size() + 100) - chosen.size();
    for (const std::string& word : Sample(count.Terms(false, 0), more, 1)) chosen.insert(word);
    for (const std::string& phrase : Sample(count.Terms(true, 2), 50, 2)) chosen.insert(phrase);
    for (const std::string& phrase : Sample(count.Terms(false, 2), 50, 3)) chosen.insert(phrase);
    for (const std::string& term : chosen) {
      const search::LineRules rules{search::ScanKind::kWholeText, 7};  // as many as at the program's start
      std::size_t found = 0;
      for (const std::string& book : books) {
        found += search::ScanText(book, search::Terms(term, ""), "a book", rules).entries.Count();
      }
      EXPECT_EQ(found, count.VersesWith(term).size()) << term;
    }
  }
}

TEST(Concordances, HoldEveryVerseOfTheirWords) {
  for (const Edition& edition : kEditions) {
    const WordCount count(edition.read());
    std::map<std::string, std::vector<std::string>> words;
    const std::string records = RealFile(std::string(edition.version.concordance));
    for (files::RecordReader reader(records); !reader.AtEnd();) {
      const std::string word(reader.Field());
      words[word].emplace_back(reader.Field());
    }
    EXPECT_GT(words.size(), 3850U);
    EXPECT_LE(words.size(), 3900U);
    std::set<std::string> all;
    for (const auto& [word, references] : words) all.insert(word);
    for (const std::string& word : Sample(all, 200, 4)) {
      EXPECT_EQ(words[word], count.VersesWith(text::Lower(word))) << word;
    }
    for (const char* word : {"david", "moses", "heart", "spirit", "soul", "esther", "samson", "goliath"}) {
      EXPECT_TRUE(all.contains(word)) << word;
    }
    for (const char* word : {"the", "unto", "which", "isn", "wouldn", "don", "shalt"}) {
      EXPECT_FALSE(all.contains(word)) << word;
    }
    EXPECT_EQ(all.contains("Zion"), edition.version.folder == reader::kVersions[1].folder);
  }
}

// What the program's builder makes of a list of words in a folder.
std::string BuiltByTheProgram(const TemporaryFolder& folder, const reader::Version& version,
                              const std::vector<std::string>& words) {
  std::string list;
  for (const std::string& word : words) list += word + "\r\n";
  folder.Write("conc.txt", list);
  folder.Write(std::string(version.concordance), "");
  Session session(folder.Path());
  session.Do("click Form1." + std::string(version.option), "click! Form1.Command27", "run 100000");
  return folder.Read(std::string(version.concordance));
}

// The builder writes the records of the last word twice.
std::string WithLastWordTwice(std::string records, const std::string& last) {
  const std::size_t block = records.find("\"" + last + "\"");
  return block == std::string::npos ? records : records + records.substr(block);
}

TEST(Concordances, AreWhatTheProgramsBuilderMakes) {
  const std::vector<std::string> words = {"abraham", "beth-el", "grace", "love", "behold", "Zion"};
  for (const Edition& edition : kEditions) {
    const TemporaryFolder folder;
    std::filesystem::create_directory_symlink(RealData() + "/" + std::string(edition.version.folder),
                                              folder.Path() + "/" + std::string(edition.version.folder));
    EXPECT_EQ(
        BuiltByTheProgram(folder, edition.version, words),
        WithLastWordTwice(make_data::ConcordanceRecords(folder.Path(), edition.version, words), "Zion"));
  }
}

TEST(Concordances, AreWhatTheProgramsBuilderMakesOfAnyFile) {
  const char* const pieces[] = {" ab",
                                "a",
                                " ",
                                "z",
                                "-",
                                "\"",
                                "\xE9",
                                "\n",
                                "\r\n1 ",
                                "\n2   ab",
                                "\nChapter ab\n",
                                "\n1-ab\n",
                                " abz",
                                ",",
                                "\nhead \"ab\"\n3  a ab"};
  const std::vector<std::string> words = {"a", "ab", "ab-a", "Z"};
  std::mt19937 chance(5);
  for (int round = 0; round < 20; ++round) {
    const TemporaryFolder folder;
    for (const char* book : {"Genesis", "Jude"}) {
      std::string text;
      for (int i = 0; i < 60; ++i) text += pieces[chance() % std::size(pieces)];
      text += "\n4   " + std::string(chance() % 2 * 990, 'b') + " ab ab" + std::string(chance() % 9, ' ') +
              "a ab";
      folder.Write("KJV/" + std::string(book) + ".txt", text);
    }
    EXPECT_EQ(
        BuiltByTheProgram(folder, reader::kVersions[0], words),
        WithLastWordTwice(make_data::ConcordanceRecords(folder.Path(), reader::kVersions[0], words), "Z"));
  }
}

}  // namespace
}  // namespace lectern
