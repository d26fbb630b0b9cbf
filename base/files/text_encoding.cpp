#include "base/files/text_encoding.h"

#include <algorithm>
#include <array>
#include <optional>

#include "base/text/characters.h"

namespace lectern::files {

namespace {

// The characters of the code page's bytes 0x80 to 0x9F; every other byte is its own character. The five
// bytes without a character stand for the control character of their number, so that nothing is lost.
constexpr std::array<char16_t, 32> kCodePage = {
    0x20AC, 0x81,   0x201A, 0x192,  0x201E, 0x2026, 0x2020, 0x2021, 0x2C6,  0x2030, 0x160,
    0x2039, 0x152,  0x8D,   0x17D,  0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x2DC,  0x2122, 0x161,  0x203A, 0x153,  0x9D,   0x17E,  0x178};

std::optional<char> ByteOf(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character < 0x100)) return static_cast<char>(character);
  const auto* found = std::find(kCodePage.begin(), kCodePage.end(), character);
  if (found == kCodePage.end()) return std::nullopt;
  return static_cast<char>(0x80 + (found - kCodePage.begin()));
}

}  // namespace

char32_t CodePageCharacter(unsigned char byte) {
  return byte >= 0x80 && byte < 0xA0 ? kCodePage[byte - 0x80U] : byte;
}

std::string DecodeCodePage(std::string_view bytes) {
  std::string result;
  result.reserve(bytes.size() + bytes.size() / 4);
  for (const char byte : bytes) {
    text::AppendCharacter(result, CodePageCharacter(static_cast<unsigned char>(byte)));
  }
  return result;
}

std::string Decode(std::string_view bytes) {
  if (text::IsAscii(bytes)) return std::string(bytes);
  std::string result;
  result.reserve(bytes.size() + bytes.size() / 16);
  while (!bytes.empty()) {
    const std::size_t end = std::min(bytes.find('\n'), bytes.size() - 1) + 1;
    const std::string_view line = bytes.substr(0, end);
    if (text::IsUtf8(line)) {
      result.append(line);
    } else {
      result.append(DecodeCodePage(line));
    }
    bytes.remove_prefix(end);
  }
  return result;
}

namespace {

// The encoding is decided for each line when it is read.
bool HasLineInUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const std::size_t end = std::min(bytes.find('\n'), bytes.size() - 1) + 1;
    const std::string_view line = bytes.substr(0, end);
    if (!text::IsAscii(line) && text::IsUtf8(line)) return true;
    bytes.remove_prefix(end);
  }
  return false;
}

}  // namespace

std::string Encode(std::string_view text) {
  if (text::IsAscii(text)) return std::string(text);
  std::string result;
  result.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const std::optional<char> byte = ByteOf(text::NextCharacter(text, at));
    if (!byte) return std::string(text);
    result.push_back(*byte);
  }
  return HasLineInUtf8(result) ? std::string(text) : result;
}

}  // namespace lectern::files
