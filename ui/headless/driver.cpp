#include "ui/headless/driver.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <optional>
#include <utility>

#include "base/errors.h"
#include "base/text/characters.h"
#include "forms/lists.h"

namespace lectern::headless {

using base::RunTimeError;

namespace {

std::string ErrorText(const RunTimeError& error) {
  return "run-time error " + std::to_string(error.number()) + " " + Quoted(error.what());
}

enum class Needs { kNothing, kWindows };

void WantNoWords(const std::vector<Word>& words) {
  if (!words.empty()) throw Misunderstood{"no more words are wanted"};
}

}  // namespace

// A command that does not play the person: its name, whether the program must have started, and what it does
// with its words or, where they are free text, with the rest of its line.
struct Driver::Command {
  std::string_view name;
  Needs needs;
  std::function<void(Driver&, const std::vector<Word>& words)> run;
  std::function<void(Driver&, std::string_view rest)> run_on_text{};
};

const std::vector<Driver::Command>& Driver::Commands() {
  using Words = const std::vector<Word>&;
  static const std::vector<Command> kCommands = {
      {"get", Needs::kWindows, [](Driver& d, Words w) { d.inspector_.Get(w); }},
      {"items", Needs::kWindows, [](Driver& d, Words w) { d.inspector_.Items(w); }},
      {"menu", Needs::kWindows, [](Driver& d, Words w) { d.inspector_.Menu(w); }},
      {"controls", Needs::kWindows, [](Driver& d, Words w) { d.inspector_.Controls(w); }},
      {"set", Needs::kWindows, {}, [](Driver& d, std::string_view rest) { d.Set(rest); }},
      {"call", Needs::kWindows, [](Driver& d, Words w) { d.Call(w); }},
      {"tick", Needs::kWindows,
       [](Driver& d, Words w) {
         WantNoWords(w);
         d.program_.Tick();
       }},
      {"run", Needs::kWindows, [](Driver& d, Words w) { d.RunTimers(w); }},
      {"close", Needs::kWindows,
       [](Driver& d, Words w) {
         if (w.size() != 1) throw Misunderstood{"a window is wanted"};
         d.program_.Close(FindWindow(d.program_, w[0].text));
       }},
      {"start", Needs::kWindows, [](Driver&, Words w) { WantNoWords(w); }},
      {"answer", Needs::kNothing, [](Driver& d, Words w) { d.LayAnswer(w); }},
      {"date", Needs::kNothing, [](Driver& d, Words w) { d.SetDate(w); }},
      {"random", Needs::kNothing, [](Driver& d, Words w) { d.LayRandom(w); }},
      {"screen", Needs::kNothing, [](Driver& d, Words w) { d.SetScreen(w); }},
      {"printer", Needs::kNothing, [](Driver& d, Words w) { d.SetPrinter(w); }},
      {"fonts", Needs::kNothing,
       [](Driver& d, Words w) {
         d.platform_.fonts.clear();
         for (const Word& font : w) d.platform_.fonts.push_back(font.text);
       }},
      {"echo", Needs::kNothing, {}, [](Driver& d, std::string_view rest) { d.print_(std::string(rest)); }},
      {"quit", Needs::kNothing, [](Driver& d, Words) { d.quit_ = true; }},
  };
  return kCommands;
}

Driver::Driver(std::string data_folder, std::function<void(const std::string&)> print)
    : print_(std::move(print)),
      platform_([this](const std::string& line) { print_(line); }),
      files_(std::move(data_folder)),
      program_(forms::Services{platform_, files_}),
      inspector_(program_, print_),
      person_(program_, print_) {
  program_.report_failure = [this](const RunTimeError& error) { print_(ErrorText(error)); };
}

void Driver::Execute(std::string_view line) {
  while (!line.empty() && (line.back() == '\r' || line.back() == '\n')) line.remove_suffix(1);
  const std::size_t start = line.find_first_not_of(" \t");
  if (start == std::string_view::npos || line[start] == '#') return;
  line.remove_prefix(start);
  const std::string_view name = line.substr(0, line.find_first_of(" \t"));
  std::string_view rest = line.substr(name.size());
  if (!rest.empty()) rest.remove_prefix(1);
  if (program_.HasEnded() && name != "quit") {
    print_("ended");
    return;
  }
  try {
    Run(name, rest);
  } catch (const Misunderstood& misunderstood) {
    misunderstood_ = true;
    print_("error: " + misunderstood.reason);
  }
  PrintEnd();
}

void Driver::Run(std::string_view name, std::string_view rest) {
  const auto words = [rest] {
    std::optional<std::vector<Word>> found = Words(rest);
    if (!found) throw Misunderstood{"a text is not closed, or an escape is unknown"};
    return *std::move(found);
  };
  const bool keepers = name.ends_with('!');
  const std::string_view plain = name.substr(0, name.size() - (keepers ? 1 : 0));
  if (ScriptedPerson::Knows(plain)) {
    Start();
    person_.Do(plain, words(), keepers ? Actor::kKeeper : Actor::kReader);
    return;
  }
  const auto found = std::find_if(Commands().begin(), Commands().end(),
                                  [name](const Command& command) { return command.name == name; });
  if (found == Commands().end()) throw Misunderstood{"no command " + std::string(name)};
  if (found->needs == Needs::kWindows) Start();
  if (found->run_on_text) {
    found->run_on_text(*this, rest);
  } else {
    found->run(*this, words());
  }
}

void Driver::Start() {
  if (!std::exchange(started_, true)) program_.Start();
}

void Driver::PrintEnd() {
  if (program_.HasEnded() && !std::exchange(end_printed_, true)) print_("end");
}

namespace {

// Selected(index) of a list with one selection: deselecting another item changes nothing.
void SetSelected(forms::ItemList& list, int index, bool selected) {
  if (index < 0 || index >= list.ListCount()) throw RunTimeError(base::ErrorNumber::kInvalidProperty);
  if (selected) {
    list.Select(index);
  } else if (list.Selected(index)) {
    list.Select(-1);
  }
}

}  // namespace

void Driver::Set(std::string_view rest) {
  const std::size_t sign = std::min(rest.find('='), rest.size());
  const auto left = Words(rest.substr(0, sign));
  const auto right = Words(rest.substr(std::min(sign + 1, rest.size())));
  if (!left || left->size() != 1 || !right || right->size() != 1) {
    throw Misunderstood{"a property, = and a value are wanted"};
  }
  const std::string& name = (*left)[0].text;
  const Target target = FindProperty(program_, name);
  const std::optional<forms::Value> value = ToValue((*right)[0]);
  if (!value) throw Misunderstood{"no value " + (*right)[0].text};
  std::function<void()> write;
  if (auto* list = dynamic_cast<forms::ItemList*>(target.control);
      list != nullptr && text::EqualFolded(target.property, "Selected") && target.arguments.size() == 1 &&
      std::holds_alternative<bool>(*value)) {
    write = [&, list] { SetSelected(*list, target.arguments[0], std::get<bool>(*value)); };
  } else if (forms::PropertyBase* property = target.Owner().FindProperty(target.property);
             property != nullptr && target.arguments.empty()) {
    write = [&, property] { property->Write(*value); };
  } else {
    throw Misunderstood{"no property " + name};
  }
  program_.Deliver(*target.window, [&] {
    try {
      write();
    } catch (const RunTimeError& error) {
      print_("error: " + ErrorText(error));
    }
  });
}

void Driver::Call(const std::vector<Word>& words) {
  if (words.empty() || words.size() > 2) throw Misunderstood{"a routine is wanted"};
  const ui::Program::Routine routine = program_.FindRoutine(words[0].text);
  if (routine.window == nullptr) throw Misunderstood{"no routine " + words[0].text};
  program_.Deliver(*routine.window, [&] { routine.run(words.size() == 2 ? words[1].text : ""); });
}

void Driver::RunTimers(const std::vector<Word>& words) {
  constexpr int kMost = 1000000;
  const std::optional<int> most = words.empty() ? std::optional(kMost) : ToWhole(words[0]);
  if (!most || words.size() > 1) throw Misunderstood{"a number is wanted"};
  int ticks = 0;
  while (ticks < *most && !program_.HasEnded() && program_.Tick()) ++ticks;
  PrintEnd();  // it happened before the count is printed
  print_("ran " + std::to_string(ticks) + " ticks");
}

void Driver::LayAnswer(const std::vector<Word>& words) {
  using Kind = Answer::Kind;
  static const std::pair<std::string_view, Kind> kPlain[] = {
      {"yes", Kind::kYes}, {"no", Kind::kNo}, {"ok", Kind::kOk}, {"cancel", Kind::kCancel}};
  if (words.size() != 1) throw Misunderstood{"one answer is wanted"};
  if (words[0].quoted) {
    platform_.answers.push_back({Kind::kText, words[0].text});
    return;
  }
  const auto* const found = std::find_if(std::begin(kPlain), std::end(kPlain),
                                         [&](const auto& plain) { return plain.first == words[0].text; });
  if (found == std::end(kPlain)) throw Misunderstood{"a text, yes, no, ok or cancel is wanted"};
  platform_.answers.push_back({found->second, ""});
}

void Driver::SetDate(const std::vector<Word>& words) {
  const Misunderstood wanted{"a date is wanted: YYYY-MM-DD"};
  if (words.size() != 1) throw wanted;
  base::Date date;
  std::string_view left = words[0].text;
  for (int* part : {&date.year, &date.month, &date.day}) {
    const auto [end, failure] = std::from_chars(left.data(), left.data() + left.size(), *part);
    if (failure != std::errc{}) throw wanted;
    left.remove_prefix(static_cast<std::size_t>(end - left.data()));
    if (left.starts_with('-')) left.remove_prefix(1);
  }
  const std::chrono::year_month_day day{std::chrono::year(date.year),
                                        std::chrono::month(static_cast<unsigned>(date.month)),
                                        std::chrono::day(static_cast<unsigned>(date.day))};
  if (!left.empty() || !day.ok()) throw wanted;
  platform_.date = date;
}

void Driver::LayRandom(const std::vector<Word>& words) {
  std::vector<double> numbers;
  for (const Word& word : words) {
    const auto number = ToReal(word);
    if (!number || *number < 0 || *number >= 1)
      throw Misunderstood{"numbers from 0 up to but not 1 are wanted"};
    numbers.push_back(*number);
  }
  platform_.random_numbers.insert(platform_.random_numbers.end(), numbers.begin(), numbers.end());
}

void Driver::SetScreen(const std::vector<Word>& words) {
  const auto width = words.size() == 2 ? ToReal(words[0]) : std::nullopt;
  const auto height = words.size() == 2 ? ToReal(words[1]) : std::nullopt;
  if (!width || !height) throw Misunderstood{"a width and a height in twips are wanted"};
  platform_.screen = {*width, *height};
}

void Driver::SetPrinter(const std::vector<Word>& words) {
  if (words.size() != 1 || (words[0].text != "on" && words[0].text != "off")) {
    throw Misunderstood{"on or off is wanted"};
  }
  platform_.has_printer = words[0].text == "on";
}

}  // namespace lectern::headless
