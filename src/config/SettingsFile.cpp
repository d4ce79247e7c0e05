#include "config/SettingsFile.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <limits>
#include <span>
#include <sstream>

#include "core/Text.h"

namespace tarnix {
namespace {

constexpr std::string_view Eol = "\r\n";
constexpr std::string_view MacroPrefix = "[RADIO0][PLAY1]";
constexpr std::string_view CWMacroHeader = "[CW Macros - ";
constexpr std::string_view DisplayHeader = "[CW Macros Display Forms - ";
constexpr std::string_view WindowHeader = "[Window Information - ";
constexpr std::string_view ProfileHeader = "[User Profile ";

// The words of the settings held as numbers, by value.
using Words = std::span<const std::string_view>;
constexpr std::string_view DtrWords[] = {"None", "CW", "PTT", "F9", "DVKMicSwitch"};
constexpr std::string_view DvkModeWords[] = {"AlwaysFast", "AlwaysNormal", "MixedMode"};
constexpr std::string_view TimingMethods[] = {"QueryPerf", "Math", "Winmm", "VBTimer"};

std::string TwoDigits(int n) { return (n < 10 ? "0" : "") + std::to_string(n); }

std::string SingleText(float value) {
  // Fixed notation, so that the reader's numeric prefix takes the whole
  // number back (an exponent would be cut off).
  char buffer[64];
  auto [end, ec] = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed);
  return ec == std::errc() ? std::string(buffer, end) : std::string("0");
}

// The Integer kind: numeric prefix of the text, rounded half to even, which
// must fit 16 bits.
bool ReadInt16(std::string_view text, int16_t& out) {
  double value = Val(text);
  if (std::fabs(value) > 1e6) return false;
  long rounded = RoundEven(value);
  if (rounded < std::numeric_limits<int16_t>::min() || rounded > std::numeric_limits<int16_t>::max()) return false;
  out = static_cast<int16_t>(rounded);
  return true;
}

std::string OutOfRange(std::string_view what, std::string_view text) {
  return std::string(what) + "=" + std::string(text) + " is outside the 16-bit range -32768 to 32767";
}

// Keyed sections are listed once, as calls on a visitor: the writer emits a
// line per call, the reader stores the value of the one call whose key is the
// line's key. So the two cannot drift apart.
class KeyWriter {
 public:
  explicit KeyWriter(std::string& out) : Out(out) {}
  void Line(std::string_view key, std::string_view value) {
    Out.append(key).append("=").append(value).append(Eol);
  }
  // spacedFalse: the activation and line flags of [Radio Information] write
  // their False form as "key = False".
  void Bool(std::string_view key, bool value, bool spacedFalse = false) {
    if (!value && spacedFalse)
      Out.append(key).append(" = False").append(Eol);
    else
      Line(key, value ? "True" : "False");
  }
  void Int(std::string_view key, int16_t value) { Line(key, std::to_string(value)); }
  void Single(std::string_view key, float value) { Line(key, SingleText(value)); }
  void Text(std::string_view key, const std::string& value) { Line(key, value); }
  void Fixed(std::string_view key, const std::string& value, std::size_t width) {
    Line(key, Trim(std::string_view(value).substr(0, width)));
  }
  void Char(std::string_view key, char value) { Line(key, Trim(std::string(1, value))); }
  void Word(std::string_view key, int16_t value, Words words, int16_t fallback) {
    bool known = value >= 0 && value < static_cast<int16_t>(words.size());
    Line(key, words[static_cast<std::size_t>(known ? value : std::max<int16_t>(fallback, 0))]);
  }
  void GmtFlag(std::string_view key, const std::string& value) { Line(key, value == "True" ? "True" : "False"); }
  void FolderPath(std::string_view key, const std::string& value) { Line(key, value); }
  void Blank() { Out.append(Eol); }

 private:
  std::string& Out;
};

class KeyReader {
 public:
  KeyReader(const std::string& key, const std::string& value, const std::string& appPath)
      : Key(key), Value(value), AppPath(appPath) {}

