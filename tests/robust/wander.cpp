// Uses the program at random and checks the invariants after every command. A broken one is printed with the
// commands of the session that led to it, and the same seed does the same again.
//
// usage: wander ACTIONS SEED reader|keeper [watch]
//        wander ACTIONS SEED soak DATA
//
// `watch` prints every command as it is given and what it prints: after a crash, the last one did it. `soak`
// is a reader of many hours on a copy of a real data folder. It prints at each tenth how much memory the
// program holds between two sessions, which may not grow by a megabyte after the first tenth, and the most
// that the system gave it, which may never be more than a gigabyte.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <malloc.h>
#include <memory>
#include <unistd.h>

#include "tests/kit/small_world.h"
#include "tests/kit/temporary_folder.h"
#include "tests/robust/invariants.h"
#include "tests/robust/random_person.h"

namespace lectern {
namespace {

namespace fs = std::filesystem;

constexpr double kMegabyte = 1024.0 * 1024.0;

double MegabytesInUse() {
  const auto memory = mallinfo2();
  return static_cast<double>(memory.uordblks + memory.hblkhd) / kMegabyte;
}

double MegabytesResident() {
  long pages = 0;
  std::ifstream("/proc/self/statm") >> pages >> pages;
  return static_cast<double>(pages * ::sysconf(_SC_PAGESIZE)) / kMegabyte;
}

struct Options {
  int actions = 2000;
  unsigned seed = 1;
  Reach reach = Reach::kReader;
  bool watch = false;
  std::string soak_data;  // empty where the small world is used
};

// One session after the other, each in a fresh folder, until the program or the session ends.
class Walk {
 public:
  explicit Walk(const Options& options) : options_(options), person_(options.seed, options.reach) {
    if (IsSoak()) fs::copy(options_.soak_data, folder_, fs::copy_options::recursive);
  }

  bool Go() {
    const int step = std::max(options_.actions / 10, 1);
    const int longest_session = IsSoak() ? 5000 : 400;
    if (IsSoak()) std::cout << "  actions   sessions   held between (MB)   most resident (MB)\n";
    for (int action = 1; action <= options_.actions; ++action) {
      const bool over = !session_ || session_->driver.Program().HasEnded() || in_session_ >= longest_session;
      if (over && !Begin()) return false;
      ++in_session_;
      for (const std::string& command : person_.Next(session_->driver, folder_)) {
        if (!Do(command)) return false;
      }
      constexpr int kLook = 50;
      if (IsSoak() && action % kLook == 0) most_resident_ = std::max(most_resident_, MegabytesResident());
      if (IsSoak() && action % step == 0 && !Measure(action)) return false;
    }
    return true;
  }

 private:
  bool IsSoak() const { return !options_.soak_data.empty(); }

  bool Begin() {
    session_.reset();
    ++sessions_;
    in_session_ = 0;
    done_.clear();
    if (IsSoak()) {
      CopyWhatAPersonMakes();
    } else {
      LaySmallWorld(folder_);
      if (sessions_ % 2 == 0) LayBooksToBuildFrom(folder_);
    }
    person_.avoids.clear();
    session_ = std::make_unique<Session>(folder_);
    const bool known_only = options_.reach == Reach::kReader && !IsSoak();
    invariants_ = std::make_unique<Invariants>(*session_, folder_,
                                               known_only ? Failures::kKnownOnly : Failures::kAnywhere);
    return Do("date 2026-11-16") && Do("start");
  }

  // The texts are never written.
  void CopyWhatAPersonMakes() {
    for (const auto& entry : fs::directory_iterator(folder_)) {
      if (!entry.is_directory()) fs::remove(entry.path());
    }
    fs::remove_all(folder_ + "/backup");
    fs::remove_all(folder_ + "/pics");
    fs::copy(options_.soak_data, folder_);
    fs::copy(options_.soak_data + "/pics", folder_ + "/pics");
  }

  bool Do(const std::string& command) {
    // The dictionary's list grows with each opening, so a session of the soak opens it once.
    if (IsSoak() && (command == "click Form1.Command17" || command == "click Form1.cc2")) {
      person_.avoids = {"Form1.Command17", "Form1.cc2"};
    }
    if (options_.watch) std::cout << command << std::endl;
    done_.push_back(command);
    const Steps printed = session_->Do(command);
    if (options_.watch) Print(printed);
    const std::string broken = invariants_->Broken(command, printed);
    if (broken.empty()) return true;
    for (const std::string& line : done_) std::cout << line << "\n";
    Print(printed);
    std::cout << "Broken: " << broken << "\nseed " << options_.seed << "\n";
    return false;
  }

  static void Print(const Steps& printed) {
    for (const std::string& line : printed) std::cout << "| " << line << std::endl;
  }

  bool Measure(int action) {
    session_.reset();
    const double held = MegabytesInUse();
    if (held_first_ == 0) held_first_ = held;
    std::printf("%9d %10d %19.1f %20.1f\n", action, sessions_, held, most_resident_);
    constexpr double kGrowth = 1;
    constexpr double kCeiling = 1024;
    if (held > held_first_ + kGrowth) std::cout << "The memory grew.\n";
    if (most_resident_ > kCeiling) std::cout << "The program took too much memory.\n";
    return held <= held_first_ + kGrowth && std::exchange(most_resident_, 0) <= kCeiling;
  }

  const Options& options_;
  const TemporaryFolder around_;  // a brush leaves a file beside the data folder
  const std::string folder_ = around_.Path() + "/data";
  RandomPerson person_;
  int sessions_ = 0;
  int in_session_ = 0;  // actions
  Steps done_;
  double held_first_ = 0;
  double most_resident_ = 0;
  std::unique_ptr<Session> session_;
  std::unique_ptr<Invariants> invariants_;
};

}  // namespace
}  // namespace lectern

int main(int count, char** arguments) {
  lectern::Options options;
  if (count > 1) options.actions = std::atoi(arguments[1]);
  if (count > 2) options.seed = static_cast<unsigned>(std::atoi(arguments[2]));
  const std::string mode = count > 3 ? arguments[3] : "reader";
  if (mode == "keeper") options.reach = lectern::Reach::kKeeper;
  if (mode == "soak" && count > 4) options.soak_data = arguments[4];
  options.watch = mode != "soak" && count > 4;
  if (!lectern::Walk(options).Go()) return 1;
  std::cout << options.actions << " actions\n";
  return 0;
}
