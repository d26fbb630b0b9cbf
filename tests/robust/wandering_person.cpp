#include "tests/robust/wandering_person.h"

#include <algorithm>
#include <iterator>

#include "forms/combo_box.h"
#include "forms/folder_lists.h"
#include "forms/list_box.h"
#include "forms/rich_text_box.h"
#include "forms/scroll_bar.h"
#include "ui/headless/inspector.h"

namespace lectern {

using forms::Kind;
using headless::Quoted;

namespace {

std::string NameOf(const forms::Control& control) {
  return control.HostWindow().Name() + "." + control.FullName();
}

// Whether it lies on the window, and not beyond its edge with the tools that nobody sees.
bool IsInSight(const forms::Control& control) {
  const auto* placed = dynamic_cast<const forms::PlacedControl*>(&control);
  if (placed == nullptr) return true;
  const auto* panel = dynamic_cast<const forms::Control*>(&control.Parent());
  if (panel != nullptr && !IsInSight(*panel)) return false;
  return panel != nullptr || placed->Left < control.HostWindow().ClientWidth();
}

}  // namespace

std::string WanderingPerson::Text() {
  static const std::vector<std::string> kTexts = {
      "",
      "river",
      "the",
      "harp",
      "zion",
      "the well",
      "a\"b/c\\d",
      "first",
      "second",
      "bad:name",
      "Genesis",
      "Exodus 2",
      "1 Samuel",
      "2",
      "-3",
      "99",
      "123456789",
      "tent",
      "Größe",
      "\xCE\xBB\xCF\x8C\xCE\xB3\xCE\xBF\xCF\x82",
      "12",
      "Bold",
      "a\r\nb",
      ",\"",
      "Codex, King James Version\r\n\r\nJoel\r\n[1]In the beginning\r\n[2]was"};
  if (OneIn(40)) return std::string(2000, 'x');
  return kTexts[Below(kTexts.size())];
}

std::string WanderingPerson::Number() {
  static const std::vector<std::string> kNumbers = {"-1", "0", "1", "2", "3", "5", "25", "66", "100", "1000"};
  return kNumbers[Below(kNumbers.size())];
}

bool WanderingPerson::Avoids(std::string_view name) const {
  return std::find(avoids.begin(), avoids.end(), name) != avoids.end();
}

bool WanderingPerson::IsWorthwhile(const forms::Control& control) const {
  switch (control.GetKind()) {
    case Kind::kFrame:
    case Kind::kLine:
    case Kind::kShape:
    case Kind::kProgressBar:
    case Kind::kTimer:
      return reach_ == Reach::kKeeper;
    default:
      return reach_ == Reach::kKeeper ||
             (control.RefusesPerson() == forms::Refusal::kNone && IsInSight(control));
  }
}

// A window that is shown, and a control on it: now and then any, often one of those that do more than menu
// entries and labels.
forms::Control& WanderingPerson::PickControl(headless::Driver& driver) {
  const auto& all = driver.Program().windows.All();
  std::vector<forms::Window*> shown;
  for (forms::Window* window : all) {
    if (window->Visible || reach_ == Reach::kKeeper) shown.push_back(window);
  }
  const forms::Window& window = *shown[Below(shown.size())];
  const bool choosy = !OneIn(3);
  std::vector<forms::Control*> controls;
  for (forms::Control* control : window.Controls()) {
    const bool plain = control->GetKind() == Kind::kMenu || control->GetKind() == Kind::kLabel;
    if ((!plain || !choosy) && IsWorthwhile(*control) && !Avoids(NameOf(*control))) {
      controls.push_back(control);
    }
  }
  return controls.empty() ? *window.Controls().front() : *controls[Below(controls.size())];
}

std::string WanderingPerson::ActAt(forms::Control& control, const std::string& folder) {
  const std::string bang = reach_ == Reach::kKeeper ? "! " : " ";
  const std::string name = NameOf(control);
  const auto mouse = [&](const char* act) {
    return act + bang + name + " " + std::to_string(Below(3)) + " 0 " + std::to_string(Below(400)) + " " +
           std::to_string(Below(300));
  };
  if (const auto* list = dynamic_cast<const forms::ItemList*>(&control)) {
    const std::string act = OneIn(8) ? "dblclick" : "click";
    if (OneIn(20)) return "key" + bang + name + " 13";
    if (list->ListCount() == 0 || OneIn(10)) return act + bang + name;
    return act + bang + name + " " + std::to_string(Below(static_cast<std::size_t>(list->ListCount())));
  }
  if (const auto* bar = dynamic_cast<const forms::HScrollBar*>(&control)) {
    const int room = std::max(bar->Max - bar->Min, 0);
    return "scroll" + bang + name + " " +
           std::to_string(bar->Min + static_cast<int>(Below(static_cast<std::size_t>(room) + 1)));
  }
  if (dynamic_cast<const forms::DirListBox*>(&control) != nullptr) {
    // Nobody strays out of the test's own folder.
    std::vector<std::string> inside;
    const auto items = headless::ItemsOf(control)->items;
    std::copy_if(items.begin(), items.end(), std::back_inserter(inside),
                 [&](const std::string& item) { return item.starts_with(folder); });
    return inside.empty() ? "tick" : "choose" + bang + name + " " + Quoted(inside[Below(inside.size())]);
  }
  switch (control.GetKind()) {
    case Kind::kTextBox:
      return OneIn(6) ? "key" + bang + name + " 13" : "type" + bang + name + " " + Quoted(Text());
    case Kind::kRichTextBox:
      if (dynamic_cast<const forms::RichTextBox&>(control).ReadOnly()) return "click" + bang + name;
      return "type" + bang + name + " " + Quoted(Text());
    case Kind::kComboBox:
    case Kind::kDriveListBox: {
      const auto items = headless::ItemsOf(control)->items;
      if (items.empty() || OneIn(4)) return "type" + bang + name + " " + Quoted(Text());
      return "choose" + bang + name + " " + Quoted(items[Below(items.size())]);
    }
    case Kind::kPictureBox:
      return OneIn(3) ? "click" + bang + name : mouse(OneIn(2) ? "mousedown" : "mousemove");
    case Kind::kLabel:
      return OneIn(2) ? "click" + bang + name : mouse("mousedown");
    default:
      return "click" + bang + name;
  }
}

// Any property as the program's own code writes it, in reason.
std::string WanderingPerson::Write(forms::Control& control) {
  static const std::vector<std::string> kProperties = {
      "Caption",  "Text",     "Value",     "Max",     "Visible",    "Enabled",   "Selected(0)",
      "SelStart", "Picture",  "SelLength", "SelText", "AutoRedraw", "DrawWidth", "DrawMode",
      "Interval", "FontSize", "Stretch",   "Width",   "SelColor",   "AutoSize"};
  const std::string& property = kProperties[Below(kProperties.size())];
  const std::string value = OneIn(3) ? Number() : OneIn(2) ? Quoted(Text()) : OneIn(2) ? "True" : "False";
  return "set " + NameOf(control) + "." + property + " = " + value;
}

std::vector<std::string> WanderingPerson::Next(headless::Driver& driver, const std::string& folder) {
  if (OneIn(12)) return {"run " + Number().substr(0, 2)};
  if (OneIn(150)) return {"run 80"};
  if (OneIn(300)) return {OneIn(2) ? "printer on" : "printer off"};
  if (OneIn(100)) {
    const auto& all = driver.Program().windows.All();
    const std::string& name = all[Below(all.size())]->Name();
    if (name != "Form1" || OneIn(5)) return {"close " + name};
  }
  if (reach_ == Reach::kKeeper && OneIn(40)) {
    static const std::vector<std::string> kRoutines = {
        "ConvertPicsDat", "ShowPicsDatPicture", "ListChapterPictures", "PrintPaintPicture", "OpenWebPage",
        "HelpTips",       "HelpNotes"};
    return {"call " + kRoutines[Below(kRoutines.size())]};
  }
  forms::Control& control = PickControl(driver);
  const std::string name = NameOf(control);
  if ((name == "Form1.Command1" || name == "Form1.xx") && !OneIn(20)) return {"tick"};
  if (reach_ == Reach::kKeeper && OneIn(10)) return {Write(control)};

  std::vector<std::string> commands;
  // These ask for a name, or whether something is meant; the next one may find the answer, too.
  static const std::vector<std::string> kAsking = {"Form1.Command10", "Form3.Command2",  "Form3.f4",
                                                   "Form4.Command2",  "Form3.Command12", "Form3.f8"};
  if (std::find(kAsking.begin(), kAsking.end(), name) != kAsking.end() && !OneIn(4)) {
    commands.push_back("answer " + (OneIn(2) ? Quoted(Text()) : std::string(OneIn(3) ? "no" : "yes")));
  }
  if (name == "Form1.Command29") {
    // Numbers of its own, so that the draws are the same each time.
    std::string numbers = "random";
    for (int i = 0; i < 12; ++i) numbers += " 0." + std::to_string(10 + Below(90));
    commands.push_back(numbers);
  }
  commands.push_back(ActAt(control, folder));
  return commands;
}

}  // namespace lectern
