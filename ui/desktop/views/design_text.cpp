#include "ui/desktop/views/design_text.h"

#include <algorithm>
#include <string_view>

namespace lectern::desktop {

bool IsDesignText(const std::string& text) {
  for (const std::string_view kind : {"Label", "Text"}) {
    if (!text.starts_with(kind) || text.size() == kind.size()) continue;
    return std::all_of(text.begin() + static_cast<std::ptrdiff_t>(kind.size()), text.end(),
                       [](char c) { return c >= '0' && c <= '9'; });
  }
  return false;
}

}  // namespace lectern::desktop
