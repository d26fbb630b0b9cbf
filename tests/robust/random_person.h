// Someone who uses the program at random: what can be reached is clicked, typed into, picked from or dragged.
// The same seed does the same.
#pragma once

#include <random>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "ui/headless/driver.h"

namespace lectern {

enum class Reach {
  kReader,  // what a person at the window reaches
  kKeeper   // everything, hidden tools included, and writes as the program's own code does
};

class RandomPerson {
 public:
  RandomPerson(unsigned seed, Reach reach) : random_(seed), reach_(reach) {}

  // What to do next, as commands of the driver: answers that are laid ready, then the action.
  std::vector<std::string> Next(headless::Driver& driver, const std::string& folder);

  // Controls that are not used ("Form1.Command17").
  std::set<std::string, std::less<>> avoids;

 private:
  std::size_t Below(std::size_t limit) { return static_cast<std::size_t>(random_()) % limit; }
  bool OneIn(std::size_t count) { return Below(count) == 0; }
  template <class Values>
  const std::string& AnyOf(const Values& values) {
    return values[Below(values.size())];
  }
  std::string Text();
  std::string Number();
  forms::Control& PickControl(headless::Driver& driver);
  bool IsWorthwhile(const forms::Control& control) const;
  std::string ActOn(forms::Control& control, const std::string& folder);
  std::string Write(const std::string& control);

  std::mt19937 random_;
  Reach reach_;
};

}  // namespace lectern
