#pragma once
// LogForm: the main form, as a presentation model.
//
// Owns what the main window shows: the call box InData[0] and the exchange
// box InData[1], the labels around them, the menus, the focus and the entry
// state between QSOs. It does what the form does: logging on Enter
// (ProcessEntry), the focus steps of the boxes, the keys and text commands
// of the boxes, the File and Edit commands. The Qt window only draws these
// members and forwards events.
//
// The rules (parsers, dupes, points and multipliers) are called directly;
// each entry step returns what it found to the next. The open log's file is
// the LogDocument; the station (the sender of CW and voice, the control of
// the radios) is given to the form as the desktop is. Calls into the views
// and the call assistance still to be written are named steps in
// EntryHooks.cpp.
//
// Runs on the user-interface thread. A send may block and pump events, so
// keys can arrive nested inside it: they test the sender's SendingCW before
// touching the speed. ProcessEntry may be re-entered only through the event
// pump of a blocking send; it runs to its end before the next key. A refused
// entry leaves the text in the boxes.

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "core/QsoRecord.h"
#include "operating/Context.h"
#include "operating/Keys.h"
#include "operating/LogDocument.h"
#include "operating/Station.h"
#include "platform/Controls.h"
#include "platform/Platform.h"
#include "rules/Parsers.h"
#include "rules/Scoring.h"

namespace tarnix {

inline constexpr int CallBox = 0;
inline constexpr int ExchangeBox = 1;
inline constexpr int NoBox = -1;
// FocusedBox while the keyboard CW box of Caps Lock has the focus.
inline constexpr int KeyboardCWFocus = 2;

class LogForm {
 public:
  LogForm(Context& ctx, Platform& platform, Station& station);

  // ---- What the form shows ----
  std::array<TextBox, 2> InData;
  int FocusedBox = NoBox;     // which entry box has the focus
  int32_t BackColor = ColourLightGrey;
  Label FileIDLabel;          // the title line
  Label LastQSOLabel;         // the "Last: " line over the boxes
  Label lblCallsign{"Callsign"};
  Label lblExchange{"Exchange"};
  Label QSONrLabel, ScoreLabel, MultsLabel;
  Label lblDupe, Modelabel;
  std::array<Label, 9> PrevQSO;  // cells 1..8
  Label LabelNeededOn, NeedPfxLabel, LblWpxCountry;
  Label CallMatchLabel1, CallMatchLabel2, OldCallMatchLabel;
  Label ActiveRadioLabel, LabelR1Freq, LabelR2Freq;
  Label TimeGMTLabel, TimeLocalLabel;
  // The sending controls beside the boxes, arranged by the band's mode: the
  // CW speed (and the Winkeyer's) on CW, the voice keyer's on phone.
  Label lblCWPC, lblSpeedCW, lblCWWK{"WK Pot:"}, lblSpeedWK, DVKSpeedLabel;
  CheckBox CheckCall{"Call"}, CheckExchange{"Exchange"}, CheckGreeting{"Greeting"}, CheckThanks{"Thanks"};
  // The keyboard CW box that Caps Lock opens in place of the title line.
  Label KeyboardCWLabel{"Keyboard CW:", false};
  TextBox KeyboardCWText{"", 0, 0, false};
  Button AddButton{"Add"};
  Button CancelButton{"Cancel"};

  MenuItem mnuFile{"&File"}, mnuFileNewLog{"&New Log"}, mnuFileOpenLog{"&Open Log"},
      mnuFileSave{"Save &As..."}, mnuFileBackup{"&Backup"}, mnuFileUserInfo{"&User Profiles..."},
      mnuFileExit{"E&xit"};
  std::array<MenuItem, 5> mnuFileArray;  // the recent files 1..4
  MenuItem mnuEdit{"&Edit"}, mnuEditLastEntry{"&Edit Last Entry"},
      mnuEditKillLastEntry{"&Kill Last Entry"}, mnuEditKillALLEntries{"Kill &ALL Entries"},
      mnuEditSelectBands{"Select &Bands..."};
  MenuItem mnuView{"&View"}, mnuViewMults{"&Multipliers"}, mnuViewCACounties{"&CA Counties"},
      mnuViewARRLUSVEMults{"&US/VE Multipliers"}, mnuViewZnCty{"&Zones/Countries"},
      mnuViewCW{"CW &Messages"}, mnuViewDvK{"&Voice Keyer"};
  MenuItem mnuHelp{"&Help"}, mnuHelpAbout{"&About TARNIX..."};
  std::unique_ptr<Timer> Timer1;  // the clock, every 1000 ms
  int16_t ClockTicks = 0;         // every tenth tick updates the statistics
  // Called when the form changed by itself (a timer), so a view redraws.
  std::function<void()> Changed;

