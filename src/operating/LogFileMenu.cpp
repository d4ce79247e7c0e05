// The File menu and the one routine that opens a log: New, Open, a recent
// file, Save As, Exit, and the reload after a change to the file.

#include <filesystem>
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

bool SamePath(const std::string& a, const std::string& b) {
  std::error_code ignored;
  return a == b || std::filesystem::equivalent(a, b, ignored);
}

// A log file's bytes: the header, then records 1 to lastQso of the table,
// record n in the slot n of recordSize bytes (60 for a new log, 36 or 26 for
// the old shapes).
template <typename Records>
std::string FileBytes(const LogHeader& header, const Records& records, int lastQso, std::size_t recordSize) {
  std::string bytes(static_cast<std::size_t>(lastQso + 1) * recordSize, '\0');
  auto encoded = EncodeHeader(header);
  std::copy(encoded.begin(), encoded.end(), bytes.begin());
  for (int n = 1; n <= lastQso; ++n)
    EncodeRecord(records.At(n), std::span(bytes.data() + static_cast<std::size_t>(n) * recordSize, recordSize));
  return bytes;
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
  if (Ctx.Log.LogState == LogStateKind::Unnamed && Ctx.LogFileName == Ctx.TempLogFileName()) DeleteTempLogFile();
  Ctx.Log.LogState = LogStateKind::None;
  CloseViewWindows();
  ClearLogState();
  Ctx.LogFileName = Ctx.TempLogFileName();
  OpenNewLog();
}

// The new-log path of the log open routine: the contest is chosen, the
// header written to the temporary file, and the empty log set up.
void LogForm::OpenNewLog() {
  ContestState before = Ctx.Contest;
  ChCoForm chooser(Ctx.Contest, Ctx.DialogCancelled);
  Desk.Forms.ShowModal(chooser);
  if (Ctx.DialogCancelled) {
    Ctx.Contest = before;
    Form_Load();
    return;
  }
  ContestState& s = Ctx.Contest;
  if (IsMixedModeContest(s.ContestIndex)) s.ModeEnabled[1] = s.ModeEnabled[2] = true;
  if (s.ContestIndex == CwOpen) {
    s.ModeEnabled[1] = false;
    s.ModeEnabled[2] = true;
  }
  Ctx.SavedHeader = MakeHeader(s);
  auto header = EncodeHeader(Ctx.SavedHeader);
  if (!WriteWithRetry([&] { return Desk.Disk.Replace(Ctx.LogFileName, header); })) {
    Form_Load();
    return;
  }
  Ctx.Log.LogState = LogStateKind::Unnamed;
  Ctx.Log.WideLog = true;
  Ctx.Log.RecordLength = static_cast<int16_t>(QsoRecordSize);
  AfterHeader(nullptr);
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
    Ctx.DialogCancelled = false;
    auto chosen = Desk.Files.OpenFile(
        {"Open Existing TNX Log File", kLogFilter, "TNX", Ctx.Config.OpenFilePath, "*.TNX", true});
    if (!chosen) {
      Ctx.DialogCancelled = true;
      return;
    }
    name = *chosen;
  }
  if (name.empty()) return;

  WriteSettings();
  CloseViewWindows();
  ClearLogState();
  Ctx.Log.LogState = LogStateKind::Named;
  Ctx.LogFileName = name;
  RememberLogName(name);
  WriteSettings();
  LoadLog();
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

// Reads the file LogFileName and sets everything up from it: header,
// conversions of old logs, records and the replay.
void LogForm::LoadLog() {
  std::string bytes;
  if (!ReadLogFile(bytes)) return AbandonLoad();

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
    Tell("The file " + Ctx.LogFileName + " is not a TARNIX log: its header names no contest this program knows.",
         "Unknown Log Format", MsgIcon::Critical);
    return AbandonLoad();
  }
  if (reading.ConvertWpx && !ConvertLog(bytes, false)) return AbandonLoad();
  if (reading.ConvertOldSweepstakes && !ConvertLog(bytes, true)) return AbandonLoad();
  if (reading.AskCqpLocation)
    Ctx.Contest.InState =
        Ask("This CQP file was produced with ver. 2.0 or earlier of this program or"
            " ver. 4.5 or earlier of the DOS program.  The log file header "
            "does not indicate whether or not the log was produced by a California"
            " or out of state station.\n       Was the station in California?",
            "Need Station Location Info", MsgButtons::YesNo, MsgAnswer::Yes) == MsgAnswer::Yes;
  Ctx.SavedHeader = DecodeHeader(std::span(bytes.data(), std::min(bytes.size(), LogHeaderSize)));
  try {
    AfterHeader(&bytes);
  } catch (const std::out_of_range& error) {
    // A log that overflows one of the program's fixed tables (more calls
    // with "/" than the portable table holds, say) cannot be opened whole.
    Tell("The log " + Ctx.LogFileName + " cannot be opened: " + error.what() + ".", "Log Too Large",
         MsgIcon::Critical);
    AbandonLoad();
  }
}

