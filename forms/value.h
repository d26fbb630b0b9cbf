// What a property holds when its type is not known: for whoever reads and writes properties by name.
#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "forms/picture.h"

namespace lectern::forms {

using Value = std::variant<bool, int, double, std::string, Picture>;

}  // namespace lectern::forms