  void Bool(std::string_view key, bool& value, bool = false) {
    if (Hit(key)) value = Value == "True";
  }
  void Int(std::string_view key, int16_t& value) {
    if (Hit(key) && !ReadInt16(Value, value)) Error = OutOfRange(key, Value);
  }
  void Single(std::string_view key, float& value) {
    if (!Hit(key)) return;
    double number = Val(Value);
    if (std::fabs(number) > std::numeric_limits<float>::max())
      Error = std::string(key) + "=" + Value + " is too large for a single-precision number";
    else
      value = static_cast<float>(number);
  }
  void Text(std::string_view key, std::string& value) {
    if (Hit(key)) value = Value;
  }
  void Fixed(std::string_view key, std::string& value, std::size_t width) {
    if (Hit(key)) value = Value.substr(0, width);
  }
  void Char(std::string_view key, char& value) {
    if (Hit(key)) value = Value.empty() ? ' ' : Value[0];
  }
  // A word outside the list leaves the value (fallback < 0) or sets fallback.
  void Word(std::string_view key, int16_t& value, Words words, int16_t fallback) {
    if (!Hit(key)) return;
    auto it = std::find(words.begin(), words.end(), Value);
    if (it != words.end())
      value = static_cast<int16_t>(it - words.begin());
    else if (fallback >= 0)
      value = fallback;
  }
  void GmtFlag(std::string_view key, std::string& value) { Text(key, value); }
  void FolderPath(std::string_view key, std::string& value) {
    if (!Hit(key)) return;
    value = Value.empty() ? AppPath : Value;
  }
  void Blank() {}

  bool Matched = false;
  std::string Error;

