#pragma once
// The station preferences, named by their keys in the settings file
// tarnix125.ini (SettingsFile.h reads and writes them).
//
// The program has no table of defaults in code: a key absent from the file
// leaves its variable in the zero state (False, 0, empty). Only the repeat
// intervals are preset. Tables keep the bounds of the file format; where the
// format counts from 1, index 0 is unused.

#include <array>
#include <cstdint>
#include <string>

namespace tarnix {

inline constexpr int SettingsContestSets = 13;  // one set a contest, by ContestIndex
inline constexpr int CWMacroRows = 12;          // F1-F7, F11, F12, two exchanges, dupe
inline constexpr int CWMacroDisplayRows = 9;    // the rows the message window lists
inline constexpr int WindowRows = 8;            // the windows whose place is kept
inline constexpr int RadioModelRows = 14;       // the radio models of the set-up dialog
inline constexpr int UserProfileCount = 4;

// Serial settings of a radio: Radio(1..2) and the model rows share it.
struct RadioRecord {
  std::string Name;     // model name, or "[none]"
  std::string Address;  // Icom CI-V address, two hexadecimal digits
  int16_t BaudRate = 0;
  int16_t WordLen = 0;
  char Parity = ' ';    // "N", "E" or "O"; blank when unset
  int16_t StopBits = 0;
  bool DTRHigh = false;
  bool RTSHigh = false;
  bool operator==(const RadioRecord&) const = default;
};

// The kept place of one window, in twips.
struct WindowRow {
  std::string WindowName;   // up to 20 characters
  std::string WindowState;  // up to 6 characters
  int16_t Left = 0;
  int16_t Top = 0;
  int16_t Height = 0;
  int16_t Width = 0;
  bool operator==(const WindowRow&) const = default;
};

// The operator's own data for the post-contest files. Each field is held cut
// to its width (UserProfileWidths).
struct UserProfileRecord {
  std::string ProfileName, Callsign, Operators, Location, Name, Address, City, Country, Club, Rig, Ant,
      Email;
  bool operator==(const UserProfileRecord&) const = default;
};

// Field widths of UserProfileRecord, in its member order.
inline constexpr std::array<std::size_t, 12> UserProfileWidths = {20, 12, 20, 20, 30, 30, 30, 25, 40, 60, 60, 30};

// Roles a radio's DTR line can take (UseDTRtoKey).
enum DtrRole : int16_t { DtrNone = 0, DtrCW = 1, DtrPTT = 2, DtrF9 = 3, DtrDVKMicSwitch = 4 };

// How the voice keyer speaks calls and exchanges (DVKCallExchMode).
enum DvkCallExchMode : int16_t { DvkAlwaysFast = 0, DvkAlwaysNormal = 1, DvkMixedMode = 2 };

// The name the speed label shows for a DVKCallExchMode.
inline const char* DvkCallExchModeName(int mode) {
  return mode == DvkMixedMode ? "Mixed" : mode == DvkAlwaysNormal ? "Normal" : "Fast";
}

struct Settings {
  // [Preferences]
  std::string YourCall;
  float StationLatitude = 0;   // degrees, north positive
  float StationLongitude = 0;  // degrees, east positive
  std::string BackUpDrive;
  bool CWActivated = false;
  bool CWPTTActivated = false;
  bool SSBPTTActivated = false;
  bool PTTByRigControl = false;
  bool CWPTTByWinkey = false;
  bool F9Activated = false;
  bool TypingEnabled = false;
  bool DupeSendMsgFlag = false;
  std::string CWComport;
  std::string PTTComPort;
  std::string DVKMicSwitchComPort;
  std::string F9Comport;
  bool DVKMicSwitchActivated = false;
  bool CWSpeakerEnabled = false;
  std::array<int16_t, 3> UseDTRtoKey{};  // [1], [2]: a DtrRole
  bool UsePCSpeaker = false;
  bool UseSoundcardSpeaker = false;
  bool CWCallCorrectEnabled = false;
  bool CWCorrectWholeCall = false;
  int16_t Radio1Delay = 0;  // PTT lead in steps of 42.5 ms
  int16_t Radio2Delay = 0;
  int16_t RepeatIntervalCW = 1000;
  int16_t RepeatIntervalSSB = 1000;
  int16_t DualCQsRepeatInterval = 0;
  int16_t DualCQsPlayNumber = 0;
  std::string CWSpeedIncrement;
  float Weight = 0;              // dash length in dits; 2.5 to 4.5 after reading
  std::string TimingMethod;      // "QueryPerf", "Math", "Winmm" or "VBTimer" after reading
  std::string TimeCorrection;    // hours added to the PC clock
  std::string IsGMTFlag;         // "True" when the PC clock runs on GMT
  bool SendF1Enabled = false;    // Enter on an empty call box sends F1
  bool LogandSendF5Enabled = false;
  bool LogandSendF6Enabled = false;
  bool Key1IsMapped = false;
  bool Key2IsMapped = false;
  std::string Key1Mapping;
  std::string Key2Mapping;
  int16_t K3MsgLengthAdjustment = 0;
  bool SCPEnabled = false;
  std::string SCPSelection;      // "ALL", "US" or "DX"

