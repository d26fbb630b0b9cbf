#include "base/text/characters.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cstring>

namespace lectern::text {

namespace {

constexpr bool IsContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

// The bytes of the sequence at `byte`, or 0 where none is valid there.
std::size_t SequenceLength(std::string_view text, std::size_t byte) {
  const auto lead = static_cast<unsigned char>(text[byte]);
  if (lead < 0x80) return 1;
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || byte + length > text.size()) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if (!IsContinuation(text[byte + i])) return 0;
  }
  const auto second = static_cast<unsigned char>(text[byte + 1]);
  const bool too_long = (lead == 0xE0 && second < 0xA0) || (lead == 0xF0 && second < 0x90);
  const bool surrogate = lead == 0xED && second >= 0xA0;
  const bool too_large = lead == 0xF4 && second >= 0x90;
  return too_long || surrogate || too_large ? 0 : length;
}

}  // namespace

bool IsAscii(std::string_view text) {
  // Bytes are gathered in runs without a branch, which the compiler turns into wide operations.
  constexpr std::size_t kRun = 64;
  std::size_t at = 0;
  for (; at + kRun <= text.size(); at += kRun) {
    unsigned char gathered = 0;
    for (std::size_t i = 0; i < kRun; ++i) gathered |= static_cast<unsigned char>(text[at + i]);
    if (gathered >= 0x80) return false;
  }
  unsigned char gathered = 0;
  for (; at < text.size(); ++at) gathered |= static_cast<unsigned char>(text[at]);
  return gathered < 0x80;
}

bool IsUtf8(std::string_view text) {
  std::size_t byte = 0;
  while (byte < text.size()) {
    const std::size_t length = SequenceLength(text, byte);
    if (length == 0) return false;
    byte += length;
  }
  return true;
}

std::size_t Length(std::string_view text) {
  if (IsAscii(text)) return text.size();
  std::size_t count = 0;
  for (std::size_t byte = 0; byte < text.size(); ++count) NextCharacter(text, byte);
  return count;
}

std::size_t ByteOf(std::string_view text, std::size_t position) {
  if (position <= 1) return 0;
  if (IsAscii(text.substr(0, position - 1))) return std::min(position - 1, text.size());
  std::size_t byte = 0;
  for (std::size_t at = 1; at < position && byte < text.size(); ++at) NextCharacter(text, byte);
  return byte;
}

std::string_view Left(std::string_view text, std::size_t count) {
  if (count >= text.size()) return text;
  return text.substr(0, ByteOf(text, count + 1));
}

std::string_view Mid(std::string_view text, std::size_t start, std::size_t count) {
  return Left(text.substr(ByteOf(text, start)), count);
}

std::string_view TrimEnd(std::string_view text) {
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

bool StartsWithDigit(std::string_view text) { return !text.empty() && text[0] >= '0' && text[0] <= '9'; }

char32_t NextCharacter(std::string_view text, std::size_t& byte) {
  assert(byte < text.size());
  const std::size_t length = SequenceLength(text, byte);
  const auto lead = static_cast<unsigned char>(text[byte]);
  if (length <= 1) {
    ++byte;
    return lead;
  }
  char32_t character = lead & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    character = (character << 6) | (static_cast<unsigned char>(text[byte + i]) & 0x3FU);
  }
  byte += length;
  return character;
}

void AppendCharacter(std::string& text, char32_t character) {
  assert(character <= 0x10FFFF);
  const auto put = [&text](char32_t value) { text.push_back(static_cast<char>(value)); };
  if (character < 0x80) {
    put(character);
  } else if (character < 0x800) {
    put(0xC0 | (character >> 6));
    put(0x80 | (character & 0x3F));
  } else if (character < 0x10000) {
    put(0xE0 | (character >> 12));
    put(0x80 | ((character >> 6) & 0x3F));
    put(0x80 | (character & 0x3F));
  } else {
    put(0xF0 | (character >> 18));
    put(0x80 | ((character >> 12) & 0x3F));
    put(0x80 | ((character >> 6) & 0x3F));
    put(0x80 | (character & 0x3F));
  }
}

