#include "ui/program.h"

#include <algorithm>
#include <new>

#include "base/text/characters.h"
#include "forms/bars_and_timer.h"

namespace lectern::ui {

Program::Program(forms::Services host)
    : report_failure([](const base::RunTimeError&) {}),
      files_(host.files),
      platform_(host),
      Form1_(
          windows,
          [this, services = Services()] {
            return std::make_unique<Form1>(
                services,
                OtherWindows{.Form2 = [this]() -> forms::Window& { return Form2_(); },
                             .notes = [this]() -> aids::Notes& { return Form3_().notes; },
                             .OpenPaint = [this](const forms::Picture& picture) { Form4_().Open(picture); }});
          }),
      Form4_(windows,
             [this, services = Services()] {
               return std::make_unique<Form4>(
                   services, Form1_().Pictures(), Form1_().PictureViewer(),
                   Form4::Hooks{.print_picture =
                                    [this](const forms::Picture& picture) {
                                      Form5_().picture.PrintPaintPicture(picture);
                                    },
                                .saved = [this](const std::string& file) { picture_saved(file); }});
             }),
      Form2_(windows, [services = Services()] { return std::make_unique<Form2>(services); }),
      Form3_(windows, [services = Services()] { return std::make_unique<Form3>(services); }),
      Form5_(windows, [services = Services()] { return std::make_unique<Form5>(services); }),
      known_{Knowing("Form1", Form1_), Knowing("Form4", Form4_), Knowing("Form2", Form2_),
             Knowing("Form3", Form3_), Knowing("Form5", Form5_)} {}

void Program::Start() {
  mended_ = files_.Mend();
  Guard(forms::AfterFailure::kEndProgram, [this] { Form1_().Visible = true; });
}

// Closing the files writes what the handlers wrote.
void Program::End(int status) {
  ended_ = true;
  status_ = status;
  for (forms::Window* window : windows.All()) {
    const base::Ignoring ignore;
    ignore([&] { window->Slots().CloseAll(); });
  }
  try {
    files_.Settle();
  } catch (const base::RunTimeError& error) {
    report_failure(error);
    status_ = 1;
  }
}

void Program::Deliver(forms::Window& window, const std::function<void()>& event) {
  // Read first, because the event may delete its window.
  if (!ended_) Guard(window.AfterUntrappedFailure(), event);
}

void Program::Guard(forms::AfterFailure after, const std::function<void()>& event) {
  const auto fail = [&](const base::RunTimeError& error) {
    const base::Ignoring ignore;
    ignore([&] { files_.Settle(); });
    report_failure(error);
    if (after == forms::AfterFailure::kEndProgram) End(1);
  };
  try {
    event();
    files_.Settle();
  } catch (const base::RunTimeError& error) {
    fail(error);
  } catch (const std::bad_alloc&) {
    fail(base::RunTimeError(base::ErrorNumber::kOutOfMemory));
  } catch (const base::ProgramEnd& end) {
    End(end.status);
  }
}

bool Program::Tick(const std::function<bool(const forms::Timer&)>& due) {
  std::vector<forms::Timer*> ticking;
  for (forms::Timer* timer : windows.Timers()) {
    if (timer->IsTicking() && due(*timer)) ticking.push_back(timer);
  }
  for (forms::Timer* timer : ticking) {
    if (timer->IsTicking()) Deliver(timer->HostWindow(), [timer] { timer->Tick(); });
  }
  return !ticking.empty();
}

const Program::Known* Program::FindKnown(std::string_view name) const {
  const auto found = std::find_if(known_.begin(), known_.end(),
                                  [name](const Known& known) { return text::EqualFolded(known.name, name); });
  return found == known_.end() ? nullptr : &*found;
}

void Program::Close(forms::Window& window) {
  bool unloaded = false;
  Deliver(window, [&] {
    window.Form_Unload();
    unloaded = true;
    if (window.OnCloseBox() == forms::CloseBox::kHides) window.Visible = false;
  });
  if (unloaded && window.OnCloseBox() == forms::CloseBox::kLetsGo) FindKnown(window.Name())->let_go();
}

forms::Window* Program::Touch(std::string_view name) {
  const Known* const known = FindKnown(name);
  return known == nullptr ? nullptr : &known->touch();
}

Program::Routine Program::FindRoutine(std::string_view name) {
  for (const Known& known : known_) {
    forms::Window& window = known.touch();
    const auto found =
        std::find_if(window.routines.begin(), window.routines.end(),
                     [name](const auto& routine) { return text::EqualFolded(routine.first, name); });
    if (found != window.routines.end()) return {&window, found->second};
  }
  return {};
}

}  // namespace lectern::ui
