// Marked texts made plain. Tags are those of OSIS, character references those of XML.
#pragma once

#include <string>
#include <string_view>

namespace lectern::make_data {

// The words without their markup, on one line, with signs as they are typed, so that a search finds them.
// Left out are notes, titles and the names of speakers.
std::string PlainWords(std::string_view markup);

// The words of a verse, behind its titles. If the version leaves the verse out and a note says so, the note
// in square brackets; "" if there is nothing.
std::string VerseWords(std::string_view markup);

// The titles that belong to the text, each in square brackets and with a blank behind it: a psalm's, and the
// letters of Psalm 119.
std::string Titles(std::string_view markup);

// The value of a tag's attribute, "" without one.
std::string_view Attribute(std::string_view tag, std::string_view name);

}  // namespace lectern::make_data
