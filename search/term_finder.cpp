#include "search/term_finder.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <numeric>
#include <vector>

namespace lectern::search {

namespace {

constexpr std::size_t kBlock = 64;  // places that are examined together
// After this many blocks without a match the term counts as rare. The search then skips as many blocks at a
// time as long as all their places are ruled out.
constexpr std::size_t kNear = 4;
constexpr std::size_t kWideBlock = kNear * kBlock;
constexpr std::size_t kWord = sizeof(std::uint64_t);

constexpr bool IsSmallLetter(char c) { return c >= 'a' && c <= 'z'; }

// How rare a byte is in running text. Rare bytes are better sieves.
int Rareness(char c) {
  constexpr std::string_view kByFrequency = " etahonsirdlufmwcygbpvkxjqz";
  return static_cast<int>(std::min(kByFrequency.find(c), kByFrequency.size()));
}

constexpr unsigned char FoldOf(char c) { return IsSmallLetter(c) ? 0x20 : 0; }

std::uint64_t WordAt(const void* bytes) {
  std::uint64_t word = 0;
  std::memcpy(&word, bytes, kWord);
  return word;
}

// The index in memory of a word's first byte that is not 0. Requires: word != 0.
std::size_t FirstIn(std::uint64_t word) {
  static_assert(std::endian::native == std::endian::little || std::endian::native == std::endian::big);
  const int zeros =
      std::endian::native == std::endian::little ? std::countr_zero(word) : std::countl_zero(word);
  return static_cast<std::size_t>(zeros) / 8;
}

}  // namespace

TermFinder::TermFinder(std::string_view term) : term_(term) {
  std::vector<std::size_t> by_rareness(term.size());
  std::iota(by_rareness.begin(), by_rareness.end(), 0);
  std::stable_sort(by_rareness.begin(), by_rareness.end(),
                   [term](std::size_t a, std::size_t b) { return Rareness(term[a]) > Rareness(term[b]); });
  for (std::size_t i = 0; i < sieves_.size(); ++i) {
    const std::size_t offset = by_rareness[std::min(i, by_rareness.size() - 1)];
    sieves_[i] = {offset, static_cast<unsigned char>(term[offset]), FoldOf(term[offset])};
  }

  unsigned char word[kWord] = {};
  unsigned char fold[kWord] = {};
  unsigned char counts[kWord] = {};
  for (std::size_t i = 0; i < std::min(term.size(), kWord); ++i) {
    word[i] = static_cast<unsigned char>(term[i]);
    fold[i] = FoldOf(term[i]);
    counts[i] = 0xFF;
  }
  word_ = WordAt(word);
  fold_ = WordAt(fold);
  counts_ = WordAt(counts);
}

bool TermFinder::Matches(const char* place) const {
  return std::equal(term_.begin(), term_.end(), place, [](char t, char b) {
    return t == (b >= 'A' && b <= 'Z' ? static_cast<char>(b | 0x20) : b);
  });
}

// The same as Matches. Requires: a whole word can be read from the place.
bool TermFinder::MatchesWord(const char* place) const {
  if ((((WordAt(place) | fold_) ^ word_) & counts_) != 0) return false;
  return term_.size() <= kWord || Matches(place);
}

// Calls `take` for each place of a block with whether the term may be there. The compiler vectorizes this
// loop, as it has no branch.
template <std::size_t kPlaces, class Take>
void TermFinder::Sift(const char* block, Take take) const {
  const auto* const bytes = reinterpret_cast<const unsigned char*>(block);
  const auto [a, b, c] = sieves_;
  const unsigned char* const at_a = bytes + a.offset;
  const unsigned char* const at_b = bytes + b.offset;
  const unsigned char* const at_c = bytes + c.offset;
  for (std::size_t i = 0; i < kPlaces; ++i) {
    const auto differs = static_cast<unsigned char>(
        ((at_a[i] | a.fold) ^ a.byte) | ((at_b[i] | b.fold) ^ b.byte) | ((at_c[i] | c.fold) ^ c.byte));
    take(i, static_cast<unsigned char>(differs == 0));
  }
}

bool TermFinder::AnyPasses(const char* block) const {
  unsigned char any = 0;
  Sift<kWideBlock>(block, [&any](std::size_t, unsigned char passes) { any |= passes; });
  return any != 0;
}

std::size_t TermFinder::FindInBlock(const char* block) const {
  unsigned char passes[kBlock];
  Sift<kBlock>(block, [&passes](std::size_t i, unsigned char pass) { passes[i] = pass; });
  for (std::size_t first = 0; first < kBlock; first += kWord) {
    while (const std::uint64_t word = WordAt(passes + first)) {
      const std::size_t place = first + FirstIn(word);
      if (MatchesWord(block + place)) return place;
      passes[place] = 0;
    }
  }
  return std::string_view::npos;
}

std::size_t TermFinder::Find(std::string_view bytes, std::size_t from) const {
  if (bytes.size() < term_.size()) return std::string_view::npos;
  // Just after the last place where the term fits, and after the last where a whole word fits.
  const std::size_t end = bytes.size() - term_.size() + 1;
  const std::size_t word_end = std::min(end, bytes.size() - std::min(bytes.size(), kWord) + 1);
  std::size_t at = from;
  for (std::size_t near = kNear; at + kBlock <= word_end; at += kBlock, --near) {
    if (near == 0) {
      while (at + kWideBlock <= word_end && !AnyPasses(bytes.data() + at)) at += kWideBlock;
      if (at + kBlock > word_end) break;
      near = kNear;
    }
    const std::size_t found = FindInBlock(bytes.data() + at);
    if (found != std::string_view::npos) return at + found;
  }
  for (; at < end; ++at) {
    if (Matches(bytes.data() + at)) return at;
  }
  return std::string_view::npos;
}

}  // namespace lectern::search
