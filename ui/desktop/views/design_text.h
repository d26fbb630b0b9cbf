// What a label or a box says that nobody has given a text yet.
#pragma once

#include <string>

namespace lectern::desktop {

// Whether a text is only the number that a control bears among those of its kind, such as "Label32". A
// control may hold one until it is first used; a person is shown nothing instead.
bool IsDesignText(const std::string& text);

}  // namespace lectern::desktop