 private:
  bool Hit(std::string_view key) {
    if (Matched || key != Key) return false;
    Matched = true;
    return true;
  }
  const std::string& Key;
  const std::string& Value;
  const std::string& AppPath;
};

// S is Settings or const Settings, V a KeyReader or KeyWriter.
template <class V, class S>
void PreferencesKeys(V& v, S& s) {
  v.Text("YourCall", s.YourCall);
  v.Single("StationLatitude", s.StationLatitude);
  v.Single("StationLongitude", s.StationLongitude);
  v.Text("BackUpDrive", s.BackUpDrive);
  v.Bool("CWActivated", s.CWActivated);
  v.Bool("CWPTTActivated", s.CWPTTActivated);
  v.Bool("SSBPTTActivated", s.SSBPTTActivated);
  v.Bool("PTTByRigControl", s.PTTByRigControl);
  v.Bool("CWPTTByWinkey", s.CWPTTByWinkey);
  v.Bool("F9Activated", s.F9Activated);
  v.Bool("TypingEnabled", s.TypingEnabled);
  v.Bool("DupeSendMsgFlag", s.DupeSendMsgFlag);
  v.Text("CWComport", s.CWComport);
  v.Text("PTTComPort", s.PTTComPort);
  v.Text("DVKMicSwitchComPort", s.DVKMicSwitchComPort);
  v.Text("F9Comport", s.F9Comport);
  v.Bool("DVKMicSwitchActivated", s.DVKMicSwitchActivated);
  v.Bool("CWSpeakerEnabled", s.CWSpeakerEnabled);
  v.Word("UseDTRtoKey(1)", s.UseDTRtoKey[1], DtrWords, -1);
  v.Word("UseDTRtoKey(2)", s.UseDTRtoKey[2], DtrWords, -1);
  v.Bool("UsePCSpeaker", s.UsePCSpeaker);
  v.Bool("UseSoundcardSpeaker", s.UseSoundcardSpeaker);
  v.Bool("CWCallCorrectEnabled", s.CWCallCorrectEnabled);
  v.Bool("CWCorrectWholeCall", s.CWCorrectWholeCall);
  v.Int("Radio1Delay", s.Radio1Delay);
  v.Int("Radio2Delay", s.Radio2Delay);
  v.Int("RepeatIntervalCW", s.RepeatIntervalCW);
  v.Int("RepeatIntervalSSB", s.RepeatIntervalSSB);
  v.Int("DualCQsRepeatInterval", s.DualCQsRepeatInterval);
  v.Int("DualCQsPlayNumber", s.DualCQsPlayNumber);
  v.Text("CWSpeedIncrement", s.CWSpeedIncrement);
  v.Single("Weight", s.Weight);
  v.Text("TimingMethod", s.TimingMethod);
  v.Text("TimeCorrection", s.TimeCorrection);
  v.GmtFlag("IsGMTFlag", s.IsGMTFlag);
  v.Bool("SendF1Enabled", s.SendF1Enabled);
  v.Bool("LogandSendF5Enabled", s.LogandSendF5Enabled);
  v.Bool("LogandSendF6Enabled", s.LogandSendF6Enabled);
  v.Bool("Key1IsMapped", s.Key1IsMapped);
  v.Bool("Key2IsMapped", s.Key2IsMapped);
  v.Text("Key1Mapping", s.Key1Mapping);
  v.Text("Key2Mapping", s.Key2Mapping);
  v.Int("K3MsgLengthAdjustment", s.K3MsgLengthAdjustment);
  v.Blank();
  v.Bool("SCPEnabled", s.SCPEnabled);
  v.Text("SCPSelection", s.SCPSelection);
}

template <class V, class S>
void WinkeyKeys(V& v, S& s) {
  v.Bool("WinkeyActivated", s.WinkeyActivated);
  v.Text("WinkeyComPort", s.WinkeyComPort);
  v.Int("WinkeySidetoneFrequency", s.WinkeySidetoneFrequency);
  v.Int("WinkeySidetoneOnOff", s.WinkeySidetoneOnOff);
  v.Int("WinkeyPotSpeedMin", s.WinkeyPotSpeedMin);
  v.Int("WinkeyPotSpeedMax", s.WinkeyPotSpeedMax);
  v.Int("WinkeyLeadTime", s.WinkeyLeadTime);
  v.Int("WinkeyTailTime", s.WinkeyTailTime);
  v.Int("WinkeyWeighting", s.WinkeyWeighting);
  v.Int("WinkeyKeyComp", s.WinkeyKeyComp);
  v.Text("WinkeyDashDotRatio", s.WinkeyDashDotRatio);
  v.Text("WinkeyKeyMode", s.WinkeyKeyMode);
}

template <class V, class S>
void DvkKeys(V& v, S& s) {
  v.Text("AudioPath", s.AudioPath);
  v.Bool("DVKSendMessageEnabled", s.DVKSendMessageEnabled);
  v.Bool("DVKSendCallEnabled", s.DVKSendCallEnabled);
  v.Bool("DVKSendExchEnabled", s.DVKSendExchEnabled);
  v.Bool("DVKNormalModeEnabled", s.DVKNormalModeEnabled);
  v.Bool("DVKFastModeEnabled", s.DVKFastModeEnabled);
  v.Bool("DVKMixedModeEnabled", s.DVKMixedModeEnabled);
  v.Word("DVKCallExchMode", s.DVKCallExchMode, DvkModeWords, DvkAlwaysNormal);
  v.Bool("DVKPrevWkdEnabled", s.DVKPrevWkdEnabled);
  v.Bool("DVKCallMatchEnabled", s.DVKCallMatchEnabled);
  v.Int("DVKOverlapMsec", s.DVKOverlapMsec);
}

// One radio record under the key prefix "Radio(1)", "RadioDefaultSettings"...
template <class V, class R>
void RadioKeys(V& v, const std::string& prefix, R& r, bool spacedFalse) {
  v.Text(prefix + ".Name", r.Name);
  v.Text(prefix + ".Address", r.Address);
  v.Int(prefix + ".BaudRate", r.BaudRate);
  v.Int(prefix + ".WordLen", r.WordLen);
  v.Char(prefix + ".Parity", r.Parity);
  v.Int(prefix + ".StopBits", r.StopBits);
  v.Bool(prefix + ".DTRHigh", r.DTRHigh, spacedFalse);
  v.Bool(prefix + ".RTSHigh", r.RTSHigh, spacedFalse);
}

template <class V, class S>
void RadioInformationKeys(V& v, S& s) {
  v.Bool("Radio1ComActivated", s.Radio1ComActivated, true);
  v.Bool("Radio2ComActivated", s.Radio2ComActivated, true);
  v.Int("Radio1ComPollInterval", s.Radio1ComPollInterval);
  v.Int("Radio2ComPollInterval", s.Radio2ComPollInterval);
  v.Int("RadioSwapDelayMsec", s.RadioSwapDelayMsec);
  v.Blank();
  v.Text("Radio1ComPort", s.Radio1ComPort);
  v.Text("Radio2ComPort", s.Radio2ComPort);
  RadioKeys(v, "Radio(1)", s.Radio[1], true);
  v.Blank();
  RadioKeys(v, "Radio(2)", s.Radio[2], true);
}

template <class V, class S>
void FileKeys(V& v, S& s) {
  v.FolderPath("OpenFilePath", s.OpenFilePath);
  for (int i = 1; i <= 4; ++i) v.Text("RecentFile" + std::to_string(i), s.RecentFile[static_cast<std::size_t>(i)]);
}

// The [User Exchange - ...] sections in written order.
constexpr std::array<std::string_view, 11> ExchangeHeaders = {
    "[User Exchange - ARRL]", "[User Exchange - AA]",   "[User Exchange - CQP]",
    "[User Exchange - PAQP]", "[User Exchange - NEQP]", "[User Exchange - CQWW]",
    "[User Exchange - SS]",   "[User Exchange - SPRINT]", "[User Exchange - NAQP]",
    "[User Exchange - GENERIC]", "[User Exchange - CWO]"};

template <class V, class S>
void ExchangeKeys(V& v, S& s, int section) {
  switch (section) {
    case 0: v.Text("ExchangeARRLMult", s.ExchangeARRLMult); break;
    case 1: v.Text("ExchangeAAMult", s.ExchangeAAMult); break;
    case 2: v.Text("ExchangeCQPMult", s.ExchangeCQPMult); break;
    case 3: v.Text("ExchangePAQPMult", s.ExchangePAQPMult); break;
    case 4: v.Text("ExchangeNEQPMult", s.ExchangeNEQPMult); break;
    case 5: v.Text("ExchangeCQWWMult", s.ExchangeCQWWMult); break;
    case 6:
      v.Text("ExchangeSSPrec", s.ExchangeSSPrec);
      v.Text("ExchangeSSCall", s.ExchangeSSCall);
      v.Text("ExchangeSSCheck", s.ExchangeSSCheck);
      v.Text("ExchangeSSSection", s.ExchangeSSSection);
      break;
    case 7:
      v.Text("ExchangeSprintName", s.ExchangeSprintName);
      v.Text("ExchangeSprintMult", s.ExchangeSprintMult);
      break;
    case 8:
      v.Text("ExchangeNAQPName", s.ExchangeNAQPName);
      v.Text("ExchangeNAQPMult", s.ExchangeNAQPMult);
      break;
    case 9: v.Text("ExchangeGeneric", s.ExchangeGeneric); break;
    case 10: v.Text("ExchangeCWOName", s.ExchangeCWOName); break;
  }
}

template <class V, class P>
void ProfileKeys(V& v, P& p) {
  constexpr const auto& w = UserProfileWidths;
  v.Fixed("UserProfile.ProfileName", p.ProfileName, w[0]);
  v.Fixed("UserProfile.Callsign", p.Callsign, w[1]);
  v.Fixed("UserProfile.Operators", p.Operators, w[2]);
  v.Fixed("UserProfile.Location", p.Location, w[3]);
  v.Fixed("UserProfile.Name", p.Name, w[4]);
  v.Fixed("UserProfile.Address", p.Address, w[5]);
  v.Fixed("UserProfile.City", p.City, w[6]);
  v.Fixed("UserProfile.Country", p.Country, w[7]);
  v.Fixed("UserProfile.Club", p.Club, w[8]);
  v.Fixed("UserProfile.Rig", p.Rig, w[9]);
  v.Fixed("UserProfile.Ant", p.Ant, w[10]);
  v.Fixed("UserProfile.Email", p.Email, w[11]);
}

bool IsProfileKey(const std::string& key) {
  UserProfileRecord scratch;
  std::string none;
  KeyReader probe(key, none, none);
  ProfileKeys(probe, scratch);
  return probe.Matched;
}

// ---- Reading ----

enum class SectionKind {
  None, Ignored, Preferences, Winkey, Dvk, RadioInformation, RadioDefault, RadioUser, FileInformation,
  CWMacros, CWDisplay, Window, Exchange, Profile
};

struct Section {
  SectionKind Kind = SectionKind::None;
  int Number = 0;  // set 1..13, exchange section 0..10, profile 1..8
};

// A header of the positional kinds: the prefix, two characters and "]".
// Returns the set, or 0 with an error when they name no set.
int PositionalSet(std::string_view line, std::string_view prefix, std::string& error) {
  if (line.size() != prefix.size() + 3 || !line.starts_with(prefix) || line.back() != ']') return 0;
  std::string_view digits = line.substr(prefix.size(), 2);
  int set = 0;
  auto [end, ec] = std::from_chars(digits.data(), digits.data() + 2, set);
  if (ec == std::errc() && end == digits.data() + 2 && set >= 1 && set <= SettingsContestSets) return set;
  error = "\"" + std::string(line) + "\" names set " + std::string(digits) + ", but the sets are 01 to 13";
  return 0;
}

// The section a line opens, if it is a known header. The test is exact and
// case matters.
std::optional<Section> FindHeader(std::string_view line, std::string& error) {
  struct Fixed { std::string_view Header; SectionKind Kind; };
  static constexpr Fixed fixed[] = {
      {"[Preferences]", SectionKind::Preferences},
      {"[Winkey Settings]", SectionKind::Winkey},
      {"[DVK Settings]", SectionKind::Dvk},
      {"[Radio Information]", SectionKind::RadioInformation},
      {"[Radio Default Settings]", SectionKind::RadioDefault},
      {"[Radio User Settings]", SectionKind::RadioUser},
      {"[File Information]", SectionKind::FileInformation},
      {"[Window Coordinates - CQP, SS, WPX]", SectionKind::Ignored},
      {"[User Information]", SectionKind::Ignored}};
  for (const Fixed& f : fixed)
    if (line == f.Header) return Section{f.Kind, 0};
  for (std::size_t i = 0; i < ExchangeHeaders.size(); ++i)
    if (line == ExchangeHeaders[i]) return Section{SectionKind::Exchange, static_cast<int>(i)};
  for (int n = 1; n <= 8; ++n)
    if (line == std::string(ProfileHeader) + std::to_string(n) + "]") return Section{SectionKind::Profile, n};
  struct Positional { std::string_view Prefix; SectionKind Kind; };
  static constexpr Positional positional[] = {{CWMacroHeader, SectionKind::CWMacros},
                                              {DisplayHeader, SectionKind::CWDisplay},
                                              {WindowHeader, SectionKind::Window}};
  for (const Positional& p : positional)
    if (int set = PositionalSet(line, p.Prefix, error)) return Section{p.Kind, set};
  return std::nullopt;
}

// Whether a window field is a whole number as the writer prints one.
bool IsWrittenNumber(std::string_view field) {
  int value = 0;
  auto [end, ec] = std::from_chars(field.data(), field.data() + field.size(), value);
  return !field.empty() && ec == std::errc() && end == field.data() + field.size();
}

// A window line: name, state, Top, Left, Height, Width, each up to the next
// single blank; the width takes the rest. The writer trims the name and the
// state, and the reader the line, so a row written without a name comes back
// as "STATE T L H W" and one without either as "T L H W". Such a line, five
// or four fields whose Top is a number, is read from the right, the missing
// name (and state) left blank; read from the left, the numbers would move
// into the name. Any other line, a short one among them, is read from the
// left.
bool ParseWindowRow(std::string_view line, WindowRow& row, std::string& error) {
  const std::size_t blanks = static_cast<std::size_t>(std::count(line.begin(), line.end(), ' '));
  std::size_t first = 0;  // the field the line starts with
  if (blanks == 3 || blanks == 4) {
    const std::size_t topField = blanks - 3;  // 0 when both name and state are missing, 1 when the name is
    std::string_view top = line;
    for (std::size_t i = 0; i < topField; ++i) top.remove_prefix(top.find(' ') + 1);
    if (IsWrittenNumber(top.substr(0, top.find(' ')))) first = 5 - blanks;
  }
  std::array<std::string_view, 6> fields;
  std::size_t start = 0;
  for (std::size_t i = first; i < fields.size() && start <= line.size(); ++i) {
    std::size_t blank = i + 1 < fields.size() ? line.find(' ', start) : std::string_view::npos;
    fields[i] = line.substr(start, blank == std::string_view::npos ? std::string_view::npos : blank - start);
    start = blank == std::string_view::npos ? line.size() + 1 : blank + 1;
  }
  row.WindowName = std::string(fields[0].substr(0, 20));
  row.WindowState = std::string(fields[1].substr(0, 6));
  static constexpr const char* names[] = {"Top", "Left", "Height", "Width"};
  int16_t* targets[] = {&row.Top, &row.Left, &row.Height, &row.Width};
  for (std::size_t i = 0; i < 4; ++i)
    if (!ReadInt16(fields[i + 2], *targets[i])) {
      error = OutOfRange(std::string("window ") + names[i], fields[i + 2]);
      return false;
    }
  return true;
}

// Gives each blank profile name the lowest free "Custom Profile n".
bool NameBlankProfiles(Settings& s) {
  bool renamed = false;
  for (int i = 1; i <= UserProfileCount; ++i) {
    if (!Trim(s.UserProfile[i].ProfileName).empty()) continue;
    for (int n = 1;; ++n) {
      std::string candidate = "Custom Profile " + std::to_string(n);
      bool taken = std::any_of(s.UserProfile.begin() + 1, s.UserProfile.end(),
                               [&](const UserProfileRecord& p) { return Trim(p.ProfileName) == candidate; });
      if (!taken) {
        s.UserProfile[i].ProfileName = candidate;
        renamed = true;
        break;
      }
    }
  }
  return renamed;
}

class SettingsParser {
 public:
  SettingsParser(Settings& work, const std::string& appPath) : S(work), AppPath(appPath) {}

