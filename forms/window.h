// A window: a named set of controls with the handlers that make it work. Its controls are in force with
// their design values before Form_Load runs. Width and Height count the window's frame (120 and 405
// twips, another 285 for a menu bar); controls lie in the client area inside.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "base/files/file_slots.h"
#include "base/files/file_system.h"
#include "base/platform.h"
#include "forms/control.h"

namespace lectern::forms {

// What the program runs on; outlives every window.
struct Services {
  base::Platform& platform;
  files::FileSystem& files;
};

// What a window's close box does once Form_Unload has run.
enum class CloseBox { kLetsGo, kHides };

// Whether a person can make a window larger than it is.
enum class Resizing { kFixed, kFree };

// What becomes of the program when a handler of the window fails and nothing traps it.
enum class AfterFailure { kEndProgram, kGoOn };

class Window : public PropertyOwner, public Container {
 public:
  Window(Services services, std::string name, std::string_view caption);

  const std::string& Name() const { return name_; }
  base::Platform& Platform() const { return services_.platform; }
  files::FileSystem& Files() const { return services_.files; }
  files::FileSlots& Slots() { return slots_; }

  // The picture in a file of that name: errors of the file system, or 481.
  Picture LoadPicture(std::string_view name) const;
  // Writes the picture as a BMP, whatever its extension; 424 where there is no picture.
  void SavePicture(const Picture& picture, std::string_view name) const;
  // The same over something a person made: the picture that was there stays under `backup`.
  void SavePictureKeepingBackup(const Picture& picture, std::string_view name) const;

  // All controls in the order they were made.
  const std::vector<Control*>& Controls() const { return controls_; }
  // By name, without regard to case, and index (-1 outside arrays); nullptr where there is none.
  Control* Find(std::string_view name, int index = -1) const;

  // Routines that no control starts, by name, for preparing the data.
  std::map<std::string, std::function<void(const std::string& text)>, std::less<>> routines;

  virtual void Form_Load() {}
  virtual void Form_Unload() {}
  virtual CloseBox OnCloseBox() const { return CloseBox::kLetsGo; }
  virtual bool StaysInFront() const { return false; }  // of the main window, to be used beside it
  virtual Resizing GetResizing() const { return Resizing::kFixed; }
  virtual AfterFailure AfterUntrappedFailure() const { return AfterFailure::kEndProgram; }

  // Of the client area, in twips.
  double ClientWidth() const;
  double ClientHeight() const;
  bool HasMenuBar() const;

  // The control with the focus, or nullptr. Moving it runs LostFocus of the one before.
  PlacedControl* Focus() const { return focus_; }
  // Requires: the control is one of the window's.
  void GiveFocus(PlacedControl& control);
  void PersonMovesFocus(PlacedControl* control);

  // Puts a window that is to be seen before the others.
  void BringToFront() const;

  // Presses the first button of a panel that is meant, can be seen and is enabled; whether there was one.
  // Requires: `meant` can be called.
  bool PressButtonIn(const Container& panel, const std::function<bool(const Control*)>& meant);
  // The cancel button of the panel that lies in front, or the window's own where no panel has one.
  void PressCancelOfFrontPanel();

  Window& HostWindow() override { return *this; }
  bool IsShown() const override { return Visible; }
  std::string ContainerName() const override { return name_; }
  Container* Outer() const override { return nullptr; }

  Property<std::string> Caption;
  Property<std::string> Title;  // what the title bar says; the Caption where it is empty
  RuledProperty<bool> Visible;
  Property<double> Left;
  Property<double> Top;
  Property<double> Width;
  Property<double> Height;
  Property<Colour> BackColor;
  Property<Colour> ForeColor;
  Property<int> MousePointer;
  Property<double> CurrentX;  // where drawing on the window's own face would go on
  Property<double> CurrentY;

 private:
  friend class Control;
  unsigned CountShowing() { return ++showings_; }

  Services services_;
  std::string name_;
  files::FileSlots slots_;
  std::vector<Control*> controls_;
  PlacedControl* focus_ = nullptr;
  unsigned showings_ = 0;
};

inline constexpr double kFrameWidth = 120;
inline constexpr double kFrameHeight = 405;
inline constexpr double kMenuBarHeight = 285;
inline constexpr double kTwipsPerPixel = 15;

}  // namespace lectern::forms
