#include "tests/kit/stopping.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>

#include "base/errors.h"
#include "tests/kit/power_cut.h"
#include "tests/kit/small_world.h"
#include "tests/kit/temporary_folder.h"

namespace lectern {

void LimitFiles(rlim_t bytes) {
  rlimit limit{};
  ::getrlimit(RLIMIT_FSIZE, &limit);
  limit.rlim_cur = bytes;
  ::setrlimit(RLIMIT_FSIZE, &limit);
}

namespace {

constexpr const char* kMissing = "(missing)";

bool IsScratch(const std::string& name) {
  return name == "KJV/temp.txt" || name == "NEW/temp.txt" || name == "tmppics2.dat" || name == "TEST.jpg" ||
         name.find("lectern-saving-") != std::string::npos;
}

// A folder with its versions of files under `backup` by the files' own names.
struct Files {
  FileTree present;
  std::map<std::string, std::set<std::string>> versions;  // those in the files' places too

  std::string In(const std::string& name) const {
    const auto found = present.find(name);
    return found == present.end() ? kMissing : found->second;
  }
  std::set<std::string> VersionsOf(const std::string& name) const {
    const auto found = versions.find(name);
    return found == versions.end() ? std::set<std::string>{} : found->second;
  }
};

Files FilesIn(const std::string& folder) {
  Files files;
  for (auto& [path, bytes] : TreeOf(folder)) {
    std::string_view name = path;
    for (const std::string_view around : {"backup/", "backup/", "backup/", "lectern-half-written/"}) {
      if (name.starts_with(around)) name.remove_prefix(around.size());
    }
    if (IsScratch(std::string(name))) continue;
    if (!bytes.empty()) files.versions[std::string(name)].insert(bytes);
    if (name == path) files.present[path] = bytes;
  }
  return files;
}

bool IsFullDiskReport(const std::string& line) {
  return line == "run-time error 61 \"Disk full\"" || line.starts_with("message \"An error (61 )");
}

// Whether it is the n-th operation, counted from 1. Reads in a row count as one: ahead of each the disk is
// the same.
class Countdown {
 public:
  explicit Countdown(int n) : left_(n) {}
  bool IsOver(files::Operation operation) {
    const bool reads_again = std::exchange(reads_, operation == files::Operation::kRead) && reads_;
    return !reads_again && --left_ == 0;
  }

 private:
  int left_;
  bool reads_ = false;
};

// One playing of a task, in a folder of its own.
class Playing {
 public:
  explicit Playing(const Task& task) : task_(task) {
    LaySmallWorld(folder_);
    if (task.all_books) LayBooksToBuildFrom(folder_);
  }

  const std::string& Folder() const { return folder_; }

  struct End {
    std::size_t act = 0;  // the one that was stopped, or the number of acts
    bool stopped = false;
    bool reported = false;  // or a matter of scratch files
  };

  End PlayUntil(Stop stop, int n) {
    const int status = stop == Stop::kKill ? InChild([&] { return PlayHere(stop, n); }) : PlayHere(stop, n);
    EXPECT_GE(status, 0) << "the program crashed";
    return {static_cast<std::size_t>(status) / 4, status % 4 != 0, status % 4 == kReported};
  }

 private:
  static constexpr int kStopped = 1;
  static constexpr int kReported = 2;

  // Four times the act, and how it ended.
  int PlayHere(Stop stop, int n) {
    int act = 0;
    std::string failed;
    Session session(folder_);
    session.Do(task_.way);
    Countdown countdown(n);
    files::Disk& disk = session.driver.Files().disk;
    if (stop == Stop::kKill) {
      disk.changed = [&](const auto&) {
        if (--n == 0) ::_exit(act * 4 + kStopped);
      };
    } else {
      disk.before = [&](files::Operation operation, const std::string& path) {
        if (stop == Stop::kFullOnward && operation != files::Operation::kWrite) return;
        const bool goes_on = stop == Stop::kFullOnward && !failed.empty();
        if (!goes_on && !countdown.IsOver(operation)) return;
        if (failed.empty())
          failed = path.starts_with(folder_ + "/") ? path.substr(folder_.size() + 1) : "lectern-saving-";
        throw base::RunTimeError(base::ErrorNumber::kDiskFull);
      };
    }
    const auto acts = static_cast<int>(task_.acts.size());
    for (; act < acts; ++act) {
      const Steps printed = session.Do(task_.acts[static_cast<std::size_t>(act)]);
      if (failed.empty()) continue;
      const bool reported = std::any_of(printed.begin(), printed.end(), IsFullDiskReport);
      return act * 4 + (reported || IsScratch(failed) ? kReported : kStopped);
    }
    return act * 4;
  }

