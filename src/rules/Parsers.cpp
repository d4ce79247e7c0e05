// The parsers of the domestic contests and the choice of parser by contest.
// Sweepstakes is in SSParse.cpp, WPX and CQWW in DxParsers.cpp.

#include "rules/Parsers.h"

#include <algorithm>

#include "core/Text.h"
#include "rules/ParserText.h"

namespace tarnix {
namespace {

constexpr std::string_view MustBeginWithNumber = "Exchange must begin with a number";
constexpr std::string_view Incomplete = "Incomplete Exchange";
constexpr std::string_view NoExchange = "No Exchange";
constexpr std::string_view MultiplierInvalid = "Multiplier is Invalid.";

int16_t NumberOf(std::string_view digits) { return static_cast<int16_t>(RoundEven(Val(digits))); }

// Whether text equals a form in columns 1..lastColumn of rows 1..rows.
template <int Rows, int Columns>
bool AnyForm(const MultTable<Rows, Columns>& table, int rows, int lastColumn, const std::string& text) {
  for (int row = 1; row <= rows; ++row)
    for (int column = 1; column <= lastColumn; ++column)
      if (table.At(row, column) == text) return true;
  return false;
}

// The number of Sprint and the CW Open: up to four characters, a blank among
// them, ended only by a letter.
std::size_t NumberRunToLetter(const ParserText& s) {
  std::size_t run = 0;
  while (run < 4 && run < s.Size() && !IsLetter(s[run])) ++run;
  return run;
}

// The first blank of text that is not its last character.
std::size_t InnerBlank(const std::string& text) {
  std::size_t blank = text.find(' ');
  return blank != std::string::npos && blank + 1 < text.size() ? blank : std::string::npos;
}

// Power and serial texts: trimmed, upper-cased, letters and digits only.
struct Classified {
  std::string Text;
  bool AllLetters = true;
  bool AllDigits = true;
};

Classified Classify(std::string_view exchange) {
  Classified c;
  for (char ch : UCase(Trim(exchange))) {
    if (PlaceIn(LettersDigits, ch) == 0) continue;
    c.Text += ch;
    if (IsLetter(ch)) c.AllDigits = false;
    else c.AllLetters = false;
  }
  return c;
}

}  // namespace

ParseResult NumberMultParse(std::string_view exchange, const ContestState& contest, const MultiplierTables& tables,
                            ReceivedFields& fields) {
  const int c = contest.ContestIndex;
  ParserText s(exchange);
  s.Trim();
  s.UpperCase();
  fields.CountyLine = !s.Empty() && s.Text().back() == '/';
  s.KeepIn(LettersBlankDigits);  // the "/" goes too

  // NEQP sends no number: its whole text is the multiplier.
  std::size_t digits = 0;
  if (c != Neqp) {
    while (digits < 4 && digits < s.Size() && PlaceIn(LettersBlankDigits, s[digits]) >= 28) ++digits;
    // An empty exchange stops the digits at its first place too.
    if (digits == 0) return s.Refuse(std::string(MustBeginWithNumber), 0, 0);
  }
  std::string mult = Trim(std::string_view(s.Text()).substr(digits)).substr(0, 5);
  fields.CQPNumber = NumberOf(std::string_view(s.Text()).substr(0, digits));
  fields.CQPMult = mult;

  bool found = false;
  if (c == Cqp) found = contest.InState || AnyForm(tables.CQPTable, CQPMultRows, 3, mult);
  else if (c == Paqp) found = AnyForm(tables.PAQPTable, PAQPMultRows, 3, mult);
  else if (c == Neqp) found = AnyForm(tables.NEQPTable, NEQPMultRows, 2, mult);
  if (found) return {};
  return s.Refuse(std::string(MultiplierInvalid), s.Size() - mult.size(), mult.size());
}

ParseResult SprintParse(std::string_view exchange, ReceivedFields& fields) {
  ParserText s = Cleaned(exchange, LettersBlankDigits);
  if (IsLetter(s[0])) return s.Refuse(std::string(MustBeginWithNumber), 0, 1);
  std::size_t run = NumberRunToLetter(s);
  if (s.Size() - run < 3) return s.Refuse(std::string(Incomplete), s.Size(), 0);

  std::string rest = LTrim(std::string_view(s.Text()).substr(run));
  std::string name, mult;
  if (std::size_t blank = InnerBlank(rest); blank != std::string::npos) {
    name = rest.substr(0, blank);
    mult = LTrim(std::string_view(rest).substr(blank));
  } else {
    // Run together: the state is the last two characters ("JOECA").
    std::size_t split = rest.size() > 2 ? rest.size() - 2 : 0;
    name = rest.substr(0, split);
    mult = rest.substr(split);
  }
  fields.SprintName = name.substr(0, 10);
  fields.SprintMult = mult.substr(0, 5);
  fields.SprintNumber = NumberOf(std::string_view(s.Text()).substr(0, run));
  return {};
}

ParseResult CWOParse(std::string_view exchange, ReceivedFields& fields) {
  ParserText s = Cleaned(exchange, LettersBlankDigits);
  if (IsLetter(s[0])) return s.Refuse(std::string(MustBeginWithNumber), 0, 1);
  std::size_t run = NumberRunToLetter(s);
  if (run == s.Size()) return s.Refuse(std::string(Incomplete), s.Size(), 0);

  // Of two words the second is the name: the first is dropped.
  std::string rest = LTrim(std::string_view(s.Text()).substr(run));
  std::size_t blank = InnerBlank(rest);
  std::string name = blank == std::string::npos ? rest : LTrim(std::string_view(rest).substr(blank + 1));
  fields.CWOName = name.substr(0, 10);
  fields.CWONumber = NumberOf(std::string_view(s.Text()).substr(0, run));
  return {};
}

ParseResult NAQPParse(std::string_view exchange, ReceivedFields& fields) {
  // The text is read as typed: odd characters are not filtered out and reach
  // the fields. The multiplier is tested when it is scored.
  std::string s = UCase(Trim(exchange));
  if (s.empty()) return Refusal(std::string(NoExchange));
  std::size_t blank = s.find(' ');
  if (blank == std::string::npos) return Refusal(std::string(Incomplete));
  std::string mult = LTrim(std::string_view(s).substr(blank + 1));
  if (mult.find(' ') != std::string::npos) return Refusal(std::string(ExchangeErrorTitle));
  fields.NAQPName = s.substr(0, std::min<std::size_t>(blank, 10));
  fields.NAQPMult = Trim(mult);
  return {};
}

ParseResult ARRLParse(std::string_view exchange, const ContestState& contest, const MultiplierTables& tables,
                      ReceivedFields& fields) {
  if (Trim(exchange).empty()) return Refusal(std::string(NoExchange));
  Classified s = Classify(exchange);
  const int whole = static_cast<int>(exchange.size());

  if (contest.IsUSVEStation) {
    if (s.Text == "KW" || s.Text == "K" || s.Text == "0") {
      ParseResult r;
      r.ExchangeText = "1000";
      fields.ARRLPower = 1000;
      return r;
    }
    if (!s.AllDigits) return Refusal("Enter a power between 1 and 1500.", ExchangeErrorTitle, whole);
    double power = Val(s.Text.substr(0, 4));
    if (power < 1 || power > 1500) return Refusal("Power must be between 1 and 1500.", ExchangeErrorTitle, whole);
    fields.ARRLPower = static_cast<int16_t>(power);
    return {};
  }

  if (!s.AllLetters) return Refusal("Enter a valid State or Province abbreviation.", ExchangeErrorTitle, whole);
  for (int row = 1; row <= ARRLMultRows; ++row)
    if (tables.ARRLTable.At(row, 1) == s.Text) return {};
  return Refusal("W/VE Multiplier is Invalid.  Use only the abbreviations in the Multiplier table.");
}

ParseResult TenParse(std::string_view exchange, const MultiplierTables& tables, ReceivedFields& fields) {
  if (Trim(exchange).empty()) return Refusal(std::string(NoExchange));
  Classified s = Classify(exchange);
  if (!s.AllLetters && !s.AllDigits) return Refusal("");

  if (s.AllDigits) {
    double number = Val(s.Text.substr(0, 4));
    if (number >= 1 && number <= 9999) {
      fields.TenNumber = static_cast<int16_t>(number);
      fields.TenMult.clear();
      return {};
    }
    // Shown, but not a refusal: the QSO is logged all the same, and
    // TenNumber keeps the serial of the last parse that passed.
    ParseResult r;
    r.Message = "Number must be between 1 and 9999.";
    r.Title = "Invalid Serial Number";
    r.SelLength = static_cast<int>(exchange.size());
    return r;
  }

  for (int row = 1; row <= TenMultRows; ++row) {
    if (tables.TenTable.At(row, 1) != s.Text) continue;
    fields.TenMult = s.Text;
    fields.TenNumber = 0;
    return {};
  }
  return Refusal("W/VE Multiplier is Invalid.");
}

ParseResult ParseExchange(std::string_view call, std::string_view exchange, const ContestState& contest,
                          const MultiplierTables& tables, const StartupData& data, ReceivedFields& fields) {
  switch (contest.ContestIndex) {
    case ArrlDx:
      return ARRLParse(exchange, contest, tables, fields);
    case Cqp:
    case Paqp:
    case Neqp:
      return NumberMultParse(exchange, contest, tables, fields);
    case Cqww:
      return CQWWParse(call, exchange, fields);
    case Sprint:
      return SprintParse(exchange, fields);
    case Sweepstakes:
      return SSParse(exchange, call, tables, data, fields);
    case Wpx:
      return WPXParse(call, exchange, fields);
    case Naqp:
      return NAQPParse(exchange, fields);
    case Ten:
      return TenParse(exchange, tables, fields);
    case CwOpen:
      return CWOParse(exchange, fields);
    default:
      return {};
  }
}

std::string LoggedCall(int contestIndex, const ReceivedFields& fields, const std::string& typed) {
  if (contestIndex == Wpx) return fields.WPXCall;
  if (contestIndex == Cqww) return fields.CQWWCall;
  return typed;
}

void TakeReceivedFields(int contestIndex, bool usveStation, const ReceivedFields& f, std::string_view exchange,
                        QsoRecord& r) {
  switch (contestIndex) {
    case ArrlDx:
      r.QRcvNumber = usveStation ? f.ARRLPower : 0;
      break;
    case Cqp:
    case Paqp:
      r.QRcvNumber = f.CQPNumber;
      break;
    case Cqww:
      r.QRcvNumber = NumberOf(f.CQWWZone);
      break;
    case Sprint:
      r.QRcvNumber = f.SprintNumber;
      r.QRcvText.Set(f.SprintName);
      break;
    case Sweepstakes:
      r.QRcvNumber = f.SSNumber;
      r.QMult.Set(f.SSPrecedence + f.SSCheck + f.SSShortForm);
      break;
    case Wpx:
      r.QRcvNumber = NumberOf(f.WPXNumber);
      break;
    case AllAsian:
      r.QRcvNumber = NumberOf(exchange);
      break;
    case Naqp:
      r.QRcvNumber = 0;
      r.QRcvText.Set(f.NAQPName);
      break;
    case Ten:
      r.QRcvNumber = f.TenNumber;
      break;
    case CwOpen:
      r.QRcvNumber = f.CWONumber;
      r.QRcvText.Set(f.CWOName);
      break;
    case Generic:
      r.QRcvNumber = 0;
      break;
    default:  // NEQP
      break;
  }
}

std::string RepeatedExchange(const ContestState& contest, const MultiplierTables& tables, const QsoRecord& last) {
  if (contest.ContestIndex == ArrlDx)
    return contest.IsUSVEStation ? std::to_string(last.QRcvNumber) : last.QMult.Trimmed();
  if (contest.ContestIndex == Cqww) return std::to_string(last.QRcvNumber);
  int row = static_cast<int>(Val(last.QMult.Str()));
  bool inTable = row >= 1 && row <= NAQPTableType::RowCount;
  return last.QRcvText.Trimmed() + " " + (inTable ? tables.NAQPTable.At(row, 1) : last.QMult.Trimmed());
}

}  // namespace tarnix
