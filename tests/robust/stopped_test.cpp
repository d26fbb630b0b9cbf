// The whole program, stopped at each of its file operations: what a person had made is in place, as it was
// or as it became, or as it was under `backup`, or as it became in the work file that was to take its place.
// And the program starts again in that folder.
#include <filesystem>
#include <gtest/gtest.h>
#include <map>

#include "tests/kit/small_world.h"
#include "tests/kit/stopping.h"
#include "tests/kit/test_window.h"
#include "ui/headless/driver.h"

namespace lectern {
namespace {

using headless::Driver;

struct Story {
  const char* name;
  Steps way;  // to where the person's file is about to be written
  Steps acts;
  bool silent = false;  // what fails is passed over without a word, as it is told
};

// As gtest shows it.
std::ostream& operator<<(std::ostream& stream, const Story& story) { return stream << story.name; }

const Steps kSearch = {"click Form1.cc3", "type Form1.txts \"river\"", "click Form1.op1",
                       "click Form1.Command22", "run"};
const Steps kPaint = {"click Form1.imgp(1)", "click Form1.Command32", "click Form4.picpbs(2)",
                      "mousedown Form4.picbox 1 0 2 2", "mousedown Form4.clrboxs(3) 2 0 1 1"};

const std::vector<Story>& Stories() {
  static const std::vector<Story> kStories = {
      {"Reading",
       {"start"},
       {"click Form1.lst \"Exodus\"", "scroll Form1.scr 2", "click Form1.optn", "click Form1.aaa3"},
       true},
      {"Bookmarks",
       {"click Form1.xb"},
       {"answer \"second\"", "click Form1.Command10", "click Form1.lst \"Exodus\"",
        "click Form1.File1 \"first.bkm\"", "click Form1.Command6", "answer \"first\"",
        "click Form1.Command10", "click Form1.File1 \"second.bkm\"", "click Form1.Command11"},
       true},  // Update passes its failures over
      {"Notes",
       {"click Form1.cc0", "click Form3.File1 \"first.not\""},
       {"type Form3.txthelp \"new text\"", "click Form3.f3", "answer \"second\"", "click Form3.Command2",
        "type Form3.txthelp \"more\"", "answer yes", "click Form3.f8", "click Form1.cc0", "answer \"first\"",
        "click Form3.Command2", "answer yes", "click Form3.f4"}},
      {"PrintPage", {"click Form1.xb"}, {"click Form1.Command30"}, true},
      {"ConcordanceAdd", kSearch, {"click Form1.cmdadd", "click Form1.cmdadd"}},
      {"ConcordanceDelete",
       {"click Form1.cc1", "click Form1.lstc \"RIVER\""},
       {"click Form1.Command21", "click Form1.lstc \"ZION\"", "click Form1.Command21"}},
      {"ConcordanceBuild", {"start"}, {"click! Form1.Command27", "run 2000"}, true},
      {"ConcordanceCut", {"start"}, {"click! Form1.Command18"}},
      {"OnePass", {"start"}, {"click! Form1.Command13"}, true},  // ends at the first book that is missing
      {"Settings",
       {"click Form1.oo11", "choose Form1.Combo2 \"18\""},
       {"click Form1.Command36", "choose Form1.Combo3 \"Italic\"", "click Form1.Command36"}},
      {"ExitByButton", {"choose Form1.Combo2 \"18\""}, {"click Form1.Command1"}, true},
      {"ExitByMenu", {"start"}, {"click Form1.xx"}, true},
      {"CatalogueAdd",
       {"type! Form1.selfile(0) \"hill\"", "type! Form1.selfile(1) \"Genesis 1: 3\""},
       {"click! Form1.Command49"}},
      {"CatalogueMove", {"click Form1.imgp(1)"}, {"click! Form1.SSCommand1", "click! Form1.SSCommand2"}},
      {"CatalogueRemove",
       {"click Form1.imgp(1)"},
       {"click! Form1.Command45", "click! Form1.Command40", "click! Form1.Command47"}},
      {"CatalogueConvert", {"start"}, {"call ConvertPicsDat"}},
      {"ChapterCounts", {"start"}, {"click! Form1.Command12"}},
      {"BookConverter",
       {"type! Form1.RTB1 \"Codex, King James Version\\r\\n\\r\\nJoel\\r\\n[1]The word that came\\r\\n\""},
       {"click! Form1.Command33"}},
      {"PaintSave",
       kPaint,
       {"answer \"tent\"", "answer yes", "click Form4.Command2", "answer \"fresh\"", "click Form4.Command2"}},
      {"Palette",
       kPaint,
       {"click Form4.Command3", "mousedown Form4.clrboxs(5) 2 0 1 1", "click Form4.Command3"}},
  };
  return kStories;
}

// What a person or a keeper made, or may make, with the work file that is to take its place.
const std::map<std::string, std::string> kMade = {
    {"first.bkm", ""},
    {"second.bkm", ""},
    {"first.not", ""},
    {"second.not", ""},
    {"codex.cfg", ""},
    {"colors.dat", ""},
    {"pics/tent.jpg", ""},
    {"pics/fresh.JPG", ""},
    {"picsremoved.dat", ""},
    {"bookschap.txt", ""},
    {"BKMK.DAT", ""},
    {"conc.txt", ""},
    {"CONCORD2.DAT", ""},
    {"CONCORD.DAT", "concord1.dat"},
    {"pics2.dat", "pics22.dat"},
};
constexpr const char* kMissing = "(missing)";

using Made = std::map<std::string, std::string>;

Made AsItStands(const std::string& folder, const TemporaryFolder& around) {
  Made made;
  for (const auto& [name, work_file] : kMade) {
    made[name] = around.Read(folder.substr(around.Path().size() + 1) + "/" + name);
  }
  return made;
}

// A story in a folder of its own.
class Telling {
 public:
  explicit Telling(const Story& story) : story_(story) { LaySmallWorld(folder_); }

