// The name of a new bookmark or note, which becomes the name of its file.
#pragma once

#include <string>
#include <string_view>

#include "base/platform.h"

namespace lectern::aids {

// Asks for a name and proposes today's date ("11 - 16 - 26"); "" if the box is cancelled or left empty. In
// the answer a double quote becomes two apostrophes, a slash of either kind one, as records and paths use
// these characters themselves. Other characters that a file system may refuse stay.
std::string AskForName(base::Platform& platform, std::string_view prompt, std::string_view title);

}  // namespace lectern::aids