  // The open log's file.
  LogDocument Document;

  // ---- What the form does ----
  void Form_Load();
  // Moves the focus, running the lost- and got-focus steps of the boxes.
  void SetFocus(int box);
  // Key-down in an entry box; returns true when the key was used up, false
  // when the box is to do its own editing with it (arrows, Home, Ctrl-A...).
  bool InData_KeyDown(int box, int keyCode, int shift);
  // A typed character: upper-cased, or discarded, then put at the caret.
  void InData_KeyPress(int box, char keyAscii);
  // A key as the keyboard gives it to the focused box, for front ends without
  // a toolkit of their own: a character's key-down (Space, the apostrophe)
  // and then, unless that used it up, its key-press; a key by code to
  // key-down. PressKey returns false when the box is to do its own editing.
  void TypeCharacter(char ch);
  bool PressKey(int keyCode, int shift);
  // Keys of the keyboard CW box: Caps Lock closes it, each character is sent
  // at once ("+" and "-" change the speed).
  bool KeyboardCWText_KeyDown(int keyCode);
  void KeyboardCWText_KeyPress(char keyAscii);
  // Makes radio target the active one (0: the other radio), carrying the band
  // of each radio across.
  void SwapActiveRadio(int target);
  // Shows the CW or the voice controls for the band's mode.
  void ArrangeForMode();
  // Text typed or edited in a box by the view's own editing keys.
  void InData_Change(int box, const std::string& text, int selStart);
  // The caret or selection moved in a box by the mouse or the view's own
  // keys, so the next typed character lands where the operator sees it.
  void InData_SelChange(int box, int selStart, int selLength) {
    TextBox& b = InData[static_cast<std::size_t>(box)];
    b.SelStart = selStart;
    b.SelLength = selLength;
  }
  void ProcessEntry(int box, int shift);
  void ClearEntry();
  void ShowLast();
  void AddButton_Click();
  void CancelButton_Click();

  void mnuFileNewLog_Click();
  void mnuFileOpenLog_Click();
  void mnuFileArray_Click(int recent);  // 1..4
  void mnuFileSave_Click();
  void mnuFileUserInfo_Click();
  // Returns true when the program is to end.
  bool mnuFileExit_Click();
  // Set when a log of an incompatible format was opened: the program ends.
  bool EndRequested = false;
  void mnuEditKillLastEntry_Click();
  void mnuEditKillALLEntries_Click();
  void mnuEditLastEntry_Click();
  void mnuEditSelectBands_Click();
  void mnuFileBackup_Click();
  void mnuHelpAbout_Click();

  // Start-up's last step: a temporary log left by a crash is offered back.
  void CheckRecovery();
  void Timer1_Timer();

  void RedrawQSONrLabel();
  void RedrawScore();
  // Rebuilds every counter of the log store from the records 1..count-1 in
  // LogRecords, as the logging step counted them; QSOCount becomes count.
  // Used when a log is loaded. Never writes to the file.
  void ReplayLog(int count);

  // The last scan of the log for a call: found, dupe, the QSO it dupes and
  // the bands it was worked on, as the dupe line and the grid show them.
  const DupeResult& DupeScan() const { return Scan; }

 private:
  // Entry steps (ProcessEntry.cpp, EntryParsers.cpp, EntryDupes.cpp,
  // EntryScoring.cpp), in the order of the logging.
  std::optional<std::string> RunExchangeParser(const std::string& typed);
  bool CheckAge();
  const DupeResult& DupeCheck(const std::string& call);
  const DupeResult& CheckedCall(const std::string& call);
  void ShowDupe();
  void ShowPriorQsos();
  void ShowCallMatches(const std::string& partial);
  bool SendDupeMessage();
  void TakeTime();
  void TakeCall(const std::string& call);
  void IndexCall(int n, const std::string& call, int band);
  void ListCall(const std::string& call);
  MultOutcome ScoreEntry(bool dupe, const std::string& prefix);
  void CountPoints(const QsoRecord& qso, const MultOutcome& outcome);
  void TakeRadioAndFrequency();
  void StoreEntry();
  void CountTime(int n);
  bool WriteEntry(const MultOutcome& outcome);
  void SendFollowUp(int shift);
  void PrefillExchange();
  void ShowNeededOn();
  void ShowWorkedOrNeeded();
  ScoringState Scoring();
  // Moves the focus; without focusSteps the box got is not checked (after
  // a refused exchange, whose text the operator is to correct).
  void MoveFocus(int box, bool focusSteps);
  void InData_GotFocus(int box);
  void InData_LostFocus(int box);

