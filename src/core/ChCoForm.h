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

// For scripted front ends: queues what an operator does in the next ChCoForm
// shown, choosing the contest, phone or CW where the form offers the mode,
// and OK.
void QueueContestChoice(ScriptedFormHost& forms, int contestIndex, bool phone = false);

}  // namespace tarnix
