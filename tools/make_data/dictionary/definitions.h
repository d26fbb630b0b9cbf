// Definitions that are ready: those of our own, and the glossary of the second version.
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace lectern::make_data {

// By the word, folded: the word as it is written, "besom" or "Jesus", and its definition in sentences.
struct Definition {
  std::string word;
  std::string text;
  std::string place{};  // of the verse to show, "Psalms 3:2"; "" for any
};
using Definitions = std::map<std::string, Definition, std::less<>>;

// Definitions of our own: a line for each, "besom|A broom." or "Selah|A pause.|Psalms 3:2". Lines that are
// empty or begin with # are skipped.
void ParseDefinitions(std::string_view text, Definitions& definitions);

// The glossary at the end of a module's last verse: the first sentences of each item, as far as they do
// without references.
Definitions ParseGlossary(std::string_view markup);

}  // namespace lectern::make_data