namespace {

// Capitals from `first` to `last` whose small letters stand `distance` behind them, at every letter
// (step 1) or, in the blocks where the two alternate, behind every second one (step 2, distance 1).
struct Block {
  char32_t first, last, distance, step;
};

constexpr std::array kBlocks = {
    Block{'A', 'Z', 32, 1},     Block{0xC0, 0xD6, 32, 1},    Block{0xD8, 0xDE, 32, 1},
    Block{0x100, 0x12E, 1, 2},  Block{0x132, 0x136, 1, 2},   Block{0x139, 0x147, 1, 2},
    Block{0x14A, 0x176, 1, 2},  Block{0x179, 0x17D, 1, 2},   Block{0x388, 0x38A, 37, 1},
    Block{0x391, 0x3A1, 32, 1}, Block{0x3A3, 0x3AB, 32, 1},  Block{0x400, 0x40F, 80, 1},
    Block{0x410, 0x42F, 32, 1}, Block{0x460, 0x480, 1, 2},   Block{0x48A, 0x4BE, 1, 2},
    Block{0x4D0, 0x52E, 1, 2},  Block{0x1E00, 0x1E94, 1, 2}, Block{0x1EA0, 0x1EFE, 1, 2},
};

constexpr bool IsPlain(char byte) { return static_cast<unsigned char>(byte) < 0x80; }
constexpr char LowerPlain(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }
constexpr char UpperPlain(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c; }

// Nearly all names and words are plain ASCII, and start-up compares thousands of them.
template <class Change>
std::string ChangedPlain(std::string_view text, Change change) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), change);
  return result;
}

template <class Change>
std::string Changed(std::string_view text, Change change) {
  std::string result;
  result.reserve(text.size());
  std::size_t byte = 0;
  while (byte < text.size()) {
    const std::size_t start = byte;
    const char32_t before = NextCharacter(text, byte);
    const char32_t after = change(before);
    if (after == before) {
      result.append(text.substr(start, byte - start));  // stray bytes pass as they are
    } else {
      AppendCharacter(result, after);
    }
  }
  return result;
}

}  // namespace

char32_t LowerCharacter(char32_t character) {
  if (character == 0x178) return 0xFF;
  for (const Block& block : kBlocks) {
    if (character < block.first) break;
    if (character <= block.last && (character - block.first) % block.step == 0) {
      return character + block.distance;
    }
  }
  return character;
}

char32_t UpperCharacter(char32_t character) {
  if (character == 0x3C2) return 0x3A3;  // the sigma that ends a word
  if (character == 0xFF) return 0x178;
  for (const Block& block : kBlocks) {
    const char32_t first = block.first + block.distance;
    if (character >= first && character <= block.last + block.distance &&
        (character - first) % block.step == 0) {
      return character - block.distance;
    }
  }
  return character;
}

std::string Lower(std::string_view text) {
  return IsAscii(text) ? ChangedPlain(text, LowerPlain) : Changed(text, LowerCharacter);
}

std::string Upper(std::string_view text) {
  return IsAscii(text) ? ChangedPlain(text, UpperPlain) : Changed(text, UpperCharacter);
}

bool EqualFolded(std::string_view a, std::string_view b) {
  std::size_t at_a = 0;
  std::size_t at_b = 0;
  while (at_a < a.size() && at_b < b.size()) {
    if (IsPlain(a[at_a]) && IsPlain(b[at_b])) {
      if (LowerPlain(a[at_a++]) != LowerPlain(b[at_b++])) return false;
    } else if (LowerCharacter(NextCharacter(a, at_a)) != LowerCharacter(NextCharacter(b, at_b))) {
      return false;
    }
  }
  return at_a == a.size() && at_b == b.size();
}

bool LessFolded(std::string_view a, std::string_view b) {
  const auto [in_a, in_b] = std::mismatch(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
    return IsPlain(x) && IsPlain(y) && LowerPlain(x) == LowerPlain(y);
  });
  const bool a_ends = in_a == a.end();
  const bool b_ends = in_b == b.end();
  if (a_ends || b_ends) return a_ends && b_ends ? a < b : a_ends;
  if (IsPlain(*in_a) && IsPlain(*in_b)) return LowerPlain(*in_a) < LowerPlain(*in_b);
  const std::string folded_a = Lower(a);
  const std::string folded_b = Lower(b);
  return folded_a != folded_b ? folded_a < folded_b : a < b;
}

}  // namespace lectern::text
