#include "forms/control.h"

#include <algorithm>
#include <utility>

#include "forms/window.h"

namespace lectern::forms {

const char* KindName(Kind kind) {
  // In the order of the enumeration.
  constexpr const char* kNames[] = {
      "Label",      "TextBox",      "ListBox",     "ComboBox",    "CommandButton", "OptionButton", "Menu",
      "HScrollBar", "Timer",        "Frame",       "PictureBox",  "Image",         "Shape",        "Line",
      "DirListBox", "DriveListBox", "FileListBox", "RichTextBox", "ProgressBar",   "SSCommand",    "SSOption",
  };
  const auto index = static_cast<std::size_t>(kind);
  assert(index < std::size(kNames));
  return kNames[index];
}

namespace {

// What a screen reader says for a caption: without the mark of its access key.
std::string Spoken(std::string_view caption) {
  std::string spoken(caption);
  std::erase(spoken, '&');
  return spoken;
}

}  // namespace

Control::Control(Container& parent, Kind kind, std::string name, const CommonDesign& design)
    : Enabled(*this, "Enabled", design.enabled),
      Visible(*this, "Visible", design.visible,
              {.change =
                   [this] {
                     if (Visible) shown_at_ = HostWindow().CountShowing();
                   }}),
      kind_(kind),
      name_(std::move(name)),
      parent_(parent),
      accessible_name_(design.name.empty() ? Spoken(design.caption) : design.name),
      has_name_of_its_own_(!design.name.empty()),
      is_echo_(design.is_echo),
      is_default_(design.is_default),
      is_cancel_(design.is_cancel) {
  assert(!name_.empty());
  parent_.children_.push_back(this);
  HostWindow().controls_.push_back(this);
}

Control::~Control() {
  std::erase(parent_.children_, this);
  std::erase(HostWindow().controls_, this);
}

void Control::CallIt(std::string name) {
  accessible_name_ = std::move(name);
  has_name_of_its_own_ = true;
  TellView();
}

std::string Control::FullName() const {
  return index_ < 0 ? name_ : name_ + "(" + std::to_string(index_) + ")";
}

bool Control::IsShown() const { return Visible && parent_.IsShown(); }

Refusal Control::RefusesPerson() const {
  if (!IsShown()) return Refusal::kHidden;
  return Enabled ? Refusal::kNone : Refusal::kDisabled;
}

bool Control::ReadIndexed(std::string_view /*property*/, const std::vector<int>& /*arguments*/,
                          Value& /*value*/) const {
  return false;
}

void Control::PersonClicks() {
  PersonPresses({});
  Click();
}

void Control::PersonDoubleClicks() {
  PersonClicks();
  DblClick();
}

void Control::PersonPresses(const MouseEvent& mouse) { MouseDown(mouse); }
void Control::PersonMoves(const MouseEvent& mouse) { MouseMove(mouse); }
void Control::PersonTypes(const std::string& /*text*/) {}

void Control::PersonKeys(int code) {
  KeyDown(code);
  if (code != kEnterKey && code != kEscapeKey) return;
  const auto pressed_by = [code](const Control* button) {
    return code == kEnterKey ? button->IsDefaultButton() : button->IsCancelButton();
  };
  for (Container* panel = &parent_; panel != nullptr; panel = panel->Outer()) {
    // A panel that lies over the window is closed before the window itself.
    if (code == kEscapeKey && panel->Outer() == nullptr) break;
    if (HostWindow().PressButtonIn(*panel, pressed_by)) return;
  }
  if (code == kEscapeKey) HostWindow().PressCancelOfFrontPanel();
}

PlacedControl::PlacedControl(Container& parent, Kind kind, std::string name, const CommonDesign& design)
    : Control(parent, kind, std::move(name), design),
      Left(*this, "Left"),
      Top(*this, "Top"),
      Width(*this, "Width", 0, {.change = [this] { SizeWritten(); }}),
      Height(*this, "Height", 0, {.change = [this] { SizeWritten(); }}),
      MousePointer(*this, "MousePointer", kPointerDefault),
      BackColor(*this, "BackColor", design.back_color),
      ForeColor(*this, "ForeColor", design.fore_color) {}

void PlacedControl::SetFocus() { HostWindow().GiveFocus(*this); }

TextControl::TextControl(Container& parent, Kind kind, std::string name, const CommonDesign& design)
    : PlacedControl(parent, kind, std::move(name), design),
      FontName(*this, "FontName"),
      FontSize(*this, "FontSize", 0,
               {.refuse =
                    [](double size) {
                      constexpr double kLargest = 2160;
                      if (!(size >= 1 && size <= kLargest)) {
                        throw base::RunTimeError(base::ErrorNumber::kInvalidProperty);
                      }
                    }}),
      FontBold(*this, "FontBold"),
      FontItalic(*this, "FontItalic") {}

}  // namespace lectern::forms
