#include "ui/headless/values.h"

#include <charconv>
#include <cmath>

#include "base/text/characters.h"
#include "base/text/letter_case.h"
#include "base/text/numbers.h"

namespace lectern::headless {

std::string Quoted(std::string_view text) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string quoted = "\"";
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    switch (c) {
      case '"':
        quoted += "\\\"";
        break;
      case '\\':
        quoted += "\\\\";
        break;
      case '\r':
        quoted += "\\r";
        break;
      case '\n':
        quoted += "\\n";
        break;
      case '\t':
        quoted += "\\t";
        break;
      default:
        if (byte < 0x20 || byte == 0x7F) {
          quoted.append("\\x").append(1, kDigits[byte >> 4]).append(1, kDigits[byte & 15]);
        } else {
          quoted.push_back(c);
        }
    }
  }
  return quoted + "\"";
}

std::string ValueText(const forms::Value& value) {
  struct Write {
    std::string operator()(bool truth) const { return truth ? "True" : "False"; }
    std::string operator()(int number) const { return std::to_string(number); }
    std::string operator()(double number) const { return text::NumberText(number); }
    std::string operator()(const std::string& text) const { return Quoted(text); }
    std::string operator()(const forms::Picture& picture) const {
      if (!picture) return "none";
      return "picture " + std::to_string(picture.Width()) + "x" + std::to_string(picture.Height());
    }
  };
  return std::visit(Write{}, value);
}

namespace {

// What stands behind a backslash at `at`, which is moved behind it; false where it is no escape.
bool Unescape(std::string_view line, std::size_t& at, std::string& text) {
  if (at >= line.size()) return false;
  switch (line[at++]) {
    case '"':
      text.push_back('"');
      return true;
    case '\\':
      text.push_back('\\');
      return true;
    case 'r':
      text.push_back('\r');
      return true;
    case 'n':
      text.push_back('\n');
      return true;
    case 't':
      text.push_back('\t');
      return true;
    case 'x': {
      unsigned value = 0;
      const std::string_view digits = line.substr(at, 2);
      const auto [end, failure] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
      if (failure != std::errc{} || digits.size() != 2 || end != digits.data() + 2) return false;
      at += 2;
      text::AppendCharacter(text, value);
      return true;
    }
    default:
      return false;
  }
}

bool TakeQuoted(std::string_view line, std::size_t& at, std::string& text) {
  while (at < line.size() && line[at] != '"') {
    if (line[at] == '\\') {
      ++at;
      if (!Unescape(line, at, text)) return false;
    } else {
      text.push_back(line[at++]);
    }
  }
  return at++ < line.size();
}

constexpr bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r'; }

}  // namespace

std::optional<std::vector<Word>> Words(std::string_view line) {
  std::vector<Word> words;
  for (std::size_t at = 0; at < line.size();) {
    if (IsBlank(line[at])) {
      ++at;
      continue;
    }
    Word word;
    if (line[at] == '"') {
      word.quoted = true;
      if (!TakeQuoted(line, ++at, word.text)) return std::nullopt;
    } else {
      while (at < line.size() && !IsBlank(line[at])) word.text.push_back(line[at++]);
    }
    words.push_back(std::move(word));
  }
  return words;
}

std::optional<forms::Value> ToValue(const Word& word) {
  if (word.quoted) return word.text;
  if (text::EqualFolded(word.text, "True")) return true;
  if (text::EqualFolded(word.text, "False")) return false;
  if (const auto whole = ToWhole(word)) return *whole;
  if (const auto real = ToReal(word)) return *real;
  return std::nullopt;
}

namespace {

template <class Number>
std::optional<Number> Parsed(const Word& word) {
  Number number{};
  const char* const last = word.text.data() + word.text.size();
  const auto [end, failure] = std::from_chars(word.text.data(), last, number);
  if (word.quoted || failure != std::errc{} || end != last) return std::nullopt;
  if (!std::isfinite(static_cast<double>(number))) return std::nullopt;  // "inf" and "nan" are none
  return number;
}

}  // namespace

std::optional<int> ToWhole(const Word& word) { return Parsed<int>(word); }
std::optional<double> ToReal(const Word& word) { return Parsed<double>(word); }

}  // namespace lectern::headless
