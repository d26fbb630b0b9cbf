// The 66 books in their fixed order. A name is both what is shown and the stem of the book's file.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/text/characters.h"

namespace lectern::reader {

// clang-format off
inline constexpr std::array<std::string_view, 66> kCanon = {
    "Genesis", "Exodus", "Leviticus", "Numbers", "Deuteronomy", "Joshua", "Judges", "Ruth", "1 Samuel",
    "2 Samuel", "1 Kings", "2 Kings", "1 Chronicles", "2 Chronicles", "Ezra", "Nehemiah", "Esther", "Job",
    "Psalms", "Proverbs", "Ecclesiastes", "Song of Solomon", "Isaiah", "Jeremiah", "Lamentations",
    "Ezekiel", "Daniel", "Hosea", "Joel", "Amos", "Obadiah", "Jonah", "Micah", "Nahum", "Habakkuk",
    "Zephaniah", "Haggai", "Zechariah", "Malachi", "Matthew", "Mark", "Luke", "John", "Acts", "Romans",
    "1 Corinthians", "2 Corinthians", "Galatians", "Ephesians", "Philippians", "Colossians",
    "1 Thessalonians", "2 Thessalonians", "1 Timothy", "2 Timothy", "Titus", "Philemon", "Hebrews", "James",
    "1 Peter", "2 Peter", "1 John", "2 John", "3 John", "Jude", "Revelation",
};
// clang-format on

// The file stem that the data preparation uses, cut to eight characters: "Deuteron".
inline std::string ShortStem(std::string_view book) { return std::string(text::Left(book, 8)); }

}  // namespace lectern::reader
