// The main form around the operating: its clock, minimise and restore, the
// About box, the recovery of a crashed log at start-up and the manual backup.

#include <cstdio>
#include <filesystem>

#include "core/LogFile.h"
#include "core/Text.h"
#include "operating/AboutTarnix.h"
#include "operating/LogForm.h"

namespace tarnix {
namespace {

// HHMM of an hour moved by a correction, wrapped into 0..23.
std::string ClockText(int hour, int minute, int correction) {
  hour = ((hour + correction) % 24 + 24) % 24;
  char text[8];
  std::snprintf(text, sizeof text, "%02d%02d", hour, minute);
  return text;
}

}  // namespace

// Every second: the GMT and local clocks; every tenth second the statistics.
// The local label is spelt "LocalTime: " when the computer runs on GMT and
// "Local Time: " when it runs on local time.
void LogForm::Timer1_Timer() {
  if (++ClockTicks > 10) {
    ClockTicks = 1;
    if (HasLog()) UpdateStats();
  }
  LocalDateTime now = Desk.Time.Now();
  int correction = static_cast<int>(RoundEven(Val(Ctx.Config.TimeCorrection)));
  if (Ctx.Config.IsGMTFlag == "True") {
    TimeGMTLabel.Caption = "GMT: " + ClockText(now.Hour, now.Minute, 0);
    TimeLocalLabel.Caption = "LocalTime: " + ClockText(now.Hour, now.Minute, correction);
  } else {
    TimeLocalLabel.Caption = "Local Time: " + ClockText(now.Hour, now.Minute, 0);
    TimeGMTLabel.Caption = "GMT: " + ClockText(now.Hour, now.Minute, correction);
  }
  if (Changed) Changed();
}

void LogForm::Form_Resize(bool minimised) { ViewWindowsShown = !minimised; }

void LogForm::mnuHelpAbout_Click() {
  AboutTarnix about(Desk.Timers, false);
  Desk.Forms.ShowModal(about);
}

void LogForm::CheckRecovery() {
  Ctx.LogFileName = Ctx.TempLogFileName();
  if (!Desk.Disk.Exists(Ctx.LogFileName)) return;
  if (Ask("TARNIX has detected a backup file indicating the program was"
          " terminated abnormally.  Do you want to open it as a log file?",
          "TARNIX", MsgButtons::YesNo, MsgAnswer::Yes) == MsgAnswer::Yes) {
    Ctx.Log.LogState = LogStateKind::Unnamed;
    LoadLog();
    return;
  }
  RotateUnsavedLogs();
}

// Keeps the three last abandoned logs: "Unsaved TNX Log 1.tnx" is the
// newest; the oldest of three goes. A rename that fails ends the program as a
// start-up file fault does.
void LogForm::RotateUnsavedLogs() {
  auto unsaved = [this](int n) { return Ctx.AppPath + "Unsaved TNX Log " + std::to_string(n) + ".tnx"; };
  FileError error;
  auto move = [&](const std::string& from, const std::string& to) {
    if (!error) error = Desk.Disk.Rename(from, to);
  };
  if (Desk.Disk.Exists(unsaved(3))) error = Desk.Disk.Remove(unsaved(3));
  if (Desk.Disk.Exists(unsaved(2))) move(unsaved(2), unsaved(3));
  if (Desk.Disk.Exists(unsaved(1))) move(unsaved(1), unsaved(2));
  move(Ctx.TempLogFileName(), unsaved(1));
  if (!error) return;
  Tell("Can't find or read startup files tarnix125.ini or tarnix121.dat.  "
       "Make sure they are in the same drive/directory used to start program.\n\n" + *error,
       "TARNIX", MsgIcon::Critical);
  EndRequested = true;
}

// A copy of the named log into the backup folder, written from memory: the
// header and every QSO at the record length of a new log.
void LogForm::mnuFileBackup_Click() {
  const std::string& folder = Ctx.Config.BackUpDrive;
  if (Ctx.Log.LogState != LogStateKind::Named || Trim(folder) == "[none]" || Trim(folder).empty()) return;
  std::string target = (std::filesystem::path(Trim(folder)) / std::filesystem::path(Ctx.LogFileName).filename()).string();
  std::string bytes = LogFileBytes(Ctx.Log.QSOCount - 1);
  WriteWithRetry([&]() -> FileError {
    if (Desk.Disk.Exists(target))
      if (FileError error = Desk.Disk.Remove(target)) return error;
    return Desk.Disk.Replace(target, bytes);
  });
  SetFocus(CallBox);
}

}  // namespace tarnix
