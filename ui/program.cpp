#include "ui/program.h"

#include <memory>

#include "core/forms/timer.h"
#include "core/text/letter_case.h"

namespace lectern::ui {

Program::Program(forms::Services services)
    : report_failure([](const core::RunTimeError&) {}),
      Form1_(windows, [services] { return std::make_unique<Form1>(services); }) {}

void Program::Start() {
  try {
    Form1_().Visible = true;
  } catch (const core::ProgramEnd& end) {
    End(end.status);
  }
}

void Program::End(int status) {
  ended_ = true;
  status_ = status;
}

void Program::Deliver(forms::Window& window, const std::function<void()>& event) {
  if (ended_) return;
  const bool goes_on = window.AfterUntrappedFailure() == forms::AfterFailure::kGoOn;
  try {
    event();
  } catch (const core::RunTimeError& error) {
    report_failure(error);
    if (!goes_on) End(1);
  } catch (const core::ProgramEnd& end) {
    End(end.status);
  }
}

bool Program::Tick() {
  std::vector<forms::Timer*> ticking;
  for (forms::Timer* timer : windows.Timers()) {
    if (timer->IsTicking()) ticking.push_back(timer);
  }
  for (forms::Timer* timer : ticking) {
    if (timer->IsTicking()) Deliver(timer->HostWindow(), [timer] { timer->Tick(); });
  }
  return !ticking.empty();
}

void Program::Close(forms::Window& window) {
  Deliver(window, [&window] { window.Form_Unload(); });
}

forms::Window* Program::Touch(std::string_view name) {
  if (text::EqualFolded(name, "Form1")) return &Form1_();
  return nullptr;
}

Program::Routine Program::FindRoutine(std::string_view name) {
  for (const std::string_view window_name : {"Form1"}) {
    forms::Window* const window = Touch(window_name);
    const auto found = window->routines.find(name);
    if (found != window->routines.end()) return {window, found->second};
  }
  return {};
}

}  // namespace lectern::ui
