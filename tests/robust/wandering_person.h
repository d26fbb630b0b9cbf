// Someone who does this and that with the program, by chance: whatever can be reached is clicked, typed
// into, picked from or dragged, with a sense for timers and boxes. The same seed does the same.
#pragma once

#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "ui/headless/driver.h"

namespace lectern {

enum class Reach {
  kReader,  // what a person at the window reaches
  kKeeper,  // all of it, hidden tools included, and writes as the program's own code does
};

class WanderingPerson {
 public:
  WanderingPerson(unsigned seed, Reach reach) : random_(seed), reach_(reach) {}

  // What is done next, as commands of the driver: answers that are laid ready, then the act.
  std::vector<std::string> Next(headless::Driver& driver, const std::string& folder);

  // Acts at these controls ("Form1.Command17") are left out.
  std::vector<std::string> avoids;

 private:
  std::size_t Below(std::size_t limit) { return static_cast<std::size_t>(random_()) % limit; }
  bool OneIn(std::size_t count) { return Below(count) == 0; }
  std::string Text();
  std::string Number();
  forms::Control& PickControl(headless::Driver& driver);
  bool IsWorthwhile(const forms::Control& control) const;
  bool Avoids(std::string_view name) const;
  std::string ActAt(forms::Control& control, const std::string& folder);
  std::string Write(forms::Control& control);

  std::mt19937 random_;
  Reach reach_;
};

}  // namespace lectern