  // Handles one trimmed, non-empty line; false with Error set on a line the
  // format cannot hold.
  bool Line(const std::string& line) {
    if (std::optional<Section> header = FindHeader(line, Error)) {
      Current = *header;
      Row = 1;
      return true;
    }
    if (!Error.empty()) return false;
    switch (Current.Kind) {
      case SectionKind::None:
      case SectionKind::Ignored: return true;
      case SectionKind::Preferences: return Keyed(line, [&](KeyReader& r) { PreferencesKeys(r, S); });
      case SectionKind::Winkey: return Keyed(line, [&](KeyReader& r) { WinkeyKeys(r, S); });
      case SectionKind::Dvk: return Keyed(line, [&](KeyReader& r) { DvkKeys(r, S); });
      case SectionKind::RadioInformation: return Keyed(line, [&](KeyReader& r) { RadioInformationKeys(r, S); });
      case SectionKind::FileInformation: return Keyed(line, [&](KeyReader& r) { FileKeys(r, S); });
      case SectionKind::Exchange: return Keyed(line, [&](KeyReader& r) { ExchangeKeys(r, S, Current.Number); });
      case SectionKind::RadioDefault: return RadioRow(line, "RadioDefaultSettings", S.RadioDefaultSettings, DefaultRow);
      case SectionKind::RadioUser: return RadioRow(line, "RadioUserSettings", S.RadioUserSettings, UserRow);
      case SectionKind::Profile: return Profile(line);
      case SectionKind::CWMacros: return Macro(line);
      case SectionKind::CWDisplay:
        if (Row > CWMacroDisplayRows) return Fail("CW display row " + std::to_string(Row) + " is beyond the 9 of a set");
        S.CWMacroDisplay[Current.Number][Row++] = line;
        return true;
      case SectionKind::Window:
        if (Row > WindowRows) return Fail("window row " + std::to_string(Row) + " is beyond the 8 of a set");
        return ParseWindowRow(line, S.WindowInfo[Current.Number][Row++], Error);
    }
    return true;
  }