// Reads the whole log file; a failure asks to retry, and anything else ends
// the load.
bool LogForm::ReadLogFile(std::string& bytes) {
  for (;;) {
    FileError error = Desk.Disk.ReadAll(Ctx.LogFileName, bytes);
    if (!error) return true;
    if (FileErrorRoutine(*error) != MsgAnswer::Retry) return false;
  }
}

// A load that cannot go on leaves no log open; the file is untouched.
void LogForm::AbandonLoad() {
  Ctx.Log.LogState = LogStateKind::None;
  ClearLogState();
  Form_Load();
}

// The conversions of old logs keep the old file under a name whose last
// letter is "b" and write the converted log under the old name.
bool LogForm::ConvertLog(std::string& bytes, bool sweepstakes) {
  const std::string& name = Ctx.LogFileName;
  std::string keptName = name.substr(0, name.size() - 1) + "b";
  std::string converted;
  if (sweepstakes) {
    bool yes = Ask("This SS file is for a pre-1997 contest. TARNIX will convert it to "
                   "ver. 5 log format.  In order to display the "
                   "sections correctly, please press YES if the contest "
                   "was in 1996 (78 sections) or NO for pre-1996 (77 sections).",
                   "Pre-1997 SS Log.  How Many Sections?", MsgButtons::YesNo, MsgAnswer::Yes) == MsgAnswer::Yes;
    Ctx.Contest.SSYear = yes ? 96 : 95;
    converted = ConvertOldSweepstakesLog(bytes, Ctx.Contest.SSYear);
  } else {
    Tell("The File selected,  " + name + ", is in the format for versions 6.5 and earlier" +
             " of TARNIX.  It will be converted to new format readable only by version 7.0 and" +
             " later.  The old file will be saved as  " + keptName,
         "WPX File Conversion", MsgIcon::Information);
    converted = ConvertWpxLog(bytes, [this](const std::string& call) { return WpxPrefixOf(call); });
  }
  if (FileError error = Desk.Disk.Rename(name, keptName)) {
    FileErrorRoutine(*error);
    return false;
  }
  if (!WriteWithRetry([&] { return Desk.Disk.Replace(name, converted); })) return false;
  bytes = std::move(converted);
  return true;
}

