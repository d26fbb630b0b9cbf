// The program without a screen in a data folder, for a test that acts as the reader in the driver's language
// and then looks at the controls.
#pragma once

#include <concepts>
#include <string>
#include <utility>
#include <vector>

#include "forms/lists.h"
#include "ui/headless/driver.h"

namespace lectern {

using Steps = std::vector<std::string>;

class Session {
 public:
  explicit Session(const std::string& folder)
      : driver(folder, [this](const std::string& line) { printed_.push_back(line); }) {}

  // Carries the steps out; what they printed.
  Steps Do(const Steps& steps) {
    for (const std::string& step : steps) driver.Execute(step);
    return std::exchange(printed_, {});
  }
  template <std::convertible_to<std::string>... Step>
  Steps Do(const Step&... steps) {
    return Do(Steps{steps...});
  }

  // The control of a name such as "Form1.imgp(1)".
  template <class Kind>
  Kind& Get(const std::string& name) {
    return headless::FindControl(driver.Program(), name).As<Kind>();
  }
  Steps Items(const std::string& list) { return headless::ItemsOf(Get<forms::Control>(list))->items; }

 private:
  Steps printed_;

 public:
  headless::Driver driver;
};

}  // namespace lectern
