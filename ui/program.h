// The whole program without its face: the five windows, and how what a person does reaches them.
//
// A layer makes one Program, starts it, and brings everything in through Deliver, one event at a time.
#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "base/errors.h"
#include "forms/windows.h"
#include "ui/form1.h"
#include "ui/form4.h"
#include "ui/small_windows.h"

namespace lectern::ui {

class Program {
 public:
  explicit Program(forms::Services services);

  // Makes Form1, which runs the start-up, and shows it. A failure ends the program, as in any event.
  void Start();

  // Runs an event of a window to its end. A failure that nothing traps is handed to `report_failure`;
  // unless the window goes on after failures, it ends the program.
  void Deliver(forms::Window& window, const std::function<void()>& event);

  // One tick of every timer that is on when the round begins, or of those among them that are due; whether
  // there was one.
  bool Tick();
  bool Tick(const std::function<bool(const forms::Timer&)>& due);

  // The close box of a window: its Form_Unload runs, and the window goes or is hidden.
  void Close(forms::Window& window);

  // By its name, without regard to case; touching a window makes it. nullptr where there is none.
  forms::Window* Touch(std::string_view name);

  // A routine of one of the windows; its window is nullptr where there is none of that name.
  struct Routine {
    forms::Window* window = nullptr;
    std::function<void(const std::string& text)> run{};
  };
  Routine FindRoutine(std::string_view name);

  bool HasEnded() const { return ended_; }
  int Status() const { return status_; }

  forms::Windows windows;
  std::function<void(const base::RunTimeError&)> report_failure;

 private:
  // One of the windows there can be.
  struct Known {
    std::string_view name;
    std::function<forms::Window&()> touch;
    std::function<void()> let_go;
  };
  template <class Kind>
  static Known Knowing(std::string_view name, forms::OnTouch<Kind>& window) {
    return {name, [&window]() -> forms::Window& { return window(); }, [&window] { window.LetGo(); }};
  }
  const Known* FindKnown(std::string_view name) const;
  void Guard(forms::AfterFailure after, const std::function<void()>& event);
  void End(int status);

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
