#include "Commands.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <iterator>
#include <istream>
#include <map>
#include <optional>
#include <ostream>

#include "Options.h"
#include "Session.h"
#include "core/ChCoForm.h"
#include "core/QDate.h"
#include "core/Text.h"
#include "platform/SystemClock.h"

namespace tarnix::cli {
namespace {

// One QSO record as a tab-separated line: the shape of every record listing.
void PrintRecord(std::ostream& out, const QsoRecord& r) {
  out << r.QNumber << '\t' << r.QDate << '\t' << QTimeText(r.QTime) << '\t' << r.QBand << '\t'
      << r.QCall.Trimmed() << '\t' << r.QRcvNumber << '\t' << r.QMult.Trimmed() << '\t' << r.QPoints.Trimmed()
      << '\t' << r.QRcvText.Trimmed() << '\t' << r.QFreq.Trimmed() << '\t' << r.QRadio.Trimmed() << '\n';
}

void PrintRecords(std::ostream& out, Context& ctx) {
  for (int n = 1; n < ctx.Log.QSOCount; ++n) PrintRecord(out, LoggedRecord(ctx.Log, n));
}

// What an operator does for one line: the first word typed into the call
// box, the rest (if any) put in the exchange box, and Enter. Text left in the
// boxes by a refused entry is cleared first, as the operator would overtype
// it.
void EnterLine(ScriptedLogger& logger, const std::string& line) {
  std::string trimmed = Trim(line);
  std::size_t blank = trimmed.find(' ');
  std::string rest = blank == std::string::npos ? std::string() : LTrim(trimmed.substr(blank));
  logger.Enter(trimmed.substr(0, blank), rest.empty() ? std::nullopt : std::optional<std::string>(rest));
}

// Reads QSO lines and clock lines from in; false on a bad clock line. With
// progress, each QSO line is acknowledged there, flushed, once its Enter has
// returned, so that a process watching from outside knows what was logged.
bool EnterLines(Session& session, LocalDateTime now, std::istream& in, std::ostream& err, std::ostream* progress) {
  std::string line;
  while (std::getline(in, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (Trim(line).empty()) continue;
    if (line[0] == '@') {
      if (!ParseClock(Trim(line.substr(1)), now)) {
        err << "tarnix-cli: bad clock line '" << line << "'\n";
        return false;
      }
      session.Desk.Time.Set(now);
      continue;
    }
    EnterLine(session, line);
    if (progress) *progress << "ENTERED " << session.Ctx.Log.QSOCount - 1 << std::endl;
  }
  return true;
}

}  // namespace

void Usage(std::ostream& out) {
  out << "usage: tarnix-cli COMMAND [ARGS]\n"
         "  demo\n"
         "      log a dozen Generic QSOs through the main form and print its \"Last: \"\n"
         "      line and QSO number label after each\n"
         "  new LOG.TNX --contest N [--mode cw|phone]\n"
         "          [--qth usa|canada|AF|AS|EU|NA|OC|SA|usve|dx|in|out] [--cwo-hour 1200|2000|400]\n"
         "      create a log as File > New Log and Save As do\n"
         "  enter LOG.TNX [--clock \"YYYY-MM-DD HH:MM\"] [--progress]\n"
         "  enter --contest N [--mode cw|phone] [--qth ...] [--clock \"YYYY-MM-DD HH:MM\"] [--progress]\n"
         "      read QSOs from stdin, one a line: CALL [EXCHANGE]; \"@YYYY-MM-DD HH:MM\" or\n"
         "      \"@HH:MM\" sets the clock. With LOG.TNX each QSO is appended to that log;\n"
         "      without, a throw-away log is used. Prints message boxes as\n"
         "      MSGBOX title|text, then every record of the log. --progress prints\n"
         "      ENTERED n (the QSOs the log then holds) as soon as each line's Enter returns\n"
         "  dump LOG.TNX\n"
         "      open the log as File > Open does and print HEADER, one line per QSO, TOTAL and\n"
         "      a BAND line for each BandIndex with QSOs\n"
         "  dupe LOG.TNX CALL [--band B]\n"
         "      open the log, type CALL into the call box on band B (BandIndex 1..24, else the\n"
         "      log's band) and print FoundInLog, FoundOnBand, IsDupe, DupeQSO, PortableMatch\n"
         "      and the dupe line as the form shows it\n"
         "  script FILE [--log LOG.TNX | --contest N [--mode cw|phone] [--qth ...]]\n"
         "          [--clock \"YYYY-MM-DD HH:MM\"]\n"
         "      drive the main form with a keystroke script, one action a line: type TEXT,\n"
         "      key NAME (Enter, F9, Ctrl+Down, Alt+M...), answer Yes|No|Cancel|OK,\n"
         "      clock YYYY-MM-DD HH:MM, show. Prints MSGBOX and REQUEST lines as they come\n"
         "  lookup CALL...\n"
         "      resolve each call with the program folder's cty.dat: call, country row, name,\n"
         "      CQ zone, continent, WPX prefix, NA zone, NA class, heading\n";
}

int New(const Args& args, std::ostream& out, std::ostream& err) {
  NewOptions options;
  Args positional;
  if (!ReadOptions(args, options, positional, err)) return 2;
  if (positional.size() != 1 || !options.HasContest) {
    err << "tarnix-cli: new wants LOG.TNX and --contest N\n";
    return 2;
  }
  if (!ChoiceOffered(options.Choice, err)) return 2;
  // The new log starts in a program folder of its own, so that the
  // operator's temporary log is never touched; Save As moves it out.
  TempFolder scratch;
  Session session(out, scratch.Path);
  if (!session.Started) return 1;
  session.Desk.Time.Set(options.Clock);
  session.NewLog(options.Choice);
  session.SaveAs(Absolute(positional[0]));
  return session.Ctx.Log.LogState == LogStateKind::Named ? 0 : 1;
}

int Enter(const Args& args, std::istream& in, std::ostream& out, std::ostream& err) {
  NewOptions options;
  Args positional;
  Args rest;
  std::remove_copy(args.begin(), args.end(), std::back_inserter(rest), std::string("--progress"));
  const bool progress = rest.size() < args.size();
  if (!ReadOptions(rest, options, positional, err)) return 2;
  if (positional.size() > 1 || positional.empty() == !options.HasContest) {
    err << "tarnix-cli: enter wants either LOG.TNX or --contest N\n";
    return 2;
  }
  if (options.HasContest && !ChoiceOffered(options.Choice, err)) return 2;

  // Without a log file, the throw-away log lives in a program folder of its
  // own, so that the operator's temporary log is never touched.
  std::unique_ptr<TempFolder> scratch;
  if (options.HasContest) scratch = std::make_unique<TempFolder>();
  Session session(out, scratch ? scratch->Path : std::string());
  if (!session.Started) return 1;
  session.Desk.Time.Set(options.Clock);
  if (options.HasContest) {
    session.NewLog(options.Choice);
  } else if (!session.Open(Absolute(positional[0]))) {
    return 1;
  }
  if (!EnterLines(session, options.Clock, in, err, progress ? &out : nullptr)) return 2;
  PrintRecords(out, session.Ctx);
  return 0;
}

int Dump(const Args& args, std::ostream& out, std::ostream& err) {
  if (args.size() != 1) {
    err << "tarnix-cli: dump wants LOG.TNX\n";
    return 2;
  }
  Session session(out);
  if (!session.Started || !session.Open(Absolute(args[0]))) return 1;
  Context& ctx = session.Ctx;
  const LogHeader& header = session.Form.Document.SavedHeader;
  std::string code = header.HdrContest.Str();
  out << "HEADER\t" << code.substr(0, 3) << '\t' << code.substr(3, 2) << '\t' << header.HdrQth.Str() << '\t'
      << (ctx.Log.WideLog ? 1 : 0) << '\n';
  PrintRecords(out, ctx);
  const LogStore& log = ctx.Log;
  out << "TOTAL\t" << log.QSOCount - 1 << '\t' << log.TotalQSOPoints << '\t' << log.TotalMults << '\t'
      << log.ClaimedScore << '\n';
  for (int band = 1; band <= BandIndexCount; ++band) {
    auto b = static_cast<std::size_t>(band);
    if (log.BandQSOs[b] == 0) continue;
    out << "BAND\t" << band << '\t' << log.BandQSOs[b] << '\t' << log.BandPoints[b] << '\t' << log.BandMults[b] << '\n';
  }
  return 0;
}

int Demo(std::ostream& out) {
  static const char* const kQsos[] = {
      "K3ZZZ 599 PA",      "W1AW 599 CT",         "DL1ABC 599 DOK B01", "JA1XYZ 599 TOKYO",
      "VE3EJ 599 ON",      "G4BUO 599 LONDON UK", "K6AW 599 CA",        "N5DX 599 TX",
      "OH2BH 599 FINLAND", "ZL2IFB 599 WELLINGTON", "PY2SEX 599 SP",    "VK2IA 599 NSW"};
  TempFolder scratch;
  Session session(out, scratch.Path);
  if (!session.Started) return 1;
  session.Desk.Time.Set({2026, 11, 22, 14, 0, 0});
  session.NewLog(Generic);
  LogForm& form = session.Form;
  out << form.FileIDLabel.Caption << '\n' << form.QSONrLabel.Caption << '\n';
  for (const char* qso : kQsos) {
    session.Desk.Time.Advance(97 * 1000);
    EnterLine(session, qso);
    out << form.LastQSOLabel.Caption << '\n' << form.QSONrLabel.Caption << '\n';
  }
  out << form.ScoreLabel.Caption << '\n' << form.MultsLabel.Caption << '\n';
  return 0;
}

}  // namespace tarnix::cli
