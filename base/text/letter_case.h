// Upper and lower case, and comparison without regard to case, for the scripts that people write names
// and words in: Latin, Greek and Cyrillic. Every letter keeps its length in characters.
#pragma once

#include <string>
#include <string_view>

namespace lectern::text {

char32_t LowerCharacter(char32_t character);
char32_t UpperCharacter(char32_t character);

std::string Lower(std::string_view text);
std::string Upper(std::string_view text);

// The same text but for case.
bool EqualFolded(std::string_view a, std::string_view b);

// The order of file lists: without regard to case, and by character code where that leaves a tie.
bool LessFolded(std::string_view a, std::string_view b);

}  // namespace lectern::text
