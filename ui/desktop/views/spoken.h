// What a widget of the program's own tells a screen reader, beside its name.
#pragma once

#include <functional>

namespace lectern::desktop {

struct Spoken {
  // A click without a mouse; empty where clicks mean nothing.
  std::function<void()> press;

  // Says what another widget says already, and is passed over.
  bool is_echo = false;
};

}  // namespace lectern::desktop
