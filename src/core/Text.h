#pragma once
// Small text helpers shared by every subsystem. The program compares fixed
// width fields after trimming and reads numbers the forgiving way an operator
// expects: "599 K" is 599, "K" is 0.

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <type_traits>

namespace tarnix {

// Whether a value is one of a short list: OneOf(contest, {Cqp, Paqp}).
template <typename T>
bool OneOf(const T& value, std::initializer_list<std::type_identity_t<T>> set) {
  return std::find(set.begin(), set.end(), value) != set.end();
}

// The number a text begins with (after leading blanks), 0 if it begins with
// none. Accepts a sign and a decimal fraction: "-8" is -8, "14025.5 kHz" is
// 14025.5.
double Val(std::string_view text);

std::string Trim(std::string_view text);
std::string LTrim(std::string_view text);
std::string RTrim(std::string_view text);
std::string UCase(std::string_view text);

// Left-justified in exactly width characters: cut or padded with blanks.
std::string PadRight(std::string_view text, std::size_t width);
// Right-justified in width characters; longer texts are kept whole.
std::string PadLeft(std::string_view text, std::size_t width);

// The text form of a number as the program prints it in labels and record
// fields: a positive number (or zero) gets one leading blank, a negative one
// its minus sign. 12 gives " 12", -3 gives "-3".
std::string NumberText(long value);

// Digits grouped by commas: 1234567 gives "1,234,567".
std::string Grouped(long value);

// Every occurrence of each character of chars removed from text.
std::string RemoveChars(std::string_view text, std::string_view chars);

// Sum of the character codes of the text: the quick filter of the dupe scan.
int16_t CharSum(std::string_view text);

// Rounding of a number assigned to a 16- or 32-bit integer: to the nearest
// whole number, halves to the even neighbour.
long RoundEven(double value);

}  // namespace tarnix
