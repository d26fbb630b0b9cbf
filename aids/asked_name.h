// The name of something that a person is about to make, a bookmark or a note. It becomes the name of a file.
#pragma once

#include <string>
#include <string_view>

#include "base/platform.h"

namespace lectern::aids {

// Asks for a name, with today's date proposed ("11 - 16 - 26"), and cleans the answer; "" where the box was
// cancelled or left empty.
std::string AskForName(base::Platform& platform, std::string_view prompt, std::string_view title);

// The name without the characters that a record or a path has a use for: a double quote becomes two
// apostrophes, a slash of either kind one. What else a file system may refuse stays.
std::string CleanName(std::string_view name);

}  // namespace lectern::aids
