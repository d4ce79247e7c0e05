// The dupe check on the entry form: the scan when a call is left or logged,
// the dupe line, the worked-before grid, the note about a portable form of
// the call, the match lists while the call is typed, and Insert on a dupe.

#include "core/Bands.h"
#include "core/Text.h"
#include "operating/LogForm.h"
#include "rules/DupeCheck.h"

namespace tarnix {
namespace {

// The grid cell of the band radio 1 is on takes colour 9 of the 16-colour
// table (light blue); radio 2's takes red, the colour of its radio label.
constexpr int32_t ColourRadio1 = ColourBlue;
constexpr int32_t ColourRadio2 = ColourRed;

int RowOf(int bandIndex) { return bandIndex >= 1 && bandIndex <= BandIndexCount ? BandRow(bandIndex) : 0; }

}  // namespace

void LogForm::DupeCheck(const std::string& call) {
  LastDupeCheckCall = call;
  DupeCheckDone = true;
  Modelabel.Visible = false;
  for (int i = 1; i <= 8; ++i) PrevQSO[static_cast<std::size_t>(i)].Visible = false;
  LabelNeededOn.Visible = false;

  const ContestState& contest = Ctx.Contest;
  ScanForDupes(Ctx.Log, Ctx.Portables, contest.ContestIndex, contest.BandIndex, call, Dupes);
  IsDupe = Dupes.IsDupe;
  FoundInLog = Dupes.FoundInLog;
  DupeQSO = Dupes.DupeQSO;
  if (!FoundInLog) return;

  ShowPriorQsos();
  CallMatchLabel1.Visible = CallMatchLabel2.Visible = OldCallMatchLabel.Visible = false;
  // Found only through the other form of the call: for information, the QSO
  // may still be logged.
  if (Dupes.PortableMatch && !IsDupe) {
    Tell(PortableNoteText(Dupes.Call, Dupes.Alt), std::string(PortableNoteTitle), MsgIcon::Information);
    SetFocus(ExchangeBox);
  }
}

void LogForm::ShowDupe() {
  EntryRecord = LoggedRecord(Ctx.Log, DupeQSO);
  lblDupe.Caption = DupeLineText(Ctx.Contest.ContestIndex, EntryRecord);
  lblDupe.Visible = true;
  lblExchange.Visible = false;
  lblCallsign.Visible = false;
}

void LogForm::AddPortable(const std::string& call) { AddPortableCall(Ctx.Portables, call); }

// The worked-before grid from the last scan, its cells coloured by the band
// each radio is on.
void LogForm::ShowPriorQsos() {
  WorkedGrid grid = BuildWorkedGrid(Ctx.Contest.ContestIndex, Ctx.Contest.BandIndex, Dupes.BandNumbers);
  Modelabel.Caption = grid.ModeCaption;
  Modelabel.Visible = grid.Shown;
  int radio1Row = RowOf(Ctx.Radio.RadioBand1);
  int radio2Row = RowOf(Ctx.Radio.RadioBand2);
  for (int i = 1; i <= 8; ++i) {
    const GridCell& cell = grid.Cells[static_cast<std::size_t>(i)];
    Label& label = PrevQSO[static_cast<std::size_t>(i)];
    label.Caption = cell.Text;
    label.Visible = grid.Shown && cell.BandRow != 0;
    label.ForeColor = cell.BandRow == 0          ? ColourBlack
                      : cell.BandRow == radio1Row ? ColourRadio1
                      : cell.BandRow == radio2Row ? ColourRadio2
                                                  : ColourBlack;
  }
}

void LogForm::ShowCallMatches(const std::string& partial) {
  if (partial.empty()) {
    CallMatchLabel1.Caption.clear();
    CallMatchLabel2.Caption.clear();
    OldCallMatchLabel.Caption.clear();
    return;
  }
  const ContestState& contest = Ctx.Contest;
  if (CallMatchDisplay) {
    CallMatchLabel1.Visible = CallMatchLabel2.Visible = true;
    // In Sweepstakes a call worked on any band is a dupe.
    CallMatchLabel2.ForeColor = contest.ContestIndex == Sweepstakes ? ColourRed : ColourBlack;
  }
  CallMatches matches = MatchLoggedCalls(Ctx.Log, contest.ContestIndex, contest.BandIndex, partial);
  CallMatchLabel1.Caption = matches.ThisList;
  CallMatchLabel2.Caption = matches.OtherList;
  SetFocus(CallBox);
}

bool LogForm::SendDupeMessage() {
  if (!Ctx.Config.DupeSendMsgFlag || !IsCWBand(Ctx.Contest.BandIndex)) return false;
  std::string call = Trim(InData[CallBox].Text);
  if (call.empty()) return false;
  // Insert in the call box comes before the focus step has checked the call.
  if (!DupeCheckDone || call != LastDupeCheckCall) DupeCheck(call);
  if (!IsDupe) return false;
  Keyer.SendMessageRow(12);
  ClearEntry();
  return true;
}

}  // namespace tarnix
