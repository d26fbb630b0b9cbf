// A control: a plain object that holds its state under the names that the handlers use. A layer shows it and
// delivers what a person does; without a layer it works the same.
//
// A control belongs to the window or the panel it is made in, which outlives it, and never moves in memory.
// Places and sizes are in twips (1/1440 inch, 15 to a pixel at 96 dots an inch), within the parent.
#pragma once

#include <cassert>
#include <deque>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/colour.h"
#include "forms/property.h"

namespace lectern::forms {

class Container;
class Control;
class Window;

inline constexpr int kPointerDefault = 0;
inline constexpr int kPointerArrow = 1;
inline constexpr int kPointerHourglass = 11;
inline constexpr int kPointerCustom = 99;  // shows the control's MouseIcon

inline constexpr int kEnterKey = 13;
inline constexpr int kEscapeKey = 27;

enum class Kind {
  kLabel,
  kTextBox,
  kListBox,
  kComboBox,
  kCommandButton,
  kOptionButton,
  kMenu,
  kHScrollBar,
  kTimer,
  kFrame,
  kPictureBox,
  kImage,
  kShape,
  kLine,
  kDirListBox,
  kDriveListBox,
  kFileListBox,
  kRichTextBox,
  kProgressBar,
  kSSCommand,
  kSSOption,
};

const char* KindName(Kind kind);

// The state that a control is made with, before any handler runs, is an aggregate of its kind's own, such as
// LabelDesign or TimerDesign. This is the part of it that the kinds have in common.
struct CommonDesign {
  template <class KindsDesign>
  CommonDesign(const KindsDesign& design) {  // NOLINT: a kind hands its own design on
    if constexpr (requires { design.caption; }) caption = design.caption;
    if constexpr (requires { design.text; }) caption = design.text;
    if constexpr (requires { design.visible; }) visible = design.visible;
    if constexpr (requires { design.enabled; }) enabled = design.enabled;
    if constexpr (requires { design.name; }) name = design.name;
    if constexpr (requires { design.is_echo; }) is_echo = design.is_echo;
    if constexpr (requires { design.is_default; }) is_default = design.is_default;
    if constexpr (requires { design.is_cancel; }) is_cancel = design.is_cancel;
    if constexpr (requires { design.back_color; }) back_color = design.back_color;
    if constexpr (requires { design.fore_color; }) fore_color = design.fore_color;
  }

  std::string_view caption{};  // or the text of a box
  bool visible = true;
  bool enabled = true;
  std::string_view name{};  // what a screen reader says; the caption where empty
  bool is_echo = false;     // repeats what another control says, and is not read out
  bool is_default = false;  // the button that Enter presses in its panel
  bool is_cancel = false;   // the button that Escape presses in its panel
  Colour back_color = kButtonFace;
  Colour fore_color = kButtonText;
};

// The design of kinds that add nothing to the common part.
struct PlainDesign {
  bool visible = true;
  bool enabled = true;
  std::string_view name{};
};

// The edges of its parent that a control keeps its distance to when the person makes the parent larger. One
// that keeps to opposite edges grows with it; one that keeps to neither keeps its share of the room on each
// side. The properties Left, Top, Width and Height never change by it: only a layer arranges.
enum class Anchor {
  kTopLeft,
  kTopCentre,
  kTopRight,
  kMiddleLeft,
  kCentre,
  kMiddleRight,
  kBottomLeft,
  kBottomCentre,
  kBottomRight,
  kTop,      // left, top and right
  kBottom,   // left, bottom and right
  kLeft,     // top, left and bottom
  kRight,    // top, right and bottom
  kFill,     // all four
  kFoot,     // as kBottom, and takes half of its share of what its parent gains in height
  kShare,    // keeps its share of its parent's width and height; its size keeps its shape
  kStorage,  // none: storage, which no person sees or reaches
};

// What the text of a control is to those around it, as a layer may show by its size and colour.
enum class TextRole { kAsSet, kSecondary, kSecondaryRight, kTitle, kTitleRight };

// A place, in twips within the parent at its size in the arrangement, that a layer may use instead of the one
// in the control's properties. For what lies in a panel it is the place while the panel stands beside the
// text, and the panel's own has the size of the panel then. An anchor to the right edge means that the panel
// stands at the right of the text, otherwise it stands at the left.
struct Arrangement {
  double left, top, width, height;
  Anchor anchor = Anchor::kTopLeft;
};

// A press or a movement of the mouse over a control, in the control's own scale.
struct MouseEvent {
  int button = 1;  // 1 left, 2 right, 4 middle, 0 none
  int shift = 0;   // 1 shift, 2 control, 4 alt
  double x = 0;
  double y = 0;
};

// Why a person cannot act on a control.
enum class Refusal { kNone, kDisabled, kHidden };

// What can hold controls: a window, a frame, a picture box, a menu.
class Container {
 public:
  Container() = default;
  Container(const Container&) = delete;
  Container& operator=(const Container&) = delete;
  virtual ~Container() = default;

  virtual Window& HostWindow() = 0;
  virtual bool IsShown() const = 0;
  virtual std::string ContainerName() const = 0;
  virtual Container* Outer() const = 0;  // its own container; nullptr for a window

  const std::vector<Control*>& Children() const { return children_; }

 private:
  friend class Control;
  std::vector<Control*> children_;
};

class Control : public PropertyOwner {
 public:
  Control(Container& parent, Kind kind, std::string name, const CommonDesign& design);
  ~Control() override;

