#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "TestFiles.h"
#include "config/AppPath.h"
#include "config/StartupData.h"
#include "core/Contest.h"
#include "rules/MultiplierTables.h"

namespace tarnix {
namespace {

// The element strings of the 42 CW characters, in the alphabet's order, from
// the international Morse table: 1 a dit, 3 a dash, then the word space and
// the short pause.
const std::vector<std::string> Morse = {
    "13",    "3111",  "3131",  "311",    "1",      "1131",  "331",    "1111",  "11",    "1333",  "313",
    "1311",  "33",    "31",    "333",    "1331",   "3313",  "131",    "111",   "3",     "113",   "1113",
    "133",   "3113",  "3133",  "3311",   "13333",  "11333", "11133",  "11113", "11111", "31111", "33111",
    "33311", "33331", "33333", "331133", "131313", "31131", "113311", "0",     "2"};

const std::string BandSection =
    "[Band Frequencies]\r\n28025,21025,14025,7025,3525,1825,50100,144100\r\n"
    "28400,21300,14250,7200,3800,1850,50150,144200\r\n24950,18130,10120,0,24903,18083,10110,0\r\n";

TEST(StartupData, ReadsSectionsAmongNotesInAnyOrderAndOneItemShortSwallowsTheNextName) {
  StartupData data;
  std::string text = "Notes before the first section are skipped.\n\n" + BandSection +
                     "a stray line\n   [CW Characters]  \n" + CrLfLines(Morse) + "\n[After] the last section\n";
  StartupDataResult result = ParseStartupData(text, "t.dat", data);
  ASSERT_TRUE(result.Ok) << result.Detail;
  EXPECT_EQ(std::vector<int>({data.BandFrequencies[3], data.BandFrequencies[19], data.BandFrequencies[23]}),
            std::vector<int>({14025, 10120, 10110}));
  EXPECT_EQ(data.CWCharacters[1] + "|" + data.CWCharacters[42], "13|2");
  EXPECT_EQ(data.MultList[1], "");  // a section the file lacks stays empty
  std::vector<std::string> short41(Morse.begin(), Morse.end() - 1);
  data = {};
  result = ParseStartupData("[CW Characters]\n" + CrLfLines(short41) + BandSection, "t.dat", data);
  ASSERT_TRUE(result.Ok) << result.Detail;
  EXPECT_EQ(data.CWCharacters[41] + "|" + data.CWCharacters[42], "0|[Band Frequencies]");
  // The frequencies were read as stray lines: that section was never seen.
  EXPECT_EQ(data.BandFrequencies, (std::array<int32_t, BandIndexCount + 1>{}));
  // Before a numeric section, the swallowed name is a bad number.
  result = ParseStartupData("[ARRL USVEMultOrder]\n1,2,3\n[CW Characters]\n" + CrLfLines(Morse), "t.dat", data);
  EXPECT_FALSE(result.Ok);
  EXPECT_EQ(result.Detail,
            "t.dat line 3: item 4 of 63 of [ARRL USVEMultOrder]: \"[CW Characters]\" is not a whole number "
            "from -32768 to 32767");
}

TEST(StartupData, ADamagedFileGivesTheCriticalMessageAndChangesNothing) {
  const std::string message =
      "Can't find or read startup file tarnix121.dat, and can't proceed without it. Make sure it is in the same "
      "drive/directory used to start program.";
  StartupData data;
  ASSERT_TRUE(ParseStartupData(BandSection, "t.dat", data).Ok);
  const StartupData before = data;
  const std::pair<std::string, std::string> cases[] = {
      {"[Band Frequencies]\n28025,21O25\n",
       "t.dat line 2: item 2 of 24 of [Band Frequencies]: \"21O25\" is not a whole number from -2147483648 to "
       "2147483647"},
      {"\n[SS X Coordinates]\n120, 32768\n",
       "t.dat line 3: item 2 of 80 of [SS X Coordinates]: \"32768\" is not a whole number from -32768 to 32767"},
      {"[CQP Y Coordinates]\n225,,450\n",
       "t.dat line 2: item 2 of 72 of [CQP Y Coordinates]: \"\" is not a whole number from -32768 to 32767"},
      {"[CW Characters]\n13,\"3111\n",
       "t.dat line 2: item 2 of 42 of [CW Characters]: its double quote is not closed on the line"},
      {"[CW Characters]\n\"13\"x\n",
       "t.dat line 2: item 1 of 42 of [CW Characters]: text follows its closing double quote"},
      {"[CW Characters]\n13,3111\n", "t.dat line 3: item 3 of 42 of [CW Characters]: the file ends before it"}};
  for (const auto& [text, detail] : cases) {
    StartupDataResult result = ParseStartupData(text, "t.dat", data);
    EXPECT_FALSE(result.Ok);
    EXPECT_EQ(result.Error, message);
    EXPECT_EQ(result.Detail, detail);
    EXPECT_EQ(data, before) << text;
  }
  StartupDataResult missing = ReadStartupFile("/nonexistent/tarnix121.dat", data);
  EXPECT_FALSE(missing.Ok);
  EXPECT_EQ(missing.Error, message);
  EXPECT_EQ(missing.Detail, "/nonexistent/tarnix121.dat: can't be opened (No such file or directory)");
}

TEST(StartupData, SplitsItemsIntoUpToThreeForms) {
  using Forms = std::array<std::string, 3>;
  const std::pair<const char*, Forms> rows[] = {{"ALA/ALAM/ALAMEDA/", {"ALA", "ALAM", "ALAMEDA"}},
                                                {"  SBER / SBD ", {"SBER", "SBD", "@"}}, {"KERN", {"KERN", "@", "@"}},
                                                {"A/B/C/D/", {"A", "B", "C"}}, {"A//B/", {"A", "", "B"}}};
  for (const auto& [item, forms] : rows) EXPECT_EQ(SplitMultItem(item), forms) << item;
}

class StartupDataShipped : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { Result = ReadStartupFile(ShippedDataDir() + "/tarnix121.dat", Data); }
  void SetUp() override { ASSERT_TRUE(Result.Ok) << Result.Detail; }
  static inline StartupData Data;
  static inline StartupDataResult Result;
};

TEST_F(StartupDataShipped, EverySectionIsReadWithItsExactCountAndTheNamedRows) {
  // A section one item short would have swallowed the next section's name
  // and left that section empty; one item long would shift its last item.
  auto filled = [](const auto& list) {
    return std::all_of(list.begin() + 1, list.end(), [](const std::string& s) { return !s.empty(); });
  };
  EXPECT_TRUE(filled(Data.MultList) && filled(Data.SSShortForms) && filled(Data.SprintMults) &&
              filled(Data.PAQPMults) && filled(Data.NEQPMults) && filled(Data.NAQPMults) && filled(Data.TenMults) &&
              filled(Data.ARRLMults) && filled(Data.CWCharacters));
  const std::pair<const std::string&, const char*> rows[] = {
      {Data.MultList[58], "NT/NWT/YT/"}, {Data.MultList[116], "YUBA"},     {Data.MultList[196], "NT/NWT/YT/"},
      {Data.SSShortForms[80], "NT"},     {Data.SprintMults[72], "FP"},    {Data.PAQPMults[67], "YOR/YORK/"},
      {Data.NEQPMults[67], "WNRVTWNR"},  {Data.NAQPMults[72], "DC"},      {Data.TenMults[65], "NU"},
      {Data.ARRLMults[63], "NU"},
      {Data.MultList[5], "CA"},              // CQP: every county QSO credits row 5
      {Data.SprintMults[11], "HI"},          // Sprint: KH6 is no North American multiplier
      {Data.MultList[59], "ALAM/ALAME/ALA/"}, {Data.MultList[116 + 16], "MDC/MD/DC/"}, {Data.SSShortForms[16], "MD"},
      {Data.NEQPMults[22], "WORMAWOR"}};     // Worcester County, MA
  for (const auto& [value, expected] : rows) EXPECT_EQ(value, expected);
  EXPECT_EQ(std::vector<std::string>(Data.CWCharacters.begin() + 1, Data.CWCharacters.end()), Morse);
  EXPECT_EQ(Data.BandFrequencies,
            (std::array<int32_t, BandIndexCount + 1>{0,     28025, 21025, 14025, 7025,  3525,  1825,  50100,  144100,
                                                     28400, 21300, 14250, 7200,  3800,  1850,  50150, 144200, 24950,
                                                     18130, 10120, 0,     24903, 18083, 10110, 0}));
  // The three lists drawn on the CQP map agree row for row on the 50 states.
  for (int row = 1; row <= 50; ++row) {
    EXPECT_EQ(SplitMultItem(Data.MultList[static_cast<std::size_t>(row)])[0], Data.SprintMults[row]) << row;
    EXPECT_EQ(Data.NAQPMults[row], Data.SprintMults[row]) << row;
  }
  // The ARRL grid prints rows by call area: area 1 as places 1 to 6, area 3
  // with DC as 9 to 12.
  std::vector<std::string> byOrder(ARRLMultRows + 1);
  for (int place = 1; place <= ARRLMultRows; ++place) {
    const ARRLOrderEntry& entry = Data.ARRLOrder[static_cast<std::size_t>(place)];
    ASSERT_EQ(entry.Place, place);
    ASSERT_TRUE(entry.Order >= 1 && entry.Order <= ARRLMultRows);
    byOrder[static_cast<std::size_t>(entry.Order)] = Data.ARRLMults[static_cast<std::size_t>(place)];
  }
  EXPECT_EQ(std::vector<std::string>(byOrder.begin() + 1, byOrder.begin() + 13),
            (std::vector<std::string>{"CT", "ME", "MA", "NH", "RI", "VT", "NJ", "NY", "DE", "DC", "MD", "PA"}));
  EXPECT_TRUE(std::none_of(byOrder.begin() + 1, byOrder.end(), [](const std::string& s) { return s.empty(); }));
}

TEST_F(StartupDataShipped, NoFormBelongsToTwoRowsAndNoMapSpotToTwoNames) {
  // The first matching row wins, so a form shared by two rows would credit
  // the wrong multiplier.
  auto distinctForms = [](int firstPlace, int rows, auto item) {
    std::set<std::string> seen;
    for (int row = 1; row <= rows; ++row)
      for (const std::string& form : SplitMultItem(item(firstPlace + row - 1)))
        if (form != "@" && !seen.insert(form).second) return form;
    return std::string();
  };
  auto fromMultList = [](int place) { return Data.MultList[static_cast<std::size_t>(place)]; };
  EXPECT_EQ(distinctForms(CQPStatePlace, CQPMultRows, fromMultList), "");
  // A California station's county table is searched first: no county form may hide a state.
  EXPECT_EQ(distinctForms(CQPStatePlace, 2 * CQPMultRows, fromMultList), "");
  EXPECT_EQ(distinctForms(SSSectionPlace, SSSectionRows, fromMultList), "");
  EXPECT_EQ(distinctForms(1, PAQPMultRows, [](int r) { return Data.PAQPMults[static_cast<std::size_t>(r)]; }), "");
  EXPECT_EQ(std::set<std::string>(Data.SSShortForms.begin() + 1, Data.SSShortForms.end()).size(), 80u);
  auto distinctSpots = [](const auto& xs, const auto& ys) {
    std::set<std::pair<int, int>> spots;
    for (std::size_t i = 1; i < xs.size(); ++i)
      if (xs[i] < 0 || xs[i] > 5400 || ys[i] < 0 || ys[i] > 3400 || !spots.insert({xs[i], ys[i]}).second) return false;
    return true;
  };
  EXPECT_TRUE(distinctSpots(Data.CQPMapX, Data.CQPMapY) && distinctSpots(Data.SSMapX, Data.SSMapY) &&
              distinctSpots(Data.TenMapX, Data.TenMapY) && distinctSpots(Data.ARRLMapX, Data.ARRLMapY));
}

TEST_F(StartupDataShipped, QuotedItemsKeepCommasAndBlanks) {
  std::string text = ReadFile(ShippedDataDir() + "/tarnix121.dat");
  // The first two counties of Pennsylvania on one line, the first quoted.
  std::size_t at = text.find("ADA/ADAMS/\r\nALL/ALLEG/\r\n");
  ASSERT_NE(at, std::string::npos);
  text.replace(at, 24, "  \"ADA, PA/ADAMS/ \" , ALL/ALLEG/\r\n");
  StartupData data;
  StartupDataResult result = ParseStartupData(text, "t.dat", data);
  ASSERT_TRUE(result.Ok) << result.Detail;
  EXPECT_EQ(data.PAQPMults[1] + "|" + data.PAQPMults[2] + "|" + data.PAQPMults[67],
            "ADA, PA/ADAMS/ |ALL/ALLEG/|YOR/YORK/");
  EXPECT_EQ(SplitMultItem(data.PAQPMults[1]), (std::array<std::string, 3>{"ADA, PA", "ADAMS", "@"}));
}

TEST_F(StartupDataShipped, TablesOfALogFollowTheContestAndTheStation) {
  MultiplierTables t;
  LoadMultiplierTables(Data, Cqp, true, t);
  EXPECT_EQ(t.CQPTable.At(5, 1) + t.CQPTable.At(5, 2) + t.CQPTable.At(5, 4), "CA@N");
  EXPECT_EQ(t.CQPCountyTable.At(1, 1) + t.CQPCountyTable.At(1, 2) + t.CQPCountyTable.At(1, 3), "ALAMALAMEALA");
  t.CQPTable.At(5, 4) = "Y";
  LoadMultiplierTables(Data, Cqp, false, t);
  EXPECT_EQ(t.CQPTable.At(1, 1) + t.CQPTable.At(5, 1) + t.CQPTable.At(5, 4), "ALAMCALAN");
  EXPECT_EQ(t.CQPCountyTable.At(1, 1), "");
  LoadMultiplierTables(Data, Sweepstakes, false, t);
  EXPECT_EQ(t.SSTable.At(16, 1) + "|" + t.SSTable.At(16, 2) + "|" + t.SSTable.At(16, 3) + "|" + t.SSTable.At(16, 4),
            "MDC|MD|DC|N");
  LoadMultiplierTables(Data, Paqp, true, t);
  EXPECT_EQ(t.PAQPTable.At(11, 1) + "|" + t.PAQPTable.At(11, 2) + "|" + t.PAQPTable.At(11, 3), "CMB|CAMBR|CAMB");
  LoadMultiplierTables(Data, Neqp, false, t);
  EXPECT_EQ(t.NEQPTable.At(22, 1) + "|" + t.NEQPTable.At(22, 2) + "|" + t.NEQPTable.At(22, 3), "WORMA|WOR|WORMAWOR");
  // Franklin is a county of three states: only the five-character form names it.
  EXPECT_EQ(t.NEQPTable.At(14, 1) + "|" + t.NEQPTable.At(14, 2) + "|" + t.NEQPTable.At(14, 4), "FRAMA|   |N");
  LoadMultiplierTables(Data, Naqp, false, t);
  EXPECT_EQ(t.NAQPTable.At(72, 1) + t.NAQPTable.At(72, 2) + t.NAQPTable.At(72, 15), "DCNN");
  EXPECT_THROW(t.NAQPTable.At(72, 16), std::out_of_range);
  EXPECT_THROW(t.NAQPTable.At(73, 1), std::out_of_range);
}

}  // namespace
}  // namespace tarnix
