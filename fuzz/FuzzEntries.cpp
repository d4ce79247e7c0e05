#include "FuzzEntries.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <set>

#include "config/CountrySeed.h"
#include "config/SettingsFile.h"
#include "config/StartupData.h"
#include "core/ChCoForm.h"
#include "core/Text.h"
#include "operating/BoxEditing.h"
#include "operating/Keys.h"
#include "operating/ScriptedLogger.h"
#include "operating/Startup.h"
#include "platform/FileStore.h"
#include "platform/Scripted.h"
#include "rules/Countries.h"
#include "rules/MultiplierTables.h"
#include "rules/Parsers.h"

namespace tarnix::fuzz {
namespace {

// The clock of every run, so that a run depends on its input alone.
const LocalDateTime kClock{2026, 11, 22, 14, 2, 0};

// One started program for all runs: the program folder is seeded and read
// once, as a start-up does, and each run begins from a copy of the state the
// start left. Starting anew for each input would cost more than the run.
class StartedProgram {
 public:
  StartedProgram() : Started(MakeContext(Home.Path)), Work(MakeContext(Home.Path)) {
    ScriptedPlatform desk;
    if (!StartProgram(*Started, desk.View)) {
      for (const auto& box : desk.Boxes.Shown) std::fprintf(stderr, "%s\n", box.Text.c_str());
      std::fprintf(stderr, "fuzz: the program does not start in %s\n", Home.Path.c_str());
      std::abort();
    }
    *Work = *Started;
  }

  const std::string& Folder() const { return Home.Path; }

  // The state as start-up left it. What a run may change is put back; the
  // country and data tables are not, being large: the data file's lists are
  // only read, and a lookup changes nothing of the country tables but the
  // zone of the last lookup, which every lookup sets, and the heading cache,
  // which holds what the station's fixed position gives anyway.
  Context& Fresh() {
    Context& w = *Work;
    const Context& s = *Started;
    w.Config = s.Config;
    w.Contest = s.Contest;
    w.Tables = s.Tables;
    w.Radio = s.Radio;
    w.Keying = s.Keying;
    w.UserClipboard = s.UserClipboard;
    w.Log.LogState = LogStateKind::None;
    ResetLog(w.Log);
    ResetCounters(w.Counters);
    ResetPortables(w.Portables);
    return w;
  }

