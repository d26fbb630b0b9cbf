#include "ui/headless/language.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

#include "base/text/characters.h"
#include "base/text/numbers.h"

namespace lectern::headless {

namespace {

// The character behind a backslash, and what it stands for; any other character has the form \xHH.
constexpr std::pair<char, char> kEscapes[] = {
    {'"', '"'}, {'\\', '\\'}, {'r', '\r'}, {'n', '\n'}, {'t', '\t'}};

void AppendQuoted(std::string& quoted, char c) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  const auto byte = static_cast<unsigned char>(c);
  for (const auto& [name, meaning] : kEscapes) {
    if (c == meaning) {
      quoted.append(1, '\\').append(1, name);
      return;
    }
  }
  if (byte < 0x20 || byte == 0x7F) {
    quoted.append("\\x").append(1, kDigits[byte >> 4]).append(1, kDigits[byte & 15]);
  } else {
    quoted.push_back(c);
  }
}

}  // namespace

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) AppendQuoted(quoted, c);
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

// Takes the escape at `at`, behind its backslash; false where it is unknown.
bool TakeEscape(std::string_view line, std::size_t& at, std::string& text) {
  if (at >= line.size()) return false;
  const char escape = line[at++];
  for (const auto& [name, meaning] : kEscapes) {
    if (escape == name) {
      text.push_back(meaning);
      return true;
    }
  }
  if (escape != 'x') return false;
  unsigned value = 0;
  const std::string_view digits = line.substr(at, 2);
  const auto [end, failure] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
  if (failure != std::errc{} || digits.size() != 2 || end != digits.data() + 2) return false;
  at += 2;
  text::AppendCharacter(text, value);
  return true;
}

bool TakeQuoted(std::string_view line, std::size_t& at, std::string& text) {
  while (at < line.size() && line[at] != '"') {
    if (line[at] == '\\') {
      ++at;
      if (!TakeEscape(line, at, text)) return false;
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
  if (!std::isfinite(static_cast<double>(number))) return std::nullopt;  // "inf" and "nan" are words
  return number;
}

}  // namespace

std::optional<int> ToWhole(const Word& word) { return Parsed<int>(word); }
std::optional<double> ToReal(const Word& word) { return Parsed<double>(word); }

namespace {

struct Element {
  std::string name;
  std::optional<std::vector<int>> arguments;
};

// "Form1.LBLMRK(2).Caption": the elements between the dots, each with its arguments.
std::vector<Element> Elements(std::string_view name) {
  std::vector<Element> elements;
  while (!name.empty()) {
    const std::size_t end = std::min(name.find_first_of(".("), name.size());
    Element element{std::string(name.substr(0, end)), std::nullopt};
    name.remove_prefix(end);
    if (!name.empty() && name[0] == '(') {
      const std::size_t close = name.find(')');
      if (close == std::string_view::npos) throw Misunderstood{"a bracket is not closed"};
      element.arguments.emplace();
      std::string_view inside = name.substr(1, close - 1);
      while (!inside.empty()) {
        const std::size_t comma = std::min(inside.find(','), inside.size());
        std::string_view digits = inside.substr(0, comma);
        while (digits.starts_with(' ')) digits.remove_prefix(1);
        const auto number = ToWhole({std::string(digits), false});
        if (!number) throw Misunderstood{"a number is wanted in the brackets"};
        element.arguments->push_back(*number);
        inside.remove_prefix(std::min(comma + 1, inside.size()));
      }
      name.remove_prefix(close + 1);
    }
    if (!name.empty() && name[0] != '.') throw Misunderstood{"a dot is wanted between names"};
    if (!name.empty()) name.remove_prefix(1);
    elements.push_back(std::move(element));
  }
  return elements;
}

}  // namespace

std::string Target::Name() const {
  return control == nullptr ? window->Name() : window->Name() + "." + control->FullName();
}

forms::Window& FindWindow(ui::Program& program, std::string_view name) {
  forms::Window* const window = program.Touch(name);
  if (window == nullptr) throw Misunderstood{"no window " + std::string(name)};
  return *window;
}

Target FindControl(ui::Program& program, std::string_view name) {
  const std::vector<Element> elements = Elements(name);
  if (elements.size() != 2) throw Misunderstood{"no control " + std::string(name)};
  Target target;
  target.window = &FindWindow(program, elements[0].name);
  const auto& index = elements[1].arguments;
  if (index && index->size() != 1) throw Misunderstood{"one index is wanted"};
  target.control = target.window->Find(elements[1].name, index ? (*index)[0] : -1);
  if (target.control == nullptr) throw Misunderstood{"no control " + std::string(name)};
  return target;
}

Target FindProperty(ui::Program& program, std::string_view name) {
  const std::vector<Element> elements = Elements(name);
  if (elements.size() < 2 || elements.size() > 3) throw Misunderstood{"no property " + std::string(name)};
  Target target;
  if (elements.size() == 3) {
    target = FindControl(program, name.substr(0, name.rfind('.')));
  } else {
    target.window = &FindWindow(program, elements[0].name);
  }
  target.property = elements.back().name;
  target.arguments = elements.back().arguments.value_or(std::vector<int>{});
  return target;
}

}  // namespace lectern::headless
