#include "base/text/characters.h"

#include <algorithm>
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

}  // namespace lectern::text
