// The keys of the entry boxes: the remapping of "\", "]" and the up arrow,
// the typed characters, the function keys, the Ctrl and Alt commands (wipe,
// call memory, bands, modes), Space, Enter, apostrophe and Insert, and the
// keyboard CW box of Caps Lock.

#include <algorithm>
#include <cctype>

#include "core/Bands.h"
#include "core/Text.h"
#include "operating/LogForm.h"

namespace tarnix {
namespace {

// The stored message of F1..F7, F11, F12 (1..9); 0 for other keys.
int MessageOfKey(int keyCode) {
  if (keyCode >= KeyF1 && keyCode <= KeyF7) return keyCode - KeyF1 + 1;
  if (keyCode == KeyF11) return 8;
  if (keyCode == KeyF12) return 9;
  return 0;
}

// A key a mapping setting names: "backslash", "rightbracket", "uparrow" or
// "All" for any of the three. Only the up arrow without a modifier counts.
bool MappingMatches(const std::string& mapping, bool backslash, bool bracket, bool upArrow) {
  bool all = mapping == "All";
  return ((all || mapping == "backslash") && backslash) || ((all || mapping == "rightbracket") && bracket) ||
         ((all || mapping == "uparrow") && upArrow);
}

}  // namespace

void LogForm::TypeCharacter(char ch) {
  if (FocusedBox == NoBox) return;
  if (FocusedBox == KeyboardCWFocus) {
    KeyboardCWText_KeyPress(ch);
    return;
  }
  int code = ch == ' ' ? KeySpace : ch == '\'' ? KeyApostrophe : 0;
  if (code != 0 && InData_KeyDown(FocusedBox, code, 0)) return;
  InData_KeyPress(FocusedBox, ch);
}

bool LogForm::PressKey(int keyCode, int shift) {
  if (FocusedBox == KeyboardCWFocus) return KeyboardCWText_KeyDown(keyCode);
  return FocusedBox != NoBox && InData_KeyDown(FocusedBox, keyCode, shift);
}

bool LogForm::InData_KeyDown(int box, int keyCode, int shift) {
  if (!HasLog()) return false;
  ApostropheLogged = false;
  keyCode = MappedKey(keyCode, shift);
  if (MessageOfKey(keyCode) != 0 || (keyCode >= KeyF8 && keyCode <= KeyF10) || keyCode == KeyCapsLock)
    return FunctionKey(box, keyCode, shift);
  if ((shift & (CtrlMask | AltMask)) && CommandKey(keyCode, shift)) return true;
  return PlainKey(box, keyCode, shift);
}

// "\" and "]" reach key-down with a flag set by key-press; the up arrow
// comes as itself. A key the settings map becomes Insert (Key1) or F9 (Key2).
int LogForm::MappedKey(int keyCode, int shift) {
  const Settings& s = Ctx.Config;
  bool upArrow = keyCode == KeyUp && shift == 0;
  if (s.Key1IsMapped && MappingMatches(s.Key1Mapping, BackslashPressed, BracketPressed, upArrow)) {
    BackslashPressed = BracketPressed = false;
    return KeyInsert;
  }
  if (s.Key2IsMapped && MappingMatches(s.Key2Mapping, BackslashPressed, BracketPressed, upArrow)) {
    BackslashPressed = BracketPressed = false;
    return KeyF9;
  }
  return keyCode;
}

bool LogForm::FunctionKey(int box, int keyCode, int shift) {
  const Settings& s = Ctx.Config;
  const KeyingState& keying = Ctx.Keying;
  bool cw = IsCWBand(Ctx.Contest.BandIndex);
  bool dual = shift & ShiftMask;
  if (int message = MessageOfKey(keyCode); message != 0) {
    if (!cw) {
      Keyer.SendMessageKey(message, dual);
    } else if (s.CWActivated && !keying.WinkeyOpening) {
      Keyer.SendMessageKey(message, dual);
      if (message == 5 || message == 6) TUCount = 1;
    }
    return true;
  }
  switch (keyCode) {
    case KeyCapsLock:
      if (cw) OpenKeyboardCW(box);
      return true;
    case KeyF8:
      if (cw) Keyer.SendCW(InData[CallBox].Text);
      return true;
    case KeyF9:
      if (shift & (CtrlMask | AltMask)) {
        if (Ctx.Radio.RadioRunning[1] && Ctx.Radio.RadioRunning[2]) Radios.SwapRadioFrequencies();
        return true;
      }
      SwapActiveRadio(0);
      if (Traits().MultsFollowBand) RedrawMultipliers();
      SetFocus(box);
      return true;
    default:  // F10
      return true;
  }
}

// The Ctrl and Alt commands; false for a combination that has none, which
// then goes on as the plain key.
bool LogForm::CommandKey(int keyCode, int shift) {
  bool alt = shift & AltMask, ctrl = shift & CtrlMask;
  switch (keyCode) {
    case KeyX:
    case KeyZ:
      Wipe();
      return true;
    case KeyW:
      StepWinkeySpeedMode();
      return true;
    case KeyR:
      if (!ctrl) return false;
      Ctx.Keying.ClearRITEnabled = !Ctx.Keying.ClearRITEnabled;
      return true;
    case KeyM:
      if (!alt) return false;
      MemoriseCall();
      return true;
    case KeyLeft:
    case KeyRight:
      if (alt) {
        CallStackPos = 1;
        RecallCall(1);
      } else {
        ChangeMode();
      }
      return true;
    case KeyUp:
    case KeyDown:
      if (!alt) {
        ChangeBand(keyCode == KeyDown ? 1 : -1);
      } else if (keyCode == KeyUp) {
        CallStackPos = CallStackPos < 1 || CallStackPos > 5 ? 1 : CallStackPos == 1 ? 5 : CallStackPos - 1;
        RecallCall(CallStackPos);
      } else {
        CallStackPos = CallStackPos < 1 || CallStackPos >= 5 ? 1 : CallStackPos + 1;
        RecallCall(CallStackPos);
      }
      return true;
    default:
      return false;
  }
}

bool LogForm::PlainKey(int box, int keyCode, int shift) {
  switch (keyCode) {
    case KeyPageUp:
    case KeyPageDown:
      if (IsCWBand(Ctx.Contest.BandIndex) && Ctx.Config.CWActivated && !Keyer.SendingCW) {
        int step = static_cast<int>(Val(Ctx.Config.CWSpeedIncrement));
        SetCWSpeed(keyCode == KeyPageUp ? step : -step);
      }
      return true;
    case KeySpace:
      if (Traits().SpaceToggles) {
        SetFocus(box == CallBox ? ExchangeBox : CallBox);
        return true;
      }
      if (box == CallBox) {
        SetFocus(ExchangeBox);
        return true;
      }
      return false;  // an ordinary blank in a multi-field exchange
    case KeyTab:
      return true;
    case KeyEnter:
      ProcessEntry(box, shift);
      return true;
    case KeyApostrophe:
      if (Ctx.Config.LogandSendF6Enabled) {
        ApostropheLogged = true;
        ProcessEntry(box, shift);
      }
      return true;
    case KeyInsert:
      InsertKey(shift);
      return true;
    default:
      return false;
  }
}

// Insert sends the call with the exchange. On CW a dupe gets the dupe
// message instead when the settings ask for it; an exchange box that is empty
// or begins with the blank the form put there gets the first exchange message,
// one the operator typed (or Shift or Alt held) the second.
void LogForm::InsertKey(int shift) {
  std::string call = Trim(InData[CallBox].Text);
  const std::string& exchange = InData[ExchangeBox].Text;
  if (!IsCWBand(Ctx.Contest.BandIndex)) {
    if (call.ends_with("/P") || call.ends_with("/M")) call.resize(call.size() - 2);
    Keyer.SendCallAndExchange(call, {CheckCall.Value, CheckExchange.Value, CheckGreeting.Value, CheckThanks.Value,
                                     Ctx.Config.DVKCallExchMode});
  } else {
    if (SendDupeMessage()) return;
    bool first = exchange.empty() || (exchange[0] == ' ' && !(shift & (ShiftMask | AltMask)));
    Keyer.CallSendArmed = true;
    Keyer.SendMessageRow(first ? 10 : 11);
  }
  SetFocus(InData[CallBox].Text.empty() && exchange.empty() ? CallBox : ExchangeBox);
}

void LogForm::InData_KeyPress(int box, char keyAscii) {
  if (!HasLog()) return;
  char ch = static_cast<char>(std::toupper(static_cast<unsigned char>(keyAscii)));
  BackslashPressed = BracketPressed = false;
  if (ch == ']' || ch == '\\') {
    (ch == ']' ? BracketPressed : BackslashPressed) = true;
    InData_KeyDown(box, KeyRight, 0);
    BackslashPressed = BracketPressed = false;  // an unmapped key leaves no flag for the next key
    return;
  }
  if (ch == '"' || ch == '\'') return;
  if (ch == '+' || ch == '-' || ch == '!') {
    SpeedOrVoiceModeKey(ch);
    return;
  }
  if (ch == ' ' && box == CallBox && !Traits().BlankInCall) return;
  TextBox& b = InData[static_cast<std::size_t>(box)];
  int start = std::min(b.SelStart, static_cast<int>(b.Text.size()));
  int length = std::min(b.SelLength, static_cast<int>(b.Text.size()) - start);
  b.Text.replace(static_cast<std::size_t>(start), static_cast<std::size_t>(length), 1, ch);
  b.SelStart = start + 1;
  b.SelLength = 0;
  if (box == CallBox && (std::isalnum(static_cast<unsigned char>(ch)) || ch == '/')) ShowCallMatches(b.Text);
  if (box == ExchangeBox) ShowNeededOn();
}

// "+" and "-" ("!" counts as "-") step the voice keyer's call-and-exchange
// mode on phone and the CW speed on CW, unless a message is going out.
void LogForm::SpeedOrVoiceModeKey(char ch) {
  if (!IsCWBand(Ctx.Contest.BandIndex)) {
    StepDVKCallExchMode();
    return;
  }
  if (Keyer.SendingCW) return;
  int step = static_cast<int>(Val(Ctx.Config.CWSpeedIncrement));
  SetCWSpeed(ch == '+' ? step : -step);
}

// Fast (0), Normal (1), Mixed (2): each steps to the next one the settings
// allow, and stays when none is.
void LogForm::StepDVKCallExchMode() {
  const Settings& s = Ctx.Config;
  int16_t& mode = Ctx.Config.DVKCallExchMode;
  switch (mode) {
    case 0:
      if (s.DVKMixedModeEnabled) mode = 2;
      else if (s.DVKNormalModeEnabled) mode = 1;
      break;
    case 1:
      if (s.DVKFastModeEnabled) mode = 0;
      else if (s.DVKMixedModeEnabled) mode = 2;
      break;
    case 2:
      if (s.DVKNormalModeEnabled) mode = 1;
      else if (s.DVKFastModeEnabled) mode = 0;
      break;
    default:
      break;
  }
  DVKSpeedLabel.Caption = DvkCallExchModeName(mode);
}

// The speed moves by delta within the keyer's range: the built-in keyer's,
// or the Winkeyer's pot range while it is open.
void LogForm::SetCWSpeed(int delta) {
  KeyingState& keying = Ctx.Keying;
  int lower = keying.WinkeyOpen ? Ctx.Config.WinkeyPotSpeedMin : CWSpeedLowest;
  int upper = keying.WinkeyOpen ? Ctx.Config.WinkeyPotSpeedMax : CWSpeedHighest;
  keying.CWSpeed = LimitedCWSpeed(keying.CWSpeed, delta, lower, upper);
  lblSpeedCW.Caption = std::to_string(keying.CWSpeed);
}

void LogForm::StepWinkeySpeedMode() {
  KeyingState& keying = Ctx.Keying;
  if (!keying.WinkeyOpen) return;
  keying.WinkeySpeedMode = static_cast<int16_t>(keying.WinkeySpeedMode % 3 + 1);
  lblCWWK.Visible = lblSpeedWK.Visible = true;
  ColourSpeedLabels();
  Keyer.SetWinkeySpeedSource(keying.WinkeySpeedMode);
}

// Both boxes emptied and the entry's labels reset, as after a QSO; the
// multiplier window of the contests that follow the call's country is drawn
// clear.
void LogForm::Wipe() {
  ClearEntry();
  Stations follow = Traits().MultsFollowCountry;
  if (follow == Stations::All || (follow == Stations::UsVe && Ctx.Contest.IsUSVEStation)) RedrawMultipliers();
}

// Alt-M: the call goes on top of the call stack, the oldest row drops off,
// and the entry is wiped for the next station.
void LogForm::MemoriseCall() {
  std::string call = Trim(InData[CallBox].Text);
  if (call.empty()) return;
  std::move_backward(CallStack.begin() + 1, CallStack.end() - 1, CallStack.end());
  CallStack[1] = call.substr(0, 10);
  Wipe();
}

// A recalled call is put in the call box less its last character, which is
// then typed, so that the match lists follow it as if it were typed.
void LogForm::RecallCall(int row) {
  std::string call = CallStack[static_cast<std::size_t>(row)];
  SetFocus(CallBox);
  TextBox& b = InData[CallBox];
  b.Text = call.empty() ? call : call.substr(0, call.size() - 1);
  b.SelStart = static_cast<int>(b.Text.size());
  b.SelLength = 0;
  if (call.empty()) ShowCallMatches("");
  else InData_KeyPress(CallBox, call.back());
}

// Caps Lock on CW: a box of its own for sending by hand, in place of the
// title line; the radio label turns dark red while it is open.
void LogForm::OpenKeyboardCW(int box) {
  KeyboardCWBox = box;
  KeyboardCWCaret = InData[static_cast<std::size_t>(box)].SelStart;
  FileIDLabel.Visible = false;
  KeyboardCWLabel.Visible = true;
  KeyboardCWText.Text.clear();
  KeyboardCWText.SelStart = KeyboardCWText.SelLength = 0;
  KeyboardCWText.Visible = true;
  ActiveRadioLabel.ForeColor = ColourDarkRed;
  SetFocus(KeyboardCWFocus);
}

bool LogForm::KeyboardCWText_KeyDown(int keyCode) {
  if (keyCode != KeyCapsLock) return false;
  FileIDLabel.Visible = true;
  KeyboardCWLabel.Visible = false;
  KeyboardCWText.Visible = false;
  ActiveRadioLabel.ForeColor = ColourBlue;
  SetFocus(KeyboardCWBox);
  TextBox& b = InData[static_cast<std::size_t>(KeyboardCWBox)];
  b.SelStart = std::min(KeyboardCWCaret, static_cast<int>(b.Text.size()));
  b.SelLength = 0;
  return true;
}

void LogForm::KeyboardCWText_KeyPress(char keyAscii) {
  char ch = static_cast<char>(std::toupper(static_cast<unsigned char>(keyAscii)));
  if (ch == '+' || ch == '-') {
    SetCWSpeed(ch == '+' ? 2 : -2);
    return;
  }
  KeyboardCWText.Text += ch;
  KeyboardCWText.SelStart = static_cast<int>(KeyboardCWText.Text.size());
  Keyer.SendCW(std::string(1, ch));
}

}  // namespace tarnix
