// The dupe check as the operator meets it on leaving the call box: the
// rule's answer, the portable note, the dupe line and the grid with the
// radios' colours, the match lists while typing, and Insert on a dupe.

#include "operating/LoggerTest.h"

namespace tarnix {
namespace {

class EntryDupesTest : public StartedTest {
 protected:
  void Band(int band) { ctx.Contest.BandIndex = static_cast<int16_t>(band); }
  std::string Grid() {
    std::string all = form.Modelabel.Visible ? form.Modelabel.Caption + "|" : "";
    for (const Label& cell : form.PrevQSO)
      if (cell.Visible) all += cell.Caption + "|";
    return all;
  }
};

TEST_F(EntryDupesTest, TheContestsRuleOnLeavingTheCallBox) {
  NewLog(Cqww);
  run.Enter("K3ZZZ", "5");
  EXPECT_TRUE(run.CheckCall("K3ZZZ").IsDupe);
  run.Key("Ctrl+Down");  // to 40m
  EXPECT_FALSE(run.CheckCall("K3ZZZ").IsDupe);
  NewLog(Sweepstakes);
  Band(5);
  run.Enter("K3ZZZ", "1 A 58 SCV");
  Band(3);
  const DupeResult& r = run.CheckCall("K3ZZZ");
  EXPECT_TRUE(r.IsDupe && !r.FoundOnBand && r.DupeQSO == 1);
  EXPECT_EQ(Grid(), "");
}

TEST_F(EntryDupesTest, PortableNoteAndTheTableRebuiltOnLoad) {
  NewLog(Cqww);
  run.Enter("K3ZZZ", "5");
  run.Enter("W1AW/P", "5");
  run.Key("Ctrl+Down");  // to 40m
  desk.Boxes.Shown.clear();
  for (const char* call : {"K3ZZZ/P", "W1AW"}) EXPECT_TRUE(run.CheckCall(call).PortableMatch) << call;
  ASSERT_EQ(desk.Boxes.Shown.size(), 2u);
  EXPECT_EQ(desk.Boxes.Shown[0].Icon, MsgIcon::Information);
  EXPECT_EQ(LastBox(), "This station is also in the log\nas a portable:  W1AW/P|Portable Station?");
  run.Key("Ctrl+Up");  // back on 20m, the band of the other form: a dupe, and nothing is asked
  EXPECT_TRUE(run.CheckCall("W1AW").IsDupe);
  EXPECT_EQ(desk.Boxes.Shown.size(), 2u);

  // The portable table goes with its log, and a load rebuilds it.
  run.SaveAs(home.Path + "ww.TNX");
  NewLog(Cqww);
  EXPECT_FALSE(run.CheckCall("W1AW").PortableMatch);
  desk.Boxes.Answers.push_back(MsgAnswer::No);  // the new log is not kept
  ASSERT_TRUE(run.Open(home.Path + "ww.TNX"));
  EXPECT_TRUE(run.CheckCall("W1AW").IsDupe && run.Dupes().PortableMatch);
}

TEST_F(EntryDupesTest, DupeLineGridColoursRedCallAndZeroPoints) {
  NewLog(Cqww);
  run.Enter("K3ZZZ", "5");
  Band(5);
  run.Enter("K3ZZZ", "5");
  ctx.Radio.RadioBand2 = 5;
  Band(3);
  run.CheckCall("K3ZZZ");
  EXPECT_EQ(form.lblDupe.Caption, "DUPE - 11/22/06  1405Z  My #1");
  EXPECT_TRUE(form.lblDupe.Visible && !form.lblCallsign.Visible && !form.lblExchange.Visible);
  EXPECT_EQ(form.InData[CallBox].ForeColor, 255);
  EXPECT_EQ(Grid(), " CW:|10m\n  --|15m\n  --|20m\n 1|40m\n  --|80m\n 2|160\n  --|");
  EXPECT_EQ(form.PrevQSO[3].ForeColor, ColourBlue);  // radio 1
  EXPECT_EQ(form.PrevQSO[5].ForeColor, ColourRed);   // radio 2
  EXPECT_EQ(form.PrevQSO[4].ForeColor, ColourBlack);

  run.Enter("K3ZZZ", "5");
  ASSERT_EQ(ctx.Log.QSOCount, 4);
  EXPECT_EQ(Qso(3).QPoints.Str(), "0");
  run.CheckCall("K3ZZZ");
  EXPECT_EQ(form.lblDupe.Caption, "DUPE - 11/22/06  1405Z  My #3");
  EXPECT_EQ(form.PrevQSO[3].Caption, "20m\n 3");
}

TEST_F(EntryDupesTest, MatchListsWhileTyping) {
  NewLog(Generic);
  run.Enter("K3ZZZ", "");
  Band(5);
  for (const char* call : {"K3ZZA", "K3ZZZ", "W1AW"}) run.Enter(call, "");
  Band(3);
  run.Type("K3Z");
  EXPECT_EQ(form.CallMatchLabel1.Caption + "|" + form.CallMatchLabel2.Caption,
            "This bd/md: K3ZZZ |Other bd/mds: K3ZZA K3ZZZ ");
  EXPECT_TRUE(form.CallMatchLabel1.Visible && form.CallMatchLabel2.Visible);
  EXPECT_EQ(form.CallMatchLabel2.ForeColor, ColourBlack);
  run.Put(CallBox, "W");  // Backspaces
  EXPECT_EQ(form.CallMatchLabel1.Caption + "|" + form.CallMatchLabel2.Caption, "|Other bd/mds: W1AW ");
  run.Put(CallBox, "");
  EXPECT_EQ(form.CallMatchLabel1.Caption + form.CallMatchLabel2.Caption, "");

  NewLog(Sweepstakes);
  run.Enter("K3ZZZ", "1 A 58 SCV");
  Band(4);
  run.Type("K3");
  EXPECT_EQ(form.CallMatchLabel2.Caption, "Other bands: K3ZZZ ");
  EXPECT_EQ(form.CallMatchLabel2.ForeColor, ColourRed);
}

TEST_F(EntryDupesTest, InsertOnADupeClearsTheEntryOnlyOnCw) {
  struct Row { const char* name; bool phone, flag; const char* call; bool cleared; };
  for (const Row& row : {Row{"CW dupe", false, true, "K3ZZZ", true}, Row{"CW not a dupe", false, true, "W1AW", false},
                         Row{"flag off", false, false, "K3ZZZ", false}, Row{"phone", true, true, "K3ZZZ", false}}) {
    NewLog(Cqww, row.phone);
    ctx.Config.DupeSendMsgFlag = row.flag;
    run.Enter("K3ZZZ", "5");
    run.Type(row.call);
    run.Key("Insert");
    EXPECT_EQ(form.InData[CallBox].Text.empty(), row.cleared) << row.name;
  }
}

TEST_F(EntryDupesTest, The81stPortableCallIsRefusedByTheTablesBound) {
  NewLog(Generic);
  for (int i = 0; i < PortableRows; ++i) run.Enter("K" + std::to_string(i) + "ZZ/P", "");
  ASSERT_EQ(ctx.Portables.PortableCount, PortableRows);
  run.Enter("K3ZZZ/M", "");
  EXPECT_EQ(ctx.Log.QSOCount, PortableRows + 1);
  EXPECT_EQ(LastBox(), "Subscript out of range|TARNIX");
}

}  // namespace
}  // namespace tarnix
