#include <gtest/gtest.h>

#include "reader/reader.h"
#include "tests/kit/test_window.h"
#include "ui/panels.h"

namespace lectern {
namespace {

using Missing = reader::FoundReference::Missing;

// What people type, and the place that it is; a verse or chapter that is not given is left out.
TEST(Reference, IsReadAsPeopleWriteIt) {
  const struct {
    const char* typed;
    const char* place;
  } kRows[] = {
      {"John 3:16", "John 3:16"},
      {"jn 3 16", "John 3:16"},
      {"JN3.16", "John 3:16"},
      {"1 Peter 2 6", "1 Peter 2:6"},
      {"1pet2,6", "1 Peter 2:6"},
      {"I Pt. 2:6-8", "1 Peter 2:6"},
      {"iii john", "3 John"},
      {"3jn 4", "3 John 4"},
      {"ps 119:105", "Psalms 119:105"},
      {"psalm 23", "Psalms 23"},
      {"1 cor 13", "1 Corinthians 13"},
      {"2Kgs 8:16", "2 Kings 8:16"},
      {"song 2 1", "Song of Solomon 2:1"},
      {"Song of Solomon", "Song of Solomon"},
      {"is 53", "Isaiah 53"},
      {"phil 4", "Philippians 4"},
      {"philem", "Philemon"},
      {"Phm 6", "Philemon 6"},
      {"jude 3", "Jude 3"},
      {"judg 7", "Judges 7"},
      {"Mt. 5", "Matthew 5"},
      {"1-Samuel 16", "1 Samuel 16"},
      {"Genesis 2: 7", "Genesis 2:7"},
      {"Revelation of John 1", "Revelation 1"},
      {"jo 3", ""},
      {"ma 1", ""},
      {"4 john 1", ""},
      {"john of patmos", ""},
      {"16", ""},
      {"", ""},
      {"1 genesis", ""},
      {"j", ""},
      {"tobit 1", ""},
  };
  for (const auto& row : kRows) {
    const auto read = reader::ReadReference(row.typed);
    EXPECT_EQ(read ? reader::ReferenceText(read->reference) : "", row.place) << row.typed;
  }
}

TEST(Reference, SaysWhatTheTextDoesNotHave) {
  TestWindow test;
  test.folder.Write("KJV/John.txt", "Chapter 1\r\n1   a\r\n2   b\r\nChapter 2\r\n1   c\r\n");
  test.folder.Write("KJV/Jude.txt", "Chapter 1\r\n1   a\r\n2   b\r\n3   c\r\n");
  ui::Panels panels(test.form);
  reader::Reader reader(test.form, panels.frms, panels.Picture1, panels.Frame1);
  reader.Dir3.Path = reader.DataFile("KJV");
  const struct {
    const char* typed;
    Missing missing;
    const char* place;
  } kRows[] = {
      {"jn 1:2", Missing::kNothing, "John 1:2"},     {"jn 1:3", Missing::kVerse, "John 1:3"},
      {"jn 3", Missing::kChapter, "John 3"},         {"jn 99999999999", Missing::kChapter, "John 2147483647"},
      {"jn 2:x", Missing::kVerse, "John 2"},         {"jn :x", Missing::kChapter, "John"},
      {"jn 2:", Missing::kNothing, "John 2"},        {"jn", Missing::kNothing, "John"},
      {"jude 3", Missing::kNothing, "Jude 1:3"},     {"jude 4", Missing::kVerse, "Jude 1:4"},
      {"jude 1:2-3", Missing::kNothing, "Jude 1:2"}, {"joel 1", Missing::kBook, "Joel 1"},
      {"nowhere 1", Missing::kBook, "Genesis"},
  };
  for (const auto& row : kRows) {
    const reader::FoundReference found = reader.Find(row.typed);
    EXPECT_EQ(found.missing, row.missing) << row.typed;
    EXPECT_EQ(reader::ReferenceText(found.reference), row.place) << row.typed;
  }
}

}  // namespace
}  // namespace lectern
