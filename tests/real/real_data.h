// The folder of the real texts that the tests work on; it is not written to.
#pragma once

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

namespace lectern {

inline std::string RealData() {
  const char* const folder = std::getenv("LECTERN_REAL_DATA");
  return folder == nullptr ? "" : folder;
}

inline std::string RealFile(const std::string& name) {
  std::ifstream file(RealData() + "/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace lectern
