// The driver's language: its words and values ("text" with escapes, bare numbers, True and False), and what
// its names stand for: "Form1", "Form1.LBLMRK(2)", "Form1.lst.List(3)". Names are matched without regard to
// case.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/program.h"

namespace lectern::headless {

// A command that is not understood, and why.
struct Misunderstood {
  std::string reason;
};

std::string Quoted(std::string_view text);
std::string ValueText(const forms::Value& value);

// One word of a command: a bare word, or a text that stood in quotes.
struct Word {
  std::string text;
  bool quoted = false;
};

// The words of a line; nothing where a quote is not closed or an escape is unknown.
std::optional<std::vector<Word>> Words(std::string_view line);

// The value that a word stands for; nothing for a bare word that is not a value.
std::optional<forms::Value> ToValue(const Word& word);

// A bare number, whole or not.
std::optional<int> ToWhole(const Word& word);
std::optional<double> ToReal(const Word& word);

struct Target {
  forms::Window* window = nullptr;
  forms::Control* control = nullptr;  // nullptr where the window itself is meant
  std::string property;
  std::vector<int> arguments;  // of the property

  forms::PropertyOwner& Owner() const {
    return control != nullptr ? static_cast<forms::PropertyOwner&>(*control) : *window;
  }
  std::string Name() const;  // "Form1.LBLMRK(2)"

  template <class Kind>
  Kind& As() const {
    auto* const cast = dynamic_cast<Kind*>(control);
    if (cast == nullptr) throw Misunderstood{Name() + " is no control of that kind"};
    return *cast;
  }
};

// Each makes the window that the name begins with, as any first use does, and throws Misunderstood where
// nothing has that name.
forms::Window& FindWindow(ui::Program& program, std::string_view name);
Target FindControl(ui::Program& program, std::string_view name);
Target FindProperty(ui::Program& program, std::string_view name);

}  // namespace lectern::headless
