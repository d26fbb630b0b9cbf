#include "tests/kit/small_world.h"

#include <filesystem>
#include <fstream>

#include "reader/canon.h"

namespace lectern {

void LaySmallWorld(const std::string& folder) {
  std::filesystem::remove_all(folder);
  std::filesystem::copy(LECTERN_TEST_DATA "/world", folder, std::filesystem::copy_options::recursive);
}

void LayBooksToBuildFrom(const std::string& folder) {
  constexpr std::size_t kShortName = 8;
  for (const std::string_view book : reader::kCanon) {
    std::ofstream(folder + "/" + std::string(book.substr(0, kShortName)) + ".txt", std::ios::binary)
        << "Chapter 1\r\n1   The river by the tent.       \r\n";
  }
}

}  // namespace lectern
