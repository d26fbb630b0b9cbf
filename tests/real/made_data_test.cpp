// What the data tool makes: dictionary, questions, pictures and help agree with the text and with the
// windows.
#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <sstream>

#include "base/files/record_reader.h"
#include "base/files/text_encoding.h"
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

// The words of a text in small letters, without the possessive s.
std::set<std::string> WordsOf(const std::string& words) {
  std::string plain = text::Lower(words) + " ";
  for (const char* possessive : {"'s ", "'s,", "'s;", "'s."}) {
    for (std::size_t at = plain.find(possessive); at != std::string::npos; at = plain.find(possessive))
      plain.erase(at, 2);
  }
  for (char& c : plain) c = c >= 'a' && c <= 'z' ? c : ' ';
  std::istringstream stream(plain);
  return {std::istream_iterator<std::string>(stream), {}};
}

// Whether the verse holds the word, or one that begins with it and ends otherwise. Hyphens do not count.
bool Shows(const std::string& verse, std::string word) {
  const auto folded = [](std::string text) {
    std::erase(text, '-');
    return text::Lower(text);
  };
  word = folded(word);
  const std::string text = " " + folded(verse);
  if (word.size() > 3 && (word.ends_with('e') || word.ends_with('y'))) word.pop_back();
  for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1)) {
    const auto is_letter = [](char c) { return c >= 'a' && c <= 'z'; };
    constexpr std::size_t kLongestEnding = 5;
    std::size_t end = at + word.size();
    while (end < text.size() && is_letter(text[end])) ++end;
    if (at > 0 && !is_letter(text[at - 1]) && end - at <= word.size() + kLongestEnding) return true;
  }
  return false;
}

// What is wrong with a definition; "" if nothing is.
std::string FaultOf(const std::string& word, const std::string& definition, const std::string& verse) {
  for (const char* debris : {"See ", "; see ", "criptures concerning", " V.", " v.", "' s ", "0F", " ,", "..",
                             "()", "igurative.", "nstances", "  "}) {
    if (definition.find(debris) != std::string::npos) return debris;
  }
  const std::string small = text::Lower(word);
  const bool is_common = WordsOf(verse).contains(small) && verse.find(small) != std::string::npos;
  for (const char* stump :
       {" of.", " by.", " in.", " to.", " for.", " the.", " and.", " concerning.", " of, "}) {
    if (!is_common && definition.find(stump) != std::string::npos) return stump;
  }
  if (is_common && definition.find(" " + word + " ") != std::string::npos) return "its own capital";
  if (std::count(definition.begin(), definition.end(), '(') !=
      std::count(definition.begin(), definition.end(), ')'))
    return "bracket";
  if (definition.size() < 4 || definition.size() > 400) return "length";
  if (std::string_view(".?!'").find(definition.back()) == std::string_view::npos) return "end";
  return Shows(verse, word) ? "" : "verse";
}

TEST(Dictionary, ExplainsEachWordOnceWithAVerseOfTheText) {
  const std::string bytes = files::Decode(RealFile("cdxdic.dat"));
  std::set<std::string> words;
  for (files::RecordReader reader(bytes); !reader.AtEnd();) {
    const std::string word(reader.Field());
    const std::string definition(reader.Field());
    const std::string verse(reader.Field());
    std::string wanted = VerseAt(std::string(reader.Field()));
    std::replace(wanted.begin(), wanted.end(), '"', '\'');
    EXPECT_TRUE(!word.empty() && words.insert(word).second) << word;
    EXPECT_EQ(FaultOf(word, definition, verse), "") << word << ": " << definition << " // " << verse;
    EXPECT_EQ(verse, wanted) << word;
  }
  EXPECT_GE(words.size(), 9000U);
  std::istringstream hard(
      "Besom Kine Twain Wist Gainsay Peradventure Tittle Victuals Rereward Scrip Publican Propitiation "
      "Firmament Tares Leasing "
      "Ouches Habergeon Emerods Wimple Wot Grace Angel Selah Jesus Sin Cross Manna Hell Love");
  for (std::string word; hard >> word;) EXPECT_TRUE(words.contains(word)) << word;
}

// The words of the verse that it names answer each question, in both versions. Parts of a name may be written
// together.
TEST(Trivia, IsAnsweredByTheVersesItNames) {
  const std::set<std::string> small_words = {"a", "an", "and", "his", "in", "of", "the", "to"};
  const std::string second_sign = "; in the second version, ";
  const make_data::Version second = make_data::ReadWorldEnglish();
  std::set<std::string> asked;
  std::set<std::string> books;
  for (const auto& [question, answer, place] : make_data::WrittenQuestions()) {
    EXPECT_TRUE(asked.insert(question).second && question.ends_with('?')) << question;
    EXPECT_EQ((question + answer).find('"'), std::string::npos) << question;
    const std::size_t sign = answer.find(second_sign);
    const std::string second_answer =
        sign == std::string::npos ? answer : answer.substr(sign + second_sign.size());
    const auto [book, chapter, number] = reader::ReadReference(place)->reference;
    const std::string& second_verse = second.books[static_cast<std::size_t>(book)].at(chapter).at(number);
    for (const auto& [words, text] :
         {std::pair(answer.substr(0, sign), VerseAt(place)), std::pair(second_answer, second_verse)}) {
      const std::set<std::string> verse = WordsOf(text);
      std::string letters = text::Lower(text);
      std::erase_if(letters, [](char c) { return c < 'a' || c > 'z'; });
      EXPECT_FALSE(verse.empty() || WordsOf(words).empty()) << question << " " << place;
      for (const std::string& word : WordsOf(words)) {
        const bool is_part = words.find('-') != std::string::npos && letters.find(word) != std::string::npos;
        EXPECT_TRUE(verse.contains(word) || small_words.contains(word) || is_part)
            << place << " lacks " << word;
      }
    }
    books.insert(place.substr(0, place.rfind(' ')));
  }
  EXPECT_GE(asked.size(), 350U);
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
