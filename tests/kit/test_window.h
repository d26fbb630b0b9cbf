// A window with nothing on it over a data folder of its own, and what it asked of the platform.
#pragma once

#include <string>
#include <vector>

#include "forms/window.h"
#include "tests/kit/temporary_folder.h"
#include "ui/headless/headless_platform.h"

namespace lectern {

struct TestWindow {
  TemporaryFolder folder;
  std::vector<std::string> events;
  headless::HeadlessPlatform platform{[this](const std::string& line) { events.push_back(line); }};
  files::FileSystem files{folder.Path()};
  forms::Window form{{platform, files}, "Form1", "Test"};
};

// The number of the run-time error that an action raises; 0 where it raises none.
template <class Action>
int ErrorOf(Action&& action) {
  try {
    action();
    return 0;
  } catch (const base::RunTimeError& error) {
    return error.number();
  }
}

}  // namespace lectern
