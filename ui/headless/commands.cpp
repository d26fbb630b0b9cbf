#include "ui/headless/commands.h"

#include <algorithm>
#include <utility>

#include "base/text/characters.h"
#include "forms/bars_and_timer.h"
#include "forms/containers.h"
#include "forms/lists.h"
#include "forms/text_controls.h"

namespace lectern::headless {

Inspector::Inspector(ui::Program& the_program, std::function<void(const std::string&)> print)
    : program_(the_program), print_(std::move(print)) {}

std::optional<ShownItems> ItemsOf(const forms::Control& control) {
  if (const auto* list = dynamic_cast<const forms::ItemList*>(&control)) {
    ShownItems shown{{}, list->SelectedIndex()};
    for (int i = 0; i < list->ListCount(); ++i) shown.items.push_back(list->List(i));
    return shown;
  }
  if (const auto* combo = dynamic_cast<const forms::ComboBox*>(&control))
    return ShownItems{combo->Items(), -1};
  if (const auto* drives = dynamic_cast<const forms::DriveListBox*>(&control))
    return ShownItems{drives->Drives(), -1};
  if (const auto* folders = dynamic_cast<const forms::DirListBox*>(&control)) {
    ShownItems shown;
    for (const auto& entry : folders->Entries()) shown.items.push_back(entry.path);
    return shown;
  }
  return std::nullopt;
}

namespace {

// The usual spelling of a property that is read with an index or cannot be written.
std::string ReadName(const std::string& name) {
  for (const char* known : {"List", "ListCount", "Selected", "Sorted", "Point", "Image"}) {
    if (text::EqualFolded(name, known)) return known;
  }
  return name;
}

}  // namespace

void Inspector::Get(const std::vector<Word>& words) {
  if (words.size() != 1) throw Misunderstood{"one property is wanted"};
  const Target target = FindProperty(program_, words[0].text);
  std::string name = target.property;
  forms::Value value;
  const forms::PropertyBase* const property = target.Owner().FindProperty(target.property);
  if (property != nullptr && target.arguments.empty()) {
    name = property->Name();
    value = property->Read();
  } else if (target.control != nullptr &&
             target.control->ReadIndexed(target.property, target.arguments, value)) {
    name = ReadName(target.property);
  } else {
    throw Misunderstood{"no property " + words[0].text};
  }
  if (!target.arguments.empty()) {
    std::string inside;
    for (const int argument : target.arguments) {
      inside += (inside.empty() ? "(" : ",") + std::to_string(argument);
    }
    name += inside + ")";
  }
  print_(target.Name() + "." + name + " = " + ValueText(value));
}

void Inspector::Items(const std::vector<Word>& words) {
  if (words.size() != 1) throw Misunderstood{"a list is wanted"};
  const Target target = FindControl(program_, words[0].text);
  const std::optional<ShownItems> shown = ItemsOf(*target.control);
  if (!shown) throw Misunderstood{target.Name() + " has no items"};
  print_(target.Name() + ": " + std::to_string(shown->items.size()) + " items");
  for (std::size_t i = 0; i < shown->items.size(); ++i) {
    print_("  " + Quoted(shown->items[i]) + (static_cast<int>(i) == shown->selected ? " *" : ""));
  }
}

void Inspector::PrintMenu(const forms::Container& container, int level) {
  for (const forms::Control* child : container.Children()) {
    const auto* const entry = dynamic_cast<const forms::Menu*>(child);
    if (entry == nullptr) continue;
    print_(std::string(static_cast<std::size_t>(level) * 2, ' ') + Quoted(entry->Caption()) + " " +
           entry->FullName() + (entry->Checked ? " checked" : "") + (entry->Enabled ? "" : " disabled"));
    PrintMenu(*entry, level + 1);
  }
}

void Inspector::Menu(const std::vector<Word>& words) {
  if (words.size() > 1) throw Misunderstood{"one window is wanted"};
  PrintMenu(FindWindow(program_, words.empty() ? "Form1" : words[0].text), 0);
}

void Inspector::Controls(const std::vector<Word>& words) {
  if (words.size() != 1) throw Misunderstood{"a window is wanted"};
  for (const forms::Control* control : FindWindow(program_, words[0].text).Controls()) {
    print_(std::string(forms::KindName(control->GetKind())) + " " + control->FullName() + " " +
           control->Parent().ContainerName() + " " + (control->Visible ? "True" : "False"));
  }
}

struct ScriptedPerson::Command {
  std::string_view name;
  void (ScriptedPerson::*run)(const Target&, const std::vector<Word>&);
};

const std::vector<ScriptedPerson::Command>& ScriptedPerson::Commands() {
  static const std::vector<Command> kCommands = {
      {"click", &ScriptedPerson::Click},
      {"dblclick", &ScriptedPerson::DoubleClick},
      {"key", &ScriptedPerson::Key},
      {"type", &ScriptedPerson::Type},
      {"choose", &ScriptedPerson::Choose},
      {"scroll", &ScriptedPerson::Scroll},
      {"mousedown", &ScriptedPerson::MouseDown},
      {"mousemove", &ScriptedPerson::MouseMove},
  };
  return kCommands;
}

ScriptedPerson::ScriptedPerson(ui::Program& the_program, std::function<void(const std::string&)> print)
    : program_(the_program), print_(std::move(print)) {}

const ScriptedPerson::Command* ScriptedPerson::FindCommand(std::string_view name) {
  const std::vector<Command>& commands = Commands();
  const auto found = std::find_if(commands.begin(), commands.end(),
                                  [name](const Command& command) { return command.name == name; });
  return found == commands.end() ? nullptr : &*found;
}

bool ScriptedPerson::Knows(std::string_view command) { return FindCommand(command) != nullptr; }

void ScriptedPerson::Do(std::string_view command, const std::vector<Word>& words, Actor actor) {
  if (words.empty()) throw Misunderstood{"a control is wanted"};
  const Target target = FindControl(program_, words[0].text);
  if (Refused(target, actor)) return;
  (this->*FindCommand(command)->run)(target, words);
}

// Prints why a person cannot act on the control; whether that is so.
bool ScriptedPerson::Refused(const Target& target, Actor actor) {
  const forms::Refusal refusal =
      actor == Actor::kKeeper ? forms::Refusal::kNone : target.control->RefusesPerson();
  if (refusal == forms::Refusal::kDisabled) print_("refused: disabled");
  if (refusal == forms::Refusal::kHidden) print_("refused: hidden");
  return refusal != forms::Refusal::kNone;
}

void ScriptedPerson::Deliver(const Target& target, const std::function<void()>& event) {
  program_.Deliver(*target.window, event);
}

namespace {

// The item of a list that the words name, by its text or its index; -1 where they name none.
int NamedItem(const forms::ItemList& list, const std::vector<Word>& words) {
  if (words.size() < 2) return -1;
  const Word& wanted = words[1];
  int index = wanted.quoted ? -1 : ToWhole(wanted).value_or(-1);
  for (int i = 0; wanted.quoted && index < 0 && i < list.ListCount(); ++i) {
    if (list.List(i) == wanted.text) index = i;
  }
  if (index < 0 || index >= list.ListCount()) {
    throw Misunderstood{"no item " + (wanted.quoted ? Quoted(wanted.text) : wanted.text)};
  }
  return index;
}

}  // namespace

void ScriptedPerson::Click(const Target& target, const std::vector<Word>& words) {
  if (auto* list = dynamic_cast<forms::ItemList*>(target.control)) {
    if (words.size() > 2) throw Misunderstood{"one item is wanted"};
    const int index = NamedItem(*list, words);
    Deliver(target, [&] { list->PersonPicks(index); });
  } else {
    if (words.size() > 1) throw Misunderstood{target.Name() + " has no items to click"};
    Deliver(target, [&] { target.control->PersonClicks(); });
  }
}

void ScriptedPerson::DoubleClick(const Target& target, const std::vector<Word>& words) {
  Click(target, words);
  Deliver(target, [&] { target.control->DblClick(); });
}

void ScriptedPerson::Key(const Target& target, const std::vector<Word>& words) {
  const std::optional<int> code = words.size() == 2 ? ToWhole(words[1]) : std::nullopt;
  if (!code) throw Misunderstood{"the code of a key is wanted"};
  Deliver(target, [&] { target.control->PersonKeys(*code); });
}

void ScriptedPerson::Type(const Target& target, const std::vector<Word>& words) {
  if (words.size() != 2 || !words[1].quoted) throw Misunderstood{"a text is wanted"};
  const forms::Kind kind = target.control->GetKind();
  if (kind != forms::Kind::kTextBox && kind != forms::Kind::kComboBox && kind != forms::Kind::kRichTextBox) {
    throw Misunderstood{target.Name() + " takes no text"};
  }
  Deliver(target, [&] { target.control->PersonTypes(words[1].text); });
}

void ScriptedPerson::Choose(const Target& target, const std::vector<Word>& words) {
  if (words.size() != 2 || !words[1].quoted) throw Misunderstood{"an entry is wanted"};
  const std::string& entry = words[1].text;
  const std::optional<ShownItems> shown = ItemsOf(*target.control);
  if (!shown || std::find(shown->items.begin(), shown->items.end(), entry) == shown->items.end()) {
    throw Misunderstood{"no entry " + Quoted(entry)};
  }
  if (auto* drives = dynamic_cast<forms::DriveListBox*>(target.control)) {
    Deliver(target, [&] { drives->PersonChooses(entry); });
  } else if (auto* folders = dynamic_cast<forms::DirListBox*>(target.control)) {
    Deliver(target, [&] { folders->PersonOpens(entry); });
  } else {
    auto& combo = target.As<forms::ComboBox>();
    Deliver(target, [&] { combo.PersonChooses(entry); });
  }
}

void ScriptedPerson::Scroll(const Target& target, const std::vector<Word>& words) {
  const std::optional<int> value = words.size() == 2 ? ToWhole(words[1]) : std::nullopt;
  if (!value) throw Misunderstood{"a number is wanted"};
  auto& bar = target.As<forms::HScrollBar>();
  if (bar.InRange(*value)) {
    Deliver(target, [&] { bar.PersonScrolls(*value); });
  } else {
    print_("refused: range");
  }
}

namespace {

forms::MouseEvent ToMouseEvent(const std::vector<Word>& words) {
  const Misunderstood wanted{"button, shift, x and y are wanted"};
  if (words.size() != 5) throw wanted;
  const auto button = ToWhole(words[1]);
  const auto shift = ToWhole(words[2]);
  const auto x = ToReal(words[3]);
  const auto y = ToReal(words[4]);
  if (!button || !shift || !x || !y) throw wanted;
  return {*button, *shift, *x, *y};
}

}  // namespace

void ScriptedPerson::MouseDown(const Target& target, const std::vector<Word>& words) {
  const forms::MouseEvent mouse = ToMouseEvent(words);
  Deliver(target, [&] { target.control->PersonPresses(mouse); });
}

void ScriptedPerson::MouseMove(const Target& target, const std::vector<Word>& words) {
  const forms::MouseEvent mouse = ToMouseEvent(words);
  Deliver(target, [&] { target.control->PersonMoves(mouse); });
}

}  // namespace lectern::headless