 private:
  TempFolder Home;
  std::unique_ptr<Context> Started;
  std::unique_ptr<Context> Work;
};

StartedProgram& Program() {
  static StartedProgram program;
  return program;
}

std::string Titles(const ScriptedPlatform& desk, std::size_t from = 0) {
  std::string titles;
  for (std::size_t i = from; i < desk.Boxes.Shown.size(); ++i) titles += "box: " + desk.Boxes.Shown[i].Title + "\n";
  return titles;
}

std::string_view LogStateName(LogStateKind state) {
  return state == LogStateKind::Named ? "named" : state == LogStateKind::Unnamed ? "unnamed" : "none";
}

void WriteBytes(const std::string& path, std::string_view bytes) {
  if (FileError error = DiskFileStore().Replace(path, bytes)) {
    std::fprintf(stderr, "fuzz: %s\n", error->c_str());
    std::abort();
  }
}

// The words of a text, split at blanks, line ends, commas, colons and
// semicolons.
std::vector<std::string> Words(std::string_view text, std::size_t most) {
  std::vector<std::string> words;
  std::string word;
  for (char c : text) {
    if (c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == ',' || c == ':' || c == ';') {
      if (!word.empty()) words.push_back(std::move(word));
      word.clear();
      if (words.size() == most) return words;
    } else {
      word += c;
    }
  }
  if (!word.empty() && words.size() < most) words.push_back(std::move(word));
  return words;
}

std::vector<std::string> Lines(std::string_view text, std::size_t most) {
  std::vector<std::string> lines;
  while (!text.empty() && lines.size() < most) {
    std::size_t end = text.find('\n');
    std::string line(text.substr(0, end));
    if (!line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(std::move(line));
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + 1);
  }
  return lines;
}

// The choices the contest form offers, each a different station: every
// contest with every mode, location and station button the form accepts
// for it, told apart by the header and state they give.
const std::vector<ContestChoice>& OfferedChoices() {
  static const std::vector<ContestChoice> choices = [] {
    std::vector<ContestChoice> found;
    std::set<std::string> seen;
    for (int contest = 1; contest <= ContestCount; ++contest)
      for (int mode = -1; mode <= 1; ++mode)
        for (int location = -1; location <= 1; ++location)
          for (int qth = -1; qth <= 2; ++qth) {
            ContestChoice choice{contest, mode, location, qth, {}};
            ContestState state;
            bool cancelled = false;
            ChCoForm form(state, cancelled);
            if (!MakeChoice(form, choice) || cancelled) continue;
            auto header = EncodeHeader(MakeHeader(state));
            std::string key(header.begin(), header.end());
            key += std::to_string(state.ModeEnabled[1]) + std::to_string(state.ModeEnabled[2]) +
                   std::to_string(state.InState) + std::to_string(state.IsUSVEStation) + state.StationContinent;
            if (seen.insert(key).second) found.push_back(choice);
          }
    return found;
  }();
  return choices;
}

// A new log, as File > New Log makes it in the started program, of the
// station a byte chooses among the offered ones.
struct NewLogRun : ScriptedLogger {
  explicit NewLogRun(unsigned char choice) : ScriptedLogger(Program().Fresh()) {
    Desk.Time.Set(kClock);
    const std::vector<ContestChoice>& choices = OfferedChoices();
    NewLog(choices[choice % choices.size()]);
  }
  bool Opened() const { return Ctx.Log.LogState == LogStateKind::Unnamed; }
};

}  // namespace

Outcome OpenLogFile(std::string_view bytes) {
  StartedProgram& program = Program();
  Context& ctx = program.Fresh();
  const std::string path = program.Folder() + "fuzz.TNX";
  const std::string keptPath = program.Folder() + "fuzz.TNb";  // where a conversion keeps the old log
  std::filesystem::remove(keptPath);
  WriteBytes(path, bytes);

  ScriptedLogger run(ctx);
  run.Desk.Time.Set(kClock);
  run.Open(path);
  const ScriptedPlatform& desk = run.Desk;

  Outcome outcome;
  outcome.Summary = Titles(desk);
  outcome.Summary += "log: " + std::string(LogStateName(ctx.Log.LogState)) + ", contest " +
                     std::to_string(ctx.Contest.ContestIndex) + ", record " + std::to_string(ctx.Log.RecordLength) +
                     ", QSOs " + std::to_string(ctx.Log.QSOCount - 1) + (run.Form.EndRequested ? ", program ends" : "") +
                     "\n";
  if (ctx.Log.LogState == LogStateKind::Named && ctx.Log.QSOCount > 1) {
    // The operator's next step on an opened log: a call typed and the call
    // box left, which scans the loaded records for it.
    std::string call = LoggedRecord(ctx.Log, ctx.Log.QSOCount - 1).QCall.Trimmed();
    std::size_t shown = desk.Boxes.Shown.size();
    const DupeResult& scan = run.CheckCall(call, ScriptedLogger::Input::Pasted);
    outcome.Summary += Titles(desk, shown);
    outcome.Summary += "dupe check: " + std::string(scan.IsDupe ? "dupe" : scan.FoundInLog ? "in log" : "new") + "\n";
  }
  std::filesystem::remove(path);
  std::filesystem::remove(keptPath);
  return outcome;
}

Outcome ReadSettingsFile(std::string_view bytes) {
  const std::string appPath = "/fuzz/";
  auto settings = std::make_unique<Settings>();
  SettingsResult result = ParseSettings(bytes, "tarnix125.ini", *settings, appPath);
  Outcome outcome;
  if (!result.Ok) {
    outcome.Summary = "refused: " + result.Error + "\n";
    return outcome;
  }
  outcome.Summary = std::string("read") + (result.ProfilesRenamed ? ", profiles renamed" : "") + "\n";
  // The program rewrites the file whole whenever a setting changes: what it
  // writes must read back, and read back the same. One change is meant: an
  // OpenFilePath that a file lacked is written empty, and an empty one reads
  // as the program folder.
  std::string written = SettingsText(*settings);
  auto again = std::make_unique<Settings>();
  SettingsResult reread = ParseSettings(written, "tarnix125.ini", *again, appPath);
  if (settings->OpenFilePath.empty()) settings->OpenFilePath = appPath;
  if (!reread.Ok) {
    outcome.Fault = "the written settings do not read back: " + reread.Error;
  } else if (SettingsText(*again) != SettingsText(*settings)) {
    outcome.Fault = "the written settings read back different";
  }
  return outcome;
}

Outcome ReadStartupDataFile(std::string_view bytes) {
  auto data = std::make_unique<StartupData>();
  StartupDataResult result = ParseStartupData(bytes, "tarnix121.dat", *data);
  Outcome outcome;
  if (!result.Ok) {
    outcome.Summary = "refused: " + result.Detail + "\n";
    return outcome;
  }
  outcome.Summary = "read\n";
  // What a log opened in each contest makes of the lists: its tables, and
  // its parser on an exchange for each multiplier of its table, in the form
  // the table accepts first, as an operator would type it.
  auto tables = std::make_unique<MultiplierTables>();
  ReceivedFields fields;
  int accepted = 0, refused = 0;
  auto check = [&](const ContestState& contest, const std::string& exchange) {
    ParseResult parsed = ParseExchange("K3ZZZ", exchange, contest, *tables, *data, fields);
    ++(parsed.Error ? refused : accepted);
  };
  for (int c = 1; c <= ContestCount; ++c) {
    for (bool inState : {false, true}) {
      ContestState contest;
      contest.ContestIndex = static_cast<int16_t>(c);
      contest.InState = inState;
      LoadMultiplierTables(*data, c, inState, *tables);
      MultiplierTables& t = *tables;
      if (c == Cqp)
        for (int row = 1; row <= CQPMultRows; ++row) check(contest, "12 " + t.CQPTable.At(row, 1));
      if (c == Paqp)
        for (int row = 1; row <= PAQPMultRows; ++row) check(contest, "12 " + t.PAQPTable.At(row, 1));
      if (c == Neqp)
        for (int row = 1; row <= NEQPMultRows; ++row) check(contest, t.NEQPTable.At(row, 3));
      if (c == Sweepstakes && !inState)
        for (int row = 1; row <= SSSectionRows; ++row) check(contest, "12 A 72 " + t.SSTable.At(row, 1));
      if (c == Ten && !inState)
        for (int row = 1; row <= TenMultRows; ++row) check(contest, t.TenTable.At(row, 1));
      if (c == ArrlDx && !inState)  // a DX station sends its power and receives the state
        for (int row = 1; row <= ARRLMultRows; ++row) check(contest, t.ARRLTable.At(row, 1));
    }
  }
  outcome.Summary += "exchanges: " + std::to_string(accepted) + " accepted, " + std::to_string(refused) + " refused\n";
  return outcome;
}

Outcome ReadCountryFile(std::string_view bytes) {
  auto data = std::make_unique<CountryData>();
  CountryFileResult result = ReadCountryText(bytes, "cty.dat", *data);
  Outcome outcome;
  outcome.Summary = (result.Ok ? std::string("read") : "refused: " + result.Detail) + ", " +
                    std::to_string(data->CountryCount) + " countries, " + std::to_string(data->PrefixCount) +
                    " prefixes\n";
  // The first start makes the program's list from the package's file.
  std::string seeded = MakeSeedCountryFile(std::string(bytes));
  outcome.Summary += "seed list: " + std::to_string(seeded.size()) + " bytes\n";

  Settings settings;
  settings.StationLatitude = 40.0f;
  settings.StationLongitude = -75.0f;
  std::vector<std::string> calls = {"K3ZZZ", "W1AW/KH6", "KH6/W1AW", "DL1ABC/P", "VE3XYZ", "JA1ABC", "4U1UN", "W6XYZ/3", ""};
  for (std::string& word : Words(bytes, 32)) calls.push_back(UCase(word));
  ContestState generic, arrlDx, cqww;
  generic.ContestIndex = Generic;
  arrlDx.ContestIndex = ArrlDx;
  arrlDx.IsUSVEStation = true;
  cqww.ContestIndex = Cqww;
  cqww.StationInUSA = true;
  for (const std::string& call : calls) {
    outcome.Summary += call + ":";
    for (const ContestState* contest : {&generic, &arrlDx, &cqww}) {
      std::string looked = call;
      int16_t row = FindCountry(*data, *contest, looked);
      outcome.Summary += " " + std::to_string(row) + "/" + std::to_string(data->LookupZone);
      NameHeadingLine(*data, settings, row);
      CQWWZonePrefill(*data, *contest, call);
    }
    std::string prefix = GetWPXPrefix(call);
    outcome.Summary += " " + prefix + " " + std::to_string(GetNAZone(call)) + " " +
                       std::string(NAClassText(ClassifyNAPrefix(prefix))) + "\n";
  }
  return outcome;
}

Outcome EnterExchanges(std::string_view bytes) {
  Outcome outcome;
  if (bytes.empty()) return outcome;
  NewLogRun run(static_cast<unsigned char>(bytes[0]));
  Context& ctx = run.Ctx;
  ScriptedPlatform& desk = run.Desk;
  auto header = EncodeHeader(run.Form.Document.SavedHeader);
  outcome.Summary = "contest " + std::to_string(ctx.Contest.ContestIndex) + ", header \"" +
                    std::string(header.begin() + 20, header.end()) + "\"\n";
  if (!run.Opened()) {
    outcome.Summary += Titles(desk) + "no log\n";
    return outcome;
  }

  for (const std::string& line : Lines(bytes.substr(1), 24)) {
    std::string trimmed = Trim(line);
    std::size_t blank = trimmed.find(' ');
    std::string call = trimmed.substr(0, blank);
    std::string exchange = blank == std::string::npos ? std::string() : LTrim(trimmed.substr(blank));
    const int before = ctx.Log.QSOCount;
    const std::size_t shown = desk.Boxes.Shown.size();
    run.Enter(call, exchange, ScriptedLogger::Input::Pasted);
    for (std::size_t i = shown; i < desk.Boxes.Shown.size(); ++i)
      outcome.Summary += desk.Boxes.Shown[i].Title + "|" + desk.Boxes.Shown[i].Text + "|";
    outcome.Summary += ctx.Log.QSOCount > before ? "logged\n" : "refused\n";
  }
  return outcome;
}

namespace {

// The keys a byte from 0x80 up presses, by its value modulo their count.
constexpr int kKeyCodes[] = {KeyBackspace, KeyTab, KeyEnter, KeyCapsLock, KeyEscape, KeySpace, KeyPageUp,
                             KeyPageDown,  KeyEnd, KeyHome,  KeyLeft,     KeyUp,     KeyRight, KeyDown,
                             KeyInsert,    KeyDelete, KeyApostrophe, KeyF1, KeyF2, KeyF3, KeyF4, KeyF5,
                             KeyF6,        KeyF7, KeyF8, KeyF9, KeyF10, KeyF11, KeyF12, KeyA, KeyM, KeyR,
                             KeyW,         KeyX, KeyZ};
constexpr MsgAnswer kAnswers[] = {MsgAnswer::Yes,   MsgAnswer::No,    MsgAnswer::Cancel, MsgAnswer::OK,
                                  MsgAnswer::Abort, MsgAnswer::Retry, MsgAnswer::Ignore};

// Where the log on disk and the log in memory first differ: the file must be
// the header, and from the first QSO on the header's slot and QSOs 1 to
// QSOCount - 1, each as memory encodes it.
std::string DiskAgainstMemory(const Context& ctx, const LogDocument& document) {
  std::string bytes;
  DiskFileStore().ReadAll(document.FileName, bytes);  // a missing file reads as no bytes, which the size check tells
  const int qsos = ctx.Log.QSOCount - 1;
  const std::size_t want = qsos == 0 ? LogHeaderSize : static_cast<std::size_t>(qsos + 1) * QsoRecordSize;
  if (bytes.size() != want)
    return "the log file holds " + std::to_string(bytes.size()) + " bytes for " + std::to_string(qsos) + " QSOs";
  auto header = EncodeHeader(document.SavedHeader);
  if (bytes.compare(0, header.size(), header.data(), header.size()) != 0) return "the header on disk differs";
  for (int n = 1; n <= qsos; ++n) {
    auto record = EncodeRecord(ctx.Log.LogRecords.At(n));
    if (bytes.compare(static_cast<std::size_t>(n) * QsoRecordSize, QsoRecordSize, record.data(), record.size()) != 0)
      return "QSO " + std::to_string(n) + " on disk differs from memory";
  }
  return {};
}

}  // namespace

Outcome PressKeys(std::string_view bytes) {
  Outcome outcome;
  if (bytes.empty()) return outcome;
  NewLogRun run(static_cast<unsigned char>(bytes[0]));
  if (!run.Opened()) {
    outcome.Summary = Titles(run.Desk) + "no log\n";
    return outcome;
  }

  int modifiers = 0;
  std::size_t requests = 0;
  for (unsigned char b : bytes.substr(1, 512)) {
    if (b >= 0x80) {
      const int code = kKeyCodes[(b - 0x80) % std::size(kKeyCodes)];
      if (!run.Form.PressKey(code, modifiers)) EditFocusedBox(run.Form, code);
      modifiers = 0;
    } else if (b >= 0x20 && b < 0x7f) {
      run.Form.TypeCharacter(static_cast<char>(b));
    } else if (b >= 1 && b <= 7) {
      modifiers |= b;  // Shift, Ctrl and Alt bits
    } else if (b >= 0x10 && b < 0x10 + std::size(kAnswers)) {
      run.Desk.Boxes.Answers.push_back(kAnswers[b - 0x10]);
    } else if (b == 0x1f) {
      run.Desk.Time.Advance(61000);
    }
    requests += run.Station.Requests.size();
    run.Station.Requests.clear();
  }
  outcome.Summary = Titles(run.Desk) + "contest " + std::to_string(run.Ctx.Contest.ContestIndex) + ", requests " +
                    std::to_string(requests) + ", QSOs " +
                    std::to_string(run.Ctx.Log.QSOCount - 1) + "\n";
  outcome.Fault = DiskAgainstMemory(run.Ctx, run.Form.Document);
  return outcome;
}

const std::vector<Harness>& Harnesses() {
  static const std::vector<Harness> harnesses = {{"log_file", OpenLogFile},
                                                 {"settings", ReadSettingsFile},
                                                 {"startup_data", ReadStartupDataFile},
                                                 {"country_file", ReadCountryFile},
                                                 {"exchange", EnterExchanges},
                                                 {"keys", PressKeys}};
  return harnesses;
}

const Harness* HarnessNamed(std::string_view name) {
  for (const Harness& harness : Harnesses())
    if (name == harness.Name) return &harness;
  return nullptr;
}

}  // namespace tarnix::fuzz
