// What the data tool makes: dictionary, questions, pictures and help agree with the text and with the
// windows.
#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <sstream>

#include "base/files/record_reader.h"
#include "base/text/characters.h"
#include "forms/figures.h"
#include "forms/rich_text_box.h"
#include "forms/text_controls.h"
#include "reader/canon.h"
#include "tests/kit/session.h"
#include "tests/real/real_data.h"
#include "tools/make_data/written_texts.h"

namespace lectern {
namespace {

TEST(Dictionary, ExplainsEachWordOnceWithAVerseOfTheText) {
  const std::string bytes = RealFile("cdxdic.dat");
  std::set<std::string> words;
  for (files::RecordReader reader(bytes); !reader.AtEnd();) {
    const std::string word(reader.Field());
    const std::string definition(reader.Field());
    const std::string verse(reader.Field());
    std::string wanted = VerseAt(std::string(reader.Field()));
    std::replace(wanted.begin(), wanted.end(), '"', '\'');
    EXPECT_TRUE(!word.empty() && words.insert(word).second) << word;
    EXPECT_TRUE(!definition.empty() && definition.size() <= 400) << word << ": " << definition;
    EXPECT_TRUE(!verse.empty() && verse == wanted) << word << ": " << verse;
  }
  EXPECT_GT(words.size(), 5200U);
}

// The words of a text in small letters, without the possessive s.
std::set<std::string> WordsOf(const std::string& words) {
  std::string plain = text::Lower(words);
  for (std::size_t at = plain.find("'s"); at != std::string::npos; at = plain.find("'s")) plain.erase(at, 2);
  std::erase(plain, '-');  // editions differ in them
  for (char& c : plain) c = c >= 'a' && c <= 'z' ? c : ' ';
  std::istringstream stream(plain);
  return {std::istream_iterator<std::string>(stream), {}};
}

TEST(Trivia, IsAnsweredByTheVersesItNames) {
  const std::set<std::string> small_words = {"a", "an", "and", "his", "in", "of", "the", "to"};
  std::set<std::string> asked;
  std::set<std::string> books;
  for (const auto& [question, answer, place] : make_data::WrittenQuestions()) {
    EXPECT_TRUE(asked.insert(question).second && question.ends_with('?')) << question;
    EXPECT_EQ((question + answer).find('"'), std::string::npos) << question;
    const std::set<std::string> verse = WordsOf(VerseAt(place));
    const std::set<std::string> words = WordsOf(answer);
    EXPECT_FALSE(verse.empty() || words.empty()) << question << " " << place;
    for (const std::string& word : words) {
      EXPECT_TRUE(verse.contains(word) || small_words.contains(word)) << place << " lacks " << word;
    }
    books.insert(place.substr(0, place.rfind(' ')));
  }
  EXPECT_GE(asked.size(), 150U);
  EXPECT_EQ(books.size(), 66U);
}

TEST(Gallery, HasPicturesOnVersesOfEveryBook) {
  const std::string records = RealFile("pics2.dat");
  std::set<std::string> pictures;
  std::map<int, int> places_of_book;
  int last = 0;
  for (files::RecordReader reader(records); !reader.AtEnd();) {
    const std::string name(reader.Field());
    pictures.insert(name);
    const std::string place(reader.Field());
    const std::string author(reader.Field());
    EXPECT_TRUE(std::filesystem::exists(RealData() + "/pics/" + name + ".jpg")) << name;
    EXPECT_TRUE(author.starts_with("PICTURES BY: ") && author.size() > 13) << name;
    EXPECT_FALSE(VerseAt(place).empty()) << place;
    const int book = reader::ReadReference(place)->reference.book;
    EXPECT_TRUE(place.starts_with(std::string(reader::kCanon[static_cast<std::size_t>(book)]) + " "))
        << place;
    EXPECT_GE(book, last) << place << " is behind a later book";
    last = book;
    ++places_of_book[book];
  }
  EXPECT_GE(pictures.size(), 150U);
  EXPECT_EQ(places_of_book.size(), reader::kCanon.size());
  for (const auto& [book, places] : places_of_book) EXPECT_GE(places, 3) << book;
}

TEST(Gallery, CanBePagedThroughInEveryBook) {
  Session session(RealData());
  for (const std::string_view book : reader::kCanon) {
    EXPECT_EQ(session.Do("click Form1.lst \"" + std::string(book) + "\""), Steps{});
    const Steps names = session.Items("Form1.lstmc(0)");
    EXPECT_FALSE(names.empty()) << book;
    for (std::size_t page = 0; page * 5 < names.size(); ++page) {
      EXPECT_EQ(session.Do("click Form1.imgp(0)"), Steps{});
      EXPECT_EQ(session.Get<forms::Label>("Form1.LBLPICP").Caption, names[page * 5]);
      EXPECT_EQ(session.Get<forms::Image>("Form1.pick").Picture().Width(), 640);
      session.Do("click Form1.SSCommand3");
    }
    EXPECT_EQ(session.Get<forms::Label>("Form1.lblp(4)").Caption, "end") << book;
  }
}

TEST(Help, OpensUnderItsLabelsAsItWasWritten) {
  Session session(RealData());
  session.Do("click Form1.xh2");
  const auto& pane = session.Get<forms::RichTextBox>("Form1.txthelp");
  int label = 0;
  for (const std::string title :
       {"Book marks", "Search", "Notes", "Pictures", "Concordance", "Dictionary", "Trivia", "Paint"}) {
    session.Do("click Form1.lblhp(" + std::to_string(label++) + ")");
    const std::string& text = pane.Text;
    EXPECT_TRUE(text.starts_with(title + "\r\n")) << text.substr(0, 40);
    EXPECT_NE(text.find("\r\n\r\nGood to know\r\n"), std::string::npos) << title;
    EXPECT_EQ(text.find_first_of("#\\{}"), std::string::npos) << title;
    EXPECT_EQ(pane.Runs().At(0).size, 16);
    EXPECT_EQ(pane.Runs().At(0).bold, true);
    EXPECT_EQ(pane.Runs().At(text::Length(text) - 1), forms::TextStyle{});
  }
}

// A frame's heading may be several, with blanks between them.
TEST(Help, NamesCaptionsThatAreThere) {
  Session session(RealData());
  std::set<std::string> captions;
  for (const char* name : {"Form1", "Form2", "Form3", "Form4", "Form5"}) {
    for (const forms::Control* control : session.driver.Program().Touch(name)->Controls()) {
      const forms::PropertyBase* const caption = control->FindProperty("Caption");
      std::string rest = caption == nullptr ? "" : std::get<std::string>(caption->Read());
      std::erase(rest, '&');
      for (std::size_t end = 0; !rest.empty(); rest.erase(0, end)) {
        rest.erase(0, rest.find_first_not_of(' '));
        end = std::min(rest.find("  "), rest.size());
        captions.insert(rest.substr(0, end));
      }
    }
  }
  for (const make_data::WrittenText& topic : make_data::kHelpSources) {
    for (std::size_t at = topic.text.find("**"); at != std::string_view::npos;) {
      const std::size_t end = topic.text.find("**", at + 2);
      const std::string named(topic.text.substr(at + 2, end - at - 2));
      EXPECT_TRUE(captions.contains(named)) << topic.file << ": " << named;
      at = topic.text.find("**", end + 2);
    }
  }
}

}  // namespace
}  // namespace lectern
