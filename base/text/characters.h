// Text is UTF-8 in memory; positions count characters (code points) from 1. These functions take and measure
// pieces of a text by characters. A byte that belongs to no valid sequence counts as a character of its own,
// so that no text can lead them astray. Texts of ASCII alone cost no more than the same work on bytes.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace lectern::text {

bool IsAscii(std::string_view text);
bool IsUtf8(std::string_view text);

// The number of characters.
std::size_t Length(std::string_view text);

// The byte where character `position` begins (from 1), or the text's size if the position is past the end.
std::size_t ByteOf(std::string_view text, std::size_t position);

// The first `count` characters, or all of them where there are fewer.
std::string_view Left(std::string_view text, std::size_t count);

// `count` characters from position `start` on (from 1), as many as there are; "" behind the end.
std::string_view Mid(std::string_view text, std::size_t start, std::size_t count = std::string_view::npos);

// The text without the blanks at its end.
std::string_view TrimEnd(std::string_view text);

// Whether the text begins with a digit 0 to 9: what readers of references call numeric.
bool StartsWithDigit(std::string_view text);

// The character that begins at `byte`, which is moved behind it. A stray byte comes out as itself.
// Requires: byte < text.size().
char32_t NextCharacter(std::string_view text, std::size_t& byte);

// Requires: the character is a code point, at most U+10FFFF.
void AppendCharacter(std::string& text, char32_t character);

// Upper and lower case, and comparison without regard to case, for the scripts that people write names and
// words in: Latin, Greek and Cyrillic. Every letter keeps its length in characters.
char32_t LowerCharacter(char32_t character);
char32_t UpperCharacter(char32_t character);

std::string Lower(std::string_view text);
std::string Upper(std::string_view text);

// The same text but for case.
bool EqualFolded(std::string_view a, std::string_view b);

// The order of file lists: without regard to case, and ties by character code.
bool LessFolded(std::string_view a, std::string_view b);

}  // namespace lectern::text