  std::string Error;

 private:
  bool Fail(std::string text) {
    Error = std::move(text);
    return false;
  }

  // A line without "=" keeps the key and value of the line before, which are
  // then handled again.
  template <class Visit>
  bool Keyed(const std::string& line, Visit visit) {
    SplitKeyValue(line, Key, Value);
    KeyReader reader(Key, Value, AppPath);
    visit(reader);
    Error = reader.Error;
    return Error.empty();
  }

  // The model rows share their keys; RTSHigh ends a group and moves to the
  // next row, the last row taking any further groups.
  bool RadioRow(const std::string& line, const std::string& prefix,
                std::array<RadioRecord, RadioModelRows + 1>& rows, int& row) {
    bool ok = Keyed(line, [&](KeyReader& r) { RadioKeys(r, prefix, rows[row], false); });
    if (ok && Key == prefix + ".RTSHigh" && row < RadioModelRows) ++row;
    return ok;
  }

  bool Profile(const std::string& line) {
    SplitKeyValue(line, Key, Value);
    if (Key == "CurrentUserProfileName") {
      S.CurrentUserProfileName = Value;
      return true;
    }
    if (Current.Number > UserProfileCount) {
      if (!IsProfileKey(Key)) return true;
      return Fail("\"" + Key + "\" in [User Profile " + std::to_string(Current.Number) +
                  "], but only profiles 1 to 4 are kept");
    }
    KeyReader reader(Key, Value, AppPath);
    ProfileKeys(reader, S.UserProfile[Current.Number]);
    return true;
  }

