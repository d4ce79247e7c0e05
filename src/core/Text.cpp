#include "core/Text.h"

#include <cctype>
#include <cmath>

namespace tarnix {

double Val(std::string_view text) {
  std::size_t i = 0;
  while (i < text.size() && (text[i] == ' ' || text[i] == '\t')) ++i;
  bool negative = false;
  if (i < text.size() && (text[i] == '-' || text[i] == '+')) {
    negative = text[i] == '-';
    ++i;
  }
  double value = 0;
  bool anyDigit = false;
  while (i < text.size() && std::isdigit(static_cast<unsigned char>(text[i]))) {
    value = value * 10 + (text[i] - '0');
    anyDigit = true;
    ++i;
  }
  if (i < text.size() && text[i] == '.') {
    ++i;
    double scale = 0.1;
    while (i < text.size() && std::isdigit(static_cast<unsigned char>(text[i]))) {
      value += (text[i] - '0') * scale;
      scale /= 10;
      anyDigit = true;
      ++i;
    }
  }
  if (!anyDigit) return 0;
  return negative ? -value : value;
}

std::string LTrim(std::string_view text) {
  std::size_t start = text.find_first_not_of(' ');
  return start == std::string_view::npos ? std::string() : std::string(text.substr(start));
}

std::string RTrim(std::string_view text) {
  std::size_t end = text.find_last_not_of(' ');
  return end == std::string_view::npos ? std::string() : std::string(text.substr(0, end + 1));
}

std::string Trim(std::string_view text) { return LTrim(RTrim(text)); }

std::string UCase(std::string_view text) {
  std::string out(text);
  for (char& c : out) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return out;
}

std::string PadRight(std::string_view text, std::size_t width) {
  std::string out(text.substr(0, width));
  out.resize(width, ' ');
  return out;
}

std::string PadLeft(std::string_view text, std::size_t width) {
  if (text.size() >= width) return std::string(text);
  return std::string(width - text.size(), ' ') + std::string(text);
}

std::string NumberText(long value) {
  return value < 0 ? std::to_string(value) : " " + std::to_string(value);
}

std::string Grouped(long value) {
  std::string digits = std::to_string(value < 0 ? -value : value);
  std::string out;
  int count = 0;
  for (auto it = digits.rbegin(); it != digits.rend(); ++it) {
    if (count > 0 && count % 3 == 0) out.insert(out.begin(), ',');
    out.insert(out.begin(), *it);
    ++count;
  }
  return value < 0 ? "-" + out : out;
}

std::string RemoveChars(std::string_view text, std::string_view chars) {
  std::string out;
  out.reserve(text.size());
  for (char c : text)
    if (chars.find(c) == std::string_view::npos) out += c;
  return out;
}

int16_t CharSum(std::string_view text) {
  int sum = 0;
  for (char c : text) sum += static_cast<unsigned char>(c);
  return static_cast<int16_t>(sum);
}

long RoundEven(double value) { return std::lrint(value); }

}  // namespace tarnix