  Kind GetKind() const { return kind_; }
  const std::string& Name() const { return name_; }
  int Index() const { return index_; }  // its place in a control array, or -1
  void PutInArray(int index) {          // Requires: index >= 0
    assert(index >= 0);
    index_ = index;
  }
  std::string FullName() const;  // "lblc", "LBLMRK(2)"
  Container& Parent() const { return parent_; }
  Window& HostWindow() const { return parent_.HostWindow(); }
  const std::string& AccessibleName() const { return accessible_name_; }
  void CallIt(std::string name);  // what a screen reader says from now on; changes nothing else
  bool HasNameOfItsOwn() const { return has_name_of_its_own_; }  // beside its caption

  // Whether it and everything that contains it is visible.
  bool IsShown() const;
  Refusal RefusesPerson() const;

  // When it was last made visible, as a number that grows: of panels that overlap the last shown is on top.
  unsigned ShownAt() const { return shown_at_; }

  bool IsEcho() const { return is_echo_; }
  bool IsDefaultButton() const { return is_default_; }
  bool IsCancelButton() const { return is_cancel_; }

  // What is only read, such as List(3), Point(10,12) or Sorted; false where the control has none of that
  // name.
  virtual bool ReadIndexed(std::string_view property, const std::vector<int>& arguments, Value& value) const;

  // Its window was hidden.
  virtual void WindowWasHidden() {}

  // What a person does at the control. Handlers never call these; views and scripts do. Whether the
  // control can be reached is the caller's question (RefusesPerson).
  virtual void PersonClicks();
  void PersonDoubleClicks();
  void PersonPresses(const MouseEvent& mouse);
  void PersonMoves(const MouseEvent& mouse);
  void PersonKeys(int code);
  virtual void PersonTypes(const std::string& text);

  Property<bool> Enabled;
  RuledProperty<bool> Visible;

  Event<> Click;
  Event<> DblClick;
  Event<int> KeyDown;  // the key's code
  Event<MouseEvent> MouseDown;
  Event<MouseEvent> MouseMove;
  Event<> LostFocus;

 private:
  Kind kind_;
  std::string name_;
  int index_ = -1;
  Container& parent_;
  std::string accessible_name_;
  bool has_name_of_its_own_;
  bool is_echo_;
  bool is_default_;
  bool is_cancel_;
  unsigned shown_at_ = 0;
};

// A control that has a place on the window; menus and timers have none.
class PlacedControl : public Control {
 public:
  PlacedControl(Container& parent, Kind kind, std::string name, const CommonDesign& design);

  void SetFocus();

  void AnchorTo(Anchor anchor) { anchor_ = anchor; }
  Anchor GetAnchor() const { return anchor_; }

  // How a layer may arrange it; nullptr for one that stays at its place.
  const Arrangement* GetArrangement() const { return arrangement_ ? &*arrangement_ : nullptr; }
  TextRole GetTextRole() const { return text_role_; }
  void Arrange(const Arrangement& arrangement) { arrangement_ = arrangement; }
  void ShowTextAs(TextRole role) { text_role_ = role; }

  // Whether it, with all that it contains, is out of the person's reach.
  bool IsStorage() const { return anchor_ == Anchor::kStorage; }

  Property<double> Left;
  Property<double> Top;
  RuledProperty<double> Width;
  RuledProperty<double> Height;
  Property<int> MousePointer;
  Property<Colour> BackColor;
  Property<Colour> ForeColor;

 protected:
  virtual void SizeWritten() {}

 private:
  Anchor anchor_ = Anchor::kTopLeft;
  std::optional<Arrangement> arrangement_;
  TextRole text_role_ = TextRole::kAsSet;
};

// The font of a control that shows text. A size is refused (error 380) unless it is one that a font can
// have; any name is taken, and the system shows the nearest font it has.
class TextControl : public PlacedControl {
 public:
  TextControl(Container& parent, Kind kind, std::string name, const CommonDesign& design);

  Property<std::string> FontName;
  RuledProperty<double> FontSize;  // points
  Property<bool> FontBold;
  Property<bool> FontItalic;
};

// Controls of one name, told apart by an index from 0; error 9 for an index outside.
template <class Kind>
class ControlArray {
 public:
  using Design = typename Kind::Design;

  ControlArray(Container& parent, const char* name, int count) {
    for (int i = 0; i < count; ++i) Add(parent, name, {});
  }
  // One control for each design, in order.
  ControlArray(Container& parent, const char* name, std::initializer_list<Design> designs) {
    for (const Design& design : designs) Add(parent, name, design);
  }
  // One control for each caption, in order.
  ControlArray(Container& parent, const char* name, std::initializer_list<const char*> captions) {
    for (const char* caption : captions) Add(parent, name, {.caption = caption});
  }

  Kind& operator()(int index) {
    if (index < 0 || index >= Count()) throw base::RunTimeError(base::ErrorNumber::kSubscript);
    return controls_[static_cast<std::size_t>(index)];
  }
  const Kind& operator()(int index) const { return const_cast<ControlArray&>(*this)(index); }
  int Count() const { return static_cast<int>(controls_.size()); }

  // Joins handlers: calls `join(index, control)` for each control.
  template <class Join>
  void ForEach(Join join) {
    for (int i = 0; i < Count(); ++i) join(i, (*this)(i));
  }

 private:
  void Add(Container& parent, const char* name, const Design& design) {
    controls_.emplace_back(parent, name, design).PutInArray(Count() - 1);
  }

  std::deque<Kind> controls_;
};

}  // namespace lectern::forms
