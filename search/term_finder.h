// A fast search for a term in the bytes of a file that ignores the case of ASCII letters; other bytes match
// only themselves.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace lectern::search {

class TermFinder {
 public:
  // Requires: `term` is in lower case, is not empty and outlives the finder.
  explicit TermFinder(std::string_view term);

  // The first place of the term at or after `from`, or npos.
  std::size_t Find(std::string_view bytes, std::size_t from) const;

 private:
  // A byte of the term that rules out most places.
  struct Sieve {
    std::size_t offset = 0;
    unsigned char byte = 0;
    unsigned char fold = 0;  // makes a capital small: 0x20 for a letter, 0 for any other byte
  };

  template <std::size_t kPlaces, class Take>
  void Sift(const char* block, Take take) const;
  bool AnyPasses(const char* block) const;
  std::size_t FindInBlock(const char* block) const;  // or npos
  bool Matches(const char* place) const;
  bool MatchesWord(const char* place) const;

  std::string_view term_;
  std::array<Sieve, 3> sieves_;  // the rarest bytes of the term, so that few places pass them all
  // The first bytes of the term, their folds, and a mask of those that count.
  std::uint64_t word_ = 0;
  std::uint64_t fold_ = 0;
  std::uint64_t counts_ = 0;
};

}  // namespace lectern::search