  bool Macro(const std::string& line) {
    if (Row > CWMacroRows) return Fail("CW message row " + std::to_string(Row) + " is beyond the 12 of a set");
    // Messages of files from before the radio and play prefixes get them.
    bool prefixed = Row < 10 && !line.starts_with("[RAD");
    S.CWMacro[Current.Number][Row++] = prefixed ? std::string(MacroPrefix) + line : line;
    return true;
  }

  Settings& S;
  const std::string& AppPath;
  Section Current;
  int Row = 1;
  int DefaultRow = 1;
  int UserRow = 1;
  std::string Key;
  std::string Value;
};

// ---- Writing ----

template <class Keys>
void KeyedSection(std::string& out, std::string_view header, Keys keys) {
  out.append(header).append(Eol);
  KeyWriter writer(out);
  keys(writer);
  out.append(Eol);
}

void PositionalSection(std::string& out, std::string_view prefix, int set) {
  out.append(prefix).append(TwoDigits(set)).append("]").append(Eol);
}

std::string WindowLine(const WindowRow& row) {
  return Trim(row.WindowName) + " " + Trim(row.WindowState) + " " + std::to_string(row.Top) + " " +
         std::to_string(row.Left) + " " + std::to_string(row.Height) + " " + std::to_string(row.Width);
}

int16_t Clamp16(int value) {
  return static_cast<int16_t>(std::clamp<int>(value, std::numeric_limits<int16_t>::min(),
                                               std::numeric_limits<int16_t>::max()));
}

}  // namespace

