// Finds a term in the bytes of a file, whatever the case of its letters, as fast as the bytes can be looked
// at. Terms and bytes of ASCII only: other bytes match nothing but themselves.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace lectern::search {

class TermFinder {
 public:
  // `term` in lower case and not empty; it outlives the finder.
  explicit TermFinder(std::string_view term);

  // Where the term stands first at or behind `from`; npos where it does not.
  std::size_t Find(std::string_view bytes, std::size_t from) const;

 private:
  // A byte of the term that places are sifted by.
  struct Sieve {
    std::size_t offset = 0;
    unsigned char byte = 0;
    unsigned char fold = 0;  // what makes a capital small: 0x20 for a letter, 0 for any other byte
  };

  template <std::size_t kPlaces, class Take>
  void Sift(const char* block, Take take) const;
  bool AnyPasses(const char* block) const;
  std::size_t FindInBlock(const char* block) const;
  bool StandsAt(const char* place) const;
  bool StandsAtWord(const char* place) const;

  std::string_view term_;
  std::array<Sieve, 3> sieves_;  // the rarest bytes of the term, so that few places pass them all
  // The first bytes of the term, what folds them, and which of them count.
  std::uint64_t word_ = 0;
  std::uint64_t fold_ = 0;
  std::uint64_t counts_ = 0;
};

}  // namespace lectern::search
