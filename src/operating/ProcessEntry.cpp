// The Enter key: from the two entry boxes to a logged QSO.

#include <cstdio>
#include <stdexcept>

#include "core/Bands.h"
#include "core/QDate.h"
#include "core/Text.h"
#include "operating/LogForm.h"

namespace tarnix {
namespace {

// Frequency text of a record: shortest decimal form, at most ten characters.
std::string FrequencyText(float kHz) {
  char text[32];
  std::snprintf(text, sizeof text, "%g", static_cast<double>(kHz));
  return std::string(text).substr(0, 10);
}

// The fields of a QSO that follow the call on the "Last: " line.
std::string ContestFieldsText(int contest, const QsoRecord& r) {
  if (TraitsOf(contest).NotesExchange) return Trim(r.QRcvText.Str() + r.QMult.Str());
  std::string text;
  auto add = [&text](const std::string& field) {
    if (field.empty()) return;
    if (!text.empty()) text += "  ";
    text += field;
  };
  if (r.QRcvNumber != 0) add(std::to_string(r.QRcvNumber));
  add(r.QRcvText.Trimmed());
  add(r.QMult.Trimmed());
  return text;
}

}  // namespace

void LogForm::ProcessEntry(int box, int shift) {
  LogStore& log = Ctx.Log;

  if (int command = ParseTextCommand(); command != 0) {
    bool repeatApplies = log.QSOCount > 1 && Traits().RepeatCommand;
    if (command != 1 || repeatApplies) {
      RunTextCommand(command);
      return;
    }
  }

  if (Trim(InData[CallBox].Text).empty()) {
    if (Ctx.Config.SendF1Enabled && !(shift & ShiftMask)) Keyer.SendMessageKey(1, false);
    SetFocus(CallBox);
    return;
  }

  if (InData[CallBox].Text.size() > 10) {
    std::string first10 = InData[CallBox].Text.substr(0, 10);
    if (Ask("Only 10 characters allowed for Callsign.  Truncate entry to " + first10 + "?", "Entry Too Long",
            MsgButtons::YesNo, MsgAnswer::Yes) != MsgAnswer::Yes) {
      SetFocus(CallBox);
      return;
    }
    InData[CallBox].Text = first10;
  }

  if (box == CallBox && DupeCheck(Trim(InData[CallBox].Text)).IsDupe) ShowDupe();

  std::optional<std::string> call = RunExchangeParser(Trim(InData[CallBox].Text));
  if (!call) return;
  const bool dupe = Scan.IsDupe;

  InData[CallBox].ForeColor = ColourBlack;
  // The WPX prefix of the call, for the contests that score by it.
  std::string prefix = Traits().TakesWpxPrefix ? GetWPXPrefix(RemoveChars(*call, ".?")) : std::string();

  try {
    TakeTime();
    TakeCall(*call);
    TakeReceivedFields(Ctx.Contest.ContestIndex, Ctx.Contest.IsUSVEStation, Received, InData[ExchangeBox].Text,
                       EntryRecord);
    if (dupe) EntryRecord.QPoints.Set("0");
    EntryRecord.QNumber = log.QSOCount;
    MultOutcome outcome = ScoreEntry(dupe, prefix);
    TakeRadioAndFrequency();
    StoreEntry();

    CountPoints(EntryRecord, outcome);
    CountTime(log.QSOCount);
    RedrawMultipliers();
    if (!WriteEntry(outcome)) return;
  } catch (const std::out_of_range& error) {
    // The bound of the log's tables is the limit of the log: the QSO is
    // refused with the error's own text.
    Tell(error.what(), "TARNIX", MsgIcon::Critical);
    return;
  }

  ClearEntry();

  if (Traits().RefillsCountyLine && Received.CountyLine) {
    const QsoRecord& last = log.LogRecords.At(log.QSOCount - 1);
    InData[CallBox].Text = last.QCall.Trimmed();
    InData[ExchangeBox].Text = std::to_string(last.QRcvNumber);
    InData[ExchangeBox].SelStart = static_cast<int>(InData[ExchangeBox].Text.size());
    InData[ExchangeBox].SelLength = 0;
    SetFocus(ExchangeBox);
    return;
  }
  SendFollowUp(shift);
}

// The age test of a contest whose exchange is an age, and which has no
// parser: an empty box or a value outside 0..99 is refused. Text that is no
// number is 0 and passes.
bool LogForm::CheckAge() {
  TextBox& exchange = InData[ExchangeBox];
  double age = Val(exchange.Text);
  if (!Trim(exchange.Text).empty() && age >= 0 && age <= 99) return true;
  Tell("Enter two-digit age between 00 and 99.", "Must Enter Received Age", MsgIcon::Critical);
  exchange.SelStart = 0;
  exchange.SelLength = static_cast<int>(exchange.Text.size());
  SetFocus(ExchangeBox);
  return false;
}

void LogForm::TakeTime() {
  LocalDateTime now = Desk.Time.Now();
  int hour = now.Hour;
  int dayOffset = 0;
  if (Ctx.Config.IsGMTFlag != "True") {
    hour += static_cast<int>(RoundEven(Val(Ctx.Config.TimeCorrection)));
    if (hour > 23) {
      hour -= 24;
      dayOffset = 1;
    } else if (hour < 0) {
      hour += 24;
      dayOffset = -1;
    }
  }
  EntryRecord.QTime = static_cast<int16_t>(hour * 100 + now.Minute);
  EntryRecord.QDate = GetGMTDate({now.Year, now.Month, now.Day}, dayOffset);
  EntryRecord.QBand = Ctx.Contest.BandIndex;
}

void LogForm::TakeCall(const std::string& call) {
  EntryRecord.QCall.Set(UCase(RemoveChars(call, ".?")));
  std::string c = EntryRecord.QCall.Trimmed();
  IndexCall(Ctx.Log.QSOCount, c, Ctx.Contest.BandIndex);
  ListCall(c);
}

// The call of QSO n in the dupe scan's arrays and the sorted call index.
void LogForm::IndexCall(int n, const std::string& call, int band) {
  LogStore& log = Ctx.Log;
  log.CallSum.At(n - 1) = CharSum(call);
  log.CallText.At(n - 1) = call;
  IndexFindCall(log, call + static_cast<char>('0' + band / 10 % 10) + static_cast<char>('0' + band % 10), false);
}

// A call with "/" joins the portable table of the dupe check.
void LogForm::ListCall(const std::string& call) {
  if (call.find('/') != std::string::npos) AddPortableCall(Ctx.Portables, call);
}

// Points and a new multiplier of a counted QSO go to the totals and to the
// counters of its band.
void LogForm::CountPoints(const QsoRecord& qso, const MultOutcome& outcome) {
  ScoringState s = Scoring();
  TallyPoints(s, qso, outcome);
}

void LogForm::ReplayLog(int count) {
  LogStore& log = Ctx.Log;
  log.QSOCount = static_cast<int16_t>(count);
  for (int n = 1; n < count; ++n) {
    QsoRecord& qso = LoggedRecord(log, n);
    if (qso.QBand < 1 || qso.QBand > BandIndexCount) qso.QBand = 16;
    std::string call = qso.QCall.Trimmed();
    IndexCall(n, call, qso.QBand);
    // A voided QSO keeps its number and its place in the call arrays, but
    // counts for nothing.
    if (UCase(call) != "VOID") {
      ++log.BandQSOs.at(static_cast<std::size_t>(qso.QBand));
      ListCall(call);
      ScoringState s = Scoring();
      CountPoints(qso, ReplayQso(s, qso));
    }
    CountTime(n);
  }
}

void LogForm::TakeRadioAndFrequency() {
  const RadioState& radio = Ctx.Radio;
  int active = radio.ActiveRadio;
  EntryRecord.QRadio.Set(active == 1 ? "1" : active == 2 ? "2" : "0");
  float kHz = 0;
  if ((active == 1 || active == 2) && radio.RadioRunning[static_cast<std::size_t>(active)]) {
    float f = radio.LastFreqByBand[static_cast<std::size_t>(active)][static_cast<std::size_t>(Ctx.Contest.BandIndex)];
    if (f >= 1800 && f <= 29700) kHz = f;
  }
  EntryRecord.QFreq.Set(FrequencyText(kHz));
}

void LogForm::StoreEntry() {
  LogStore& log = Ctx.Log;
  if (Traits().NotesExchange) {
    std::string notes = UCase(Trim(InData[ExchangeBox].Text));
    EntryRecord.QRcvText.Set(notes.substr(0, 10));
    EntryRecord.QMult.Set(notes.size() > 10 ? notes.substr(10, 5) : "");
  }
  log.LogRecords.At(log.QSOCount) = EntryRecord;
  ++log.BandQSOs[static_cast<std::size_t>(Ctx.Contest.BandIndex)];
  ShowLast();
}

void LogForm::ShowLast() {
  const QsoRecord& r = EntryRecord;
  LastLine = "Last: " + QDateText(r.QDate) + "  " + QTimeText(r.QTime) + "  " +
             (IsCWBand(r.QBand) ? "CW " : "SSB") + "  " + r.QCall.Trimmed();
  std::string fields = ContestFieldsText(Ctx.Contest.ContestIndex, r);
  if (!fields.empty()) LastLine += "  " + fields;
  LastQSOLabel.Caption = LastLine;
  LastQSOLabel.Visible = true;
}

// Minute stamp, contest day and the running operating-time counters.
void LogForm::CountTime(int n) {
  LogStore& log = Ctx.Log;
  StampQsoMinute(log, n);
  if (n == 1) {
    log.RunOnBand = 0;
    return;
  }
  SplitQSOTime(n);
  int gap = log.QsoMinute.At(n) - log.QsoMinute.At(n - 1);
  bool sameBand = log.LogRecords.At(n).QBand == log.LogRecords.At(n - 1).QBand;
  if (!sameBand) log.RunOnBand = 0;
  if (gap > 0 && gap <= Ctx.Contest.OffTimeLimit) {
    log.OperatingMinutes += static_cast<float>(gap);
    if (sameBand) log.RunOnBand = static_cast<int16_t>(log.RunOnBand + gap);
  }
}

// Writes the record to the log file. On a file error the operator chooses:
// retry writes again, ignore goes on without it, abort leaves the entry. The
// QSO stays in memory in every case; QSOCount moves on only once the record
// is on disk. Returns false on abort.
bool LogForm::WriteEntry(const MultOutcome& outcome) {
  LogStore& log = Ctx.Log;
  bool written = false;
  for (;;) {
    log.LogRecords.At(log.QSOCount) = EntryRecord;
    FileError error = Document.WriteRecord(log.QSOCount);
    if (!error) {
      written = true;
      break;
    }
    MsgAnswer answer = Document.FileErrorRoutine(*error + "\n\nThe QSO is kept in memory but is not yet in the log file.");
    if (answer == MsgAnswer::Retry) continue;
    if (answer == MsgAnswer::Ignore) break;
    return false;
  }
  if (written) ++log.QSOCount;
  UpdateStats();
  ShowNewMult(outcome);
  UpdateLogDisplay();
  return true;
}

void LogForm::SendFollowUp(int shift) {
  if ((shift & ShiftMask) || (shift & CtrlMask) || !Keyer.LastMsgCallCorrect) return;
  if (ApostropheLogged) {
    if (Ctx.Config.LogandSendF6Enabled) Keyer.SendMessageKey(6, false);
    return;
  }
  if (!Ctx.Config.LogandSendF5Enabled) return;
  if (TUInterval < 1 || TUInterval > 9 || TUCount < 1 || TUCount > 9) TUInterval = TUCount = 1;
  if (TUCount < TUInterval) {
    Keyer.SendMessageKey(6, false);
    ++TUCount;
  } else {
    Keyer.SendMessageKey(5, false);
    TUCount = 1;
  }
}

void LogForm::ClearEntry() {
  for (Label* label : {&Modelabel, &LabelNeededOn, &NeedPfxLabel, &LblWpxCountry, &CallMatchLabel1,
                       &CallMatchLabel2, &OldCallMatchLabel, &lblDupe})
    label->Visible = false;
  for (int i = 1; i <= 8; ++i) PrevQSO[static_cast<std::size_t>(i)].Visible = false;
  lblExchange.Visible = true;
  lblCallsign.Visible = true;
  for (TextBox& box : InData) {
    box.Text.clear();
    box.SelStart = box.SelLength = 0;
  }
  InData[CallBox].ForeColor = ColourBlack;
  ScannedCall.reset();
  SetFocus(CallBox);
  RedrawQSONrLabel();
  RedrawScore();
  ClearPartialWindow();
}

void LogForm::RedrawQSONrLabel() {
  int band = Ctx.Contest.BandIndex;
  if (band < 1 || band > BandIndexCount) return;
  QSONrLabel.Caption = "QSO Nr " + NumberText(Ctx.Log.QSOCount) + "    (" + BandName(BandRow(band)) +
                       (IsCWBand(band) ? " CW)" : " SSB)");
}

void LogForm::RedrawScore() {
  LogStore& log = Ctx.Log;
  log.ClaimedScore = ClaimedScoreOf(Ctx.Contest.ContestIndex, log.TotalQSOPoints, log.TotalMults);
  ScoreCaptions captions = ScoreCaptionsOf(Scoring());
  ScoreLabel.Caption = captions.Score;
  MultsLabel.Caption = captions.Mults;
}

void LogForm::SetFocus(int box) { MoveFocus(box, true); }

void LogForm::MoveFocus(int box, bool focusSteps) {
  if (box == FocusedBox) return;
  int old = FocusedBox;
  FocusedBox = box;
  if (old != NoBox) InData_LostFocus(old);
  if (box != NoBox && focusSteps) InData_GotFocus(box);
}

// Entering the exchange box shows the dupe before logging, and pre-fills the
// exchange when the rules know it.
void LogForm::InData_GotFocus(int box) {
  if (box != ExchangeBox) return;
  if (Traits().RefillsCountyLine && Received.CountyLine) return;
  if (CheckedCall(Trim(InData[CallBox].Text)).IsDupe) {
    InData[CallBox].ForeColor = ColourRed;
    ShowDupe();
  }
  if (!Traits().ZoneFromCall && InData[ExchangeBox].Text.empty()) PrefillExchange();
  if (Scan.FoundInLog) ShowPriorQsos();
  else LookUpInstaMatch();
}

void LogForm::InData_LostFocus(int box) {
  if (box != CallBox) return;
  // CQWW: the zone of the call's country goes into an empty exchange box,
  // behind a blank, for the operator to overtype only when it differs.
  if (Traits().ZoneFromCall && InData[ExchangeBox].Text.empty()) PrefillExchange();
  if (HasLog()) ShowWorkedOrNeeded();
  CallMatchLabel1.Visible = CallMatchLabel2.Visible = OldCallMatchLabel.Visible = false;
}

// Backspace, Delete and pastes come here from the view.
void LogForm::InData_Change(int box, const std::string& text, int selStart) {
  TextBox& b = InData[static_cast<std::size_t>(box)];
  b.Text = text;
  b.SelStart = selStart;
  b.SelLength = 0;
  if (box == CallBox && HasLog()) ShowCallMatches(b.Text);
  if (box == ExchangeBox && HasLog()) ShowNeededOn();
}

void LogForm::AddButton_Click() { ProcessEntry(FocusedBox == ExchangeBox ? ExchangeBox : CallBox, 0); }

void LogForm::CancelButton_Click() { ClearEntry(); }

}  // namespace tarnix
