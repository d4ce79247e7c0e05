#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "core/ChCoForm.h"

namespace tarnix {
namespace {

// Caption, then * when selected and - when disabled; "hidden" when not shown.
template <std::size_t N>
std::string Options(const std::array<OptionButton, N>& group) {
  std::string out;
  for (const OptionButton& b : group)
    out += (out.empty() ? "" : "|") + (b.Visible ? b.Caption + (b.Value ? "*" : "") + (b.Enabled ? "" : "-") : "hidden");
  return out;
}

class ChCoFormTest : public ::testing::Test {
 protected:
  ContestState state;
  bool cancelled = true;  // left over from an earlier dialog
  ChCoForm form{state, cancelled};
  void Select(int contest) { form.List1_Click(ChCoForm::PositionOfContest(contest)); }
};

TEST_F(ChCoFormTest, ListOrderAndOpeningState) {
  const int order[] = {AllAsian, Ten, ArrlDx, Cqp, Cqww, CwOpen, Naqp, Neqp, Paqp, Sprint, Sweepstakes, Wpx, Generic};
  for (int p = 0; p < ContestCount; ++p) {
    EXPECT_EQ(ChCoForm::ContestAtPosition(p), order[p]) << p;
    EXPECT_EQ(ChCoForm::PositionOfContest(order[p]), p);
  }
  EXPECT_FALSE(cancelled);
  EXPECT_EQ(std::tuple(form.List1.Items.size(), form.List1.ListIndex, form.ComboQTH.ListIndex), std::tuple(13u, 3, 3));
  EXPECT_EQ(form.ComboQTH.Items.at(3), "NA");
}

TEST_F(ChCoFormTest, FramesPerContest) {
  // Each frame: its caption, then its options; empty when the frame is hidden.
  struct Row { int contest; std::string frame1, frame2; bool combo; };
  const std::string mode = "   Mode    Phone|  CW*";
  const Row rows[] = {
      {AllAsian, mode, "", false},  {Sprint, mode, "", false},
      {Cqp, "   Location    In California| Out of State*", "", false},
      {Neqp, "   Location    In N.E.-| Out of N.E.*", "", false},
      {Paqp, "   Location    In PA-| Out of State*", "", false},
      {ArrlDx, mode, " QTH  US/VE*| DX|hidden", false},
      {Cqww, mode, " QTH  USA*| VE|", true}, {Wpx, mode, " QTH  USA*| VE|", true},
      {CwOpen, "   Mode    Phone-|  CW*", " Contest Hours  1200-1559Z| 2000-2359Z| 0400-0759Z*", false},
      {Ten, "", "", false},         {Generic, "", "", false}};
  for (const Row& r : rows) {
    Select(r.contest);
    EXPECT_EQ(form.Frame1.Visible ? form.Frame1.Caption + Options(form.ButtonMode) : "", r.frame1) << r.contest;
    EXPECT_EQ(form.Frame2.Visible ? form.Frame2.Caption + Options(form.ButtonQTH) : "", r.frame2) << r.contest;
    EXPECT_EQ(form.ComboQTH.Visible, r.combo) << r.contest;
  }
}

TEST_F(ChCoFormTest, ContinentListOnlyWhileThirdQthIsSelected) {
  Select(Cqww);
  EXPECT_FALSE(form.ComboQTH.Enabled);
  form.ComboQTH_Click(2);
  EXPECT_EQ(form.ComboQTH.ListIndex, 3);
  form.ButtonQTH_Click(2);
  EXPECT_TRUE(form.ComboQTH.Enabled);
  form.ComboQTH_Click(2);
  form.ButtonQTH_Click(1);
  EXPECT_FALSE(form.ComboQTH.Enabled);
  form.ButtonQTH_Click(2);
  form.ButtonMode_Click(0);
  form.CmdOK_Click();
  EXPECT_FALSE(form.Visible || state.StationInUSA || state.StationInCanada || state.ModeEnabled[2]);
  EXPECT_TRUE(state.ModeEnabled[1]);
  EXPECT_EQ(std::tuple(state.ContestIndex, state.StationContinent), std::tuple(Cqww, "EU"));
}

TEST_F(ChCoFormTest, OkCopiesTheShownChoices) {
  auto ok = [this](int contest, auto clicks) {
    Select(contest);
    clicks();
    form.CmdOK_Click();
  };
  ok(Wpx, [&] { form.ButtonQTH_Click(1); });
  EXPECT_EQ(state.ContestIndex, Wpx);
  EXPECT_TRUE(!state.StationInUSA && state.StationInCanada && state.ModeEnabled[2]);
  ok(ArrlDx, [&] { form.ButtonQTH_Click(1); });
  EXPECT_FALSE(state.IsUSVEStation);
  ok(ArrlDx, [] {});
  EXPECT_TRUE(state.IsUSVEStation);
  ok(Cqp, [&] { form.ButtonMode_Click(0); });
  EXPECT_TRUE(state.InState);
  ok(Neqp, [&] { form.ButtonMode_Click(0); });  // disabled: stays out of N.E.
  EXPECT_FALSE(state.InState);
  const int16_t hours[] = {1200, 2000, 400};
  for (int i = 0; i < 3; ++i) {
    ok(CwOpen, [&] { form.ButtonQTH_Click(i); form.ButtonMode_Click(0); });  // Phone is disabled
    EXPECT_EQ(state.CWOStartHour, hours[i]);
    EXPECT_TRUE(form.ButtonMode[1].Value);
  }
}

TEST_F(ChCoFormTest, ReselectingResetsTheButtonsAndCancelKeepsTheState) {
  Select(CwOpen);
  Select(ArrlDx);
  EXPECT_EQ(Options(form.ButtonQTH), " US/VE*| DX|hidden");
  EXPECT_FALSE(form.ButtonQTH[2].Value);
  form.ButtonQTH_Click(1);
  form.ButtonMode_Click(0);
  Select(Cqww);
  EXPECT_EQ(Options(form.ButtonMode) + Options(form.ButtonQTH), "  Phone|  CW* USA*| VE|");
  form.ButtonQTH_Click(2);
  Select(Wpx);
  EXPECT_FALSE(form.ComboQTH.Enabled);
  // Cancel changes nothing else.
  state.ContestIndex = Sweepstakes;
  state.ModeEnabled = {false, true, false};
  Select(AllAsian);
  form.ButtonMode_Click(1);
  form.CmdCancel_Click();
  EXPECT_TRUE(cancelled && !form.Visible && state.ModeEnabled[1] && !state.ModeEnabled[2]);
  EXPECT_EQ(state.ContestIndex, Sweepstakes);
}

}  // namespace
}  // namespace tarnix
