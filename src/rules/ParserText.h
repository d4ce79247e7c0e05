#pragma once
// The working text of an exchange parser and its way back to the box.
//
// A parser trims, upper-cases and filters the exchange before it reads it,
// but its errors select characters in the box as the operator typed them.
// ParserText keeps, for each character it still holds, the place that
// character had in the box, so a selection made on the working text lands
// on the same characters in the box.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "rules/Parsers.h"

namespace tarnix {

inline constexpr std::string_view LettersBlankDigits = "ABCDEFGHIJKLMNOPQRSTUVWXYZ 1234567890";
inline constexpr std::string_view LettersDigits = "ABCDEFGHIJKLMNOPQRSTUVWXYZ1234567890";
inline constexpr std::string_view LettersDigitsSlash = "ABCDEFGHIJKLMNOPQRSTUVWXYZ1234567890/";

// A character's place in a set, from 1; 0 when it is not in it.
inline int PlaceIn(std::string_view set, char c) {
  std::size_t at = set.find(c);
  return at == std::string_view::npos ? 0 : static_cast<int>(at) + 1;
}
inline bool IsLetter(char c) { return c >= 'A' && c <= 'Z'; }
inline bool IsDigit(char c) { return c >= '0' && c <= '9'; }

class ParserText {
 public:
  explicit ParserText(std::string_view box) : Chars(box), BoxLength(static_cast<int>(box.size())) {
    for (std::size_t i = 0; i < box.size(); ++i) Places.push_back(static_cast<int>(i));
  }

  const std::string& Text() const { return Chars; }
  std::size_t Size() const { return Chars.size(); }
  bool Empty() const { return Chars.empty(); }
  char operator[](std::size_t i) const { return i < Chars.size() ? Chars[i] : '\0'; }
  int BoxSize() const { return BoxLength; }

  void UpperCase() {
    for (char& c : Chars)
      if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  // Without its outer blanks.
  void Trim() {
    std::size_t first = 0, last = Chars.size();
    while (first < last && Chars[first] == ' ') ++first;
    while (last > first && Chars[last - 1] == ' ') --last;
    Chars = Chars.substr(first, last - first);
    Places = std::vector<int>(Places.begin() + static_cast<std::ptrdiff_t>(first),
                              Places.begin() + static_cast<std::ptrdiff_t>(last));
  }
  // Keeps the characters for which keep(c, i) holds, i being the character's
  // place (from 0) in the text as it stood before.
  template <class Keep>
  void KeepIf(Keep keep) {
    std::string kept;
    std::vector<int> places;
    for (std::size_t i = 0; i < Chars.size(); ++i) {
      if (!keep(Chars[i], i)) continue;
      kept += Chars[i];
      places.push_back(Places[i]);
    }
    Chars = std::move(kept);
    Places = std::move(places);
  }
  void KeepIn(std::string_view set) {
    KeepIf([set](char c, std::size_t) { return PlaceIn(set, c) > 0; });
  }

  // The box place of character i; for i at or past the end, the place behind
  // the last character kept (0 when none is).
  int BoxPlace(std::size_t i) const {
    if (i < Places.size()) return Places[i];
    return Places.empty() ? 0 : Places.back() + 1;
  }

  // A refusal selecting characters [start, start + length) of the text.
  ParseResult Refuse(std::string message, std::size_t start, std::size_t length) const {
    ParseResult r;
    r.Error = true;
    r.Message = std::move(message);
    r.Title = ExchangeErrorTitle;
    r.SelStart = BoxPlace(start);
    r.SelLength = length == 0 ? 0 : BoxPlace(start + length - 1) + 1 - r.SelStart;
    return r;
  }

 private:
  std::string Chars;
  std::vector<int> Places;  // box place of each character of Chars
  int BoxLength = 0;
};

// The text trimmed, upper-cased and reduced to set: how most parsers start.
inline ParserText Cleaned(std::string_view box, std::string_view set) {
  ParserText s(box);
  s.Trim();
  s.UpperCase();
  s.KeepIn(set);
  return s;
}

// A refusal with no selection, or with the whole box selected.
inline ParseResult Refusal(std::string message, std::string_view title = ExchangeErrorTitle, int selLength = 0) {
  ParseResult r;
  r.Error = true;
  r.Message = std::move(message);
  r.Title = title;
  r.SelLength = selLength;
  return r;
}

}  // namespace tarnix
