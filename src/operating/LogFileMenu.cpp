// The File menu and the one routine that opens a log: New, Open, a recent
// file, Save As, Exit, and the reload after a change to the file.

#include <stdexcept>

#include "config/SettingsFile.h"
#include "core/ChCoForm.h"
#include "core/LogFile.h"
#include "core/Text.h"
#include "operating/LogForm.h"
#include "operating/Startup.h"

namespace tarnix {
namespace {

const char* const kLogFilter = "TNX logs (*.TNX)|*.TNX";

// The folder part of a path, with its trailing separator.
std::string FolderOf(const std::string& path) {
  std::size_t slash = path.find_last_of('/');
  return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

}  // namespace

// The store, the contest counters and the portable table, emptied for a
// log about to be loaded.
void LogForm::ClearLogState() {
  ResetLog(Ctx.Log);
  ResetCounters(Ctx.Counters);
  ResetPortables(Ctx.Portables);
}

// The questions before the open log is left for another: a named log asks
// whether to go on (namedQuestion), an unnamed one offers Save As. False
// when the operator stays.
bool LogForm::MayLeaveCurrentLog(const std::string& namedQuestion) {
  if (Ctx.Log.LogState == LogStateKind::Named)
    return Ask(namedQuestion, "Log Already Opened", MsgButtons::YesNo, MsgAnswer::No) == MsgAnswer::Yes;
  if (Ctx.Log.LogState != LogStateKind::Unnamed) return true;
  MsgAnswer answer = Ask("Save current log file? ", "Save Current File?", MsgButtons::YesNoCancel, MsgAnswer::Yes);
  if (answer == MsgAnswer::Yes) SaveAs();
  return answer != MsgAnswer::Cancel;
}

void LogForm::mnuFileNewLog_Click() {
  if (!MayLeaveCurrentLog("A log file is already open.  Do you want to start a new one? ")) return;
  if (Ctx.Log.LogState == LogStateKind::Unnamed && Document.FileName == Document.TempFileName())
    Document.DeleteTemp();
  Ctx.Log.LogState = LogStateKind::None;
  CloseViewWindows();
  ClearLogState();
  Document.FileName = Document.TempFileName();
  OpenNewLog();
}

// The new-log path of the log open routine: the contest is chosen, the
// header written to the temporary file, and the empty log set up.
void LogForm::OpenNewLog() {
  ContestState before = Ctx.Contest;
  bool cancelled = false;
  ChCoForm chooser(Ctx.Contest, cancelled);
  Desk.Forms.ShowModal(chooser);
  if (cancelled) {
    Ctx.Contest = before;
    Form_Load();
    return;
  }
  SetModesOfNewLog(Ctx.Contest);
  if (!Document.Create(Ctx.Contest)) {
    Form_Load();
    return;
  }
  Ctx.Log.LogState = LogStateKind::Unnamed;
  Ctx.Log.WideLog = true;
  Ctx.Log.RecordLength = static_cast<int16_t>(QsoRecordSize);
  AfterHeader(nullptr, false);
}

void LogForm::mnuFileOpenLog_Click() { OpenExisting(0); }

void LogForm::mnuFileArray_Click(int recent) { OpenExisting(recent); }

// Open and the recent files. The name is asked for before the log in memory
// is reset, so that a cancelled dialog leaves the open log as it was.
void LogForm::OpenExisting(int recent) {
  if (!MayLeaveCurrentLog("A log file is already open.  Do you want to open a different one?")) return;

  std::string name;
  if (recent >= 1 && recent <= 4) {
    name = Ctx.Config.RecentFile[static_cast<std::size_t>(recent)];
  } else {
    auto chosen = Desk.Files.OpenFile(
        {"Open Existing TNX Log File", kLogFilter, "TNX", Ctx.Config.OpenFilePath, "*.TNX", true});
    if (!chosen) return;
    name = *chosen;
  }
  if (name.empty()) return;

  WriteSettings();
  CloseViewWindows();
  ClearLogState();
  Ctx.Log.LogState = LogStateKind::Named;
  Document.FileName = name;
  RememberLogName(name);
  WriteSettings();
  LoadLog(false);
}

// OpenFilePath and the recent-file list, newest first.
void LogForm::RememberLogName(const std::string& name) {
  Settings& cfg = Ctx.Config;
  cfg.OpenFilePath = FolderOf(name);
  if (cfg.RecentFile[1] != name) {
    for (int i = 4; i >= 2; --i) cfg.RecentFile[static_cast<std::size_t>(i)] = cfg.RecentFile[static_cast<std::size_t>(i - 1)];
    cfg.RecentFile[1] = name;
  }
  ShowRecentFiles();
}

void LogForm::ShowRecentFiles() {
  for (int i = 1; i <= 4; ++i) {
    MenuItem& item = mnuFileArray[static_cast<std::size_t>(i)];
    item.Caption = Ctx.Config.RecentFile[static_cast<std::size_t>(i)];
    item.Visible = !item.Caption.empty();
  }
}

// Reads the open log's file and sets everything up from it: header,
// conversions of old logs, records and the replay. A reload keeps the
// "Last: " line and the CW speed.
void LogForm::LoadLog(bool reload) {
  std::string bytes;
  if (!Document.Read(bytes)) return AbandonLoad();

  LogHeader header = DecodeHeader(std::span(bytes.data(), std::min(bytes.size(), LogHeaderSize)));
  HeaderReading reading = ReadHeader(header, Ctx.Contest, Ctx.Log.WideLog);
  if (reading.Incompatible) {
    Tell("The log selected was written with an earlier version of this program or "
         "with version 3.5 or earlier of TARNIX for DOS.  This program and "
         "versions 4.1 and later of TARNIX for DOS use a slightly different file "
         "format that is incompatible with earlier versions.  If you wish to convert "
         "the log file to this new format, load the file into TARNIX for DOS, version 4.5 "
         "or later and follow instructions.",
         "Incompatible file format error", MsgIcon::Critical);
    EndRequested = true;
    return AbandonLoad();
  }
  if (reading.UnknownContest) {
    Tell("The file " + Document.FileName + " is not a TARNIX log: its header names no contest this program knows.",
         "Unknown Log Format", MsgIcon::Critical);
    return AbandonLoad();
  }
  if (reading.ConvertWpx && !Document.Convert(bytes, false)) return AbandonLoad();
  if (reading.ConvertOldSweepstakes && !Document.Convert(bytes, true)) return AbandonLoad();
  if (reading.AskCqpLocation)
    Ctx.Contest.InState =
        Ask("This CQP file was produced with ver. 2.0 or earlier of this program or"
            " ver. 4.5 or earlier of the DOS program.  The log file header "
            "does not indicate whether or not the log was produced by a California"
            " or out of state station.\n       Was the station in California?",
            "Need Station Location Info", MsgButtons::YesNo, MsgAnswer::Yes) == MsgAnswer::Yes;
  Document.SavedHeader = DecodeHeader(std::span(bytes.data(), std::min(bytes.size(), LogHeaderSize)));
  try {
    AfterHeader(&bytes, reload);
  } catch (const std::out_of_range& error) {
    // A log that overflows one of the program's fixed tables (more calls
    // with "/" than the portable table holds, say) cannot be opened whole.
    Tell("The log " + Document.FileName + " cannot be opened: " + error.what() + ".", "Log Too Large",
         MsgIcon::Critical);
    AbandonLoad();
  }
}

// A load that cannot go on leaves no log open; the file is untouched.
void LogForm::AbandonLoad() {
  Ctx.Log.LogState = LogStateKind::None;
  ClearLogState();
  Form_Load();
}

// What every load does once the header is known; fileBytes is null for a new
// log, which has no records.
void LogForm::AfterHeader(const std::string* fileBytes, bool reload) {
  ContestState& s = Ctx.Contest;
  LogStore& log = Ctx.Log;
  s.OffTimeLimit = OffTimeLimitFor(s.ContestIndex);
  Ctx.Config.SCPSelection = SCPSelectionFor(s);
  LoadMultiplierTables(Ctx.Data, s.ContestIndex, s.InState, Ctx.Tables);
  if (fileBytes) LoadRecords(*fileBytes);

  s.BandIndex = log.QSOCount > 1 ? LoggedRecord(log, log.QSOCount - 1).QBand : StartBandFor(s);
  Ctx.Radio.RadioBand1 = Ctx.Radio.RadioBand2 = s.BandIndex;
  Ctx.Radio.ActiveRadio = 1;
  SetDefaultBands(s);
  if (!reload) Ctx.Keying.CWSpeed = 28;
  Form_Load();
  if (reload) {
    LastQSOLabel.Caption = LastLine;
    LastQSOLabel.Visible = !LastLine.empty();
  } else {
    LastLine.clear();
    LastQSOLabel.Caption.clear();
    LastQSOLabel.Visible = false;
  }
  std::string name = log.LogState == LogStateKind::Named ? Document.FileName : std::string();
  FileIDLabel.Caption = TitleLine(name, s, fileBytes ? TitleContext::LoadLog : TitleContext::NewLog);
  mnuFileBackup.Enabled = log.LogState == LogStateKind::Named;
  ClearEntry();
}

// The records of the file into the array of the log's shape, then the replay.
// QSOCount is the file length over the record length; a header-only file of
// a 60-byte log is 26 bytes long and holds no QSO.
void LogForm::LoadRecords(const std::string& bytes) {
  LogStore& log = Ctx.Log;
  int R = RecordLengthOf(log.WideLog, Ctx.Contest.ContestIndex);
  log.RecordLength = static_cast<int16_t>(R);
  std::size_t count = std::max<std::size_t>(bytes.size() / static_cast<std::size_t>(R), 1);
  std::size_t bound = (R == static_cast<int>(QsoRecordMidSize) ? MaxQsosMid : MaxQsos) + 1u;
  if (count > bound) {
    Tell("The log " + Document.FileName + " holds " + std::to_string(count - 1) + " QSOs, more than the " +
             std::to_string(bound - 1) + " this program keeps. Only the first " + std::to_string(bound - 1) +
             " are loaded.",
         "Log Too Large", MsgIcon::Exclamation);
    count = bound;
  }
  for (std::size_t n = 1; n < count; ++n)
    LoggedRecord(log, static_cast<int>(n)) = DecodeRecord(std::span(bytes.data() + n * R, static_cast<std::size_t>(R)));
  ReplayLog(static_cast<int>(count));
}

void LogForm::ReloadLog() {
  ClearLogState();
  ClearCallAssist();
  CloseMessageWindows();
  LoadLog(true);
}

void LogForm::mnuFileSave_Click() { SaveAs(); }

void LogForm::mnuFileUserInfo_Click() {
  UserInfo form(Ctx.Config, Ctx.UserClipboard, Desk.Boxes, [this] { WriteSettings(); });
  Desk.Forms.ShowModal(form);
}

// Save As: the only save there is, since every QSO is on disk already. The
// log file moves to the new name. Returns true when it did.
bool LogForm::SaveAs() {
  auto chosen = Desk.Files.SaveFile({"Save Current Log As", "TNX logs (*.TNX)|*.TNX|All files (*.*)|*.*", "TNX",
                                     Ctx.Config.OpenFilePath, "", false});
  if (!chosen) return false;
  std::string name = *chosen;
  if (!Document.MoveTo(name)) return false;
  RememberLogName(name);
  WriteSettings();
  std::string shown = name.size() > 30 ? name.substr(0, 15) + "..." + name.substr(name.size() - 12) : name;
  FileIDLabel.Caption = TitleLine(shown, Ctx.Contest, TitleContext::SaveAs);
  mnuFileBackup.Enabled = true;
  return true;
}

bool LogForm::mnuFileExit_Click() {
  if (Ctx.Log.LogState == LogStateKind::Unnamed) {
    MsgAnswer answer = Ask("Save current log file?", "Save Log?", MsgButtons::YesNoCancel, MsgAnswer::Yes);
    if (answer == MsgAnswer::Cancel) return false;
    if (answer == MsgAnswer::No && Document.FileName == Document.TempFileName()) Document.DeleteTemp();
    // A cancel in the save dialog does not stop the exit: the temporary file
    // stays and is offered for recovery at the next start.
    if (answer == MsgAnswer::Yes) SaveAs();
  } else if (Ask("Exit TARNIX?", "Exit TARNIX?", MsgButtons::YesNo, MsgAnswer::Yes) == MsgAnswer::No) {
    return false;
  }
  WriteSettings();
  Keyer.CloseWinkey();
  return true;
}

// The settings file, written whole. A failure is told; the log goes on.
void LogForm::WriteSettings() {
  if (auto error = tarnix::WriteSettings(SettingsPath(Ctx), Ctx.Config))
    Tell(*error + "\nThe settings were not saved.", "Settings File Error", MsgIcon::Exclamation);
}

}  // namespace tarnix
