// The help topics: written as plain text with a few marks, installed as the rich text that the help shows.
//
//   # Title        ## Heading        * an item of a list
//   **the name of a button**         *a word that is set off*         \* a star
//
// Lines that follow one another are one paragraph.
#pragma once

#include <string>
#include <string_view>

namespace lectern::make_data {

std::string RichTextOf(std::string_view source);

void WriteHelpTopics(const std::string& data_folder);

}  // namespace lectern::make_data
