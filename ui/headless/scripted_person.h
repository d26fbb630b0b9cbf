// The commands that play the person: clicks, keys, typing, scrolling, the mouse. They come in by the entry
// points that a screen uses. A control that a person could not reach answers so and is left alone, unless
// it is the keeper's hand, which reaches everything.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ui/headless/names.h"

namespace lectern::headless {

enum class Hand { kReader, kKeeper };

class ScriptedPerson {
 public:
  ScriptedPerson(ui::Program& the_program, std::function<void(const std::string&)> print);

  // Whether the name is a command of these.
  static bool Knows(std::string_view command);
  void Do(std::string_view command, const std::vector<Word>& words, Hand hand);

 private:
  bool Refused(const Target& target, Hand hand);
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

  ui::Program& program_;
  std::function<void(const std::string&)> print_;
};

}  // namespace lectern::headless
