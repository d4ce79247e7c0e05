#include "Commands.h"

#include <cstdio>
#include <istream>
#include <ostream>
#include <sstream>

#include "config/AppPath.h"
#include "core/ChCoForm.h"
#include "core/QDate.h"
#include "core/Text.h"
#include "operating/LogForm.h"
#include "platform/Scripted.h"
#include "platform/SystemClock.h"

namespace tarnix::cli {
namespace {

// A message box as one line: line breaks in its text are written as "\n".
void PrintMessageBox(std::ostream& out, const MessageBoxRequest& box) {
  std::string text;
  for (char c : box.Text) text += c == '\n' ? std::string("\\n") : std::string(1, c);
  out << "MSGBOX " << box.Title << '|' << text << '\n';
}

// One QSO record as a tab-separated line: the shape of every record listing.
void PrintRecord(std::ostream& out, const QsoRecord& r) {
  out << r.QNumber << '\t' << r.QDate << '\t' << QTimeText(r.QTime) << '\t' << r.QBand << '\t'
      << r.QCall.Trimmed() << '\t' << r.QRcvNumber << '\t' << r.QMult.Trimmed() << '\t' << r.QPoints.Trimmed()
      << '\t' << r.QRcvText.Trimmed() << '\t' << r.QFreq.Trimmed() << '\t' << r.QRadio.Trimmed() << '\n';
}

// "YYYY-MM-DD HH:MM" or "HH:MM" (keeping the date); false if malformed.
bool ParseClock(const std::string& text, LocalDateTime& when) {
  int y, mo, d, h, mi;
  char tail;
  if (std::sscanf(text.c_str(), "%d-%d-%d %d:%d%c", &y, &mo, &d, &h, &mi, &tail) == 5) {
    if (mo < 1 || mo > 12 || d < 1 || d > 31 || h < 0 || h > 23 || mi < 0 || mi > 59) return false;
    when = {y, mo, d, h, mi, 0};
    return true;
  }
  if (std::sscanf(text.c_str(), "%d:%d%c", &h, &mi, &tail) == 2) {
    if (h < 0 || h > 23 || mi < 0 || mi > 59) return false;
    when.Hour = h;
    when.Minute = mi;
    when.Second = 0;
    return true;
  }
  return false;
}

// What an operator does for one line: the first word typed into the call
// box, the focus to the exchange box, the rest (if any) as the exchange, and
// Enter. Text left in the boxes by a refused entry is cleared first, as the
// operator would overtype it.
void EnterLine(LogForm& form, const std::string& line) {
  std::string trimmed = Trim(line);
  std::size_t blank = trimmed.find(' ');
  std::string call = trimmed.substr(0, blank);
  std::string rest = blank == std::string::npos ? std::string() : LTrim(trimmed.substr(blank));
  form.SetFocus(CallBox);
  form.InData_Change(CallBox, "", 0);
  form.InData_Change(ExchangeBox, "", 0);
  for (char c : call) form.InData_KeyPress(CallBox, c);
  form.SetFocus(ExchangeBox);
  if (!rest.empty()) form.InData_Change(ExchangeBox, rest, static_cast<int>(rest.size()));
  form.InData_KeyDown(ExchangeBox, KeyEnter, 0);
}

}  // namespace

void Usage(std::ostream& out) {
  out << "usage: tarnix-cli COMMAND [ARGS]\n"
         "  demo                     log a dozen Generic QSOs through the main form and print\n"
         "                           its \"Last: \" line and QSO number label after each\n"
         "  enter --contest N [--mode cw|phone] [--clock \"YYYY-MM-DD HH:MM\"]\n"
         "                           read QSOs from stdin, one a line: CALL [EXCHANGE];\n"
         "                           \"@YYYY-MM-DD HH:MM\" or \"@HH:MM\" sets the clock; prints\n"
         "                           message boxes as MSGBOX title|text, then the records\n";
}

int Enter(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err) {
  int contest = 0;
  bool phone = false;
  LocalDateTime start = SystemLocalTime();
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    bool hasValue = i + 1 < args.size();
    if (a == "--contest" && hasValue) {
      contest = static_cast<int>(Val(args[++i]));
    } else if (a == "--mode" && hasValue) {
      std::string mode = args[++i];
      if (mode != "cw" && mode != "phone") {
        err << "tarnix-cli: --mode is cw or phone\n";
        return 2;
      }
      phone = mode == "phone";
    } else if (a == "--clock" && hasValue) {
      if (!ParseClock(args[++i], start)) {
        err << "tarnix-cli: --clock wants \"YYYY-MM-DD HH:MM\"\n";
        return 2;
      }
    } else {
      err << "tarnix-cli: unexpected argument '" << a << "'\n";
      return 2;
    }
  }
  if (contest < 1 || contest > ContestCount) {
    err << "tarnix-cli: --contest must be 1 to 13\n";
    return 2;
  }

  ScriptedPlatform desk;
  desk.Time.Set(start);
  desk.Boxes.OnShow = [&out](const MessageBoxRequest& box) { PrintMessageBox(out, box); };
  auto ctx = MakeContext(ResolveAppPath());
  LogForm form(*ctx, desk.View);
  QueueContestChoice(desk.Forms, contest, phone);
  form.mnuFileNewLog_Click();

  LocalDateTime now = start;
  std::string line;
  while (std::getline(in, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (Trim(line).empty()) continue;
    if (line[0] == '@') {
      if (!ParseClock(Trim(line.substr(1)), now)) {
        err << "tarnix-cli: bad clock line '" << line << "'\n";
        return 2;
      }
      desk.Time.Set(now);
      continue;
    }
    EnterLine(form, line);
  }
  for (int n = 1; n < ctx->Log.QSOCount; ++n) PrintRecord(out, ctx->Log.LogRecords.At(n));
  return 0;
}

int Demo(std::ostream& out) {
  static const char* const kQsos[] = {
      "K3ZZZ 599 PA",      "W1AW 599 CT",         "DL1ABC 599 DOK B01", "JA1XYZ 599 TOKYO",
      "VE3EJ 599 ON",      "G4BUO 599 LONDON UK", "K6AW 599 CA",        "N5DX 599 TX",
      "OH2BH 599 FINLAND", "ZL2IFB 599 WELLINGTON", "PY2SEX 599 SP",    "VK2IA 599 NSW"};
  ScriptedPlatform desk;
  desk.Time.Set({2026, 11, 22, 14, 0, 0});
  desk.Boxes.OnShow = [&out](const MessageBoxRequest& box) { PrintMessageBox(out, box); };
  auto ctx = MakeContext(ResolveAppPath());
  LogForm form(*ctx, desk.View);
  QueueContestChoice(desk.Forms, Generic);
  form.mnuFileNewLog_Click();
  out << form.FileIDLabel.Caption << '\n' << form.QSONrLabel.Caption << '\n';
  for (const char* qso : kQsos) {
    desk.Time.Advance(97 * 1000);
    EnterLine(form, qso);
    out << form.LastQSOLabel.Caption << '\n' << form.QSONrLabel.Caption << '\n';
  }
  out << form.ScoreLabel.Caption << '\n' << form.MultsLabel.Caption << '\n';
  return 0;
}

}  // namespace tarnix::cli
