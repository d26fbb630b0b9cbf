#include "ui/headless/names.h"

#include <algorithm>
#include <optional>

namespace lectern::headless {

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
