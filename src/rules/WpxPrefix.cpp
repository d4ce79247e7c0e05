// The call-shape rules of the resolver: WPX prefix, US and Canadian zones by
// call area, and where a worked prefix lies for a North American station.

#include <algorithm>
#include <initializer_list>

#include "core/Text.h"
#include "rules/Countries.h"

namespace tarnix {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Inclusive range of texts: "AA" to "AG" holds "AC".
bool Between(std::string_view text, std::string_view low, std::string_view high) {
  return text >= low && text <= high;
}

bool IsKNW(char c) { return c == 'K' || c == 'N' || c == 'W'; }

// The prefix ends at the last digit after the first character; a call
// without one gets "0" behind its first two characters ("ABCD" gives "AB0").
std::string DigitScan(std::string_view s) {
  for (std::size_t length = s.size(); length >= 2; --length)
    if (IsDigit(s[length - 1])) return std::string(s.substr(0, length));
  return std::string(s.substr(0, 2)) + "0";
}

// The Bahamas' WPX prefix is C6 although C6A calls are common.
std::string Final(std::string prefix) { return prefix == "C6A" ? "C6" : prefix; }

bool IsCanadianStart(std::string_view two) {
  return Between(two, "CF", "CK") || OneOf(two, {"CY", "CZ", "VO", "VX", "VY"}) || Between(two, "VA", "VG") ||
         Between(two, "XJ", "XO");
}

}  // namespace

std::string GetWPXPrefix(std::string_view call) {
  std::size_t slash = call.find('/');
  if (slash == std::string_view::npos) return Final(DigitScan(call));

  std::string_view left = call.substr(0, slash);
  std::string_view right = call.substr(slash + 1);
  std::string_view candidate;
  if (left.size() < right.size()) {
    // "P/K3ZZZ": an indicator in front, the call behind it.
    candidate = left;
    if (OneOf(candidate, {"A", "P", "J", "M", "MM"})) return Final(DigitScan(right));
  } else {
    // "K3ZZZ/P": portable, mobile and the like keep the home prefix.
    candidate = right;
    if (OneOf(candidate, {"A", "P", "J", "M", "MM", "N", "T"})) return Final(DigitScan(call));
  }
  if (candidate.empty()) return Final(DigitScan(call));
  if (candidate.size() == 1) {
    if (!IsDigit(candidate[0])) return Final(std::string(candidate) + "0");
    // "W6XYZ/3": the home prefix with the call area changed.
    std::string prefix = DigitScan(call.substr(0, call.size() - 2));
    prefix.back() = candidate[0];
    return prefix;
  }
  if (IsDigit(candidate.back()) || IsDigit(candidate[candidate.size() - 2])) return Final(std::string(candidate));
  return Final(std::string(candidate) + "0");
}

int16_t GetNAZone(std::string_view call) {
  enum { Unclassified, US, Canada } area = Unclassified;
  if (call.size() == 2) {
    if (IsKNW(call[0])) area = US;
  } else if (call.size() > 2) {
    std::string_view two = call.substr(0, 2);
    if (Between(two, "AA", "AG") || Between(two, "AI", "AK"))
      area = US;
    else if (OneOf(two, {"KP", "NP", "WP", "AL", "KL", "NL", "WL", "AH", "KH", "NH", "WH"}))
      area = Unclassified;
    else if (IsCanadianStart(two))
      area = Canada;
    else if (IsKNW(call[0]))
      area = US;
  }
  auto digit = std::find_if(call.begin(), call.end(), IsDigit);
  if (area == Unclassified || digit == call.end()) return 0;

  const int d = *digit - '0';
  if (area == US) {
    if (d == 6 || d == 7) return 3;
    if (d >= 1 && d <= 4) return 5;
    return 4;  // 0, 5, 8, 9
  }
  std::string_view three = call.substr(0, 3);
  if (three == "VY1" || three == "VE8") return 1;
  if (three == "VO2" || three == "VY2") return 2;
  if (d == 0 || d == 7) return 3;
  if (d == 1 || d == 2 || d == 9) return 5;
  if (d == 8) return 1;
  return 4;  // 3, 4, 5, 6
}

NAClass ClassifyNAPrefix(std::string_view prefix) {
  if (prefix.size() < 2) return NAClass::None;
  std::string_view two = prefix.substr(0, 2);
  if (prefix.size() == 2) {
    if (IsKNW(prefix[0])) return NAClass::USA;
    if (OneOf(two, {"C6", "J3"}) || Between(two, "J6", "J8") || Between(two, "V2", "V4")) return NAClass::OtherNA;
    return NAClass::None;
  }
  if (Between(two, "AA", "AG") || Between(two, "AI", "AK")) return NAClass::USA;
  if (Between(two, "6D", "6J") || Between(two, "XA", "XI") ||
      OneOf(two, {"6Y", "8P", "C6", "CM", "CO", "FG", "FJ", "FM", "FP", "FS", "HH", "HI", "HO", "HP", "HQ",
                  "HR", "OX", "TG", "TD", "TI", "TE", "YN", "YS", "ZF", "KP", "NP", "WP", "AL", "KL", "NL", "WL"}))
    return NAClass::OtherNA;
  if (OneOf(two, {"AH", "KH", "NH", "WH"})) return NAClass::None;
  if (OneOf(two, {"J3", "HT", "HU"}) || Between(two, "J6", "J8") || Between(two, "V2", "V4"))
    return NAClass::OtherNA;
  if (IsCanadianStart(two)) return NAClass::Canada;
  if (IsKNW(prefix[0])) return NAClass::USA;
  std::string_view three = prefix.substr(0, 3);
  if (Between(three, "PJ5", "PJ8") || OneOf(three, {"VP2", "VP5", "VP9"})) return NAClass::OtherNA;
  return NAClass::None;
}

std::string_view NAClassText(NAClass value) {
  switch (value) {
    case NAClass::USA: return "USA";
    case NAClass::Canada: return "Canada";
    case NAClass::OtherNA: return "OtherNA";
    case NAClass::None: break;
  }
  return "None";
}

}  // namespace tarnix
