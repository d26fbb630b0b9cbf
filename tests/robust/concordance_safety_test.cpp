// The words of the concordance survive whatever stops a change of it: they are in place, or the version
// before is under `backup`.
#include <csignal>
#include <gtest/gtest.h>

#include "reader/canon.h"
#include "tests/kit/stopping.h"
#include "tests/kit/test_window.h"
#include "ui/headless/driver.h"

namespace lectern {
namespace {

using headless::Driver;

constexpr const char* kWords =
    "\"river\",\"Genesis 1 1\"\r\n\"lamp\",\"Genesis 1 2\"\r\n\"Peace kept\",\"Jude 1 2\"\r\n";

struct Change {
  const char* name;
  const char* file;  // the concordance, as the change makes it
  Steps way;         // how the person comes to it
  Steps act;
};

// As gtest shows it.
std::ostream& operator<<(std::ostream& stream, const Change& change) { return stream << change.name; }

const Steps kSearch = {"click Form1.cc3", "click Form1.op1", "type Form1.txts \"lamp\"",
                       "click Form1.Command22", "run"};

const Change kDeletion{
    "Deletion", "CONCORD.DAT", {"click Form1.cc1", "click Form1.lstc \"LAMP\""}, {"click Form1.Command21"}};
const Change kAdd{"Add", "CONCORD.DAT", kSearch, {"click Form1.cmdadd"}};
const Change kBuild{"Build", "CONCORD.DAT", {}, {"click! Form1.Command27", "run"}};
const Change kOnePassBuild{"OnePassBuild", "concord.dat", {}, {"click! Form1.Command13"}};

// A text of verses with a lamp, one a book, where both builders look for it.
void LayOut(const TemporaryFolder& folder, const std::string& file) {
  const std::string text = "Chapter 1\r\n1   by the river       \r\n2   a lamp in the house       \r\n";
  for (const std::string_view book : reader::kCanon) {
    folder.Write("KJV/" + std::string(book) + ".txt", text);
    folder.Write(std::string(book.substr(0, 8)) + ".txt", text);
  }
  folder.Write("conc.txt", "river\r\nlamp\r\n");
  folder.Write(file, kWords);
}

class StoppedAtEveryOperation : public testing::TestWithParam<std::tuple<Change, Stop>> {};

TEST_P(StoppedAtEveryOperation, LeavesTheWordsInPlaceOrInTheBackup) {
  const auto& [change, stop] = GetParam();
  const TemporaryFolder folder;
  LayOut(folder, change.file);
  ASSERT_TRUE(PlaysToItsEnd(folder.Path(), change.way, change.act, stop, kNever));
  const std::string after = folder.Read(change.file);
  EXPECT_NE(after, kWords);

  int stops = 0;
  for (bool done = false; !done;) {
    ++stops;
    std::filesystem::remove_all(folder.Path() + "/backup");
    std::filesystem::remove(folder.Path() + "/concord1.dat");
    folder.Write(change.file, kWords);
    // The builders go through the whole text: it is enough to stop them in its first books and far inside.
    done = PlaysToItsEnd(folder.Path(), change.way, change.act, stop, stops < 20 ? stops : stops * 7);
    const std::string in_place = folder.Read(change.file);
    const std::string kept = folder.Read(std::string("backup/") + change.file);
    EXPECT_TRUE(in_place.starts_with(kWords) || in_place == after || kept == kWords)
        << "stopped at " << stops << ": " << in_place << " and in the backup " << kept;
  }
  EXPECT_GE(stops, 6);
}

INSTANTIATE_TEST_SUITE_P(Concordance, StoppedAtEveryOperation,
                         testing::Combine(testing::Values(kDeletion, kAdd, kBuild, kOnePassBuild),
                                          testing::Values(Stop::kKilled, Stop::kFullDisk)),
                         [](const auto& test) {
                           return std::string(std::get<0>(test.param).name) +
                                  (std::get<1>(test.param) == Stop::kFullDisk ? "OnAFullDisk" : "Killed");
                         });

TEST(FullDisk, IsToldByAnAddAndByADeletionAndNoWordIsLost) {
  // Room for one record of 66, and for none; the last one does not come into the work file either.
  constexpr rlim_t kRecord = sizeof "\"lamp\",\"Genesis 1 2\"\r\n" - 1;
  const std::string words = kWords;
  for (const rlim_t room : {kRecord, rlim_t{0}}) {
    const TemporaryFolder folder;
    LayOut(folder, "CONCORD.DAT");
    const int status = InChild([&] {
      std::signal(SIGXFSZ, SIG_IGN);
      std::vector<std::string> printed;
      Driver driver(folder.Path(), [&](const std::string& line) { printed.push_back(line); });
      Play(driver, kSearch);
      printed.clear();
      LimitFiles(words.size() + room);
      driver.Execute("click Form1.cmdadd");
      EXPECT_EQ(printed,
                (Steps{"message \"An error (61 ) has occured during proccessing your request. Click "
                       "HELP, for information on possible sources causing the error. \" \"Lectern 2\"",
                       "beep"}));
      EXPECT_EQ(folder.Read("CONCORD.DAT"), words + (room == 0 ? "" : "\"lamp\",\"Genesis 1 2\"\r\n"));

      Play(driver, {"click Form1.cc1", "click Form1.lstc \"LAMP\""});
      printed.clear();
      LimitFiles(10);
      driver.Execute("click Form1.Command21");
      EXPECT_EQ(printed, (Steps{"run-time error 61 \"Disk full\"", "end"}));
    });
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(folder.Read("CONCORD.DAT").starts_with(words));
  }
}

}  // namespace
}  // namespace lectern
