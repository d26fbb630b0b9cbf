// The data folder that the benchmarks work on.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

namespace lectern::bench {

inline std::string DataFolder() {
  const char* const folder = std::getenv("LECTERN_DATA");
  return std::filesystem::absolute(folder == nullptr ? "data" : folder).lexically_normal().string();
}

}  // namespace lectern::bench
