// Words typed into the call box that are commands, read as Enter is
// pressed: R or RPT (repeat the last QSO), a frequency, TM1 to TM4, TMSHOW,
// INTn, STO, RCL, PWR and TUn. Any other text is a call.

#include <cctype>

#include "core/Bands.h"
#include "core/Text.h"
#include "operating/LogForm.h"
#include "radio/BandMap.h"

namespace tarnix {
namespace {

enum TextCommand : int {
  NoCommand = 0, RepeatCommand = 1, FrequencyCommand = 4, TimingCommand = 5, ShowTimingCommand = 6,
  IntervalCommand = 7, StoreCommand = 8, RecallCommand = 9, PowerCommand = 10, TUCommand = 11
};

// A plain decimal number: digits with at most one point.
bool IsNumber(const std::string& text) {
  if (text.empty() || text.find_first_not_of("0123456789.") != std::string::npos) return false;
  return text.find('.') == text.rfind('.') && text != ".";
}

// The repeat interval of "INTn" in ms: n of 1..8 in seconds, 10..80 in
// tenths, 100..800 in hundredths; 0 when n gives none of 1000..8000.
int RepeatIntervalOf(const std::string& digits) {
  int n = static_cast<int>(RoundEven(Val(digits)));
  int ms = n >= 1 && n <= 8 ? n * 1000 : n >= 10 && n <= 80 ? n * 100 : n >= 100 && n <= 800 ? n * 10 : 0;
  return ms >= 1000 && ms <= 8000 ? ms : 0;
}

const char* TimingMethodOf(char digit) {
  switch (digit) {
    case '1': return "Math";
    case '2': return "VBTimer";
    case '3': return "Winmm";
    default: return "QueryPerf";
  }
}

}  // namespace

int LogForm::ParseTextCommand() {
  std::string text = UCase(Trim(InData[CallBox].Text));
  if (text == "R" || text == "RPT") return RepeatCommand;
  if (IsNumber(text)) {
    double kHz = Val(text);
    if (kHz >= 1800 && kHz < 148000 && BandFromFrequency(kHz, Ctx.Contest.ModeEnabled) != 0)
      return FrequencyCommand;
  }
  if (text == "TM1" || text == "TM2" || text == "TM3" || text == "TM4") return TimingCommand;
  if (text == "TMSHOW") return ShowTimingCommand;
  if (text.starts_with("INT") && RepeatIntervalOf(text.substr(3)) != 0) return IntervalCommand;
  if (text == "STO") return StoreCommand;
  if (text == "RCL") return RecallCommand;
  if (text == "PWR") return PowerCommand;
  if (text.size() == 3 && text.starts_with("TU") && std::isdigit(static_cast<unsigned char>(text[2])))
    return TUCommand;
  return NoCommand;
}

void LogForm::RunTextCommand(int command) {
  std::string text = UCase(Trim(InData[CallBox].Text));
  RadioState& radio = Ctx.Radio;
  int active = radio.ActiveRadio;
  bool running = (active == 1 || active == 2) && radio.RadioRunning[static_cast<std::size_t>(active)];
  Settings& s = Ctx.Config;
  switch (command) {
    case RepeatCommand:
      RepeatLastQso();
      return;
    case FrequencyCommand:
      if (running) Radios.SetRadioFrequency(active, true, static_cast<float>(Val(text)));
      break;
    case TimingCommand:
      s.TimingMethod = TimingMethodOf(text[2]);
      break;
    case ShowTimingCommand:
      Ctx.Keying.ShowTiming = !Ctx.Keying.ShowTiming;
      break;
    case IntervalCommand:
      (Ctx.Contest.BandIndex < 9 ? s.RepeatIntervalCW : s.RepeatIntervalSSB) =
          static_cast<int16_t>(RepeatIntervalOf(text.substr(3)));
      break;
    case StoreCommand:
      StoreRadio();
      return;
    case RecallCommand:
      RecallRadio();
      return;
    case PowerCommand:
      if (running) Radios.SendPowerCommand(active, "110");
      break;
    case TUCommand:
      TUInterval = static_cast<int16_t>(text[2] == '0' ? 1 : text[2] - '0');
      break;
    default:
      return;
  }
  ClearTextCommand();
}

void LogForm::ClearTextCommand() {
  NeedPfxLabel.Caption.clear();
  ClearPartialWindow();
  InData[CallBox].Text.clear();
  InData[CallBox].SelStart = InData[CallBox].SelLength = 0;
  SetFocus(CallBox);
}

// The last QSO back in the boxes, to be logged again as a new QSO with what
// the operator corrects, in the contests that have the repeat command.
void LogForm::RepeatLastQso() {
  const QsoRecord& last = LoggedRecord(Ctx.Log, Ctx.Log.QSOCount - 1);
  std::string exchange = RepeatedExchange(Ctx.Contest, Ctx.Tables, last);
  if (Traits().ZoneFromCall) NeedPfxLabel.Caption.clear();
  InData[CallBox].Text = last.QCall.Trimmed();
  InData[CallBox].SelStart = static_cast<int>(InData[CallBox].Text.size());
  InData[CallBox].SelLength = 0;
  InData[ExchangeBox].Text = exchange;
  InData[ExchangeBox].SelStart = static_cast<int>(exchange.size());
  InData[ExchangeBox].SelLength = 0;
  SetFocus(ExchangeBox);
}

// STO: the active radio's frequency on this band and its mode are kept for
// RCL. The call box is cleared whether a radio is on or not.
void LogForm::StoreRadio() {
  const RadioState& radio = Ctx.Radio;
  int active = radio.ActiveRadio;
  if ((active == 1 || active == 2) && radio.RadioRunning[static_cast<std::size_t>(active)]) {
    StoRadio = static_cast<int16_t>(active);
    StoBand = Ctx.Contest.BandIndex;
    StoFreq = radio.LastFreqByBand[static_cast<std::size_t>(active)][static_cast<std::size_t>(StoBand)];
    Radios.ReadRadioMode(active);
  }
  NeedPfxLabel.Caption.clear();
  InData[CallBox].Text.clear();
  InData[CallBox].SelStart = InData[CallBox].SelLength = 0;
  SetFocus(CallBox);
}

// RCL: back to the stored radio, and to its stored frequency and mode.
void LogForm::RecallRadio() {
  if (StoRadio != 0) {
    SwapActiveRadio(StoRadio);
    if (Traits().MultsFollowBand) RedrawMultipliers();
    if (Ctx.Radio.RadioRunning[static_cast<std::size_t>(StoRadio)]) {
      Radios.SetRadioFrequency(StoRadio, false, StoFreq);
      Radios.SetRadioMode(StoRadio, StoBand);
    }
  }
  ClearTextCommand();
}

}  // namespace tarnix
