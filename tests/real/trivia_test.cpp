// The questions of the game are right: the verse to read is there, and the words of the answer stand in it.
#include <gtest/gtest.h>
#include <set>
#include <sstream>

#include "base/text/letter_case.h"
#include "tests/real/king_james.h"
#include "tools/make_data/trivia_file.h"

namespace lectern {
namespace {

// The words of a text in small letters, without the -'s of an owner.
std::set<std::string> WordsOf(const std::string& words) {
  std::string plain = text::Lower(words);
  for (std::size_t at = plain.find("'s"); at != std::string::npos; at = plain.find("'s")) plain.erase(at, 2);
  for (char& c : plain) c = c >= 'a' && c <= 'z' ? c : ' ';
  std::istringstream stream(plain);
  return {std::istream_iterator<std::string>(stream), {}};
}

TEST(TriviaQuestions, AreAnsweredByTheVerseTheyName) {
  const std::set<std::string> small_words = {"a", "an", "and", "his", "in", "of", "the", "to"};
  std::set<std::string> asked;
  std::set<std::string> books;
  for (const auto& [question, answer, place] : make_data::WrittenQuestions()) {
    EXPECT_TRUE(asked.insert(question).second) << question << " is asked twice";
    EXPECT_TRUE(question.ends_with('?')) << question;
    EXPECT_EQ((question + answer).find('"'), std::string::npos) << question;
    const std::set<std::string> verse = WordsOf(VerseAt(place));
    EXPECT_FALSE(verse.empty()) << place << " is no verse";
    const std::set<std::string> words = WordsOf(answer);
    EXPECT_FALSE(words.empty()) << question;
    for (const std::string& word : words) {
      EXPECT_TRUE(verse.contains(word) || small_words.contains(word)) << place << " lacks " << word;
    }
    books.insert(place.substr(0, place.rfind(' ')));
  }
  EXPECT_GE(asked.size(), 150U);
  EXPECT_EQ(books.size(), 66U);
}

}  // namespace
}  // namespace lectern
