// The Sweepstakes exchange: number, precedence, check, section, read with or
// without blanks ("123A58EB" is "123 A 58 EB"). A call typed between the
// precedence and the check corrects the call box.

#include "core/Text.h"
#include "rules/ParserText.h"
#include "rules/Parsers.h"

namespace tarnix {
namespace {

constexpr std::string_view Precedences = "ABQMSU";
constexpr std::size_t SectionMax = 5;

// The row of the section among the three forms of each row; 0 when none.
int SectionRow(const SSTableType& table, const std::string& section) {
  for (int row = 1; row <= SSSectionRows; ++row)
    for (int column = 1; column <= 3; ++column)
      if (table.At(row, column) == section) return row;
  return 0;
}

}  // namespace

ParseResult SSParse(std::string_view exchange, std::string_view call, const MultiplierTables& tables,
                    const StartupData& data, ReceivedFields& fields) {
  ParserText s(exchange);
  s.UpperCase();
  // Blanks go. A "/" is kept only where a portable call can stand: from the
  // third place up to five places before the end, which leaves room for a
  // number and precedence in front and check and section behind.
  const std::size_t typed = s.Size();
  s.KeepIf([typed](char c, std::size_t i) {
    if (c == '/') return i + 1 >= 3 && i + 1 + 5 <= typed;
    return PlaceIn(LettersDigits, c) > 0;
  });
  const std::string& t = s.Text();

  if (IsLetter(s[0])) return s.Refuse("Exchange must begin with a number", 0, 1);
  std::size_t run = 0;
  while (run < 4 && run < t.size() && !IsLetter(t[run])) ++run;
  if (run == t.size()) return s.Refuse("Incomplete Exchange", t.size(), 0);

  const char precedence = t[run];
  if (Precedences.find(precedence) == std::string_view::npos)
    return s.Refuse("Precedence Error -- Must be A, B, M, Q, S, or U", run, 1);
  const std::size_t body = run + 1;  // behind the precedence
  if (t.size() - body < 4) return s.Refuse("Multiplier or Check Error", t.size(), 0);

  // The section, read backwards from the end: letters, and a non-letter only
  // as the very last character. A non-letter next to a single character
  // taken is an error; after two or more it ends the section.
  std::size_t start = t.size();
  while (start > body && t.size() - start < SectionMax) {
    const std::size_t taken = t.size() - start;
    if (IsLetter(t[start - 1]) || taken == 0) {
      --start;
      continue;
    }
    if (taken == 1) return s.Refuse("Multiplier error", t.size() - 1, 1);
    break;
  }
  const std::string section = t.substr(start);
  const int row = SectionRow(tables.SSTable, section);
  if (row == 0) return s.Refuse("Multiplier is Invalid.", start, section.size());

  // The check: the two characters in front of the section, digits only. Its
  // value is not tested: "00" to "99" all pass.
  if (start - body < 2) return s.Refuse("Check error", start, section.size());
  const std::size_t check = start - 2;
  for (std::size_t i = check; i < start; ++i)
    if (IsLetter(t[i])) return s.Refuse("Check Error", i, 1);

  ParseResult result;
  std::string between = t.substr(body, check - body);
  if (between.size() >= 4 && between != Trim(call)) result.CorrectedCall = between;

  fields.SSNumber = static_cast<int16_t>(RoundEven(Val(std::string_view(t).substr(0, run))));
  fields.SSPrecedence = std::string(1, precedence);
  fields.SSCheck = t.substr(check, 2);
  fields.SSSection = section;
  fields.SSShortForm = data.SSShortForms[static_cast<std::size_t>(row)];
  return result;
}

}  // namespace tarnix