// What every load does once the header is known; fileBytes is null for a new
// log, which has no records.
void LogForm::AfterHeader(const std::string* fileBytes) {
  ContestState& s = Ctx.Contest;
  LogStore& log = Ctx.Log;
  s.OffTimeLimit = OffTimeLimitFor(s.ContestIndex);
  Ctx.Config.SCPSelection = SCPSelectionFor(s);
  ResetMultiplierTables();
  if (fileBytes) LoadRecords(*fileBytes);

  s.BandIndex = log.QSOCount > 1 ? LoggedRecord(log, log.QSOCount - 1).QBand : StartBandFor(s);
  Ctx.Radio.RadioBand1 = Ctx.Radio.RadioBand2 = s.BandIndex;
  Ctx.Radio.ActiveRadio = 1;
  SetDefaultBands(s);
  if (!Ctx.ReloadFlag) Ctx.Keying.CWSpeed = 28;
  Form_Load();
  if (Ctx.ReloadFlag) {
    LastQSOLabel.Caption = LastLine;
    LastQSOLabel.Visible = !LastLine.empty();
  } else {
    LastLine.clear();
    LastQSOLabel.Caption.clear();
    LastQSOLabel.Visible = false;
  }
  std::string name = log.LogState == LogStateKind::Named ? Ctx.LogFileName : std::string();
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
    Tell("The log " + Ctx.LogFileName + " holds " + std::to_string(count - 1) + " QSOs, more than the " +
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
  Ctx.ReloadFlag = true;
  ClearLogState();
  ClearCallAssist();
  CloseMessageWindows();
  LoadLog();
  Ctx.ReloadFlag = false;
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
  if (name.size() < 3 || UCase(name.substr(name.size() - 3)) != "TNX") {
    Tell("Log file must have the extension .TNX", "TARNIX");
    return false;
  }
  bool sameFile = SamePath(name, Ctx.LogFileName);
  if (!sameFile && Desk.Disk.Exists(name)) {
    if (Ask(name + " already exists." + " OK to overwrite it?", "TARNIX", MsgButtons::OKCancel, MsgAnswer::Cancel) !=
        MsgAnswer::OK)
      return false;
    if (FileError error = Desk.Disk.Remove(name)) {
      Tell(*error, "TARNIX", MsgIcon::Critical);
      return false;
    }
  }
  if (!sameFile) {
    if (FileError error = Desk.Disk.Copy(Ctx.LogFileName, name)) {
      Tell(*error + "\nThe log stays in " + Ctx.LogFileName + ".", "TARNIX", MsgIcon::Critical);
      return false;
    }
    if (FileError error = Desk.Disk.Remove(Ctx.LogFileName)) Tell(*error, "TARNIX", MsgIcon::Exclamation);
  }
  Ctx.LogFileName = name;
  Ctx.Log.LogState = LogStateKind::Named;
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
    if (answer == MsgAnswer::No && Ctx.LogFileName == Ctx.TempLogFileName()) DeleteTempLogFile();
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

void LogForm::DeleteTempLogFile() {
  if (FileError error = Desk.Disk.Remove(Ctx.TempLogFileName())) Tell(*error, "TARNIX", MsgIcon::Exclamation);
}

// The general error routine of file operations: retry, ignore or abort.
MsgAnswer LogForm::FileErrorRoutine(const std::string& error) {
  return Ask(error, "File Error", MsgButtons::AbortRetryIgnore, MsgAnswer::Abort, MsgIcon::Critical);
}

// A write that the operator may retry; ignore counts as done, abort as not.
bool LogForm::WriteWithRetry(const std::function<FileError()>& write) {
  for (;;) {
    FileError error = write();
    if (!error) return true;
    MsgAnswer answer = FileErrorRoutine(*error);
    if (answer == MsgAnswer::Ignore) return true;
    if (answer != MsgAnswer::Retry) return false;
  }
}

// Writes QSO n at its place in the log file. A log file that is gone, or
// shorter than the header and the n - 1 QSOs before (deleted, cut short, or
// its header torn by a full disk whose error was ignored), is written again
// whole from memory, QSO n included, and the operator is told: written alone,
// the record would land behind a gap of zero bytes, with the header and the
// earlier QSOs lost from the disk. (A log of an old shape keeps its records
// in the arrays of that shape, which memory cannot give back as a file.)
FileError LogForm::WriteLogRecord(int n) {
  const bool wide = Ctx.Log.RecordLength == static_cast<int16_t>(QsoRecordSize);
  const uint64_t before = n == 1 ? LogHeaderSize : static_cast<uint64_t>(n) * QsoRecordSize;
  std::optional<uint64_t> size = Desk.Disk.Size(Ctx.LogFileName);
  if (wide && (!size || *size < before)) {
    if (FileError error = Desk.Disk.Replace(Ctx.LogFileName, LogFileBytes(n))) return error;
    Tell("The log file " + Ctx.LogFileName + " was missing or cut short. It has been written again from memory, with " +
             std::to_string(n) + (n == 1 ? " QSO." : " QSOs."),
         "Log File Rewritten", MsgIcon::Exclamation);
    return std::nullopt;
  }
  auto bytes = EncodeRecord(Ctx.Log.LogRecords.At(n));
  return Desk.Disk.WriteAt(Ctx.LogFileName, static_cast<uint64_t>(n) * QsoRecordSize, bytes);
}

// The log file as memory holds it: the header and QSOs 1 to lastQso, each at
// the record length of a new log.
std::string LogForm::LogFileBytes(int lastQso) const {
  return FileBytes(Ctx.SavedHeader, Ctx.Log.LogRecords, lastQso, QsoRecordSize);
}

// The copy Kill All leaves in the program folder: the header and, at the
// record length of the old shapes, the short or middle records. A log of
// 60-byte records has its QSOs in neither, so its copy holds blank records.
bool LogForm::WriteKilledFile() {
  const int c = Ctx.Contest.ContestIndex;
  const int last = Ctx.Log.QSOCount - 1;
  std::string bytes = c == Sprint || c == Naqp
                          ? FileBytes(Ctx.SavedHeader, Ctx.Log.LogRecordsMid, last, QsoRecordMidSize)
                          : FileBytes(Ctx.SavedHeader, Ctx.Log.LogRecordsShort, last, QsoRecordShortSize);
  return WriteWithRetry([&] { return Desk.Disk.Replace(Ctx.AppPath + "KilledFile.tnx", bytes); });
}

bool LogForm::EmptyLogFile() {
  auto header = EncodeHeader(Ctx.SavedHeader);
  return WriteWithRetry([&] { return Desk.Disk.Replace(Ctx.LogFileName, header); });
}

}  // namespace tarnix