  // Log steps (LogFileMenu.cpp).
  void ClearLogState();
  bool MayLeaveCurrentLog(const std::string& namedQuestion);
  void OpenNewLog();
  void OpenExisting(int recent);
  void RememberLogName(const std::string& name);
  void ShowRecentFiles();
  void LoadLog(bool reload);
  void AbandonLoad();
  void AfterHeader(const std::string* fileBytes, bool reload);
  void LoadRecords(const std::string& bytes);
  void ReloadLog();
  bool SaveAs();
  void SetMenusForContest();
  bool HasLog() const;
  void WriteSettings();

  // Keyboard (EntryKeys.cpp).
  int MappedKey(int keyCode, int shift);
  bool FunctionKey(int box, int keyCode, int shift);
  bool CommandKey(int keyCode, int shift);
  bool PlainKey(int box, int keyCode, int shift);
  void InsertKey(int shift);
  void SpeedOrVoiceModeKey(char ch);
  void StepDVKCallExchMode();
  void SetCWSpeed(int delta);
  void Wipe();
  void MemoriseCall();
  void RecallCall(int row);
  void OpenKeyboardCW(int box);
  void StepWinkeySpeedMode();

  // Bands, modes and radios (EntryBands.cpp).
  void ChangeBand(int step);
  void ChangeMode();
  void TakeBandOnActiveRadio();
  void ColourSpeedLabels();

  // Text commands (EntryTextCommands.cpp).
  int ParseTextCommand();
  void RunTextCommand(int command);
  void ClearTextCommand();
  void RepeatLastQso();
  void StoreRadio();
  void RecallRadio();

  // Views and call assistance still to come (EntryHooks.cpp).
  void SplitQSOTime(int n);
  void RedrawMultipliers();
  void UpdateStats();
  void ShowNewMult(const MultOutcome& outcome);
  void UpdateLogDisplay();
  void LookUpInstaMatch();
  void ClearPartialWindow();
  void CloseViewWindows();
  void CloseMessageWindows();
  void ClearCallAssist();
  bool EditQso(int n);

  MsgAnswer Ask(const std::string& text, const std::string& title, MsgButtons buttons, MsgAnswer dflt,
                MsgIcon icon = MsgIcon::Question);
  void Tell(const std::string& text, const std::string& title, MsgIcon icon = MsgIcon::Exclamation);
  // The open log's row of the contest catalogue.
  const ContestInfo& Traits() const { return TraitsOf(Ctx.Contest.ContestIndex); }

  // ---- Entry state, kept between the steps of one QSO and between QSOs ----
  QsoRecord EntryRecord;          // the record being built; keeps its values
  ReceivedFields Received;        // the last parse's fields (a refusal leaves the rest)
  DupeResult Scan;                // the last scan of the log for a call
  // The call of that scan, while nothing changed its answer: a logged QSO
  // and the form's own band, mode and radio changes reset it, and so must
  // anything else that moves BandIndex (the radio polling).
  std::optional<std::string> ScannedCall;
  std::string LastLine;           // the last "Last: " line, for a reload
  bool ApostropheLogged = false;  // logging was started by the apostrophe key
  int16_t TUInterval = 1, TUCount = 1;  // the F5 and F6 rotation after a QSO

  // ---- Keyboard state (EntryKeys.cpp, EntryTextCommands.cpp) ----
  bool BackslashPressed = false, BracketPressed = false;  // set just before key-down
  std::array<std::string, 6> CallStack;  // the calls of Alt-M, rows 1..5, newest first
  int16_t CallStackPos = 0;              // the row last recalled, 1..5
  int KeyboardCWBox = CallBox;           // where Caps Lock returns to
  int KeyboardCWCaret = 0;
  int16_t StoRadio = 0;                  // the STO memory; radio 0: nothing stored
  float StoFreq = 0;
  int16_t StoBand = 0;

  Context& Ctx;
  Platform& Desk;
  Sender& Keyer;
  RadioControl& Radios;
};

}  // namespace tarnix
