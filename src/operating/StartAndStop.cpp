// The main form around the operating: its clock, the About box, the
// recovery of a crashed log at start-up and the manual backup.

#include <cstdio>

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

void LogForm::mnuHelpAbout_Click() {
  AboutTarnix about(Desk.Timers, false);
  Desk.Forms.ShowModal(about);
}

void LogForm::CheckRecovery() {
  Document.FileName = Document.TempFileName();
  if (!Desk.Disk.Exists(Document.FileName)) return;
  if (Ask("TARNIX has detected a backup file indicating the program was"
          " terminated abnormally.  Do you want to open it as a log file?",
          "TARNIX", MsgButtons::YesNo, MsgAnswer::Yes) == MsgAnswer::Yes) {
    Ctx.Log.LogState = LogStateKind::Unnamed;
    LoadLog(false);
    return;
  }
  if (!Document.RotateUnsavedLogs()) EndRequested = true;
}

// A copy of the named log into the backup folder.
void LogForm::mnuFileBackup_Click() {
  const std::string folder = Trim(Ctx.Config.BackUpDrive);
  if (Ctx.Log.LogState != LogStateKind::Named || folder == "[none]" || folder.empty()) return;
  Document.Backup(folder);
  SetFocus(CallBox);
}

}  // namespace tarnix
