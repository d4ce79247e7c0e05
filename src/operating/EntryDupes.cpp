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

const DupeResult& LogForm::DupeCheck(const std::string& call) {
  ScannedCall = call;
  Modelabel.Visible = false;
  for (int i = 1; i <= 8; ++i) PrevQSO[static_cast<std::size_t>(i)].Visible = false;
  LabelNeededOn.Visible = false;

  const ContestState& contest = Ctx.Contest;
  ScanForDupes(Ctx.Log, Ctx.Portables, contest.ContestIndex, contest.BandIndex, call, Scan);
  if (!Scan.FoundInLog) return Scan;

  ShowPriorQsos();
  CallMatchLabel1.Visible = CallMatchLabel2.Visible = OldCallMatchLabel.Visible = false;
  // Found only through the other form of the call: for information, the QSO
  // may still be logged.
  if (Scan.PortableMatch && !Scan.IsDupe) {
    Tell(PortableNoteText(Scan.Call, Scan.Alt), std::string(PortableNoteTitle), MsgIcon::Information);
    SetFocus(ExchangeBox);
  }
  return Scan;
}

// The last scan while it is of this call and nothing that changes its
// answer (a QSO, a band or radio change) came since; else a new one.
const DupeResult& LogForm::CheckedCall(const std::string& call) {
  return ScannedCall == call ? Scan : DupeCheck(call);
}

void LogForm::ShowDupe() {
  EntryRecord = LoggedRecord(Ctx.Log, Scan.DupeQSO);
  lblDupe.Caption = DupeLineText(Ctx.Contest.ContestIndex, EntryRecord);
  lblDupe.Visible = true;
  lblExchange.Visible = false;
  lblCallsign.Visible = false;
}

// The worked-before grid from the last scan, its cells coloured by the band
// each radio is on.
void LogForm::ShowPriorQsos() {
  WorkedGrid grid = BuildWorkedGrid(Ctx.Contest.ContestIndex, Ctx.Contest.BandIndex, Scan.BandNumbers);
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
  CallMatchLabel1.Visible = CallMatchLabel2.Visible = true;
  // Where a call worked on any band is a dupe, the other bands' list is red.
  CallMatchLabel2.ForeColor = Traits().DupeOnAnyBand ? ColourRed : ColourBlack;
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
  if (!CheckedCall(call).IsDupe) return false;
  Keyer.SendMessageRow(12);
  ClearEntry();
  return true;
}

}  // namespace tarnix
