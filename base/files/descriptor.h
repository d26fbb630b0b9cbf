// A file that the host has open.
#pragma once

#include <cstdint>
#include <unistd.h>
#include <utility>

namespace lectern::files {

// Closed with its owner.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(other.Release()) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }

  int Number() const { return number_; }
  bool IsOpen() const { return number_ >= 0; }
  int Release() { return std::exchange(number_, -1); }

 private:
  int number_;
};

struct OpenFile {
  Descriptor descriptor;  // not open: errno says why
  std::uint64_t length = 0;
};

}  // namespace lectern::files
