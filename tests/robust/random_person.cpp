#include "tests/robust/random_person.h"

#include <algorithm>

#include "forms/bars_and_timer.h"
#include "forms/lists.h"
#include "forms/rich_text_box.h"
#include "ui/headless/driver.h"

namespace lectern {

using forms::Kind;
using headless::Quoted;
using Texts = std::vector<std::string>;

namespace {

std::string NameOf(const forms::Control& control) {
  return control.HostWindow().Name() + "." + control.FullName();
}

// Whether a person can come to see it.
bool IsInSight(const forms::Control& control) {
  const auto* placed = dynamic_cast<const forms::PlacedControl*>(&control);
  if (placed != nullptr && placed->IsStorage()) return false;
  const auto* panel = dynamic_cast<const forms::Control*>(&control.Parent());
  return panel == nullptr || IsInSight(*panel);
}

}  // namespace

std::string RandomPerson::Text() {
  static const std::string kSource = "Codex, King James Version\r\n\r\nJoel\r\n[1]In the beginning\r\n[2]was";
  static const Texts kTexts = {"",      "river",  "the",       "harp",    "zion",     "the well", "a\"b/c\\d",
                               "first", "second", "bad:name",  "Genesis", "Exodus 2", "1 Samuel", "2",
                               "-3",    "99",     "123456789", "tent",    "Größe",    "λόγος",    "12",
                               "Bold",  "a\r\nb", ",\"",       kSource};
  return OneIn(40) ? std::string(2000, 'x') : AnyOf(kTexts);
}

std::string RandomPerson::Number() {
  static const Texts kNumbers = {"-1", "0", "1", "2", "3", "5", "25", "66", "100", "1000"};
  return AnyOf(kNumbers);
}

bool RandomPerson::IsWorthwhile(const forms::Control& control) const {
  if (avoids.contains(NameOf(control))) return false;
  if (reach_ == Reach::kKeeper) return true;
  const Kind kind = control.GetKind();
  return kind != Kind::kFrame && kind != Kind::kLine && kind != Kind::kShape && kind != Kind::kProgressBar &&
         kind != Kind::kTimer && control.RefusesPerson() == forms::Refusal::kNone && IsInSight(control);
}

// A control on a window that is shown; two times in three not one of the many menu entries and labels.
forms::Control& RandomPerson::PickControl(headless::Driver& driver) {
  std::vector<forms::Window*> shown;
  for (forms::Window* window : driver.Program().windows.All()) {
    if (window->Visible || reach_ == Reach::kKeeper) shown.push_back(window);
  }
  const forms::Window& window = *shown[Below(shown.size())];
  const bool choosy = !OneIn(3);
  std::vector<forms::Control*> controls;
  for (forms::Control* control : window.Controls()) {
    const bool plain = control->GetKind() == Kind::kMenu || control->GetKind() == Kind::kLabel;
    if ((!plain || !choosy) && IsWorthwhile(*control)) controls.push_back(control);
  }
  return controls.empty() ? *window.Controls().front() : *controls[Below(controls.size())];
}

std::string RandomPerson::ActOn(forms::Control& control, const std::string& folder) {
  const auto act = [&](const std::string& verb, const std::string& rest = "") {
    return verb + (reach_ == Reach::kKeeper ? "! " : " ") + NameOf(control) +
           (rest.empty() ? "" : " " + rest);
  };
  const auto mouse = [&](const char* verb) {
    return act(verb, std::to_string(Below(3)) + " 0 " + std::to_string(Below(400)) + " " +
                         std::to_string(Below(300)));
  };
  if (const auto* list = dynamic_cast<const forms::ItemList*>(&control)) {
    if (OneIn(20)) return act("key", "13");
    const auto count = static_cast<std::size_t>(list->ListCount());
    return act(OneIn(8) ? "dblclick" : "click", count == 0 || OneIn(10) ? "" : std::to_string(Below(count)));
  }
  if (const auto* bar = dynamic_cast<const forms::HScrollBar*>(&control)) {
    const auto range = static_cast<std::size_t>(std::max(bar->Max - bar->Min, 0));
    return act("scroll", std::to_string(bar->Min + static_cast<int>(Below(range + 1))));
  }
  Texts items;
  if (const auto all = headless::ItemsOf(control)) items = all->items;
  if (dynamic_cast<const forms::DirListBox*>(&control) != nullptr) {
    // Nobody strays out of the test's own folder.
    std::erase_if(items, [&](const std::string& item) { return !item.starts_with(folder); });
    return items.empty() ? "tick" : act("choose", Quoted(AnyOf(items)));
  }
  switch (control.GetKind()) {
    case Kind::kTextBox:
      return OneIn(6) ? act("key", "13") : act("type", Quoted(Text()));
    case Kind::kRichTextBox:
      return dynamic_cast<const forms::RichTextBox&>(control).ReadOnly() ? act("click")
                                                                         : act("type", Quoted(Text()));
    case Kind::kComboBox:
    case Kind::kDriveListBox:
      return items.empty() || OneIn(4) ? act("type", Quoted(Text())) : act("choose", Quoted(AnyOf(items)));
    case Kind::kPictureBox:
      return OneIn(3) ? act("click") : mouse(OneIn(2) ? "mousedown" : "mousemove");
    case Kind::kLabel:
      return OneIn(2) ? act("click") : mouse("mousedown");
    default:
      return act("click");
  }
}

// Any property, as the program's own code writes it, within reason.
std::string RandomPerson::Write(const std::string& control) {
  static const Texts kProperties = {"Caption",  "Text",        "Value",     "Max",      "Visible",
                                    "Enabled",  "Selected(0)", "SelStart",  "Picture",  "SelLength",
                                    "SelText",  "AutoRedraw",  "DrawWidth", "DrawMode", "Interval",
                                    "FontSize", "Stretch",     "Width",     "SelColor", "AutoSize"};
  const std::string value = OneIn(3) ? Number() : OneIn(2) ? Quoted(Text()) : OneIn(2) ? "True" : "False";
  return "set " + control + "." + AnyOf(kProperties) + " = " + value;
}

Texts RandomPerson::Next(headless::Driver& driver, const std::string& folder) {
  if (OneIn(12)) return {"run " + Number().substr(0, 2)};
  if (OneIn(150)) return {"run 80"};
  if (OneIn(300)) return {OneIn(2) ? "printer on" : "printer off"};
  if (OneIn(100)) {
    const auto& all = driver.Program().windows.All();
    const std::string& name = all[Below(all.size())]->Name();
    if (name != "Form1" || OneIn(5)) return {"close " + name};
  }
  if (reach_ == Reach::kKeeper && OneIn(40)) {
    static const Texts kRoutines = {"ConvertPicsDat",    "ShowPicsDatPicture", "ListChapterPictures",
                                    "PrintPaintPicture", "OpenWebPage",        "HelpTips",
                                    "HelpNotes"};
    return {"call " + AnyOf(kRoutines)};
  }
  forms::Control& control = PickControl(driver);
  const std::string name = NameOf(control);
  if ((name == "Form1.Command1" || name == "Form1.xx") && !OneIn(20)) return {"tick"};
  if (reach_ == Reach::kKeeper && OneIn(10)) return {Write(name)};

  Texts commands;
  // These ask for a name or a confirmation; a later question may find the answer, too.
  static const std::set<std::string> kAsking = {"Form1.Command10", "Form3.Command2",  "Form3.f4",
                                                "Form4.Command2",  "Form3.Command12", "Form3.f8"};
  if (kAsking.contains(name) && !OneIn(4)) {
    commands.push_back("answer " + (OneIn(2) ? Quoted(Text()) : std::string(OneIn(3) ? "no" : "yes")));
  }
  if (control.Parent().ContainerName() == "Picture17") {
    // Random numbers of this seed, so that the questions drawn are the same each time.
    std::string numbers = "random";
    for (int i = 0; i < 12; ++i) numbers += " 0." + std::to_string(10 + Below(90));
    commands.push_back(numbers);
  }
  commands.push_back(ActOn(control, folder));
  return commands;
}

}  // namespace lectern
