// The main form's set-up and its File and Edit commands.

#include <filesystem>

#include "core/BandMode.h"
#include "core/ChCoForm.h"
#include "core/Text.h"
#include "operating/LogForm.h"

namespace tarnix {

LogForm::LogForm(Context& ctx, Platform& platform) : Ctx(ctx), Desk(platform) {
  Form_Load();
}

bool LogForm::HasLog() const { return Ctx.Log.LogState != LogStateKind::None; }

MsgAnswer LogForm::Ask(const std::string& text, const std::string& title, MsgButtons buttons, MsgAnswer dflt,
                       MsgIcon icon) {
  return Desk.Boxes.Show({text, title, buttons, icon, dflt});
}

void LogForm::Tell(const std::string& text, const std::string& title, MsgIcon icon) {
  Desk.Boxes.Show({text, title, MsgButtons::OK, icon, MsgAnswer::OK});
}

void LogForm::Form_Load() {
  bool open = HasLog();
  for (MenuItem* menu : {&mnuView, &mnuEdit, &mnuRadioWK, &mnuFileSave, &mnuFileBackup}) menu->Enabled = open;
  mnuFileSetup.Enabled = true;
  for (TextBox& box : InData) box.Enabled = open;
  AddButton.Enabled = CancelButton.Enabled = open;

  std::vector<Label*> labels = {&lblCallsign, &lblExchange, &QSONrLabel, &ScoreLabel, &MultsLabel,
                                &ActiveRadioLabel, &LabelR1Freq, &LabelR2Freq, &FileIDLabel};
  if (!open) {
    for (Label* label : labels) label->Visible = false;
    for (Label* label : {&LastQSOLabel, &lblDupe, &Modelabel, &LabelNeededOn, &NeedPfxLabel, &LblWpxCountry,
                         &CallMatchLabel1, &CallMatchLabel2, &OldCallMatchLabel})
      label->Visible = false;
    for (Label& cell : PrevQSO) cell.Visible = false;
    BackColor = ColourLightGrey;
    FocusedBox = NoBox;
    return;
  }

  BackColor = ColourWhite;
  for (Label* label : labels) label->Visible = true;
  ActiveRadioLabel.Caption = "Radio1";
  ActiveRadioLabel.ForeColor = ColourBlue;
  QSONrLabel.ForeColor = ColourBlue;
  LabelR1Freq.Caption = "R1";
  LabelR2Freq.Caption = "R2";
  lblExchange.Caption = ExchangeCaptionFor(Ctx.Contest);
  SetMenusForContest();
  RedrawQSONrLabel();
  RedrawScore();
}

void LogForm::SetMenusForContest() {
  const ContestState& s = Ctx.Contest;
  int c = s.ContestIndex;
  mnuViewCACounties.Visible = c == Cqp && s.InState;
  mnuViewARRLUSVEMults.Visible = c == ArrlDx && !s.IsUSVEStation;
  mnuViewZnCty.Visible = c == Cqww;
  mnuViewMults.Enabled = c != AllAsian;
  bool cw = s.ModeEnabled[2], phone = s.ModeEnabled[1];
  mnuViewCW.Enabled = mnuEditCW.Enabled = cw;
  mnuViewDvK.Enabled = phone;
}

// ---- File menu ----

void LogForm::mnuFileNewLog_Click() {
  if (Ctx.Log.LogState == LogStateKind::Named &&
      Ask("A log file is already open.  Do you want to start a new one? ", "Log Already Opened", MsgButtons::YesNo,
          MsgAnswer::No) == MsgAnswer::No)
    return;
  if (Ctx.Log.LogState == LogStateKind::Unnamed) {
    MsgAnswer answer = Ask("Save current log file? ", "Save Current File?", MsgButtons::YesNoCancel, MsgAnswer::Yes);
    if (answer == MsgAnswer::Cancel) return;
    if (answer == MsgAnswer::Yes) SaveAs();
    if (Ctx.Log.LogState == LogStateKind::Unnamed && Ctx.LogFileName == Ctx.TempLogFileName()) DeleteTempLogFile();
  }
  Ctx.Log.LogState = LogStateKind::None;
  CloseViewWindows();
  ResetLog(Ctx.Log);
  ResetCounters(Ctx.Counters);
  Ctx.NewRequested = true;
  Ctx.LogFileName = Ctx.TempLogFileName();
  OpenNewLog();
}

// The new-log path of the log open routine: the contest is chosen, the
// header written, and the empty log set up.
void LogForm::OpenNewLog() {
  ContestState before = Ctx.Contest;
  ChCoForm chooser(Ctx.Contest, Ctx.DialogCancelled);
  Desk.Forms.ShowModal(chooser);
  Ctx.NewRequested = false;
  if (Ctx.DialogCancelled) {
    Ctx.Contest = before;
    Form_Load();
    return;
  }
  if (IsMixedModeContest(Ctx.Contest.ContestIndex)) Ctx.Contest.ModeEnabled[1] = Ctx.Contest.ModeEnabled[2] = true;
  if (Ctx.Contest.ContestIndex == CwOpen) {
    Ctx.Contest.ModeEnabled[1] = false;
    Ctx.Contest.ModeEnabled[2] = true;
  }
  Ctx.Log.LogState = LogStateKind::Unnamed;
  CreateLogFile();
  Ctx.Log.WideLog = true;
  AfterHeader(true);
}

// What every load does once the header is known.
void LogForm::AfterHeader(bool isNew) {
  ContestState& s = Ctx.Contest;
  s.OffTimeLimit = OffTimeLimitFor(s.ContestIndex);
  Ctx.Config.SCPSelection = SCPSelectionFor(s);
  ResetMultiplierTables();
  if (!isNew) ReplayLogFile();

  LogStore& log = Ctx.Log;
  s.BandIndex = log.QSOCount > 1 ? log.LogRecords.At(log.QSOCount - 1).QBand : StartBandFor(s);
  Ctx.Radio.RadioBand1 = Ctx.Radio.RadioBand2 = s.BandIndex;
  Ctx.Radio.ActiveRadio = 1;
  SetDefaultBands(s);
  Form_Load();
  if (Ctx.ReloadFlag) {
    LastQSOLabel.Caption = LastLine;
    LastQSOLabel.Visible = !LastLine.empty();
  } else {
    LastLine.clear();
    LastQSOLabel.Caption.clear();
    LastQSOLabel.Visible = false;
  }
  std::string name = Ctx.Log.LogState == LogStateKind::Named
                         ? std::filesystem::path(Ctx.LogFileName).filename().string()
                         : std::string();
  FileIDLabel.Caption = TitleLine(name, s, isNew ? TitleContext::NewLog : TitleContext::LoadLog);
  mnuFileBackup.Enabled = Ctx.Log.LogState == LogStateKind::Named;
  ClearEntry();
}

// Re-reads the current log after a change that is not a new QSO.
void LogForm::ReloadLog() {
  Ctx.ReloadFlag = true;
  ResetLog(Ctx.Log);
  ResetCounters(Ctx.Counters);
  ClearCallAssist();
  CloseMessageWindows();
  AfterHeader(false);
  Ctx.ReloadFlag = false;
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
  CloseWinkey();
  return true;
}

// ---- Edit menu ----

void LogForm::mnuEditKillLastEntry_Click() {
  if (Ctx.Log.QSOCount == 1) {
    Tell("No Entries in Log, so can't kill last entry.", "No Log Entries");
    return;
  }
  if (Ask("Kill last log entry?", "Confirm kill", MsgButtons::YesNo, MsgAnswer::No) != MsgAnswer::Yes) return;
  // Only the count goes back: the record stays in the file and in the
  // counters until the next load, and the next QSO overwrites it.
  --Ctx.Log.QSOCount;
  SetFocus(CallBox);
  RedrawQSONrLabel();
}

void LogForm::mnuEditKillALLEntries_Click() {
  if (Ctx.Log.QSOCount == 1) {
    Tell("No Entries in Log, so can't kill allentries.", "No Log Entries");
    return;
  }
  std::string name = Ctx.Log.LogState == LogStateKind::Named
                         ? std::filesystem::path(Ctx.LogFileName).filename().string()
                         : std::string("[Unnamed]");
  if (Ask(name + "\nKill ALL log entries?\nIf you do so, a backup file is created, called KilledFile.tnx.",
          "Confirm kill", MsgButtons::YesNo, MsgAnswer::No) != MsgAnswer::Yes)
    return;
  WriteKilledFile();
  EmptyLogFile();
  WriteSettings();
  ReloadLog();
}

void LogForm::mnuEditLastEntry_Click() {
  if (Ctx.Log.QSOCount == 1) {
    Tell("No Entries in Log, so can't edit last entry.", "No Log Entries");
    return;
  }
  if (!EditQso(Ctx.Log.QSOCount - 1)) return;
  WriteSettings();
  ReloadLog();
}

void LogForm::mnuEditSelectBands_Click() {
  BandMode form(Ctx.Contest, Desk.Boxes);
  Desk.Forms.ShowModal(form);
}

}  // namespace tarnix