bool SplitKeyValue(std::string_view line, std::string& key, std::string& value) {
  std::size_t equal = line.find('=');
  if (equal == std::string_view::npos) return false;
  key = Trim(line.substr(0, equal));
  value = Trim(line.substr(equal + 1));
  return true;
}

SettingsResult ParseSettings(std::string_view text, const std::string& fileName, Settings& settings,
                             const std::string& appPath) {
  Settings work = settings;
  work.RepeatIntervalCW = 1000;
  work.RepeatIntervalSSB = 1000;
  std::string folder = appPath.empty() || appPath.back() == '/' ? appPath : appPath + "/";
  SettingsParser parser(work, folder);

  // Lines end in CR LF; a lone LF or CR ends one as well.
  std::size_t start = 0;
  for (int lineNumber = 1; start < text.size(); ++lineNumber) {
    std::size_t end = text.find_first_of("\r\n", start);
    if (end == std::string_view::npos) end = text.size();
    std::string line = Trim(text.substr(start, end - start));
    start = end + (text.compare(end, 2, "\r\n") == 0 ? 2 : 1);
    if (line.empty()) continue;
    if (!parser.Line(line))
      return {false, fileName + " line " + std::to_string(lineNumber) + ": " + parser.Error, false};
  }

  if (std::find(std::begin(TimingMethods), std::end(TimingMethods), work.TimingMethod) == std::end(TimingMethods))
    work.TimingMethod = "Winmm";
  if (work.Weight < 2.5f || work.Weight > 4.5f) work.Weight = 3.0f;
  bool renamed = NameBlankProfiles(work);
  for (int i = 1; i <= UserProfileCount; ++i)
    if (Trim(work.UserProfile[i].ProfileName) == Trim(work.CurrentUserProfileName)) {
      work.CurrentUserProfile = static_cast<int16_t>(i);
      break;
    }

  settings = std::move(work);
  return {true, "", renamed};
}

SettingsResult ReadSettings(const std::string& path, Settings& settings, const std::string& appPath) {
  std::string fileName = std::filesystem::path(path).filename().string();
  std::error_code kind;
  if (std::filesystem::is_directory(path, kind)) return {false, "Can't read " + path + ": it is a folder", false};
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    int cause = errno;
    std::error_code ignored;
    if (!std::filesystem::exists(path, ignored)) return {false, fileName + " was not found at " + path, false};
    return {false, "Can't read " + path + ": " + std::strerror(cause), false};
  }
  std::ostringstream text;
  text << in.rdbuf();
  if (in.bad()) return {false, "Can't read " + path + ": " + std::strerror(errno), false};
  return ParseSettings(text.str(), fileName, settings, appPath);
}

void CaptureWindows(Settings& settings, const WindowCapture& capture) {
  if (capture.ContestIndex < 1 || capture.ContestIndex > SettingsContestSets) return;
  auto& rows = settings.WindowInfo[static_cast<std::size_t>(capture.ContestIndex)];
  int captured = WindowRows;
  if (Trim(rows[WindowRows].WindowName) != "PARTIAL") {
    for (int set = 1; set <= SettingsContestSets; ++set)
      settings.WindowInfo[set][WindowRows] = {"PARTIAL", "CLOSED", 6000, 2000, 3000, 5900};
    captured = WindowRows - 1;
  }
  for (int i = 1; i <= captured; ++i) {
    const WindowGeometry& g = capture.Windows[static_cast<std::size_t>(i)];
    rows[i].Left = Clamp16(g.Left);
    rows[i].Top = Clamp16(g.Top);
    rows[i].Height = Clamp16(g.Height);
    rows[i].Width = Clamp16(g.Width);
  }
}

