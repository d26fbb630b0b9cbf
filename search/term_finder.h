// Finds a term in the bytes of a file, whatever the case of its letters, as fast as the bytes can be looked
// at. Terms and bytes of ASCII only: other bytes match nothing but themselves.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace lectern::search {

class TermFinder {
 public:
  // `term` in lower case, beginning with a blank; it outlives the finder.
  explicit TermFinder(std::string_view term);

  // Where the term stands first at or behind `from`; npos where it does not.
  std::size_t Find(std::string_view bytes, std::size_t from) const;

 private:
  // A byte of the term that places are sifted by.
  struct Sieve {
    std::size_t offset = 0;
    unsigned char byte = 0;
    unsigned char fold = 0;  // what makes a capital small: 0x20 for a letter, 0 for any other byte

    bool Passes(const char* place) const {
      return (static_cast<unsigned char>(place[offset]) | fold) == byte;
    }
  };

  Sieve SieveAt(std::size_t offset) const;
  bool StandsAt(const char* place) const;
  std::size_t FindInBlock(const char* block) const;

  std::string_view term_;
  Sieve rarest_, rare_;  // the two rarest bytes of the term, so that few places pass both
};

}  // namespace lectern::search
