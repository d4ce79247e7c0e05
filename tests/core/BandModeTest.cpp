#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "core/BandMode.h"
#include "platform/Scripted.h"

namespace tarnix {
namespace {

class BandModeTest : public ::testing::Test {
 protected:
  ContestState state;
  ScriptedMessageBoxes boxes;
  std::optional<BandMode> form;
  // Opens the form as the host does, rows 1..12 enabled given as digits, and
  // clicks the boxes of the rows given.
  BandMode& Open(int contest, int bandIndex, const std::string& rows, std::initializer_list<int> clicks = {}) {
    state.ContestIndex = static_cast<int16_t>(contest);
    state.BandIndex = static_cast<int16_t>(bandIndex);
    for (int row = 1; row <= 12; ++row) state.BandEnabled[row] = rows[row - 1] == '1';
    boxes.Shown.clear();
    form.emplace(state, boxes);
    form->Visible = true;
    for (int row : clicks) form->BandBox_Click(row);
    return *form;
  }
  std::string Rows(bool fromBoxes) const {
    std::string out;
    for (int row = 1; row <= 12; ++row) out += (fromBoxes ? form->BandBox[row].Value : state.BandEnabled[row]) ? '1' : '0';
    return out;
  }
  std::string Boxes() const {
    std::string out;
    for (const MessageBoxRequest& box : boxes.Shown) out += box.Title + ": " + box.Text + "|";
    return out;
  }
};

TEST_F(BandModeTest, RowsShownByContestAndLockedForTenMetres) {
  struct Row { int contest; int lastShown; };
  const Row rows[] = {{Generic, 11}, {Cqp, 8}, {Neqp, 8}, {Paqp, 6}, {ArrlDx, 6}, {Ten, 6}, {CwOpen, 6}};
  for (const Row& r : rows) {
    Open(r.contest, 3, "111111000000");
    for (int row = 1; row <= 12; ++row)
      EXPECT_EQ(form->BandBox[row].Visible, row <= r.lastShown) << r.contest << " row " << row;
  }
  BandMode& f = Open(Ten, 1, "100000000000");
  for (int row = 1; row <= 6; ++row) EXPECT_EQ(f.BandBox[row].Enabled, row == 1) << row;
  f.BandBox_Click(2);
  f.BandBox_Click(1);
  EXPECT_EQ(Rows(true), "000000000000");
}

TEST_F(BandModeTest, OkRefusesNoBandAndTheCurrentBandTakesAValidChoiceAndCancelRestores) {
  Open(ArrlDx, 3, "111111000000", {1, 2, 3, 4, 5, 6}).Command1_Click();
  EXPECT_EQ(Boxes(), "Band Selection Error: At least one band must be selected for the program to work.|");
  EXPECT_EQ(Rows(true) + "|" + Rows(false), "111111000000|111111000000");
  EXPECT_TRUE(form->Visible);
  struct Row { int contest; int bandIndex; int row; };
  const Row rows[] = {{ArrlDx, 3, 3}, {ArrlDx, 11, 3}, {Generic, 21, 9}};  // 20m CW, 20m SSB, 12m CW
  for (const Row& r : rows) {
    Open(r.contest, r.bandIndex, "111111111110", {r.row, 1}).Command1_Click();  // other bands stay ticked
    EXPECT_EQ(Boxes(), "Band Selection Error: No fair -- Can't delete current band.|") << r.bandIndex;
    EXPECT_TRUE(form->BandBox[r.row].Value && state.BandEnabled[r.row] && form->Visible) << r.bandIndex;
  }
  Open(Generic, 3, "111111000000", {1, 9, 12}).Command1_Click();  // row 12 is hidden: no change
  EXPECT_EQ(Boxes(), "");
  EXPECT_FALSE(form->Visible);
  EXPECT_EQ(Rows(false), "011111001000");
  Open(Generic, 3, "111111000000", {1, 10}).Command2_Click();
  EXPECT_FALSE(form->Visible);
  EXPECT_EQ(Rows(false) + "|" + Rows(true), "111111000000|111111000000");
}

}  // namespace
}  // namespace tarnix
