// A reader of many hours: actions by chance on a copy of a real data folder, and the memory of the program at
// each tenth of them: what it holds between two sessions, which may not grow by a megabyte from the first
// tenth on, and the most that the system gave it, which may never be more than a gigabyte. That much goes by
// the largest picture that was painted on, and so may turn up at any time.
//
// usage: soak DATA_FOLDER [ACTIONS [SEED]]
//
// A session ends with the program or after 5,000 actions; the next begins in the same process, in a fresh
// copy of what a person makes. Each session opens the dictionary once at most: its list grows with each
// opening, which is meant.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <malloc.h>
#include <memory>
#include <unistd.h>
#include <utility>

#include "tests/kit/test_window.h"
#include "tests/robust/house_rules.h"
#include "tests/robust/wandering_person.h"

namespace {

namespace fs = std::filesystem;
using lectern::HouseRules;
using lectern::WanderingPerson;
using lectern::headless::Driver;

constexpr double kMegabyte = 1024.0 * 1024.0;

// What the program asked for and has not given back.
double MegabytesInUse() {
  const auto memory = mallinfo2();
  return static_cast<double>(memory.uordblks + memory.hblkhd) / kMegabyte;
}

// What the system gave it.
double MegabytesResident() {
  long pages = 0;
  std::ifstream("/proc/self/statm") >> pages >> pages;
  return static_cast<double>(pages * ::sysconf(_SC_PAGESIZE)) / kMegabyte;
}

class Soak {
 public:
  Soak(fs::path data, unsigned seed) : data_(std::move(data)), person_(seed, lectern::Reach::kReader) {
    fs::copy(data_, folder_, fs::copy_options::recursive);
  }

  bool Go(int actions) {
    std::cout << "  actions   sessions   held between (MB)   most resident (MB)\n";
    const int step = std::max(actions / 10, 1);
    for (int action = 1; action <= actions; ++action) {
      if (!Act()) return false;
      constexpr int kLook = 50;
      if (action % kLook == 0) most_resident_ = std::max(most_resident_, MegabytesResident());
      if (action % step == 0) Measure(action);
    }
    return IsFlat();
  }

 private:
  void Begin() {
    driver_.reset();
    // What a person makes, as it was; the texts are never written.
    for (const auto& entry : fs::directory_iterator(folder_)) {
      if (!entry.is_directory()) fs::remove(entry.path());
    }
    fs::remove_all(folder_ / "backup");
    fs::remove_all(folder_ / "pics");
    fs::copy(data_, folder_);
    fs::copy(data_ / "pics", folder_ / "pics");
    ++sessions_;
    session_ = 0;
    person_.avoids.clear();
    driver_ = std::make_unique<Driver>(folder_.string(),
                                       [this](const std::string& line) { printed_.push_back(line); });
    rules_ = std::make_unique<HouseRules>(*driver_, folder_.string(), lectern::Failures::kAnywhere);
    driver_->Execute("date 2026-11-16");
    driver_->Execute("start");
  }

  bool Act() {
    constexpr int kLongestSession = 5000;
    if (!driver_ || driver_->Program().HasEnded() || session_ >= kLongestSession) Begin();
    ++session_;
    for (const std::string& command : person_.Next(*driver_, folder_.string())) {
      if (command == "click Form1.Command17" || command == "click Form1.cc2") {
        person_.avoids = {"Form1.Command17", "Form1.cc2"};
      }
      printed_.clear();
      driver_->Execute(command);
      if (const std::string broken = rules_->Broken(command, printed_); !broken.empty()) {
        std::cout << command << ": " << broken << "\n";
        return false;
      }
    }
    return true;
  }

  void Measure(int action) {
    driver_.reset();
    held_.push_back(MegabytesInUse());
    resident_.push_back(std::exchange(most_resident_, 0));
    std::printf("%9d %10d %19.1f %20.1f\n", action, sessions_, held_.back(), resident_.back());
    std::fflush(stdout);
  }

  bool IsFlat() const {
    constexpr double kGrowth = 1;      // megabytes
    constexpr double kCeiling = 1024;  // megabytes
    const bool grew = held_.back() > held_.front() + kGrowth;
    const bool passed = *std::max_element(resident_.begin(), resident_.end()) > kCeiling;
    std::cout << (grew ? "it grew\n" : passed ? "it took too much\n" : "flat\n");
    return !grew && !passed;
  }

  const lectern::TemporaryFolder around_;
  const fs::path data_;
  const fs::path folder_ = around_.Path() + "/data";
  WanderingPerson person_;
  int sessions_ = 0;
  int session_ = 0;
  std::vector<std::string> printed_;
  double most_resident_ = 0;
  std::vector<double> held_, resident_;
  std::unique_ptr<Driver> driver_;
  std::unique_ptr<HouseRules> rules_;
};

}  // namespace

int main(int count, char** arguments) {
  if (count < 2) {
    std::cerr << "usage: soak DATA_FOLDER [ACTIONS [SEED]]\n";
    return 2;
  }
  const int actions = count > 2 ? std::atoi(arguments[2]) : 100000;
  return Soak(arguments[1], static_cast<unsigned>(count > 3 ? std::atoi(arguments[3]) : 1)).Go(actions) ? 0
                                                                                                        : 1;
}
