#include "base/text/numbers.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "base/errors.h"

namespace lectern::text {

using base::ErrorNumber;
using base::RunTimeError;

namespace {

std::string_view TrimBlanks(std::string_view text) {
  const auto blank = [](char c) { return c == ' ' || c == '\t'; };
  while (!text.empty() && blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && blank(text.back())) text.remove_suffix(1);
  return text;
}

// Reads the number at the front of the text and says where it ends; nullptr where there is none.
const char* LeadingNumber(std::string_view text, double& number) {
  const char* first = text.data();
  const char* last = first + text.size();
  if (first != last && *first == '+') ++first;
  const char* digit = first != last && *first == '-' ? first + 1 : first;
  if (digit == last || (*digit != '.' && (*digit < '0' || *digit > '9'))) return nullptr;
  const auto [end, failure] = std::from_chars(first, last, number);
  if (failure == std::errc::result_out_of_range) number = std::numeric_limits<double>::infinity();
  if (failure == std::errc::invalid_argument || std::isnan(number)) return nullptr;
  return end;
}

// "&H1F": a colour or mask in hexadecimal, 32 bits, the top bit being the sign.
bool Hexadecimal(std::string_view text, double& number) {
  if (text.size() < 3 || text.size() > 10 || text[0] != '&' || (text[1] != 'H' && text[1] != 'h')) {
    return false;
  }
  std::uint32_t bits = 0;
  const char* last = text.data() + text.size();
  const auto [end, failure] = std::from_chars(text.data() + 2, last, bits, 16);
  if (failure != std::errc{} || end != last) return false;
  number = static_cast<std::int32_t>(bits);
  return true;
}

bool Numeric(std::string_view text, double& number) {
  text = TrimBlanks(text);
  if (Hexadecimal(text, number)) return true;
  const char* end = LeadingNumber(text, number);
  return end != nullptr && end == text.data() + text.size();
}

double RoundWithin(double number, double lowest, double highest) {
  const double whole = std::nearbyint(number);  // the default mode: a half goes to the even neighbour
  if (!(whole >= lowest && whole <= highest)) throw RunTimeError(ErrorNumber::kOverflow);
  return whole;
}

}  // namespace

double LeadingDigits(std::string_view text) {
  text = TrimBlanks(text);
  const std::size_t sign = text.starts_with('-') ? 1 : 0;
  return NumberValue(text.substr(0, text.find_first_not_of("0123456789", sign)));
}

double NumberValue(std::string_view text) {
  double number = 0;
  return LeadingNumber(TrimBlanks(text), number) != nullptr && std::isfinite(number) ? number : 0;
}

bool IsNumeric(std::string_view text) {
  double number = 0;
  return Numeric(text, number);
}

double ToNumber(std::string_view text) {
  double number = 0;
  if (!Numeric(text, number)) throw RunTimeError(ErrorNumber::kTypeMismatch);
  return number;
}

int IntegerValue(std::string_view text) { return RoundToInteger(LeadingDigits(text)); }

int ToInteger(std::string_view text) { return RoundToInteger(ToNumber(text)); }

std::int32_t ToLong(std::string_view text) { return RoundToLong(ToNumber(text)); }

std::int32_t RoundToLong(double number) {
  return static_cast<std::int32_t>(RoundWithin(number, std::numeric_limits<std::int32_t>::min(),
                                               std::numeric_limits<std::int32_t>::max()));
}

std::int16_t RoundToInteger(double number) {
  return static_cast<std::int16_t>(RoundWithin(number, std::numeric_limits<std::int16_t>::min(),
                                               std::numeric_limits<std::int16_t>::max()));
}

std::string NumberText(double number) {
  constexpr double kLongest = 1e15;  // written out; beyond it, with an exponent
  char buffer[64];
  const auto format = std::abs(number) < kLongest ? std::chars_format::fixed : std::chars_format::general;
  const auto [end, failure] = std::to_chars(buffer, std::end(buffer), number, format);
  if (failure != std::errc{} || number == 0) return "0";
  return {buffer, end};
}

}  // namespace lectern::text
