#include "tests/kit/story.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iostream>
#include <utility>

namespace lectern::kit {

namespace {

constexpr std::size_t kWidth = 118;  // of a recorded line

// A line without the blanks in front.
std::string Unindented(const std::string& line) {
  return line.substr(std::min(line.find_first_not_of(' '), line.size()));
}

}  // namespace

Story::Story(std::filesystem::path file, StoryFolder folder, Mode mode)
    : file_(std::move(file)), folder_(std::move(folder)), mode_(mode) {
  folder_.Use("small");
  Restart();
}

bool Story::Play() {
  std::ifstream file(file_);
  for (std::string line; std::getline(file, line);) lines_.push_back(line);
  if (lines_.empty()) Fail(0, "the story", "some lines", "nothing that can be read");
  std::size_t end = 0;
  for (std::size_t start = 0; start < lines_.size(); start = end) {
    end = start + 1;
    if (IsPassedOver(start)) {
      RecordLines(start, end);
      continue;
    }
    for (std::size_t next = end; next < lines_.size() && (IsUnderStep(next) || IsPassedOver(next)); ++next) {
      if (IsUnderStep(next)) end = next + 1;
    }
    PlayStep(start, end);
  }
  return failures_ == 0;
}

bool Story::IsPassedOver(std::size_t line) const { return lines_[line].empty() || lines_[line][0] == '#'; }

bool Story::IsUnderStep(std::size_t line) const { return lines_[line].starts_with(' '); }

// A step, or several, with what stands beside it and under it, up to the line `end`.
void Story::PlayStep(std::size_t start, std::size_t end) {
  Lines expected = Split(lines_[start], " | ");
  const Lines steps = Split(expected.front(), "; ");
  expected.erase(expected.begin());
  std::size_t at = start + 1;
  for (; at < end && Unindented(lines_[at]).starts_with('|'); ++at) {
    const std::string line = Unindented(lines_[at]);
    const Lines parts = Split(line.substr(std::min<std::size_t>(2, line.size())), " | ");
    expected.insert(expected.end(), parts.begin(), parts.end());
  }
  int failures = failures_;
  std::vector<Lines> printed;
  for (const std::string& step : steps) {
    const Lines of_step = &step == &steps.back() ? expected : Lines{};  // the last one prints
    Act(start, step, of_step);
    if (!Fits(of_step, printed_)) {
      Fail(start, step, Joined(of_step, "\n            "), Joined(printed_, "\n            "));
    }
    printed.push_back(printed_);
  }
  if (failures == failures_) {
    RecordLines(start, at);
  } else {
    for (std::size_t i = 0; i < steps.size(); ++i) RecordStep(steps[i], printed[i]);
  }
  for (std::size_t first = at; first < end; first = at) {
    std::string checks = Unindented(lines_[at++]);
    while (checks.ends_with(',') && at < end) checks += " " + Unindented(lines_[at++]);
    failures = failures_;
    const Lines seen = IsPassedOver(first) ? Lines{} : Check(first, checks);
    failures == failures_ ? RecordLines(first, at) : RecordChecks(seen);
  }
}

void Story::Act(std::size_t line, const std::string& step, const Lines& expected) {
  if (!answered_) LayAnswers(expected);
  answered_ = step.starts_with("answer ");
  printed_.clear();
  if (!step.starts_with('@')) return driver_->Execute(step);
  const auto words = headless::Words(step);
  const auto word = [&](std::size_t i) {
    return words && i < words->size() ? (*words)[i].text : std::string();
  };
  if (word(0) == "@data") folder_.Use(word(1));
  if (word(0) == "@data" || word(0) == "@restart") return Restart();
  if (word(0) == "@status") return printed_.push_back(std::to_string(driver_->ExitStatus()));
  const auto printed = folder_.Run(word(0), word(1), word(2), expected);
  if (!printed) return Fail(line, step, "a command", "none that a story has");
  printed_ = *printed;
}

// The answers to the boxes that a step is expected to open.
void Story::LayAnswers(const Lines& expected) {
  for (const std::string& line : expected) {
    const std::size_t arrow = line.rfind(" -> ");
    const bool is_box = line.starts_with("input ") || line.starts_with("question ");
    if (!is_box || arrow == std::string::npos) continue;
    if (const std::string answer = line.substr(arrow + 4); answer != "\"\"") {
      driver_->Execute("answer " + answer);
    }
  }
}

// The data folder's own path is no part of a story.
void Story::Restart() {
  driver_.reset();
  driver_ = std::make_unique<headless::Driver>(folder_.Path(), [this](std::string line) {
    const std::string path = folder_.Path();
    for (std::size_t at = line.find(path); at != std::string::npos; at = line.find(path)) {
      line.replace(at, path.size(), "DATA");
    }
    printed_.push_back(line);
  });
}

// A line of checks; what they should say.
Lines Story::Check(std::size_t line, const std::string& text) {
  Lines seen;
  try {
    const std::size_t colon = text.find(':');
    if (colon < text.find(' ')) {
      const std::string name = text.substr(0, colon);
      const Lines items = ItemsOf(name.starts_with("Form") ? name : "Form1." + name);
      seen = Split(Compared(line, name, text.substr(std::min(colon + 2, text.size())), Joined(items, ", ")),
                   ", ");
      seen[0].insert(0, name + ": ");
      return seen;
    }
    std::string window = "Form1";
    for (const std::string& check : Split(text, ", ")) {
      const std::string name = check.substr(0, check.find(' '));
      const std::string expected = check.substr(std::min(name.size() + 1, check.size()));
      seen.push_back(name + " " + Compared(line, name, expected, Seen(window, name, expected)));
    }
  } catch (const headless::Misunderstood& misunderstood) {
    Fail(line, text, "names that are known", misunderstood.reason);
  }
  return seen;
}

// What a check should say: what it says if that fits.
std::string Story::Compared(std::size_t line, const std::string& name, const std::string& expected,
                            const std::string& got) {
  if (Fits(expected, got)) return expected;
  Fail(line, name, expected, got);
  return got;
}

// The value of what a check names, in the words of what it expects. A window that is named becomes the one
// for the rest of the line.
std::string Story::Seen(std::string& window, std::string name, const std::string& expected) {
  if (name.starts_with("Form") && name.size() > 4 && std::isdigit(static_cast<unsigned char>(name[4])) != 0) {
    window = name.substr(0, 5);
    name.erase(0, std::min<std::size_t>(6, name.size()));
  }
  const std::string full_name = name.empty() ? window : window + "." + name;
  if (expected == "empty") {
    const Lines items = ItemsOf(full_name);
    return items.empty() ? "empty" : Joined(items, ", ");
  }
  const std::string property = name.find('.') != std::string::npos ? "" : PropertyOf(full_name, expected);
  Ask("start");
  std::string value = Joined(Ask("get " + full_name + property), " | ");
  if (const std::size_t sign = value.find(" = "); sign != std::string::npos) value.erase(0, sign + 3);
  if (property == ".Visible" && value != "ended") return value == "True" ? "shown" : "hidden";
  if (property == ".Enabled" && value != "ended") return value == "True" ? "enabled" : "disabled";
  return value;
}

// The property that a check without one means; none where the name is that of a property of the window.
std::string Story::PropertyOf(const std::string& full_name, const std::string& expected) {
  if (expected == "shown" || expected == "hidden") return ".Visible";
  if (expected == "enabled" || expected == "disabled") return ".Enabled";
  Lines candidates = {"Caption", "Text", "Value", "Picture", "Visible"};  // for a check to be recorded
  if (expected.starts_with('"')) {
    candidates = {"Caption", "Text"};
  } else if (expected == "none" || expected.starts_with("picture ")) {
    candidates = {"Picture"};
  } else if (!expected.empty()) {
    candidates = {"Value"};
  }
  Ask("start");
  try {
    const auto* const control = headless::FindControl(driver_->Program(), full_name).control;
    for (const std::string& candidate : candidates) {
      if (control->FindProperty(candidate) != nullptr) return "." + candidate;
    }
  } catch (const headless::Misunderstood&) {
    return "";
  }
  return "";
}

// The items of a list as `items` prints them, or the lines of a text in quotes.
Lines Story::ItemsOf(const std::string& full_name) {
  Ask("start");
  const auto* const control = headless::FindControl(driver_->Program(), full_name).control;
  if (headless::ItemsOf(*control)) {
    Lines items = Ask("items " + full_name);
    items.erase(items.begin());
    for (std::string& item : items) item.erase(0, 2);
    return items;
  }
  const auto* const property = control->FindProperty("Text");
  if (property == nullptr) throw headless::Misunderstood{full_name + " has neither items nor lines"};
  Lines items;
  const std::string text = std::get<std::string>(property->Read());
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find("\r\n", at), text.size());
    items.push_back(headless::Quoted(text.substr(at, end - at)) +
                    (end == text.size() ? " (no line end)" : ""));
    at = end + 2;
  }
  return items;
}