  // [Winkey Settings]
  bool WinkeyActivated = false;
  std::string WinkeyComPort;
  int16_t WinkeySidetoneFrequency = 0;
  int16_t WinkeySidetoneOnOff = 0;
  int16_t WinkeyPotSpeedMin = 0;
  int16_t WinkeyPotSpeedMax = 0;
  int16_t WinkeyLeadTime = 0;
  int16_t WinkeyTailTime = 0;
  int16_t WinkeyWeighting = 0;
  int16_t WinkeyKeyComp = 0;
  std::string WinkeyDashDotRatio;
  std::string WinkeyKeyMode;

  // [DVK Settings]
  std::string AudioPath;
  bool DVKSendMessageEnabled = false;
  bool DVKSendCallEnabled = false;
  bool DVKSendExchEnabled = false;
  bool DVKNormalModeEnabled = false;
  bool DVKFastModeEnabled = false;
  bool DVKMixedModeEnabled = false;
  int16_t DVKCallExchMode = DvkAlwaysFast;
  bool DVKPrevWkdEnabled = false;
  bool DVKCallMatchEnabled = false;
  int16_t DVKOverlapMsec = 0;

  // [Radio Information]
  bool Radio1ComActivated = false;
  bool Radio2ComActivated = false;
  int16_t Radio1ComPollInterval = 0;
  int16_t Radio2ComPollInterval = 0;
  int16_t RadioSwapDelayMsec = 0;
  std::string Radio1ComPort;
  std::string Radio2ComPort;
  std::array<RadioRecord, 3> Radio{};  // [1], [2]

  // [Radio Default Settings], [Radio User Settings]: by the model list order.
  std::array<RadioRecord, RadioModelRows + 1> RadioDefaultSettings{};
  std::array<RadioRecord, RadioModelRows + 1> RadioUserSettings{};

  // [File Information]
  std::string OpenFilePath;              // folder of the last log, trailing "/"
  std::array<std::string, 5> RecentFile;   // [1]..[4], newest first

  // [CW Macros - NN], [CW Macros Display Forms - NN], [Window Information - NN]:
  // [set][row], set by ContestIndex.
  std::array<std::array<std::string, CWMacroRows + 1>, SettingsContestSets + 1> CWMacro{};
  std::array<std::array<std::string, CWMacroDisplayRows + 1>, SettingsContestSets + 1> CWMacroDisplay{};
  std::array<std::array<WindowRow, WindowRows + 1>, SettingsContestSets + 1> WindowInfo{};

  // [User Exchange - ...]: the last exchange the operator gave per contest.
  std::string ExchangeARRLMult, ExchangeAAMult, ExchangeCQPMult, ExchangePAQPMult, ExchangeNEQPMult,
      ExchangeCQWWMult;
  std::string ExchangeSSPrec, ExchangeSSCall, ExchangeSSCheck, ExchangeSSSection;
  std::string ExchangeSprintName, ExchangeSprintMult;
  std::string ExchangeNAQPName, ExchangeNAQPMult;
  std::string ExchangeGeneric;
  std::string ExchangeCWOName;

  // [User Profile 1..4]
  std::array<UserProfileRecord, UserProfileCount + 1> UserProfile{};
  std::string CurrentUserProfileName;
  // The profile in use, 1 to 4; 0 until one is known, which counts as 1.
  int16_t CurrentUserProfile = 0;

  bool operator==(const Settings&) const = default;
};

}  // namespace tarnix
