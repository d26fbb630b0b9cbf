// What the commands of the driver's language do at the windows: those that look, and those that play the
// person. The latter use the entry points that a screen uses; a control that a person cannot reach answers so
// and is left alone, unless the keeper acts, who reaches everything.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ui/headless/language.h"

namespace lectern::headless {

// What a list of any kind shows, and which item is selected (-1 for none).
struct ShownItems {
  std::vector<std::string> items;
  int selected = -1;
};

// Nothing where the control has no items.
std::optional<ShownItems> ItemsOf(const forms::Control& control);

// Prints properties, items, menus and controls. It changes nothing, except that naming a window makes it.
class Inspector {
 public:
  Inspector(ui::Program& the_program, std::function<void(const std::string&)> print);

  void Get(const std::vector<Word>& words);
  void Items(const std::vector<Word>& words);
  void Menu(const std::vector<Word>& words);
  void Controls(const std::vector<Word>& words);

 private:
  void PrintMenu(const forms::Container& container, int level);

  ui::Program& program_;
  std::function<void(const std::string&)> print_;
};

enum class Actor { kReader, kKeeper };

class ScriptedPerson {
 public:
  ScriptedPerson(ui::Program& the_program, std::function<void(const std::string&)> print);

  // Whether the name is one of the commands that play the person.
  static bool Knows(std::string_view command);
  // Requires: Knows(command).
  void Do(std::string_view command, const std::vector<Word>& words, Actor actor);

 private:
  bool Refused(const Target& target, Actor actor);
  void Deliver(const Target& target, const std::function<void()>& event);

  void Click(const Target& target, const std::vector<Word>& words);
  void DoubleClick(const Target& target, const std::vector<Word>& words);
  void Key(const Target& target, const std::vector<Word>& words);
  void Type(const Target& target, const std::vector<Word>& words);
  void Choose(const Target& target, const std::vector<Word>& words);
  void Scroll(const Target& target, const std::vector<Word>& words);
  void MouseDown(const Target& target, const std::vector<Word>& words);
  void MouseMove(const Target& target, const std::vector<Word>& words);

  struct Command;
  static const std::vector<Command>& Commands();
  static const Command* FindCommand(std::string_view name);  // nullptr where there is none

  ui::Program& program_;
  std::function<void(const std::string&)> print_;
};

}  // namespace lectern::headless