// What the driver prints for a command.
Lines Story::Ask(const std::string& command) {
  printed_.clear();
  driver_->Execute(command);
  return printed_;
}

void Story::Fail(std::size_t line, const std::string& what, const std::string& expected,
                 const std::string& got) {
  ++failures_;
  if (mode_ == Mode::kRecord) return;
  std::cout << file_.filename().string() << ":" << line + 1 << ": " << what << "\n  expected: " << expected
            << "\n  got:      " << got << "\n";
}

void Story::Record(const std::string& line) const {
  if (mode_ == Mode::kRecord) std::cout << line << "\n";
}

// What was as expected stays as it stands in the story.
void Story::RecordLines(std::size_t start, std::size_t end) const {
  for (; start < end; ++start) Record(lines_[start]);
}

void Story::RecordStep(const std::string& step, const Lines& printed) const {
  const std::string all = Joined(printed, " | ");
  if (Split(all, " | ") == printed && step.size() + all.size() < kWidth) return Record(step + " | " + all);
  Record(step);
  for (const std::string& line : printed) Record("  |" + (line.empty() ? "" : " " + line));
}

void Story::RecordChecks(const Lines& checks) const {
  std::string line = "  ";
  for (const std::string& check : checks) {
    if (line.size() + check.size() > kWidth && &check != &checks.front()) {
      Record(line.substr(0, line.size() - 1));
      line = "    ";
    }
    line += check + (&check == &checks.back() ? "" : ", ");
  }
  Record(line);
}

}  // namespace lectern::kit