  const Task& task_;
  const TemporaryFolder around_;  // a brush leaves a file beside the data folder
  const std::string folder_ = around_.Path() + "/data";
};

// Whether the file is as it was or as it becomes, or has grown towards that. A program that ignored a step
// that failed may have gone on with the next one, or have had less to write.
bool IsWhole(const std::string& was, const std::string& becomes, const std::string& now, Stop stop) {
  if (now == was || now == becomes) return true;
  if (stop == Stop::kFullOnce) return now == kMissing || now.empty() || now.ends_with("\r\n");
  const bool has_grown = was == kMissing || now.starts_with(was);
  return has_grown && now != kMissing && becomes.starts_with(now);
}

void ExpectNothingLost(const Files& before, const Files& after, const Files& present, Stop stop) {
  std::set<std::string> names;
  for (const Files* files : {&before, &after}) {
    for (const auto& [name, bytes] : files->present) names.insert(name);
  }
  for (const std::string& name : names) {
    const std::string was = before.In(name);
    const std::string now = present.In(name);
    EXPECT_TRUE(IsWhole(was, after.In(name), now, stop)) << name << " is\n" << now << "\nand was\n" << was;
    std::set<std::string> whole = before.VersionsOf(name);
    const std::set<std::string> new_ones = after.VersionsOf(name);
    const std::size_t wanted = std::min(whole.size(), new_ones.size());
    whole.insert(new_ones.begin(), new_ones.end());
    const std::set<std::string> there = present.VersionsOf(name);
    const auto has = [&](const std::string& version) {
      return std::any_of(there.begin(), there.end(),
                         [&](const std::string& other) { return other.starts_with(version); });
    };
    EXPECT_TRUE(was == kMissing || was.empty() || has(was)) << name << " was\n" << was;
    EXPECT_GE(static_cast<std::size_t>(std::count_if(whole.begin(), whole.end(), has)), wanted) << name;
  }
}

void ExpectStartsAgain(const std::string& folder) {
  Session session(folder);
  EXPECT_EQ(session.Do("start"), Steps{});
  EXPECT_EQ(session.Do("click Form1.lst \"Exodus\"", "get Form1.lblbk.Caption"),
            Steps{"Form1.lblbk.Caption = \"Exodus\""});
  EXPECT_FALSE(std::filesystem::exists(folder + "/KJV/temp.txt"));
}

// What is in a folder after the next start.
Files FilesAfterStart(const FileTree& tree) {
  const TemporaryFolder folder;
  LayTree(folder.Path(), tree);
  ExpectStartsAgain(folder.Path());
  return FilesIn(folder.Path());
}

// What is in the folder ahead of the first act and after each, where nothing stops them.
std::vector<Files> StatesOf(const Task& task) {
  const Playing playing(task);
  Session session(playing.Folder());
  session.Do(task.way);
  std::vector<Files> states = {FilesAfterStart(TreeOf(playing.Folder()))};
  for (const std::string& act : task.acts) {
    session.Do(act);
    states.push_back(FilesAfterStart(TreeOf(playing.Folder())));
  }
  return states;
}

// Follows one playing of the task, and cuts it off behind every change.
int CutEverywhere(const Task& task, const std::vector<Files>& states) {
  const Playing playing(task);
  Session session(playing.Folder());
  session.Do(task.way);
  LateDisk disk(playing.Folder());
  std::set<FileTree> seen;  // in this act
  std::size_t act = 0;
  int cuts = 0;
  const auto cut = [&](const FileTree& left) {
    if (testing::Test::HasFailure() || !seen.insert(left).second) return;
    ++cuts;
    ExpectNothingLost(states[act], states[act + 1], FilesAfterStart(left), Stop::kPowerCut);
  };
  session.driver.Files().disk.changed = [&](const files::Disk::Change& change) {
    disk.Take(change);
    SCOPED_TRACE("cut off behind " + change.path + " " + change.other.substr(0, 200));
    disk.ForEachRemainder(cut);
  };
  for (; act < task.acts.size(); ++act) {
    SCOPED_TRACE("in " + task.acts[act]);
    seen.clear();
    session.Do(task.acts[act]);
  }
  // What the last act has reported is there.
  act = task.acts.size() - 1;
  disk.ForEachRemainder([&](const FileTree& left) {
    ExpectNothingLost(states[act + 1], states[act + 1], FilesAfterStart(left), Stop::kPowerCut);
  });
  return cuts;
}

}  // namespace

int StopEverywhere(const Task& task, Stop stop) {
  const std::vector<Files> states = StatesOf(task);
  if (stop == Stop::kPowerCut) return CutEverywhere(task, states);
  int stops = 0;
  // The builders go through all books: it is enough to stop them in the first ones and now and then.
  for (int n = 1;; n += 1 + n / 30, ++stops) {
    Playing playing(task);
    const Playing::End end = playing.PlayUntil(stop, n);
    if (!end.stopped && !end.reported) {
      EXPECT_EQ(end.act, task.acts.size());
      break;
    }
    SCOPED_TRACE("stopped at " + std::to_string(n) + ", in " + task.acts[end.act]);
    ExpectStartsAgain(playing.Folder());
    ExpectNothingLost(states[end.act], states[end.act + 1], FilesIn(playing.Folder()), stop);
    EXPECT_TRUE(stop != Stop::kFullOnward || end.reported || task.ignores_failures) << "nothing was reported";
    if (testing::Test::HasFailure()) break;
  }
  EXPECT_TRUE(stops > 0 || stop == Stop::kFullOnward);
  return stops;
}

bool KillAt(const std::string& folder, const Steps& steps, int n) {
  constexpr int kKilled = 77;
  return InChild([&] {
           Session session(folder);
           session.Do("start");
           session.driver.Files().disk.changed = [&](const auto&) {
             if (--n == 0) ::_exit(kKilled);
           };
           session.Do(steps);
           return 0;
         }) == kKilled;
}

}  // namespace lectern
