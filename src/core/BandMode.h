#pragma once
// BandMode: the choice of active bands, as a presentation model.
//
// Twelve tick boxes, one per band row, shown by contest. On opening they take
// BandEnabled, which is saved aside; Cancel (Command2) restores it; OK
// (Command1) refuses an empty choice and the removal of the band in use, and
// keeps the form open in both cases.

#include <array>
#include <string>

#include "core/Bands.h"
#include "core/Contest.h"
#include "platform/Controls.h"
#include "platform/Platform.h"

namespace tarnix {

class BandMode : public FormModel {
 public:
  BandMode(ContestState& state, MessageBoxes& boxes);

  std::string FormName() const override { return "BandMode"; }
  void CloseByFrame() override { Command2_Click(); }

  void BandBox_Click(int row);
  void Command1_Click();  // OK
  void Command2_Click();  // Cancel

  // BandBox[row] for the rows 1..12; element 0 unused.
  std::array<CheckBox, BandRowCount + 1> BandBox;
  std::array<std::string, 9> NoteLines;
  Button Command1{"OK"};
  Button Command2{"Cancel"};

 private:
  ContestState& State;
  MessageBoxes& Boxes;
  std::array<bool, BandRowCount + 1> Saved;
};

}  // namespace tarnix
