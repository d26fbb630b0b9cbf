// What takes any bytes: each reader of a file, and the driver. A target aborts where something is wrong.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lectern::fuzz {

struct Target {
  std::string_view name;
  int runs;                         // of the short form
  std::size_t head;                 // random bytes in front of the pieces
  std::vector<std::string> pieces;  // what inputs are put together from
  void (*take)(std::string_view input);
};

// The pieces of a text, parted by '~'.
std::vector<std::string> Pieces(std::string_view text);

void Require(bool holds);

// The whole program over a damaged folder, and the driver over a damaged script.
Target DataFiles();
Target Scripts(const std::string& stories);

// The readers of records, rich text and pictures, and those of what the data is made from.
std::vector<Target> Readers();

}  // namespace lectern::fuzz
