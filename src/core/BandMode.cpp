#include "core/BandMode.h"

#include "core/Text.h"

namespace tarnix {

BandMode::BandMode(ContestState& state, MessageBoxes& boxes)
    : NoteLines{"NOTE:", "These boxes", "select which", "bands are active", "in contest.",
                "To change bands", "while operating,", "use <CTRL-arrow>", "keys."},
      State(state),
      Boxes(boxes),
      Saved(state.BandEnabled) {
  int c = state.ContestIndex;
  int lastShown = c == Generic ? 11 : (c == Cqp || c == Neqp) ? 8 : 6;
  for (int row = 1; row <= BandRowCount; ++row) {
    CheckBox& box = BandBox[row];
    box.Caption = Trim(BandName(row));
    box.Value = state.BandEnabled[row];
    box.Visible = row <= lastShown;
    // ARRL 10 Meter: the other bands are shown but cannot be changed.
    box.Enabled = !(c == Ten && row >= 2 && row <= 6);
  }
}

void BandMode::BandBox_Click(int row) {
  CheckBox& box = BandBox.at(static_cast<std::size_t>(row));
  if (box.Enabled && box.Visible) box.Value = !box.Value;
}

void BandMode::Command1_Click() {
  bool any = false;
  for (int row = 1; row <= BandRowCount; ++row) {
    State.BandEnabled[row] = BandBox[row].Value;
    any = any || BandBox[row].Value;
  }
  if (!any) {
    Boxes.Show({"At least one band must be selected for the program to work.", "Band Selection Error",
                MsgButtons::OK, MsgIcon::Exclamation, MsgAnswer::OK});
    State.BandEnabled = Saved;
    for (int row = 1; row <= BandRowCount; ++row) BandBox[row].Value = Saved[row];
    return;
  }
  int current = BandRow(State.BandIndex);
  if (!BandBox[current].Value) {
    Boxes.Show({"No fair -- Can't delete current band.", "Band Selection Error", MsgButtons::OK,
                MsgIcon::Exclamation, MsgAnswer::OK});
    BandBox[current].Value = true;
    State.BandEnabled[current] = true;
    return;
  }
  Visible = false;
}

void BandMode::Command2_Click() {
  State.BandEnabled = Saved;
  for (int row = 1; row <= BandRowCount; ++row) BandBox[row].Value = Saved[row];
  Visible = false;
}

}  // namespace tarnix
