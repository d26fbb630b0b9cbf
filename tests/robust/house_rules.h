// What holds after every event, whatever a person did: no file is left open or lying about, every selection
// lies in its list and every value in its range, and the program ends by a way out or by a failure that is
// told, and nowhere else.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ui/headless/driver.h"

namespace lectern {

// Which failures may end the program: in a folder that is whole, and for a reader, some few that are told;
// damaged files and the keeper's tools can fail in most handlers that trap nothing.
enum class Failures { kFewAreTold, kAnywhere };

class HouseRules {
 public:
  // The driver, which outlives the rules, and its data folder.
  HouseRules(headless::Driver& driver, std::string folder, Failures failures);

  // The rule that the command broke, as a sentence; empty where all hold. To be asked after each command,
  // with all that it printed.
  std::string Broken(std::string_view command, const std::vector<std::string>& printed);

 private:
  std::string BrokenByScratch() const;
  std::string BrokenBySlots(std::string_view command, const std::vector<std::string>& printed);
  std::string BrokenByControls() const;
  std::string BrokenByEnd(std::string_view command, const std::vector<std::string>& printed) const;

  headless::Driver& driver_;
  std::string folder_;
  Failures failures_;
  bool question_left_open_ = false;
  bool builder_left_open_ = false;
};

}  // namespace lectern
