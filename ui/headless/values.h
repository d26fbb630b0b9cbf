// How the driver's language writes values: texts in double quotes with escapes, numbers bare, True and
// False.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/value.h"

namespace lectern::headless {

std::string Quoted(std::string_view text);
std::string ValueText(const forms::Value& value);

// One word of a command: a bare word, or a text that stood in quotes.
struct Word {
  std::string text;
  bool quoted = false;
};

// The words of a line; nothing where a quote is not closed or an escape is none.
std::optional<std::vector<Word>> Words(std::string_view line);

// The value that a word stands for; nothing for a bare word that is none.
std::optional<forms::Value> ToValue(const Word& word);

// A bare whole number.
std::optional<int> ToWhole(const Word& word);
std::optional<double> ToReal(const Word& word);

}  // namespace lectern::headless
