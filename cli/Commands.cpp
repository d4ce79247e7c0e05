#include "Commands.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <iterator>
#include <istream>
#include <map>
#include <ostream>

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
    EnterLine(session.Form, line);
    if (progress) *progress << "ENTERED " << session.Ctx->Log.QSOCount - 1 << std::endl;
  }
  return true;
}

std::string Absolute(const std::string& path) { return std::filesystem::absolute(path).lexically_normal().string(); }

// The options of a new log, as the contest form offers them.
struct NewOptions {
  ContestChoice Choice;
  bool HasContest = false;
  LocalDateTime Clock = SystemLocalTime();
};

// Reads --contest, --mode, --qth, --cwo-hour and --clock; the rest of the
// arguments, not options, are returned in positional. False with a message
// on a usage error.
bool ReadOptions(const Args& args, NewOptions& options, Args& positional, std::ostream& err) {
  static const std::map<std::string, std::pair<int, int>> kQth = {
      {"usa", {-1, 0}}, {"canada", {-1, 1}}, {"usve", {-1, 0}}, {"dx", {-1, 1}}, {"in", {0, -1}}, {"out", {1, -1}}};
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    if (a.rfind("--", 0) != 0) {
      positional.push_back(a);
      continue;
    }
    if (i + 1 >= args.size()) {
      err << "tarnix-cli: " << a << " wants a value\n";
      return false;
    }
    const std::string& value = args[++i];
    ContestChoice& c = options.Choice;
    if (a == "--contest") {
      c.ContestIndex = static_cast<int>(Val(value));
      options.HasContest = true;
    } else if (a == "--mode" && (value == "cw" || value == "phone")) {
      c.ModeButton = value == "phone" ? 0 : 1;
    } else if (a == "--qth" && kQth.count(value)) {
      auto [location, qth] = kQth.at(value);
      if (location >= 0) c.LocationButton = location;
      if (qth >= 0) c.QthButton = qth;
    } else if (a == "--qth" && value.size() == 2 && std::string("AFASEUNAOCSA").find(value) % 2 == 0) {
      c.QthButton = 2;
      c.Continent = value;
    } else if (a == "--cwo-hour" && (value == "1200" || value == "2000" || value == "400")) {
      c.QthButton = value == "1200" ? 0 : value == "2000" ? 1 : 2;
    } else if (a == "--clock" && ParseClock(value, options.Clock)) {
    } else {
      err << "tarnix-cli: bad option " << a << " " << value << "\n";
      return false;
    }
  }
  if (options.HasContest && (options.Choice.ContestIndex < 1 || options.Choice.ContestIndex > ContestCount)) {
    err << "tarnix-cli: --contest must be 1 to 13\n";
    return false;
  }
  return true;
}

// Checks the choice on a contest form of its own, so that an option the
// form does not offer for the contest is reported rather than ignored.
bool ChoiceOffered(const ContestChoice& choice, std::ostream& err) {
  ContestState scratch;
  bool cancelled = false;
  ChCoForm form(scratch, cancelled);
  if (MakeChoice(form, choice)) return true;
  err << "tarnix-cli: the contest form does not offer that mode or location for contest " << choice.ContestIndex
      << "\n";
  return false;
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
  QueueContestChoice(session.Desk.Forms, options.Choice);
  session.Form.mnuFileNewLog_Click();
  session.Desk.Files.Names.push_back(Absolute(positional[0]));
  session.Form.mnuFileSave_Click();
  return session.Ctx->Log.LogState == LogStateKind::Named ? 0 : 1;
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
    QueueContestChoice(session.Desk.Forms, options.Choice);
    session.Form.mnuFileNewLog_Click();
  } else if (!session.Open(Absolute(positional[0]))) {
    return 1;
  }
  if (!EnterLines(session, options.Clock, in, err, progress ? &out : nullptr)) return 2;
  PrintRecords(out, *session.Ctx);
  return 0;
}

int Dump(const Args& args, std::ostream& out, std::ostream& err) {
  if (args.size() != 1) {
    err << "tarnix-cli: dump wants LOG.TNX\n";
    return 2;
  }
  Session session(out);
  if (!session.Started || !session.Open(Absolute(args[0]))) return 1;
  Context& ctx = *session.Ctx;
  std::string code = ctx.SavedHeader.HdrContest.Str();
  out << "HEADER\t" << code.substr(0, 3) << '\t' << code.substr(3, 2) << '\t' << ctx.SavedHeader.HdrQth.Str() << '\t'
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
  QueueContestChoice(session.Desk.Forms, Generic);
  LogForm& form = session.Form;
  form.mnuFileNewLog_Click();
  out << form.FileIDLabel.Caption << '\n' << form.QSONrLabel.Caption << '\n';
  for (const char* qso : kQsos) {
    session.Desk.Time.Advance(97 * 1000);
    EnterLine(form, qso);
    out << form.LastQSOLabel.Caption << '\n' << form.QSONrLabel.Caption << '\n';
  }
  out << form.ScoreLabel.Caption << '\n' << form.MultsLabel.Caption << '\n';
  return 0;
}

}  // namespace tarnix::cli
