// The keeper's tool that makes a concordance from a list of words, on a panel off the window.
#pragma once

#include "core/forms/text_box.h"
#include "core/panels.h"

namespace lectern::search {

class ConcordanceBuilder {
 public:
  explicit ConcordanceBuilder(core::Panels& panels);

  forms::TextBox Text2;
};

}  // namespace lectern::search
