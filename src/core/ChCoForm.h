#pragma once
// ChCoForm: the choice of contest for a new log, as a presentation model.
//
// A list of the thirteen contests in sorted order, and beside it two framed
// groups of option buttons: ButtonMode in Frame1 (mode, or location for the
// QSO parties) and ButtonQTH in Frame2 (station location, or the CW Open's
// hours), with the continent list ComboQTH. Selecting a contest resets both
// groups; CmdOK copies what is shown into the ContestState, CmdCancel sets
// DialogCancelled. Both hide the form.

#include <array>
#include <string>

#include "core/Contest.h"
#include "platform/Controls.h"
#include "platform/Platform.h"
#include "platform/Scripted.h"

namespace tarnix {

class ChCoForm : public FormModel {
 public:
  // Opens the form on the given state: clears DialogCancelled and selects
  // list position 3 and continent position 3 ("NA").
  ChCoForm(ContestState& state, bool& dialogCancelled);

  std::string FormName() const override { return "ChCoForm"; }
  void CloseByFrame() override { CmdCancel_Click(); }

  // The contest at a list position, and the position of a contest.
  static int ContestAtPosition(int position);
  static int PositionOfContest(int contestIndex);

  void List1_Click(int position);
  void ButtonMode_Click(int index);
  void ButtonQTH_Click(int index);
  void ComboQTH_Click(int index);
  void CmdOK_Click();
  void CmdCancel_Click();

  ListBox List1;
  Frame Frame1;
  std::array<OptionButton, 2> ButtonMode;
  Frame Frame2;
  std::array<OptionButton, 3> ButtonQTH;
  ListBox ComboQTH;
  Button CmdOK{"OK"};
  Button CmdCancel{"Cancel"};

 private:
  void ShowModeFrame(bool phoneEnabled);
  ContestState& State;
  bool& DialogCancelled;
};

// What an operator picks in ChCoForm, for scripted front ends.
struct ContestChoice {
  int ContestIndex = 0;
  int ModeButton = -1;      // 0 phone or 1 CW, where Frame1 is the mode
  int LocationButton = -1;  // 0 in or 1 out of the party's area, where Frame1 is the location
  int QthButton = -1;       // ButtonQTH 0..2: the station's location, or the CW Open's hours
  std::string Continent = {};  // the ComboQTH entry, with the third location button
};

// Makes the choice on the form: the contest, each button asked for, the
// continent, then OK. Returns false, leaving the form open, when the form
// does not offer one of them (a hidden or disabled button, an unknown
// continent).
bool MakeChoice(ChCoForm& form, const ContestChoice& choice);

// Queues the choice for the next ChCoForm a scripted form host shows.
void QueueContestChoice(ScriptedFormHost& forms, const ContestChoice& choice);
// The usual choice: the contest, and phone or CW where the form offers it.
void QueueContestChoice(ScriptedFormHost& forms, int contestIndex, bool phone = false);

}  // namespace tarnix
