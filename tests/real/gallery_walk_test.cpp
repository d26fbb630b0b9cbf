// The gallery that the data tool makes: pictures for every book, each on a verse that there is, and a strip
// that can be paged from end to end.
#include <gtest/gtest.h>
#include <set>

#include "base/files/file_slots.h"
#include "forms/image.h"
#include "forms/label.h"
#include "forms/list_box.h"
#include "gallery/picture_record.h"
#include "reader/canon.h"
#include "reader/reference.h"
#include "tests/kit/test_window.h"
#include "tools/make_data/sources.h"
#include "ui/headless/driver.h"

namespace lectern {
namespace {

std::string DataFolder() { return std::getenv("LECTERN_REAL_DATA"); }

TEST(Gallery, HasPicturesForVersesOfEveryBook) {
  const make_data::Version text = make_data::ReadKingJames();
  files::FileSystem files(DataFolder());
  files::FileSlots slots(files);
  slots.OpenForReading(1, "pics2.dat");
  std::set<int> books;
  int last = -1;
  while (!slots.EndOfFile(1)) {
    const gallery::PictureRecord record = gallery::ReadPictureRecord(slots, 1);
    EXPECT_TRUE(files.FileExists("pics\\" + record.name + ".jpg")) << record.name;
    EXPECT_TRUE(record.author.starts_with("PICTURES BY: ") && record.author.size() > 13) << record.name;
    const auto place = reader::ReadReference(record.place);
    ASSERT_TRUE(place) << record.place;
    const auto [book, chapter, verse] = place->reference;
    EXPECT_TRUE(record.place.starts_with(reader::kCanon[static_cast<std::size_t>(book)])) << record.place;
    const make_data::Book& chapters = text.books[static_cast<std::size_t>(book)];
    EXPECT_TRUE(chapters.contains(chapter) && chapters.at(chapter).contains(verse)) << record.place;
    EXPECT_GE(book, last) << record.place << " stands behind a later book";
    last = book;
    books.insert(book);
  }
  EXPECT_EQ(books.size(), reader::kCanon.size());
}

TEST(Gallery, CanBePagedThroughEveryBook) {
  headless::Driver driver(DataFolder(), [](const std::string& line) { ADD_FAILURE() << line; });
  driver.Execute("start");
  forms::Window& form = *driver.Program().Touch("Form1");
  const auto& names = dynamic_cast<forms::ListBox&>(*form.Find("lstmc", 0));
  const auto& last_label = dynamic_cast<forms::Label&>(*form.Find("lblp", 4));
  const auto& name = dynamic_cast<forms::Label&>(*form.Find("LBLPICP"));
  const auto& pick = dynamic_cast<forms::Image&>(*form.Find("pick"));
  for (const std::string_view book : reader::kCanon) {
    driver.Execute("click Form1.lst \"" + std::string(book) + "\"");
    ASSERT_FALSE(driver.Program().HasEnded()) << book;
    EXPECT_GT(names.ListCount(), 0) << book;
    for (int page = 0; page * 5 < names.ListCount(); ++page) {
      driver.Execute("click Form1.imgp(0)");
      EXPECT_EQ(name.Caption, names.List(page * 5));
      EXPECT_EQ(pick.Picture().Width(), 640);
      driver.Execute("click Form1.SSCommand3");
    }
    EXPECT_EQ(last_label.Caption, "end") << book;
  }
}

}  // namespace
}  // namespace lectern
