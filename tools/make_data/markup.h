// The words of a verse out of their markup: notes, headings and tags left out, references to characters
// resolved, typographic quotes made plain ones, so that a typed word finds them.
#pragma once

#include <string>
#include <string_view>

namespace lectern::make_data {

std::string PlainWords(std::string_view markup);

}  // namespace lectern::make_data