std::string SettingsText(const Settings& s) {
  std::string out;
  KeyedSection(out, "[Preferences]", [&](KeyWriter& w) { PreferencesKeys(w, s); });
  KeyedSection(out, "[Winkey Settings]", [&](KeyWriter& w) { WinkeyKeys(w, s); });
  KeyedSection(out, "[DVK Settings]", [&](KeyWriter& w) { DvkKeys(w, s); });
  KeyedSection(out, "[Radio Information]", [&](KeyWriter& w) { RadioInformationKeys(w, s); });

  // Each model group ends in its own empty line; none follows the header.
  KeyWriter writer(out);
  out.append("[Radio Default Settings]").append(Eol);
  for (int row = 1; row <= RadioModelRows; ++row) {
    RadioKeys(writer, "RadioDefaultSettings", s.RadioDefaultSettings[row], false);
    out.append(Eol);
  }
  out.append("[Radio User Settings]").append(Eol);
  for (int row = 1; row <= RadioModelRows; ++row) {
    RadioKeys(writer, "RadioUserSettings", s.RadioUserSettings[row], false);
    out.append(Eol);
  }

  KeyedSection(out, "[File Information]", [&](KeyWriter& w) { FileKeys(w, s); });

  for (int set = 1; set <= SettingsContestSets; ++set) {
    PositionalSection(out, CWMacroHeader, set);
    for (int row = 1; row <= CWMacroRows; ++row) out.append(s.CWMacro[set][row]).append(Eol);
    out.append(Eol);
  }
  for (int set = 1; set <= SettingsContestSets; ++set) {
    PositionalSection(out, DisplayHeader, set);
    for (int row = 1; row <= CWMacroDisplayRows; ++row) out.append(s.CWMacroDisplay[set][row]).append(Eol);
    out.append(Eol);
  }
  for (int set = 1; set <= SettingsContestSets; ++set) {
    PositionalSection(out, WindowHeader, set);
    for (int row = 1; row <= WindowRows; ++row) out.append(WindowLine(s.WindowInfo[set][row])).append(Eol);
    out.append(Eol);
  }

  for (std::size_t i = 0; i < ExchangeHeaders.size(); ++i)
    KeyedSection(out, ExchangeHeaders[i], [&](KeyWriter& w) { ExchangeKeys(w, s, static_cast<int>(i)); });

  // The current profile's name is written from the index, which counts as 1
  // while no profile has been chosen.
  int current = s.CurrentUserProfile >= 1 && s.CurrentUserProfile <= UserProfileCount ? s.CurrentUserProfile : 1;
  for (int n = 1; n <= UserProfileCount; ++n) {
    KeyedSection(out, std::string(ProfileHeader) + std::to_string(n) + "]", [&](KeyWriter& w) {
      if (n == 1) {
        w.Fixed("CurrentUserProfileName", s.UserProfile[current].ProfileName, UserProfileWidths[0]);
        w.Blank();
      }
      ProfileKeys(w, s.UserProfile[n]);
    });
  }
  return out;
}

std::optional<std::string> WriteSettings(const std::string& path, const Settings& settings) {
  std::string text = SettingsText(settings);
  // The old file stays whole until the new one is completely on disk.
  std::string temporary = path + ".new";
  {
    std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
    if (!out) return "Can't write " + path + ": " + std::strerror(errno);
    out.write(text.data(), static_cast<std::streamsize>(text.size()));
    out.flush();
    if (!out) {
      int cause = errno;
      out.close();
      std::error_code ignored;
      std::filesystem::remove(temporary, ignored);
      return "Can't write " + path + ": " + std::strerror(cause);
    }
  }
  std::error_code error;
  std::filesystem::rename(temporary, path, error);
  if (error) {
    std::error_code ignored;
    std::filesystem::remove(temporary, ignored);
    return "Can't write " + path + ": " + error.message();
  }
  return std::nullopt;
}

std::optional<std::string> WriteSettings(const std::string& path, Settings& settings, const WindowCapture& capture) {
  CaptureWindows(settings, capture);
  return WriteSettings(path, static_cast<const Settings&>(settings));
}

}  // namespace tarnix
