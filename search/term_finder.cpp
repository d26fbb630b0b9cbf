#include "search/term_finder.h"

#include <algorithm>
#include <cstring>

namespace lectern::search {

namespace {

// Places looked at in one go. The term's first byte, a blank, takes part in the sifting as it stands.
constexpr std::size_t kBlock = 64;

constexpr bool IsSmallLetter(char c) { return c >= 'a' && c <= 'z'; }

// How rare a byte is in running text: the higher the better a sieve.
int Rareness(char c) {
  constexpr std::string_view kByFrequency = " etahonsirdlufmwcygbpvkxjqz";
  return static_cast<int>(std::min(kByFrequency.find(c), kByFrequency.size()));
}

}  // namespace

TermFinder::Sieve TermFinder::SieveAt(std::size_t offset) const {
  const char byte = term_[offset];
  return {offset, static_cast<unsigned char>(byte),
          static_cast<unsigned char>(IsSmallLetter(byte) ? 0x20 : 0)};
}

TermFinder::TermFinder(std::string_view term) : term_(term) {
  std::size_t rarest = 0;
  for (std::size_t i = 1; i < term.size(); ++i) {
    if (Rareness(term[i]) > Rareness(term[rarest])) rarest = i;
  }
  std::size_t rare = rarest == 0 ? term.size() - 1 : 0;
  for (std::size_t i = 0; i < term.size(); ++i) {
    if (i != rarest && Rareness(term[i]) > Rareness(term[rare])) rare = i;
  }
  rarest_ = SieveAt(rarest);
  rare_ = SieveAt(rare);
}

bool TermFinder::StandsAt(const char* place) const {
  return std::equal(term_.begin(), term_.end(), place, [](char t, char b) {
    return t == (b >= 'A' && b <= 'Z' ? static_cast<char>(b | 0x20) : b);
  });
}

// The first place of a block where the term stands, or npos. The sifting is a loop without a branch, which
// the compiler turns into wide operations.
std::size_t TermFinder::FindInBlock(const char* block) const {
  const auto* const bytes = reinterpret_cast<const unsigned char*>(block);
  const auto* const a = bytes + rarest_.offset;
  const auto* const b = bytes + rare_.offset;
  const Sieve sieve_a = rarest_;
  const Sieve sieve_b = rare_;
  const auto blank = static_cast<unsigned char>(term_[0]);
  unsigned char passes[kBlock];
  unsigned char any = 0;
  for (std::size_t i = 0; i < kBlock; ++i) {
    const auto differs = static_cast<unsigned char>(
        ((a[i] | sieve_a.fold) ^ sieve_a.byte) | ((b[i] | sieve_b.fold) ^ sieve_b.byte) | (bytes[i] ^ blank));
    passes[i] = static_cast<unsigned char>(differs == 0);
    any |= passes[i];
  }
  const unsigned char* next = any == 0 ? nullptr : passes;
  while (next != nullptr) {
    const auto left = static_cast<std::size_t>(passes + kBlock - next);
    next = static_cast<const unsigned char*>(std::memchr(next, 1, left));
    if (next == nullptr) break;
    const auto place = static_cast<std::size_t>(next - passes);
    if (StandsAt(block + place)) return place;
    if (++next == passes + kBlock) break;
  }
  return std::string_view::npos;
}

std::size_t TermFinder::Find(std::string_view bytes, std::size_t from) const {
  if (bytes.size() < term_.size()) return std::string_view::npos;
  const std::size_t end = bytes.size() - term_.size() + 1;  // behind the last place with room for the term
  std::size_t at = from;
  for (; at + kBlock <= end; at += kBlock) {
    const std::size_t found = FindInBlock(bytes.data() + at);
    if (found != std::string_view::npos) return at + found;
  }
  for (; at < end; ++at) {
    const char* const place = bytes.data() + at;
    if (rarest_.Passes(place) && StandsAt(place)) return at;
  }
  return std::string_view::npos;
}

}  // namespace lectern::search
