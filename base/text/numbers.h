// Numbers and their texts, in the two ways the program turns one into the other.
//
// LeadingDigits and NumberValue are forgiving: they take what the text begins with, behind blanks, and 0
// where that is no number. A label or the field of a record is a number by its leading digits ("12 Chapter"
// is 12, "1.5" and "1e2" are 1, "-3" is -3). ToNumber and the ones named for a type are strict: the whole
// text has to be a number (error 13), and it has to fit (error 6); a fraction goes to the nearest whole
// number, a half to the even neighbour.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace lectern::text {

double LeadingDigits(std::string_view text);
double NumberValue(std::string_view text);  // with a fraction and an exponent
int IntegerValue(std::string_view text);    // LeadingDigits as 16 bits; error 6 where it does not fit

bool IsNumeric(std::string_view text);
double ToNumber(std::string_view text);
int ToInteger(std::string_view text);        // 16 bits
std::int32_t ToLong(std::string_view text);  // 32 bits; also &H… hexadecimal
std::int32_t RoundToLong(double number);     // error 6 where it does not fit
std::int16_t RoundToInteger(double number);

// The shortest text that gives the number back: "5", "-3", "8.5".
std::string NumberText(double number);

}  // namespace lectern::text
