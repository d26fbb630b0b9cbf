// Lines of a story and of the files in it: taking them apart and comparing them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lectern::kit {

using Lines = std::vector<std::string>;

// The parts between separators that stand outside quotes.
Lines Split(std::string_view text, std::string_view separator);
std::string Joined(const Lines& parts, std::string_view separator);

// Whether a text is as expected, where an ellipsis stands for any characters.
bool Fits(std::string_view expected, std::string_view got);

// The same for all lines; one that is just an ellipsis stands for any number of them.
bool Fits(const Lines& expected, const Lines& got);

// The lines that only one of two files has, each with its number, by the longest sequence that both have:
// "-3 was here", "+5 is new"; or "unchanged".
Lines Difference(const Lines& before, const Lines& now);

}  // namespace lectern::kit
