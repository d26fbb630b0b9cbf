#include <gtest/gtest.h>

#include "reader/canon.h"
#include "tests/kit/test_window.h"
#include "ui/reading_desk.h"

namespace lectern {
namespace {

std::string Book(int chapters, int verses) {
  std::string book;
  for (int chapter = 1; chapter <= chapters; ++chapter) {
    book += "Chapter " + std::to_string(chapter) + "\r\n";
    for (int verse = 1; verse <= verses; ++verse) book += std::to_string(verse) + "   a\r\n";
  }
  return book;
}

// Every book has 66 chapters of 36 verses, but for Jude, Philemon and Psalms; Joel is missing.
TEST(Reference, LeadsToItsPlaceOrSaysWhatDoesNotExist) {
  TestWindow test;
  for (const std::string_view name : reader::kCanon) {
    const bool is_short = name == "Jude" || name == "Philemon";
    const int chapters = is_short ? 1 : name == "Psalms" ? 150 : 66;
    if (name != "Joel") test.folder.Write("KJV/" + std::string(name) + ".txt", Book(chapters, 36));
  }
  ui::Panels panels(test.form);
  reader::Reader reader(test.form, panels.frms, panels.Picture1, panels.Frame1);
  reader.Dir3.Path = reader.DataFile("KJV");
  reader.ShowGenesis();
  reader::SecondPane second_pane(panels.Picture4);
  const ui::ReadingDesk desk(reader, panels, second_pane);
  const struct {
    const char* typed;
    const char* answer;
  } kRows[] = {
      {"John 3:16", "John 3:16"},
      {"jn 3 16", "John 3:16"},
      {"JN3.16", "John 3:16"},
      {"john 3 v. 16", "John 3:16"},
      {" john 3:16-18 ", "John 3:16"},
      {"1 Peter 2 6", "1 Peter 2:6"},
      {"1pet2,6", "1 Peter 2:6"},
      {"I Pt. 2:6-8", "1 Peter 2:6"},
      {"1st Peter 2:6", "1 Peter 2:6"},
      {"1-Samuel 16", "1 Samuel 16"},
      {"2Kgs 8:16", "2 Kings 8:16"},
      {"iii john", "3 John"},
      {"3jn 4", "3 John 4"},
      {"1 cor 13", "1 Corinthians 13"},
      {"ps 119:5", "Psalms 119:5"},
      {"psalm 23", "Psalms 23"},
      {"song 2 1", "Song of Solomon 2:1"},
      {"Song of Songs", "Song of Solomon"},
      {"is 53", "Isaiah 53"},
      {"gen.1.1", "Genesis 1:1"},
      {"dt 6", "Deuteronomy 6"},
      {"judg 7", "Judges 7"},
      {"1 chr 4:10", "1 Chronicles 4:10"},
      {"Ezk 37", "Ezekiel 37"},
      {"Mt. 5", "Matthew 5"},
      {"mk 1", "Mark 1"},
      {"lk 2:1", "Luke 2:1"},
      {"Acts of the Apostles 2", "Acts 2"},
      {"phil 4", "Philippians 4"},
      {"philem", "Philemon"},
      {"Phm 6", "Philemon 1:6"},
      {"jude 3", "Jude 1:3"},
      {"jude 1:3", "Jude 1:3"},
      {"1 thess 5:17", "1 Thessalonians 5:17"},
      {"jas 1:5", "James 1:5"},
      {"Revelation of John 1", "Revelation 1"},
      {"Genesis 2: 7", "Genesis 2:7"},
      {"ruth", "Ruth"},
      // In the open book.
      {"7", "Genesis 7"},
      {"7:8", "Genesis 7:8"},
      {"70", "Genesis has 66 chapters."},
      // What does not exist.
      {"john 67", "John has 66 chapters."},
      {"john 99999999999", "John has 66 chapters."},
      {"john 0", "John has 66 chapters."},
      {"john 3:77", "John 3 has 36 verses."},
      {"john 3:0", "John 3 has 36 verses."},
      {"jude 37", "Jude 1 has 36 verses."},
      {"jude 2:1", "Jude has 1 chapter."},
      {"john :x", "“:x” is no chapter of John."},
      {"john 3:x", "“:x” is no verse of John 3."},
      {"joel 1", "Joel is not among the texts."},
      {"jo 3", "Joshua, Job, Joel, Jonah, John"},
      {"ma", "Malachi, Matthew, Mark"},
      {"j", "Joshua, Judges, Job, Jeremiah, Joel, Jonah, John, James …"},
      {"1 t", "1 Thessalonians, 1 Timothy"},
      {"4 john 1", "No book begins with “4 john”."},
      {"1 genesis", "No book begins with “1 genesis”."},
      {"john of patmos", "No book begins with “john of patmos”."},
      {"tobit 1", "No book begins with “tobit”."},
      {"  ", "A place, such as John 3:16"},
  };
  for (const auto& row : kRows) EXPECT_EQ(desk.Read(row.typed).text, row.answer) << row.typed;
}

}  // namespace
}  // namespace lectern
