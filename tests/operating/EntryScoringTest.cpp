// Points and multipliers of every contest as the operator logs them: each
// QSO's QPoints and QMult, the counters and the score, the labels that tell
// what a call or exchange is worth, and the same counters again when the log
// is opened from its file. The program starts for real, so the countries come
// from the seeded cty.dat and the tables from the shipped data file.
// Expected values are worked out from the contest rules: points by band and
// mode, and multiplier rows as the data file numbers them.

#include <sstream>

#include "operating/LoggerTest.h"

namespace tarnix {
namespace {

// A QSO on BandIndex band, and its record's "QPoints|QMult".
struct Entry {
  int band;
  const char* call;
  const char* exchange;
  const char* scored;
};

class EntryScoringTest : public StartedTest {
 protected:
  int saved = 0;

  void NewLog(int contest, int qth = -1, const char* continent = "", int location = -1) {
    StartedTest::NewLog(ContestChoice{contest, -1, location, qth, continent});
  }
  void Type(int band, const std::string& call) {
    ctx.Contest.BandIndex = static_cast<int16_t>(band);
    run.CheckCall(call);
  }
  void Log(const std::vector<Entry>& qsos) {
    for (const Entry& q : qsos) {
      SCOPED_TRACE(std::string(q.call) + " " + q.exchange);
      const int n = ctx.Log.QSOCount;
      ctx.Contest.BandIndex = static_cast<int16_t>(q.band);
      run.Enter(q.call, q.exchange);
      ASSERT_EQ(ctx.Log.QSOCount, n + 1);
      EXPECT_EQ(Qso(n).QPoints.Str() + "|" + Qso(n).QMult.Trimmed(), q.scored);
    }
  }
  // Points, multipliers, score, then band:QSOs/points/multipliers.
  std::string Totals() {
    const LogStore& log = ctx.Log;
    std::ostringstream o;
    o << log.TotalQSOPoints << " " << log.TotalMults << " " << log.ClaimedScore;
    for (std::size_t b = 1; b <= BandIndexCount; ++b)
      if (log.BandQSOs[b]) o << " " << b << ":" << log.BandQSOs[b] << "/" << log.BandPoints[b] << "/" << log.BandMults[b];
    return o.str();
  }
  // Every counter the rules keep, for the comparison of logging and replay.
  std::string Snapshot() {
    const ContestCounters& k = ctx.Counters;
    std::ostringstream o;
    o << Totals() << " ten " << k.TenCWMults << "/" << k.TenSSBMults << " modes " << k.CWQSOs << "/" << k.PhoneQSOs
      << " same " << k.SameContinentQSOs << " lists";
    for (const SortedList* list : {&k.WPXPrefixList, &k.CWOCallList})
      for (int i = 1; i <= list->Count; ++i) o << " " << list->Entries.At(i).Text();
    for (int b = 1; b <= BandIndexCount; ++b) {
      auto i = static_cast<std::size_t>(b);
      o << " b" << b << ":" << k.BandCountries[i] << "/" << k.BandZones[i] << "/" << k.BandAvgPoints[i];
      for (int row = 1; row <= MaxCountries; ++row)
        if (int n = k.CountryBandCount.At(row, b)) o << " c" << row << "=" << n;
      for (int zone = 1; zone <= MaxZones; ++zone)
        if (int n = k.ZoneBandCount.At(zone, b)) o << " z" << zone << "=" << n;
      for (int row = 1; row <= PrefixRowsPerBand && !k.PrefixTable150.At(row, b).empty(); ++row)
        o << " " << k.PrefixTable150.At(row, b);
    }
    for (std::size_t row = 1; row <= MaxCountries; ++row) o << " " << k.CWCountryCount[row] << k.SSBCountryCount[row];
    return o.str();
  }
  // Saves the log, opens it again and expects the replay to rebuild what
  // logging left, tables and labels included.
  void ExpectReplayEqual() {
    const std::string before = Snapshot(), score = form.ScoreLabel.Caption + form.MultsLabel.Caption;
    const MultiplierTables tables = ctx.Tables;
    const std::string path = home.Path + "log" + std::to_string(++saved) + ".TNX";
    run.SaveAs(path);
    desk.Boxes.Answers.push_back(MsgAnswer::Yes);  // open a different one
    EXPECT_TRUE(run.Open(path));
    EXPECT_EQ(Snapshot(), before);
    EXPECT_TRUE(ctx.Tables == tables);
    EXPECT_EQ(form.ScoreLabel.Caption + form.MultsLabel.Caption, score);
  }
  // NeedPfxLabel and LblWpxCountry once the call box is left.
  std::string Labels(int band, const std::string& call) {
    Type(band, call);
    const Label& need = form.NeedPfxLabel;
    std::string s = !need.Visible ? "hidden" : need.Caption + (need.ForeColor == ColourRed ? "|red" : "|blue");
    if (form.LblWpxCountry.Visible) s += "|" + form.LblWpxCountry.Caption;
    form.CancelButton_Click();
    return s;
  }
  // LabelNeededOn after the exchange is typed key by key.
  std::string NeededOn(int band, const std::string& call, const std::string& exchange) {
    Type(band, call);
    run.Type(exchange);
    std::string s = form.LabelNeededOn.Visible ? form.LabelNeededOn.Caption : "hidden";
    form.CancelButton_Click();
    return s;
  }
};

TEST_F(EntryScoringTest, CqwwFromTheUsaByPrefixClassCountryAndZonePerBand) {
  NewLog(Cqww, 0);
  Log({{3, "DL1ABC", "14", "3|DL"}, {3, "DL2XYZ", "14", "3|DL"}, {3, "JA1XYZ", "25", "3|JA"},
       {3, "VE3EJ", "4", "2|VE"},   {3, "K3ZZZ", "5", "0|K"},     {3, "XE1ABC", "6", "2|XE"},
       {4, "DL1ABC", "14", "3|DL"}, {3, "DL1ABC", "14", "0|DL"},  {3, "TA1ABC", "20", "3|TA1"},
       {3, "KH6ABC", "31", "3|KH6"}});
  EXPECT_EQ(Totals(), "22 16 352 3:9/19/14 4:1/3/2");
  EXPECT_EQ(ctx.Counters.BandCountries[3] * 100 + ctx.Counters.BandZones[3], 707);
  EXPECT_EQ(form.ScoreLabel.Caption + "|" + form.MultsLabel.Caption, "Score: 352|Mults:  16");
  EXPECT_EQ(Labels(3, "DL5ZZ"), "Country Ck\n     DL\n Worked|blue");
  EXPECT_EQ(Labels(2, "DL5ZZ"), "Country Ck\n     DL\n NEEDED|red");
  ExpectReplayEqual();
}

TEST_F(EntryScoringTest, WpxByContinentWithTheModEightBandsAndFromCanadaByPrefixClass) {
  NewLog(Wpx, 2, "NA");
  Log({{3, "DL1ABC", "1", "3|DL1"}, {3, "DL1XYZ", "2", "3|DL1"}, {4, "DL1ABC", "3", "6|DL1"},
       {4, "K3ZZZ", "4", "4|K3"},    {8, "VE3EJ", "5", "2|VE3"},   {3, "JA1XYZ", "6", "3|JA1"},
       {3, "JA1XYZ", "7", "0|JA1"},  {5, "W6XYZ/3", "8", "4|W3"}});
  EXPECT_EQ(Totals(), "25 5 125 3:4/9/2 4:2/10/1 5:1/4/1 8:1/2/1");
  EXPECT_EQ(ctx.Counters.SameContinentQSOs, 3);
  EXPECT_EQ(Labels(3, "JA1ZZ"), "Prefix Ck\n    JA1\n Worked|blue|Japan");
  EXPECT_EQ(Labels(3, "OH2BH"), "Prefix Ck\n    OH2\n NEEDED|red|Finland");
  ExpectReplayEqual();

  NewLog(Wpx, 1);
  Log({{3, "VE3EJ", "1", "1|VE3"}, {4, "K3ZZZ", "2", "4|K3"}, {3, "XE1ABC", "3", "2|XE1"}, {5, "DL1ABC", "4", "6|DL1"}});
  EXPECT_EQ(Totals(), "13 4 52 3:2/3/2 4:1/4/1 5:1/6/1");
  EXPECT_EQ(ctx.Counters.SameContinentQSOs, 1);
  ExpectReplayEqual();
}

TEST_F(EntryScoringTest, ArrlDxCountriesFromUsVeAndStatesWithNeededBandsFromDx) {
  NewLog(ArrlDx, 0);
  Log({{3, "DL1ABC", "100", "3|DL"}, {3, "DL2XYZ", "KW", "3|DL"},   {4, "DL1ABC", "100", "3|DL"},
       {3, "VE3EJ", "100", "0|VE"},  {3, "TA1ABC", "100", "3|TA"},  {3, "KH6ABC", "100", "3|KH6"},
       {3, "DL1ABC", "100", "0|DL"}});
  EXPECT_EQ(Totals(), "15 4 60 3:6/12/3 4:1/3/1");
  EXPECT_EQ(Labels(4, "DL5ZZ"), "Country Ck\n     DL\n Worked|blue");
  EXPECT_EQ(Labels(4, "TA2AA"), "Country Ck\n     TA\n NEEDED|red");
  ExpectReplayEqual();

  NewLog(ArrlDx, 1);
  Log({{3, "K3ZZZ", "PA", "3|PA"}, {3, "W1AW", "CT", "3|CT"}, {4, "K3ZZZ", "PA", "3|PA"},
       {3, "N3XX", "PA", "3|PA"},  {3, "K3ZZZ", "PA", "0|PA"}, {11, "K3ZZZ", "pa", "3|PA"}});
  EXPECT_EQ(Totals(), "15 4 60 3:4/9/2 4:1/3/1 11:1/3/1");
  EXPECT_EQ(NeededOn(3, "W3AA", "PA"), "PA needed on   10m 15m 80m 160");
  EXPECT_EQ(NeededOn(3, "W2AA", "NY"), "NY needed on   10m 15m [20m] 40m 80m 160");
  EXPECT_EQ(NeededOn(12, "W3AA", "PA"), "PA needed on   10m 15m [40m] 80m 160");
  EXPECT_EQ(NeededOn(3, "W3AA", "P") + NeededOn(3, "W3AA", "XX"), "hiddenhidden");
  ExpectReplayEqual();
}

TEST_F(EntryScoringTest, CaliforniaQsoPartyCountiesOnceCountyLineAndCaliforniaStation) {
  NewLog(Cqp);  // out of state: the counties are the multipliers
  Log({{3, "K6AW", "1 ALA", "3|1"},    {11, "K6AW", "2 ALAM", "2|1"}, {3, "N6XX", "3 SDG/", "0|37"},
       {3, "N6XX", "3 ORG", "3|30"},   {4, "K6AW", "6 SCLA", "3|43"}, {4, "K6AW", "8 SCLA", "0|43"}});
  EXPECT_EQ(Totals(), "11 4 44 3:3/6/3 4:2/3/1 11:1/2/0");
  EXPECT_EQ(ctx.Counters.CWQSOs * 10 + ctx.Counters.PhoneQSOs, 31);
  ExpectReplayEqual();

  NewLog(Cqp, -1, "", 0);  // in California: all counties are California
  Log({{3, "K6AW", "1 ALA", "3|ALAM"}});
  Log({{4, "N6XX", "2 ALA", "3|ALAM"}, {3, "W1AW", "3 CT", "3|7"},
       {11, "K3ZZZ", "4 MDC", "2|20"}, {3, "VE3EJ", "5 XYZ", "3|XYZ"},  {3, "K6ZZ", "6 SDG", "3|SDIE"}});
  EXPECT_EQ(Totals(), "17 3 51 3:4/12/2 4:1/3/0 11:1/2/1");
  ExpectReplayEqual();
}

TEST_F(EntryScoringTest, SprintSweepstakesAndNaqpTableRowsWithoutBandPoints) {
  NewLog(Sprint);
  Log({{3, "K3ZZZ", "12 ALAN PA", "1|38"}, {3, "W1AW", "5 JOE CT", "1|7"},  {4, "K3ZZZ", "13 ALAN PA", "1|38"},
       {4, "KH6XX", "14 BOB HI", "1|HI"},  {3, "K3ZZZ", "15 ALAN PA", "0|38"}, {5, "VE3EJ", "16 GEO ON", "1|53"}});
  EXPECT_EQ(Totals(), "5 3 15 3:3/0/2 4:2/0/0 5:1/0/1");
  ExpectReplayEqual();

  NewLog(Sweepstakes);
  Log({{3, "K3ZZZ", "123 A 58 EPA", "2|A58EP"}, {3, "N5DX", "12 B 59 LAX", "2|B59LX"},
       {4, "W1AW", "7 Q 61 EPA", "2|Q61EP"},    {4, "K3ZZZ", "124 A 58 EPA", "0|A58EP"}});
  EXPECT_EQ(Totals(), "6 2 12 3:2/0/2 4:2/0/0");
  ExpectReplayEqual();

  NewLog(Naqp);  // a multiplier per band
  Log({{3, "K3ZZZ", "ALAN PA", "1|38"}, {4, "K3ZZZ", "ALAN PA", "1|38"}, {3, "W1AW", "JOE CT", "1|7"},
       {3, "N3XX", "BOB PA", "1|38"},   {3, "DL1ABC", "HANS DL", "1|DL"}, {3, "K3ZZZ", "ALAN PA", "0|38"}});
  EXPECT_EQ(Totals(), "5 3 15 3:5/0/2 4:1/0/1");
  EXPECT_EQ(NeededOn(3, "W3AA", "JIM PA"), "PA needed on   10m 15m 80m 160");
  EXPECT_EQ(NeededOn(3, "W2AA", "JIM NY"), "NY needed on   10m 15m [20m] 40m 80m 160");
  EXPECT_EQ(NeededOn(3, "W2AA", "JIM"), "hidden");
  ExpectReplayEqual();
}

TEST_F(EntryScoringTest, PennsylvaniaTenthsAndNewEnglandByMode) {
  NewLog(Paqp);
  Log({{3, "K3ZZZ", "1 ALL", "3|2"}, {4, "W3AB", "2 ALLEG", "3|2"}, {5, "N3CD", "3 PHI", "2|51"},
       {11, "K3ZZZ", "4 BUC", "1|9"}, {3, "K3ZZZ", "5 ALL", "0|2"}});
  EXPECT_EQ(Totals(), "60 3 18 3:2/15/1 4:1/15/0 5:1/20/1 11:1/10/1");
  EXPECT_EQ(ctx.Counters.CWQSOs * 10 + ctx.Counters.PhoneQSOs, 41);  // a dupe's 0 counts as CW
  ExpectReplayEqual();

  NewLog(Neqp);
  Log({{3, "W1AW", "MIDCT", "2|4"}, {3, "K1AB", "fai", "2|1"}, {11, "K1CD", "MIDCT", "1|4"},
       {3, "W1AW", "MIDCT", "0|4"}, {4, "K1EF", "SUFMA", "2|21"}});
  EXPECT_EQ(Totals(), "7 3 21 3:3/4/2 4:1/2/1 11:1/1/0");
  EXPECT_EQ(ctx.Counters.CWQSOs * 10 + ctx.Counters.PhoneQSOs, 31);
  ExpectReplayEqual();
}

TEST_F(EntryScoringTest, TenMeterStatesAndCountriesPerMode) {
  NewLog(Ten);
  Log({{1, "K3ZZZ", "PA", "4|PA"},    {9, "K3ZZZ", "PA", "2|PA"},     {1, "W3ABC/T", "PA", "8|PA"},
       {1, "DL1ABC", "123", "4|DL"},  {9, "DL1ABC", "124", "2|DL"},   {1, "KH6ABC", "HI", "4|HI"},
       {1, "DL1ABC", "125", "0|DL"},  {9, "VE3EJ", "ON", "2|ON"}});
  EXPECT_EQ(Totals(), "26 6 156 1:5/20/1 9:3/6/1");
  const ContestCounters& k = ctx.Counters;
  EXPECT_EQ(k.TenCWMults * 1000 + k.TenSSBMults * 100 + k.CWQSOs * 10 + k.PhoneQSOs, 2234);
  EXPECT_EQ(Labels(1, "DL5ZZ"), "CW - Wkd\nPH - Wkd|blue|Fed. Rep. of Germany");
  EXPECT_EQ(Labels(1, "F5XYZ"), "CW - NEED\nPH - NEED|red|France");
  EXPECT_EQ(Labels(1, "KL7AA"), "|blue|");
  ExpectReplayEqual();
}

TEST_F(EntryScoringTest, GenericCountsCountriesByModeAndAllAsianPrefixesPerBand) {
  NewLog(Generic);
  Log({{3, "K3ZZZ", "599 PA", "2|"}, {11, "K3ZZZ", "59 PA", "1|"}, {3, "DL1ABC", "599", "2|"},
       {4, "DL1ABC", "599", "2|"},   {3, "KH6ABC", "599", "2|"},   {11, "JA1XYZ", "59", "1|"}});
  EXPECT_EQ(Totals(), "10 0 0 3:3/6/0 4:1/2/0 11:2/2/0");
  EXPECT_EQ(form.ScoreLabel.Caption + "|" + form.MultsLabel.Caption, " CW Cties: 3|SSB Cties: 2");
  EXPECT_EQ(Labels(3, "DL5ZZ"), "CW - Wkd\nPH - NEED|red|Fed. Rep. of Germany");
  EXPECT_EQ(Labels(3, "KH6XYZ"), "|blue|Hawaii");
  ExpectReplayEqual();

  NewLog(AllAsian);  // only Asian stations score
  Log({{3, "JA1ABC", "45", "1|JA1"}, {3, "JA1XYZ", "30", "1|JA1"}, {5, "JA1ABC", "45", "2|JA1"},
       {6, "UA9AA", "50", "3|UA9"},  {3, "DL1ABC", "40", "0|DL1"}, {3, "JA1ABC", "45", "0|JA1"}});
  EXPECT_EQ(Totals(), "7 4 28 3:4/2/2 5:1/2/1 6:1/3/1");
  EXPECT_EQ(Labels(3, "JA1ZZZ") + "/" + Labels(3, "BY1AA"), "Prefix Ck\n    JA1\n Worked|blue/Prefix Ck\n    BY1\n NEEDED|red");
  ExpectReplayEqual();
}

TEST_F(EntryScoringTest, CwOpenCountsDistinctCalls) {
  NewLog(CwOpen);
  Log({{3, "K3ZZZ", "1 ALAN", "1|"}, {4, "K3ZZZ", "2 ALAN", "1|"}, {3, "W1AW", "3 JOE", "1|"},
       {3, "K3ZZZ", "4 ALAN", "0|"}, {3, "N5DX", "5 BOB", "1|"}});
  EXPECT_EQ(Totals(), "4 3 12 3:4/3/0 4:1/1/0");
  ExpectReplayEqual();
}

}  // namespace
}  // namespace tarnix
