// Does this and that with the program by chance, and holds the house rules against it after every command.
// What breaks one is printed with the commands that led to it. The seed says what is done; a run of many
// seeds looks far.
//
// usage: wander [ACTIONS [SEED [reader|keeper [watch]]]]
//
// `watch` prints every command as it is given and what it prints: after a crash, the last one did it.
#include <cstdlib>
#include <deque>
#include <iostream>
#include <memory>

#include "tests/kit/small_world.h"
#include "tests/kit/test_window.h"
#include "tests/robust/house_rules.h"
#include "tests/robust/wandering_person.h"

namespace {

using lectern::Failures;
using lectern::HouseRules;
using lectern::Reach;
using lectern::WanderingPerson;
using lectern::headless::Driver;

// One session after the other, in a fresh folder each, as a session ends with the program or after so many
// actions.
class Walk {
 public:
  Walk(unsigned seed, Reach reach, bool watched)
      : person_(seed, reach),
        failures_(reach == Reach::kReader ? Failures::kFewAreTold : Failures::kAnywhere),
        watched_(watched) {}

  bool Go(int actions) {
    for (int action = 0; action < actions; ++action) {
      constexpr int kLongestSession = 400;
      if (!driver_ || driver_->Program().HasEnded() || session_ >= kLongestSession) {
        if (!Begin()) return false;
      }
      ++session_;
      for (const std::string& command : person_.Next(*driver_, folder_)) {
        if (!Do(command)) return false;
      }
    }
    return true;
  }

 private:
  bool Begin() {
    driver_.reset();
    lectern::LaySmallWorld(folder_);
    if (++sessions_ % 2 == 0) lectern::LayBooksToBuildFrom(folder_);
    session_ = 0;
    done_.clear();
    driver_ = std::make_unique<Driver>(folder_, [this](const std::string& line) {
      if (watched_) std::cout << "| " << line << std::endl;
      printed_.push_back(line);
    });
    rules_ = std::make_unique<HouseRules>(*driver_, folder_, failures_);
    return Do("date 2026-11-16") && Do("start");
  }

  bool Do(const std::string& command) {
    if (watched_) std::cout << command << std::endl;
    done_.push_back(command);
    printed_.clear();
    driver_->Execute(command);
    const std::string broken = rules_->Broken(command, printed_);
    if (broken.empty()) return true;
    for (const std::string& line : done_) std::cout << line << "\n";
    for (const std::string& line : printed_) std::cout << "| " << line << "\n";
    std::cout << "Broken: " << broken << "\n";
    return false;
  }

  const lectern::TemporaryFolder around_;  // a brush leaves a file beside the data folder
  const std::string folder_ = around_.Path() + "/data";
  WanderingPerson person_;
  Failures failures_;
  bool watched_;
  int sessions_ = 0;
  int session_ = 0;  // actions of this one
  std::deque<std::string> done_;
  std::vector<std::string> printed_;
  std::unique_ptr<Driver> driver_;
  std::unique_ptr<HouseRules> rules_;
};

}  // namespace

int main(int count, char** arguments) {
  const int actions = count > 1 ? std::atoi(arguments[1]) : 2000;
  const auto seed = static_cast<unsigned>(count > 2 ? std::atoi(arguments[2]) : 1);
  const bool keeper = count > 3 && std::string(arguments[3]) == "keeper";
  Walk walk(seed, keeper ? Reach::kKeeper : Reach::kReader, count > 4);
  if (!walk.Go(actions)) {
    std::cout << "seed " << seed << "\n";
    return 1;
  }
  std::cout << actions << " actions\n";
  return 0;
}
