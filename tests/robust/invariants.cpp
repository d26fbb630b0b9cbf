#include "tests/robust/invariants.h"

#include <algorithm>
#include <filesystem>
#include <map>

#include "base/text/characters.h"
#include "forms/bars_and_timer.h"
#include "forms/rich_text_box.h"

namespace lectern {

namespace {

// The control that a command is about, without its index: "Form1.imgp".
std::string ControlOf(std::string_view command) {
  const std::string_view rest = command.substr(std::min(command.find(' '), command.size() - 1) + 1);
  return std::string(rest.substr(0, rest.find_first_of(" (")));
}

std::string BrokenBy(const forms::Control& control) {
  const std::string name = control.HostWindow().Name() + "." + control.FullName();
  if (const auto* list = dynamic_cast<const forms::ItemList*>(&control)) {
    const int selected = list->SelectedIndex();
    if (selected < -1 || selected >= list->ListCount()) return name + " has a selection outside its items";
    for (int i = 1; control.FullName() == "lstc" && i < list->ListCount(); ++i) {
      if (list->List(i) < list->List(i - 1)) return name + " is out of order";
    }
  }
  if (const auto* bar = dynamic_cast<const forms::HScrollBar*>(&control)) {
    if (bar->Value < bar->Min) return name + " is below its range";
  }
  if (const auto* pane = dynamic_cast<const forms::RichTextBox*>(&control)) {
    const auto length = static_cast<int>(text::Length(pane->Text()));
    if (pane->SelStart < 0 || pane->SelLength < 0 || pane->SelStart + pane->SelLength > length) {
      return name + " has a selection outside its text";
    }
  }
  return "";
}

// The controls whose events end the program or report a failure, and the errors. 0 is an end without one.
const std::multimap<std::string_view, int> kKnownFailures = {
    // The ways out.
    {"Form1.Command1", 0},
    {"Form1.xx", 0},
    {"Form1.xx", 424},
    {"Form1", 0},
    // A book that is missing, also where Enter starts the search; a size that is no number or no size; a name
    // that no file can have.
    {"Form1.Command22", 53},
    {"Form1.txts", 53},
    {"Form1.txts2", 53},
    {"Form1.lsts", 53},
    {"Form1.Command36", 13},
    {"Form1.Command36", 380},
    {"Form1.Command10", 52},
    {"Form4.Command2", 52},
    // The notes report a failure and go on: the drive, a note that has no file, a name that no file can have.
    {"Form3.Drive1", 424},
    {"Form3.Command13", 53},
    {"Form3.f3", 53},
    {"Form3.Command12", 53},
    {"Form3.f8", 53},
    {"Form3", 53},
    {"Form3.f4", 53},
    {"Form3.Command2", 52},
};

int ErrorIn(const Steps& printed) {
  constexpr std::string_view kFailure = "run-time error ";
  for (const std::string& line : printed) {
    if (line.starts_with(kFailure)) return std::stoi(line.substr(kFailure.size()));
  }
  return 0;
}

// A question is asked by its button, or by Enter anywhere in the panel.
bool IsInTrivia(ui::Program& program, std::string_view name) {
  try {
    return headless::FindControl(program, name).control->Parent().ContainerName() == "Picture17";
  } catch (const headless::Misunderstood&) {
    return false;
  }
}

}  // namespace

std::string Invariants::Broken(std::string_view command, const Steps& printed) {
  const std::string control = ControlOf(command);
  if (std::string broken = BrokenByEnd(control, printed); !broken.empty()) return broken;
  for (const char* version : {"/KJV", "/NEW"}) {
    if (std::filesystem::exists(folder_ + version + "/temp.txt")) return "temp.txt is still there";
  }
  if (std::string broken = BrokenBySlots(control, printed); !broken.empty()) return broken;
  return BrokenByControls();
}

std::string Invariants::BrokenBySlots(std::string_view control, const Steps& printed) {
  const bool reported = std::any_of(printed.begin(), printed.end(),
                                    [](const std::string& line) { return line.starts_with("message"); });
  if (reported && IsInTrivia(session_.driver.Program(), control)) question_left_open_ = true;
  constexpr int kHighest = 255;
  for (forms::Window* window : session_.driver.Program().windows.All()) {
    for (int slot = 1; slot <= kHighest; ++slot) {
      const bool open = window->Slots().IsOpen(slot);
      const bool is_questions = window->Name() == "Form1" && slot == 1;
      if (open && !(is_questions && question_left_open_)) {
        return window->Name() + " has left file " + std::to_string(slot) + " open";
      }
      if (is_questions) question_left_open_ = open;
    }
  }
  return "";
}

std::string Invariants::BrokenByControls() {
  for (const forms::Window* window : session_.driver.Program().windows.All()) {
    for (const forms::Control* control : window->Controls()) {
      if (std::string broken = BrokenBy(*control); !broken.empty()) return broken;
    }
  }
  const auto count = [this](const char* list) { return session_.Get<forms::ItemList>(list).ListCount(); };
  const int names = count("Form1.lstmc(0)");
  const bool equal = names == count("Form1.lstmc(1)") && names == count("Form1.lstmc(2)");
  return equal ? "" : "the lists of pictures differ in length";
}

std::string Invariants::BrokenByEnd(std::string_view control, const Steps& printed) const {
  const int error = ErrorIn(printed);
  const bool ended = std::find(printed.begin(), printed.end(), "end") != printed.end();
  if (error == 0 && !ended) return "";
  constexpr int kFileAlreadyOpen = 55;
  if (error == kFileAlreadyOpen && question_left_open_) return "";
  if (error != 0 && failures_ == Failures::kAnywhere) return "";
  const auto [first, last] = kKnownFailures.equal_range(control);
  const bool is_known =
      std::any_of(first, last, [error](const auto& known) { return known.second == error; });
  return is_known ? "" : "the program ended, or failed with error " + std::to_string(error);
}

}  // namespace lectern
