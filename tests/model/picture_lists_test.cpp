// The lists of a book's pictures, held against the plainest way to make them: a place is walked character by
// character, and the records are gone through once for each chapter.
#include <gtest/gtest.h>
#include <random>
#include <set>

#include "base/text/characters.h"
#include "forms/list_box.h"
#include "gallery/place.h"
#include "tests/kit/test_window.h"
#include "ui/headless/driver.h"

namespace lectern {
namespace {

int PlainChapter(const std::string& place, std::size_t book_length) {
  const std::string tail(text::Mid(place, book_length + 1));
  std::size_t i = 1;
  while (i <= text::Length(tail) && text::Mid(tail, i, 1) != ":") ++i;
  const std::string chapter(i < 2 ? "" : text::Mid(tail, 2, i - 2));
  int number = 0;
  for (std::size_t at = 0; at < chapter.size() && chapter[at] >= '0' && chapter[at] <= '9'; ++at) {
    number = number * 10 + (chapter[at] - '0');
  }
  return number;
}

// A place as a hand might write it.
std::string RandomPlace(std::mt19937& random) {
  const auto pick = [&](int count) { return std::uniform_int_distribution(0, count - 1)(random); };
  const char* const pieces[] = {"Genesis", " ", " ", ":", ": ", "1", "2", "3", "12", "0", "a", "ä", "", "-"};
  std::string place = pick(8) == 0 ? "Exodus" : "Genesis";
  if (pick(3) != 0) return place + " " + std::to_string(pick(6)) + ": " + std::to_string(pick(30));
  for (int left = pick(5); left > 0; --left) place += pieces[pick(std::size(pieces))];
  return place;
}

TEST(PictureLists, ReadAPlaceAsAWalkDoes) {
  std::mt19937 random(1);
  for (int i = 0; i < 5000; ++i) {
    const std::string place = RandomPlace(random);
    for (const std::size_t book_length : {0U, 6U, 7U, 40U}) {
      ASSERT_EQ(gallery::ChapterOf(place, book_length), PlainChapter(place, book_length)) << place;
    }
  }
}

TEST(PictureLists, StandInTheOrderOfAPassForEachChapter) {
  std::mt19937 random(2);
  for (int round = 0; round < 30; ++round) {
    const TemporaryFolder folder;
    std::string catalogue;
    std::vector<std::string> places;
    for (int i = 0; i < 40; ++i) {
      places.push_back(RandomPlace(random));
      catalogue += "\"p" + std::to_string(i) + "\",\"" + places.back() + "\",\"A\"\r\n";
    }
    std::string expected;
    std::set<int> chapters;
    for (const std::string& place : places) chapters.insert(PlainChapter(place, 7));
    chapters.erase(0);
    for (const int chapter : chapters) {
      for (std::size_t i = 0; i < places.size(); ++i) {
        if (!places[i].starts_with("Genesis") || PlainChapter(places[i], 7) != chapter) continue;
        expected += "p" + std::to_string(i) + " ";
      }
    }
    folder.Write("pics2.dat", catalogue);
    headless::Driver driver(folder.Path(), [](const std::string&) {});
    driver.Execute("start");
    const auto& names = dynamic_cast<forms::ItemList&>(*driver.Program().Touch("Form1")->Find("lstmc", 0));
    std::string listed;
    for (int i = 0; i < names.ListCount(); ++i) listed += names.List(i) + " ";
    ASSERT_EQ(listed, expected) << catalogue;
  }
}

}  // namespace
}  // namespace lectern
