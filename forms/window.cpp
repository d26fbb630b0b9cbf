#include "forms/window.h"

#include <algorithm>
#include <cassert>
#include <memory>
#include <utility>

#include "base/errors.h"
#include "base/text/characters.h"
#include "forms/large_picture.h"
#include "forms/picture_file.h"

namespace lectern::forms {

Window::Window(Services services, std::string name, std::string_view caption)
    : Caption(*this, "Caption", std::string(caption)),
      Title(*this, "Title"),
      Visible(*this, "Visible", false,
              {.change =
                   [this] {
                     if (Visible) return;
                     for (Control* control : controls_) control->WindowWasHidden();
                   }}),
      Left(*this, "Left"),
      Top(*this, "Top"),
      Width(*this, "Width"),
      Height(*this, "Height"),
      BackColor(*this, "BackColor", kButtonFace),
      ForeColor(*this, "ForeColor", kButtonText),
      MousePointer(*this, "MousePointer", kPointerDefault),
      CurrentX(*this, "CurrentX"),
      CurrentY(*this, "CurrentY"),
      services_(services),
      name_(std::move(name)),
      slots_(services.files) {}

Picture Window::LoadPicture(std::string_view name) const {
  if (Files().Length(name) > kLargestPictureFile)
    throw base::RunTimeError(base::ErrorNumber::kInvalidPicture);
  files::Contents contents;
  Files().Read(name, contents);
  Picture picture = Platform().DecodePicture(contents.Bytes());
  if (picture.Source() != nullptr || !LargePicture::IsLarge(*picture)) return picture;
  files::Descriptor file = Files().Open(name);
  if (!file.IsOpen()) return picture;
  return Picture(
      std::make_unique<const LargePicture>(*picture, Platform(), std::move(file), contents.Bytes().size()));
}

void Window::SavePicture(const Picture& picture, std::string_view name) const {
  if (!picture) throw base::RunTimeError(base::ErrorNumber::kObjectRequired);
  Files().Replace(name, BmpBytes(*picture), files::Lasting::kNo);
}

void Window::SavePictureKeepingBackup(const Picture& picture, std::string_view name) const {
  if (!picture) throw base::RunTimeError(base::ErrorNumber::kObjectRequired);
  Files().ReplaceKeepingBackup(name, BmpBytes(*picture));
}

Control* Window::Find(std::string_view name, int index) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(), [&](const Control* control) {
    return control->Index() == index && text::EqualFolded(control->Name(), name);
  });
  return found == controls_.end() ? nullptr : *found;
}

bool Window::HasMenuBar() const {
  return std::any_of(Children().begin(), Children().end(),
                     [](const Control* child) { return child->GetKind() == Kind::kMenu; });
}

double Window::ClientWidth() const { return std::max(Width() - kFrameWidth, 0.0); }

double Window::ClientHeight() const {
  return std::max(Height() - kFrameHeight - (HasMenuBar() ? kMenuBarHeight : 0), 0.0);
}

void Window::PersonMovesFocus(PlacedControl* control) {
  assert(control == nullptr || &control->HostWindow() == this);
  if (control == focus_) return;
  PlacedControl* const before = std::exchange(focus_, control);
  if (before != nullptr) before->LostFocus();
}

void Window::GiveFocus(PlacedControl& control) {
  PersonMovesFocus(&control);
  if (View* view = control.AttachedView()) view->TakeFocus();
}

void Window::BringToFront() const {
  if (View* view = AttachedView()) view->TakeFocus();
}

bool Window::PressButtonIn(const Container& panel, const std::function<bool(const Control*)>& meant) {
  assert(meant);
  const auto found = std::find_if(
      panel.Children().begin(), panel.Children().end(),
      [&](const Control* child) { return meant(child) && child->RefusesPerson() == Refusal::kNone; });
  if (found == panel.Children().end()) return false;
  (*found)->PersonClicks();
  return true;
}

void Window::PressCancelOfFrontPanel() {
  std::vector<Control*> panels;
  for (Control* child : Children()) {
    if (dynamic_cast<Container*>(child) != nullptr && child->IsShown()) panels.push_back(child);
  }
  std::stable_sort(panels.begin(), panels.end(),
                   [](const Control* a, const Control* b) { return a->ShownAt() > b->ShownAt(); });
  const auto cancels = [](const Control* button) { return button->IsCancelButton(); };
  for (Control* panel : panels) {
    if (PressButtonIn(dynamic_cast<Container&>(*panel), cancels)) return;
  }
  PressButtonIn(*this, cancels);
}

}  // namespace lectern::forms
