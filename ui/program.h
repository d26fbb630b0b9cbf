// The whole program without its display: the five windows and the delivery of events to them.
//
// A layer creates a Program, starts it, and passes each event to Deliver.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/errors.h"
#include "forms/windows.h"
#include "ui/form1.h"
#include "ui/form4.h"
#include "ui/settled_boxes.h"
#include "ui/small_windows.h"

namespace lectern::ui {

class Program {
 public:
  explicit Program(forms::Services host);

  // Puts back files whose rewriting was cut short the last time. Then creates Form1, which runs the start-up,
  // and shows it. A failure ends the program.
  void Start();

  // What the start put back: names in the data folder, such as "CONCORD.DAT". What stood half written in
  // their places is in `backup/lectern-half-written`.
  const std::vector<std::string>& Mended() const { return mended_; }

  // Runs an event of a window. A failure that is not trapped goes to `report_failure` and ends the program,
  // unless the window goes on after failures. What the event wrote is then on the disk.
  void Deliver(forms::Window& window, const std::function<void()>& event);

  // Ticks every timer that is on at the start of the call and due. Returns whether there was any.
  bool Tick(const std::function<bool(const forms::Timer&)>& due = [](const forms::Timer&) { return true; });

  // Acts as the close box of a window: runs Form_Unload, and then deletes or hides the window.
  void Close(forms::Window& window);

  // Finds a window by name, ignoring case, and creates it if needed. Returns nullptr for an unknown name.
  forms::Window* Touch(std::string_view name);

  // A routine of a window; the window is nullptr if no window has a routine of that name.
  struct Routine {
    forms::Window* window = nullptr;
    std::function<void(const std::string& text)> run{};
  };
  Routine FindRoutine(std::string_view name);

  bool HasEnded() const { return ended_; }
  int Status() const { return status_; }

  forms::Windows windows;
  std::function<void(const base::RunTimeError&)> report_failure;
  std::function<void(const std::string& file)> picture_saved = [](const std::string&) {};  // a painting

 private:
  struct Known {
    std::string_view name;
    std::function<forms::Window&()> touch;
    std::function<void()> let_go;
  };
  template <class Kind>
  static Known Knowing(std::string_view name, forms::OnTouch<Kind>& window) {
    return {name, [&window]() -> forms::Window& { return window(); }, [&window] { window.LetGo(); }};
  }
  forms::Services Services() { return {platform_, files_}; }
  const Known* FindKnown(std::string_view name) const;
  void Guard(forms::AfterFailure after, const std::function<void()>& event);
  void End(int status);

  files::FileSystem& files_;
  SettledBoxes platform_;
  std::vector<std::string> mended_;
  forms::OnTouch<Form1> Form1_;
  forms::OnTouch<Form4> Form4_;
  forms::OnTouch<Form2> Form2_;
  forms::OnTouch<Form3> Form3_;
  forms::OnTouch<Form5> Form5_;
  std::vector<Known> known_;
  bool ended_ = false;
  int status_ = 0;
};

}  // namespace lectern::ui
