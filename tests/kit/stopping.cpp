#include "tests/kit/stopping.h"

#include <filesystem>
#include <map>
#include <set>

#include "base/errors.h"
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

// Every file that the program does not make for itself alone, by its name in the folder.
using Files = std::map<std::string, std::string>;

bool IsScratch(const std::string& name) {
  return name == "KJV/temp.txt" || name == "NEW/temp.txt" || name == "tmppics2.dat" ||
         name == "lectern-saving.tmp";
}

Files FilesIn(const std::string& folder) {
  Files files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    const std::string name = entry.path().string().substr(folder.size() + 1);
    if (!entry.is_regular_file() || name.starts_with("backup/") || IsScratch(name)) continue;
    files[name] = ReadFile(entry.path());
  }
  return files;
}

std::string In(const Files& files, const std::string& name) {
  const auto found = files.find(name);
  return found == files.end() ? kMissing : found->second;
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
    session.driver.Files().before = [&](files::Operation operation, const std::string& path) {
      if (stop == Stop::kFullOnward && operation != files::Operation::kWrite) return;
      const bool goes_on = stop == Stop::kFullOnward && !failed.empty();
      if (!goes_on && !countdown.IsOver(operation)) return;
      if (stop == Stop::kKill) ::_exit(act * 4 + kStopped);
      if (failed.empty())
        failed = path.starts_with(folder_) ? path.substr(folder_.size() + 1) : "lectern-saving.tmp";
      throw base::RunTimeError(base::ErrorNumber::kDiskFull);
    };
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

struct Versions {
  std::string was, becomes, now;
};

// Whether the file is as it was or as it becomes, or is missing or empty, or on its way by whole lines: where
// it is built piece by piece, or where the program ignored a step that failed.
bool IsWhole(const Versions& file, bool is_built, Stop stop) {
  const auto& [was, becomes, now] = file;
  if (now == was || now == becomes || now == kMissing || now.empty()) return true;
  if (!now.ends_with("\r\n")) return false;
  return stop == Stop::kFullOnce ? is_built || now.starts_with(was) : is_built && becomes.starts_with(now);
}

void ExpectNothingLost(const std::string& folder, const Files& before, const Files& after, const Task& task,
                       Stop stop) {
  const Files present = FilesIn(folder);
  std::set<std::string> names;
  for (const Files* files : {&before, &after}) {
    for (const auto& [name, bytes] : *files) names.insert(name);
  }
  for (const std::string& name : names) {
    const Versions file{In(before, name), In(after, name), In(present, name)};
    const auto& [was, becomes, now] = file;
    EXPECT_TRUE(IsWhole(file, name == task.built, stop)) << name << " is\n" << now << "\nand was\n" << was;
    if (was == kMissing || was.empty() || now.starts_with(was)) continue;
    EXPECT_EQ(ReadFile(folder + "/backup/" + name), was) << name << " is now\n" << now;
  }
}

void ExpectStartsAgain(const std::string& folder) {
  Session session(folder);
  EXPECT_EQ(session.Do("start"), Steps{});
  EXPECT_EQ(session.Do("click Form1.lst \"Exodus\"", "get Form1.lblbk.Caption"),
            Steps{"Form1.lblbk.Caption = \"Exodus\""});
  EXPECT_FALSE(std::filesystem::exists(folder + "/KJV/temp.txt"));
}

// What is in the folder ahead of the first act and after each, where nothing stops them.
std::vector<Files> StatesOf(const Task& task, Stop stop) {
  const Playing playing(task);
  Session session(playing.Folder());
  session.Do(task.way);
  std::vector<Files> states = {FilesIn(playing.Folder())};
  for (const std::string& act : task.acts) {
    session.Do(act);
    states.push_back(FilesIn(playing.Folder()));
    SCOPED_TRACE("after " + act);
    ExpectNothingLost(playing.Folder(), states[states.size() - 2], states.back(), task, stop);
  }
  return states;
}

}  // namespace

void StopEverywhere(const Task& task, Stop stop) {
  const std::vector<Files> states = StatesOf(task, stop);
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
    ExpectNothingLost(playing.Folder(), states[end.act], states[end.act + 1], task, stop);
    EXPECT_TRUE(stop != Stop::kFullOnward || end.reported || task.ignores_failures) << "nothing was reported";
    ExpectStartsAgain(playing.Folder());
    if (testing::Test::HasFailure()) return;
  }
  EXPECT_TRUE(stops > 0 || stop == Stop::kFullOnward);
}

bool KillAt(const std::string& folder, const Steps& steps, int n) {
  constexpr int kKilled = 77;
  return InChild([&] {
           Session session(folder);
           session.Do("start");
           Countdown countdown(n);
           session.driver.Files().before = [&](files::Operation operation, const std::string&) {
             if (countdown.IsOver(operation)) ::_exit(kKilled);
           };
           session.Do(steps);
           return 0;
         }) == kKilled;
}

}  // namespace lectern
