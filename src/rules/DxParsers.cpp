// WPX and CQWW: a serial or zone in the exchange box, or typed on the end of
// the call with the exchange box left empty ("K3ZZZ123", "K3ZZZ14"); and the
// zone CQWW puts in the exchange box once the call is known.

#include <cstdio>

#include "core/Text.h"
#include "rules/ParserText.h"
#include "rules/Parsers.h"

namespace tarnix {
namespace {

// The box text's place behind its last character that is not a blank.
int EndOfText(std::string_view box) {
  std::size_t last = box.find_last_not_of(' ');
  return last == std::string_view::npos ? 0 : static_cast<int>(last) + 1;
}

// A number as plain text: "5", "14".
std::string PlainNumber(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%g", value);
  return text;
}

}  // namespace

ParseResult WPXParse(std::string_view call, std::string_view exchange, ReceivedFields& fields) {
  // digits > 0: the serial typed on the end of the call is out of range, and
  // those digits are selected there; otherwise the exchange box is.
  auto refuse = [&](std::size_t digits) {
    ParseResult r = Refusal("Number must be between 1 and 9999.", "Invalid Entry", static_cast<int>(exchange.size()));
    if (digits > 0) {
      r.SelectInCall = true;
      r.SelLength = static_cast<int>(digits);
      r.SelStart = EndOfText(call) - r.SelLength;
    }
    return r;
  };
  const std::string c = Trim(call);
  const std::string exch = Trim(exchange);

  if (!exch.empty()) {
    double number = Val(exch);
    if (number < 1 || number > 9999) return refuse(0);
    fields.WPXCall = c;
    fields.WPXNumber = exch;
    return {};
  }
  if (c.empty() || !IsDigit(c.back()) || c.find('/') != std::string::npos || c.size() < 4) return refuse(0);
  // The digits at the end, with at least three characters left for the call:
  // "K3Z1" is K3Z and 1.
  std::size_t digits = 1;
  while (digits < c.size() && IsDigit(c[c.size() - 1 - digits])) ++digits;
  if (c.size() - digits < 3) return refuse(0);
  std::string number = c.substr(c.size() - digits);
  double value = Val(number);
  if (value < 1 || value > 9999) return refuse(digits);
  fields.WPXCall = c.substr(0, c.size() - digits);
  fields.WPXNumber = number;
  return {};
}

ParseResult CQWWParse(std::string_view call, std::string_view exchange, ReceivedFields& fields) {
  std::string c = Trim(call);
  const std::string exch = Trim(exchange);

  // With more than one word in the box only the first counts, and only as a
  // zone; the pre-filled zone stands behind a blank for this.
  std::string zone;
  if (std::size_t blank = exch.find(' '); blank != std::string::npos) {
    double first = Val(std::string_view(exch).substr(0, blank));
    if (first > 0 && first < 41) zone = PlainNumber(first);
  } else {
    zone = exch;
  }

  // A zone typed on the end of the call wins. A call of three characters
  // keeps its digit, and so does one with "/" ("K3ZZZ/4").
  const std::size_t n = c.size();
  if (c.find('/') == std::string::npos && n > 0 && IsDigit(c.back()) && n != 3) {
    std::size_t digits = 0;
    if (n == 4) digits = IsDigit(c[2]) ? 0 : 1;
    else if (n > 4) digits = IsDigit(c[n - 2]) ? 2 : 1;
    if (digits > 0) {
      zone = c.substr(n - digits);
      c.resize(n - digits);
    }
  }

  double value = Val(zone);
  if (value >= 1 && value <= 40) {
    fields.CQWWCall = c;
    fields.CQWWZone = Trim(zone);
    return {};
  }
  return Refusal("Enter zone between 1 and 40.", "Invalid Zone", static_cast<int>(exchange.size()));
}

std::string CQWWZonePrefill(CountryData& countries, const ContestState& contest, std::string_view call) {
  std::string c(call);
  int16_t row = FindCountry(countries, contest, c);
  if (countries.LookupZone > 0) return " " + std::to_string(countries.LookupZone);
  if (int16_t zone = GetNAZone(c); zone > 0) return (zone < 10 ? " 0" : " ") + std::to_string(zone);
  return " " + countries.CountryTable[static_cast<std::size_t>(row)].Zone;
}

}  // namespace tarnix
