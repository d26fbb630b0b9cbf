#include "ui/headless/headless_platform.h"

#include <chrono>
#include <cmath>
#include <ctime>
#include <utility>

#include "base/errors.h"
#include "forms/window.h"
#include "ui/headless/language.h"

namespace lectern::headless {

HeadlessPlatform::HeadlessPlatform(std::function<void(const std::string&)> event)
    : screen{15360, 11520},  // 1024 by 768 pixels
      fonts{"Arial", "Courier New", "Georgia", "Times New Roman", "Verdana"},
      event_(std::move(event)) {
  SeedRandom();
}

std::optional<Answer> HeadlessPlatform::NextAnswer() {
  if (answers.empty()) return std::nullopt;
  Answer answer = std::move(answers.front());
  answers.pop_front();
  return answer;
}

void HeadlessPlatform::Message(std::string_view text, std::string_view title) {
  NextAnswer();
  event_("message " + Quoted(text) + " " + Quoted(title));
}

bool HeadlessPlatform::Question(std::string_view text, std::string_view title) {
  const std::optional<Answer> answer = NextAnswer();
  const bool yes = answer && (answer->kind == Answer::Kind::kYes || answer->kind == Answer::Kind::kOk);
  event_("question " + Quoted(text) + " " + Quoted(title) + (yes ? " -> yes" : " -> no"));
  return yes;
}

std::string HeadlessPlatform::Input(std::string_view prompt, std::string_view title,
                                    std::string_view proposed) {
  const std::optional<Answer> answer = NextAnswer();
  std::string text;
  if (answer && answer->kind == Answer::Kind::kText) text = answer->text;
  if (answer && (answer->kind == Answer::Kind::kOk || answer->kind == Answer::Kind::kYes)) text = proposed;
  event_("input " + Quoted(prompt) + " " + Quoted(title) + " " + Quoted(proposed) + " -> " + Quoted(text));
  return text;
}

void HeadlessPlatform::Beep() { event_("beep"); }

base::Date HeadlessPlatform::Today() {
  if (date) return *date;
  const std::time_t now = std::time(nullptr);
  std::tm today{};
  ::localtime_r(&now, &today);
  constexpr int kFirstYear = 1900;
  return {today.tm_year + kFirstYear, today.tm_mon + 1, today.tm_mday};
}

void HeadlessPlatform::SeedRandom() {
  random_.seed(static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count()));
}

double HeadlessPlatform::Random() {
  if (!random_numbers.empty()) {
    const double next = random_numbers.front();
    random_numbers.pop_front();
    return next;
  }
  return std::uniform_real_distribution<double>(0, 1)(random_);
}

forms::Picture HeadlessPlatform::DecodePicture(std::string_view bytes) {
  return headless::DecodePicture(bytes);
}

void HeadlessPlatform::PrintForm(forms::Window& window) {
  if (!has_printer) throw base::RunTimeError(base::ErrorNumber::kPrinter);
  const auto pixels = [](double twips) { return std::to_string(std::lround(twips / forms::kTwipsPerPixel)); };
  event_("print " + window.Name() + " " + pixels(window.ClientWidth()) + "x" + pixels(window.ClientHeight()));
}

bool HeadlessPlatform::OpenInBrowser(std::string_view address) {
  event_("browse " + Quoted(address));
  return true;
}

}  // namespace lectern::headless