  struct End {
    std::size_t act = 0;  // that was not played to its end, or the number of acts
    bool stopped = false;
    bool told = false;
  };

  // Plays the story until something stops it: the program, in a process of its own, is killed ahead of its
  // n-th file operation, or the disk is full from its n-th write on.
  End Play(Stop stop, int n) {
    const int status = stop == Stop::kKilled ? InChild([&] { return PlayHere(stop, n); }) : PlayHere(stop, n);
    EXPECT_GE(status, 0) << "the program crashed";
    return {static_cast<std::size_t>(status) / 4, status % 4 != 0, status % 4 == 2};
  }

  // What stood there after each act, from before the first on, where nothing stops it.
  std::vector<Made> PlayWhole() {
    std::vector<Made> after;
    Driver driver(folder_, [](const std::string&) {});
    for (const std::string& step : story_.way) driver.Execute(step);
    after.push_back(AsItStands(folder_, around_));
    for (const std::string& act : story_.acts) {
      driver.Execute(act);
      after.push_back(AsItStands(folder_, around_));
    }
    return after;
  }

  std::string Read(const std::string& name) const { return around_.Read("data/" + name); }

  void ExpectStartsAgain() {
    Steps printed;
    Driver driver(folder_, [&](const std::string& line) { printed.push_back(line); });
    driver.Execute("start");
    EXPECT_EQ(printed, Steps{});
    driver.Execute("click Form1.lst \"Exodus\"");
    driver.Execute("get Form1.lblbk.Caption");
    EXPECT_EQ(printed, Steps{"Form1.lblbk.Caption = \"Exodus\""});
    EXPECT_FALSE(std::filesystem::exists(folder_ + "/KJV/temp.txt"));
  }

 private:
  // 4 times the act, and 1 where it was stopped there, 2 where that was told or concerns scratch alone.
  int PlayHere(Stop stop, int n) {
    std::size_t act = 0;
    std::string full_at;
    bool told = false;
    Driver driver(folder_, [&](const std::string& line) {
      told =
          told || line == "run-time error 61 \"Disk full\"" || line.starts_with("message \"An error (61 )");
    });
    for (const std::string& step : story_.way) driver.Execute(step);
    if (stop == Stop::kKilled) KillAheadOf(driver.Files(), n, [&] { return static_cast<int>(act) * 4 + 1; });
    if (stop == Stop::kFullDisk) FillDiskAheadOf(driver.Files(), n, full_at);
    for (; act < story_.acts.size() && full_at.empty(); ++act) driver.Execute(story_.acts[act]);
    if (full_at.empty()) return static_cast<int>(act) * 4;
    return static_cast<int>(act - 1) * 4 + (told || IsScratch(full_at) ? 2 : 1);
  }

  // What the program makes for itself and throws away, or makes anew whenever it wants it: a chapter on its
  // way to the pane, the pictures of the book, the copy of a snapshot.
  bool IsScratch(const std::string& path) const {
    const std::string name = path.substr(path.rfind('/') + 1);
    return name == "temp.txt" || name == "tmppics2.dat" || path == folder_ + "/lectern-saving.tmp" ||
           path == around_.Path() + "/lectern-saving.tmp";
  }

