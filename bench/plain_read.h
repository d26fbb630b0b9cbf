// The least that a search of the whole text can cost: reading the 66 files of the first version once.
#pragma once

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include "bench/real_data.h"
#include "reader/canon.h"

namespace lectern::bench {

class PlainRead {
 public:
  PlainRead() : room_(1 << 20) {
    for (const std::string_view book : reader::kCanon) {
      paths_.push_back(DataFolder() + "/KJV/" + std::string(book) + ".txt");
    }
  }

  void One(const std::string& path) const {
    const int file = ::open(path.c_str(), O_RDONLY);
    struct stat status = {};
    ::fstat(file, &status);
    benchmark::DoNotOptimize(::read(file, room_.data(), static_cast<std::size_t>(status.st_size)));
    benchmark::ClobberMemory();
    ::close(file);
  }

  void All() const {
    for (const std::string& path : paths_) One(path);
  }

 private:
  std::vector<std::string> paths_;
  mutable std::vector<char> room_;
};

}  // namespace lectern::bench
