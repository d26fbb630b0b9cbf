// What holds after every event, whatever a person did: no file is left open or lying about, every selection
// is in its list and every value in its range, and the program ends only where it is known to end.
#pragma once

#include <string>
#include <string_view>

#include "tests/kit/session.h"

namespace lectern {

// Which failures may end the program. In a whole folder a reader meets only the known ones; damaged files and
// the keeper's tools fail in most handlers that trap nothing.
enum class Failures { kKnownOnly, kAnywhere };

class Invariants {
 public:
  // The session outlives them.
  Invariants(Session& session, std::string folder, Failures failures)
      : session_(session), folder_(std::move(folder)), failures_(failures) {}

  // To be asked after each command with all that it printed: a sentence on what does not hold; empty where
  // everything does.
  std::string Broken(std::string_view command, const Steps& printed);

 private:
  std::string BrokenBySlots(std::string_view control, const Steps& printed);
  std::string BrokenByControls();
  std::string BrokenByEnd(std::string_view control, const Steps& printed) const;

  Session& session_;
  std::string folder_;
  Failures failures_;
  // A question of the game that could not be asked leaves its file open until the next chapter is loaded.
  bool question_left_open_ = false;
};

}  // namespace lectern