  const Story& story_;
  const TemporaryFolder around_;  // a brush leaves a file beside the data folder
  const std::string folder_ = around_.Path() + "/data";
};

// Whether `text` is on its way from one state to the other by writing behind its end.
bool IsGrowing(const std::string& before, const std::string& text, const std::string& after) {
  const std::string start = before == kMissing ? "" : before;
  return text != kMissing && after != kMissing && text.starts_with(start) && after.starts_with(text);
}

// Where a person finds what they had when the act began, or what it was to become.
void ExpectNothingLost(const Telling& telling, const Made& before, const Made& after, bool work_file_counts) {
  for (const auto& [name, work_file] : kMade) {
    const std::string& was = before.at(name);
    const std::string& becomes = after.at(name);
    const std::string now = telling.Read(name);
    if (now == was || now == becomes || IsGrowing(was, now, becomes)) continue;
    if (telling.Read("backup/" + name) == was) continue;
    if (work_file_counts && !work_file.empty() && telling.Read(work_file) == becomes) continue;
    ADD_FAILURE() << name << " was\n"
                  << was << "and is\n"
                  << now << "and in the backup\n"
                  << telling.Read("backup/" + name);
  }
}

class Stopped : public testing::TestWithParam<std::tuple<Story, Stop>> {};

TEST_P(Stopped, LosesNothingAndStartsAgain) {
  const auto& [story, stop] = GetParam();
  const std::vector<Made> states = Telling(story).PlayWhole();
  int stops = 0;
  for (bool stopped = true; stopped; ++stops) {
    Telling telling(story);
    const Telling::End end = telling.Play(stop, stops + 1);
    stopped = end.stopped;
    if (!stopped) {
      EXPECT_EQ(end.act, story.acts.size());
      break;
    }
    SCOPED_TRACE("stopped at " + std::to_string(stops + 1) + ", in " + story.acts[end.act]);
    ExpectNothingLost(telling, states[end.act], states[end.act + 1], stop == Stop::kKilled);
    EXPECT_TRUE(stop == Stop::kKilled || story.silent || end.told);
    telling.ExpectStartsAgain();
  }
  EXPECT_TRUE(stops >= 1 || stop == Stop::kFullDisk);
}

INSTANTIATE_TEST_SUITE_P(Everywhere, Stopped,
                         testing::Combine(testing::ValuesIn(Stories()),
                                          testing::Values(Stop::kKilled, Stop::kFullDisk)),
                         [](const auto& test) {
                           const bool killed = std::get<1>(test.param) == Stop::kKilled;
                           return std::string(std::get<0>(test.param).name) +
                                  (killed ? "Killed" : "FullDisk");
                         });

// Whether one of the versions that are kept is the one that was.
bool IsKept(const TemporaryFolder& folder, const std::string& name, const std::string& was) {
  for (std::string place : {"backup/", "backup/backup/", "backup/backup/backup/"}) {
    if (folder.Read(place + name) == was) return true;
  }
  return false;
}

TEST(Backup, OutlivesABuildThatIsStoppedAgainAndAgain) {
  const TemporaryFolder folder;
  LaySmallWorld(folder.Path());
  std::string words = folder.Read("CONCORD.DAT");
  for (int i = 0; i < 5; ++i) words += words;
  folder.Write("CONCORD.DAT", words);
  const Steps build = {"click! Form1.Command27", "run"};
  for (const int stop : {8, 12, 6, 10, 7, 9}) {
    EXPECT_FALSE(PlaysToItsEnd(folder.Path(), {"start"}, build, Stop::kKilled, stop));
    EXPECT_NE(folder.Read("CONCORD.DAT"), kMissing) << stop;
    EXPECT_NE(folder.Read("CONCORD.DAT"), words);
    EXPECT_TRUE(IsKept(folder, "CONCORD.DAT", words)) << "stopped at " << stop;
  }
}

// The program comes up with its own settings then, and writes them at each exit.
TEST(Backup, OutlivesSettingsThatFellBack) {
  const TemporaryFolder folder;
  LaySmallWorld(folder.Path());
  const std::string settings = folder.Read("codex.cfg");
  const Steps leave = {"click Form1.Command1"};
  EXPECT_FALSE(PlaysToItsEnd(folder.Path(), {"start"}, leave, Stop::kKilled, 2));
  EXPECT_EQ(folder.Read("codex.cfg"), kMissing);
  for (int exit = 0; exit < 6; ++exit) {
    PlaysToItsEnd(folder.Path(), {"start"}, leave, Stop::kKilled, kNever);
    EXPECT_NE(folder.Read("codex.cfg"), settings);
    EXPECT_TRUE(IsKept(folder, "codex.cfg", settings)) << exit;
  }
}

}  // namespace
}  // namespace lectern
