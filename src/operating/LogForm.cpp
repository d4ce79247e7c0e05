// The main form's set-up and its File and Edit commands.

#include <filesystem>
#include <vector>

#include "core/BandMode.h"
#include "core/ChCoForm.h"
#include "core/Text.h"
#include "operating/LogForm.h"

namespace tarnix {

LogForm::LogForm(Context& ctx, Platform& platform, Station& station)
    : Timer1(platform.Timers.CreateTimer([this] { Timer1_Timer(); })),
      Document(ctx, platform),
      Ctx(ctx),
      Desk(platform),
      Keyer(station.Keyer),
      Radios(station.Radios) {
  Timer1->SetInterval(1000);
  Timer1->SetEnabled(true);
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
  ShowRecentFiles();
  bool open = HasLog();
  for (MenuItem* menu : {&mnuView, &mnuEdit, &mnuFileSave, &mnuFileBackup}) menu->Enabled = open;
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
    for (Label* label : {&lblCWPC, &lblSpeedCW, &lblCWWK, &lblSpeedWK, &DVKSpeedLabel, &KeyboardCWLabel})
      label->Visible = false;
    for (CheckBox* box : {&CheckCall, &CheckExchange, &CheckGreeting, &CheckThanks}) box->Visible = false;
    KeyboardCWText.Visible = false;
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
  lblCWPC.Visible = true;
  lblCWPC.ForeColor = lblSpeedCW.ForeColor = ColourBlue;
  ArrangeForMode();
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
  mnuViewCW.Enabled = cw;
  mnuViewDvK.Enabled = phone;
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
                         ? std::filesystem::path(Document.FileName).filename().string()
                         : std::string("[Unnamed]");
  if (Ask(name + "\nKill ALL log entries?\nIf you do so, a backup file is created, called KilledFile.tnx.",
          "Confirm kill", MsgButtons::YesNo, MsgAnswer::No) != MsgAnswer::Yes)
    return;
  if (!Document.WriteKilledFile() || !Document.Empty()) return;
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
