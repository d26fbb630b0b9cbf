#include "ui/headless/inspector.h"

#include <utility>

#include "base/text/letter_case.h"
#include "forms/combo_box.h"
#include "forms/folder_lists.h"
#include "forms/list_box.h"
#include "forms/menu.h"

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

// The name of what is read by an index or only read, as it is written everywhere.
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

}  // namespace lectern::headless
