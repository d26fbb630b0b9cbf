// The encoding of text in files. In memory it is UTF-8; in files it is the 8-bit western code page
// (Windows-1252), so that the data can move between systems.
//
// Reading takes a line that is valid UTF-8 for what it is and any other for the code page. Writing uses
// the code page where every character fits and the bytes could not be mistaken for UTF-8, and UTF-8
// where not: a note in Greek or Hebrew comes back as it was written.
#pragma once

#include <string>
#include <string_view>

namespace lectern::files {

// The text of a file's bytes, decided line by line. Line ends stay as they are.
std::string Decode(std::string_view bytes);

// The character of one byte of the code page, and the text of several.
char32_t CodePageCharacter(unsigned char byte);
std::string DecodeCodePage(std::string_view bytes);

// The bytes of what is written in one go, of one line or many: all in the code page or all in UTF-8, so that
// each line of them is read as it was meant.
std::string Encode(std::string_view text);

}  // namespace lectern::files
