#include "tests/robust/house_rules.h"

#include <algorithm>
#include <filesystem>

#include "base/text/characters.h"
#include "forms/combo_box.h"
#include "forms/folder_lists.h"
#include "forms/list_box.h"
#include "forms/rich_text_box.h"
#include "forms/scroll_bar.h"

namespace lectern {

namespace {

using Lines = std::vector<std::string>;

bool Printed(const Lines& printed, std::string_view start) {
  return std::any_of(printed.begin(), printed.end(),
                     [start](const std::string& line) { return line.starts_with(start); });
}

// The control that a command is about, without its index: "Form1.imgp".
std::string ControlOf(std::string_view command) {
  const std::size_t blank = std::min(command.find(' '), command.size());
  std::string_view rest = command.substr(std::min(blank + 1, command.size()));
  return std::string(rest.substr(0, rest.find_first_of(" (")));
}

}  // namespace

HouseRules::HouseRules(headless::Driver& driver, std::string folder, Failures failures)
    : driver_(driver), folder_(std::move(folder)), failures_(failures) {}

std::string HouseRules::Broken(std::string_view command, const Lines& printed) {
  for (const std::string& broken : {BrokenByEnd(command, printed), BrokenByScratch(),
                                    BrokenBySlots(command, printed), BrokenByControls()}) {
    if (!broken.empty()) return broken;
  }
  return "";
}

std::string HouseRules::BrokenByScratch() const {
  for (const char* version : {"/KJV", "/NEW"}) {
    if (std::filesystem::exists(folder_ + version + "/temp.txt")) return "temp.txt is still there";
  }
  return "";
}

// A question of the game that could not be asked leaves its file open until the next chapter is loaded, and
// so does the older builder of the concordance.
std::string HouseRules::BrokenBySlots(std::string_view command, const Lines& printed) {
  if (ControlOf(command) == "Form1.Command29" && Printed(printed, "message")) question_left_open_ = true;
  if (ControlOf(command) == "Form1.Command13") builder_left_open_ = true;
  constexpr int kHighest = 255;
  for (forms::Window* window : driver_.Program().windows.All()) {
    for (int slot = 1; slot <= kHighest; ++slot) {
      const bool open = window->Slots().IsOpen(slot);
      bool* left_open = nullptr;
      if (window->Name() == "Form1" && slot == 1) left_open = &question_left_open_;
      if (window->Name() == "Form1" && slot == 2) left_open = &builder_left_open_;
      if (open && (left_open == nullptr || !*left_open)) {
        return window->Name() + " has left file " + std::to_string(slot) + " open";
      }
      if (left_open != nullptr) *left_open = open;
    }
  }
  return "";
}

namespace {

std::string BrokenBy(const forms::Control& control) {
  const std::string name = control.HostWindow().Name() + "." + control.FullName();
  if (const auto* list = dynamic_cast<const forms::ItemList*>(&control)) {
    const int selected = list->SelectedIndex();
    if (selected < -1 || selected >= list->ListCount()) return name + " has a selection outside its items";
    const bool sorted = control.FullName() == "lstc";
    for (int i = 1; sorted && i < list->ListCount(); ++i) {
      if (list->List(i) < list->List(i - 1)) return name + " is out of order";
    }
  }
  if (const auto* bar = dynamic_cast<const forms::HScrollBar*>(&control)) {
    if (bar->Value < bar->Min) return name + " stands below its range";
  }
  if (const auto* pane = dynamic_cast<const forms::RichTextBox*>(&control)) {
    const auto length = static_cast<int>(text::Length(pane->Text()));
    if (pane->SelStart < 0 || pane->SelLength < 0 || pane->SelStart + pane->SelLength > length) {
      return name + " has a selection outside its text";
    }
  }
  return "";
}

}  // namespace

std::string HouseRules::BrokenByControls() const {
  for (const forms::Window* window : driver_.Program().windows.All()) {
    for (const forms::Control* control : window->Controls()) {
      if (std::string broken = BrokenBy(*control); !broken.empty()) return broken;
    }
  }
  const forms::Window* const form = driver_.Program().Touch("Form1");
  int counts[3] = {};
  for (int i = 0; i < 3; ++i) {
    counts[i] = dynamic_cast<const forms::ItemList&>(*form->Find("lstmc", i)).ListCount();
  }
  if (counts[0] != counts[1] || counts[1] != counts[2]) return "the lists of pictures differ in length";
  return "";
}

namespace {

// Where a failure that nothing traps ends the program, or is shown and the program goes on, and by which
// error. Number 0 is an end without one.
struct Told {
  std::string_view control;
  std::vector<int> errors;
};

const std::vector<Told>& ToldFailures() {
  static const std::vector<Told> kTold = {
      // The ways out.
      {"Form1.Command1", {0}},
      {"Form1.xx", {0, 424}},
      {"Form1", {0}},
      // A book that is not there (Enter in the panel searches, too), a size that is no number or no size, a
      // name that no file can have.
      {"Form1.Command22", {53}},
      {"Form1.txts", {53}},
      {"Form1.txts2", {53}},
      {"Form1.lsts", {53}},
      {"Form1.Command36", {13, 380}},
      {"Form1.Command10", {52}},
      {"Form4.Command2", {52}},
      // In the notes a failure is told and the program goes on: a drive is handed to nothing, a note that
      // has no file cannot be replaced or deleted, and a name may be none that a file can have.
      {"Form3.Drive1", {424}},
      {"Form3.Command13", {53}},
      {"Form3.f3", {53}},
      {"Form3.Command12", {53}},
      {"Form3.f8", {53}},
      {"Form3", {53}},
      {"Form3.f4", {53}},
      {"Form3.Command2", {52}},
  };
  return kTold;
}

constexpr int kFileAlreadyOpen = 55;

int ErrorIn(const Lines& printed) {
  constexpr std::string_view kFailure = "run-time error ";
  for (const std::string& line : printed) {
    if (line.starts_with(kFailure)) return std::stoi(line.substr(kFailure.size()));
  }
  return 0;
}

}  // namespace

std::string HouseRules::BrokenByEnd(std::string_view command, const Lines& printed) const {
  const int error = ErrorIn(printed);
  const bool ended = std::find(printed.begin(), printed.end(), "end") != printed.end();
  if (error == 0 && !ended) return "";
  // A file that was left open is in everybody's way.
  if (error == kFileAlreadyOpen && (question_left_open_ || builder_left_open_)) return "";
  if (error != 0 && failures_ == Failures::kAnywhere) return "";
  const std::string control = ControlOf(command);
  const auto& told = ToldFailures();
  const bool is_told = std::any_of(told.begin(), told.end(), [&](const Told& known) {
    return known.control == control &&
           std::find(known.errors.begin(), known.errors.end(), error) != known.errors.end();
  });
  return is_told ? "" : "the program ended, or failed with error " + std::to_string(error) + ", untold";
}

}  // namespace lectern
