// The log file's header, how it sets the contest, and the conversions of old
// logs, byte for byte.

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "core/LogFile.h"

namespace tarnix {
namespace {

// The 26 header bytes of a new log: wide flag 1, blanks, the code and digit.
std::string HeaderBytes(const std::string& contest5, char qth, int16_t wide = 1) {
  return std::string(4, '\0') + static_cast<char>(wide & 0xFF) + static_cast<char>((wide >> 8) & 0xFF) +
         std::string(10, ' ') + std::string(4, '\0') + contest5 + qth;
}

ContestState Chosen(int contest, bool cw = true) {
  ContestState s;
  s.ContestIndex = static_cast<int16_t>(contest);
  s.ModeEnabled[2] = cw;
  s.ModeEnabled[1] = !cw;
  return s;
}

TEST(LogHeader, NewLogHeaderForEveryKindOfContest) {
  struct Row {
    const char* name;
    ContestState state;
    std::string contest5;
    char qth;
  };
  auto with = [](ContestState s, auto change) {
    change(s);
    return s;
  };
  const Row rows[] = {
      {"ten", Chosen(Ten), "TEN  ", ' '},
      {"generic", Chosen(Generic), "GEN  ", ' '},
      {"cqp out of state", with(Chosen(Cqp), [](auto& s) { s.InState = false; }), "CQPOS", ' '},
      {"cqp in state", with(Chosen(Cqp), [](auto& s) { s.InState = true; }), "CQPIN", ' '},
      {"neqp", Chosen(Neqp), "NEQOS", ' '},
      {"paqp", Chosen(Paqp), "PAQOS", ' '},
      {"ss cw", Chosen(Sweepstakes), "SS9CW", ' '},
      {"sprint phone", Chosen(Sprint, false), "SP SB", ' '},
      {"naqp cw", Chosen(Naqp), "NA CW", ' '},
      {"all asian cw", Chosen(AllAsian), "AA CW", ' '},
      {"arrl dx usve", with(Chosen(ArrlDx), [](auto& s) { s.IsUSVEStation = true; }), "ARLCW", '1'},
      {"arrl dx dx phone", with(Chosen(ArrlDx, false), [](auto& s) { s.IsUSVEStation = false; }), "ARLSB", '2'},
      {"cqww usa", with(Chosen(Cqww), [](auto& s) { s.StationInUSA = true; }), "WW CW", '2'},
      {"cqww canada", with(Chosen(Cqww), [](auto& s) { s.StationInCanada = true; }), "WW CW", '3'},
      {"cqww europe", with(Chosen(Cqww), [](auto& s) { s.StationContinent = "EU"; }), "WW CW", '6'},
      {"wpx africa phone", with(Chosen(Wpx, false), [](auto& s) { s.StationContinent = "AF"; }), "WPXSB", '4'},
      {"wpx south america", with(Chosen(Wpx), [](auto& s) { s.StationContinent = "SA"; }), "WPXCW", '9'},
      {"cwo 1200", with(Chosen(CwOpen), [](auto& s) { s.CWOStartHour = 1200; }), "CWOCW", '1'},
      {"cwo 2000", with(Chosen(CwOpen), [](auto& s) { s.CWOStartHour = 2000; }), "CWOCW", '2'},
      {"cwo 400", with(Chosen(CwOpen), [](auto& s) { s.CWOStartHour = 400; }), "CWOCW", '3'},
  };
  for (const Row& row : rows) {
    auto bytes = EncodeHeader(MakeHeader(row.state));
    EXPECT_EQ(std::string(bytes.begin(), bytes.end()), HeaderBytes(row.contest5, row.qth)) << row.name;
    // Reading the header back gives the contest, mode and location chosen.
    ContestState read;
    bool wide = false;
    HeaderReading reading = ReadHeader(DecodeHeader(bytes), read, wide);
    EXPECT_TRUE(wide) << row.name;
    EXPECT_FALSE(reading.Incompatible || reading.UnknownContest || reading.ConvertWpx ||
                 reading.ConvertOldSweepstakes || reading.AskCqpLocation)
        << row.name;
    EXPECT_EQ(std::tuple(read.ContestIndex, read.StationContinent, read.StationInUSA),
              std::tuple(row.state.ContestIndex, row.state.StationContinent, row.state.StationInUSA))
        << row.name;
    if (!IsMixedModeContest(row.state.ContestIndex)) {
      EXPECT_EQ(read.ModeEnabled, row.state.ModeEnabled) << row.name;
    }
  }
}

TEST(LogHeader, ReadingOldAndForeignHeadersAndTheRecordLengthByShape) {
  ContestState s;
  bool wide = true;
  auto read = [&](const std::string& bytes, ContestState before = {}) {
    s = before;
    return ReadHeader(DecodeHeader(std::span(bytes.data(), bytes.size())), s, wide);
  };
  // WPX logs of 6.5 and earlier: "0" is USA, "1" Canada, anything else USA.
  for (auto [digit, usa] : {std::pair{'0', true}, {'1', false}, {'X', true}}) {
    EXPECT_TRUE(read(HeaderBytes("WPXCW", digit, 0)).ConvertWpx) << digit;
    EXPECT_FALSE(wide);
    EXPECT_EQ(s.StationInUSA, usa) << digit;
    EXPECT_EQ(s.StationInCanada, !usa) << digit;
  }
  EXPECT_FALSE(read(HeaderBytes("WPXCW", '5')).ConvertWpx);
  EXPECT_EQ(s.StationContinent, "AS");
  EXPECT_TRUE(read(HeaderBytes("SS CW", ' ', 0)).ConvertOldSweepstakes);
  EXPECT_FALSE(read(HeaderBytes("SS9SB", ' ')).ConvertOldSweepstakes);
  EXPECT_EQ(s.SSYear, 97);
  EXPECT_TRUE(s.ModeEnabled[1]);
  EXPECT_TRUE(read(HeaderBytes("CQP  ", ' ')).AskCqpLocation);
  // PAQP and NEQP keep InState whatever the suffix says.
  ContestState inState;
  inState.InState = true;
  read(HeaderBytes("PAQOS", ' '), inState);
  EXPECT_TRUE(s.InState);
  // ARRL DX: anything but "2" is a USA or Canada station.
  read(HeaderBytes("ARLCW", '7'));
  EXPECT_TRUE(s.IsUSVEStation);
  std::string incompatible = HeaderBytes("WW CW", '2');
  incompatible[16] = 1;
  EXPECT_TRUE(read(incompatible).Incompatible);
  ContestState cqww;
  cqww.ContestIndex = Cqww;
  EXPECT_TRUE(read(HeaderBytes("ZZ CW", ' '), cqww).UnknownContest);
  EXPECT_EQ(s.ContestIndex, Cqww);
  // A garbage header shorter than 26 bytes reads as blanks and zeros.
  EXPECT_TRUE(read(std::string("\x07\x01GE", 4), cqww).UnknownContest);
  for (auto [wideLog, contest, length] : {std::tuple{true, Sprint, 60}, {false, Sprint, 36}, {false, Naqp, 36},
                                         {false, Generic, 36}, {false, Cqww, 26}})
    EXPECT_EQ(RecordLengthOf(wideLog, contest), length) << contest;
}

// A 26-byte record: date 31301, time 1374, band 3, call, number, received 10,
// mult, points.
std::string OldRecord(const std::string& call, const std::string& mult5, int16_t number) {
  return std::string("\x45\x7a\x5e\x05\x03\x00", 6) + (call + std::string(10, ' ')).substr(0, 10) +
         static_cast<char>(number) + '\0' + "\x0a" + '\0' + mult5 + "2";
}

TEST(OldLogConversion, WpxLogGetsLocationAndPrefixes) {
  std::string old = HeaderBytes("WPXCW", '1', 0) + OldRecord("K3ZZZ", "     ", 1) + OldRecord("W3LPL", "W3   ", 2) +
                    "xyz";  // a torn tail is not a record
  std::string converted = ConvertWpxLog(old, [](const std::string& call) { return call == "K3ZZZ" ? "K3" : "??"; });
  EXPECT_EQ(converted, HeaderBytes("WPXCW", '3', 0) + OldRecord("K3ZZZ", "K3   ", 1) + OldRecord("W3LPL", "W3   ", 2));
  old[25] = '0';
  EXPECT_EQ(ConvertWpxLog(old, [](const std::string&) { return ""; })[25], '2');
}

TEST(OldLogConversion, SweepstakesSectionsRenumberedByYear) {
  auto log = [](const std::string& header, const std::vector<std::string>& mults) {
    std::string b = header;
    int16_t n = 1;
    for (const std::string& m : mults) b += OldRecord("K3ZZZ", m, n++);
    return b;
  };
  const std::string old = HeaderBytes("SS CW", ' ', 0), header95 = HeaderBytes("SS9CW", ' ', 0);
  // 1995 (77 sections): 1..10 stay, 11..69 move up one, 70..77 up two.
  EXPECT_EQ(ConvertOldSweepstakesLog(log(old, {"A58 5", "A5810", "B7211", "Q9969", "Q9970", "A0177", "A0178"}), 95),
            log(header95, {"A58 5", "A5810", "B7212", "Q9970", "Q9972", "A0179", "A01  "}));
  // 1996 (78 sections): 1..70 stay, 71..78 move up one.
  EXPECT_EQ(ConvertOldSweepstakesLog(log(old, {"A5870", "A5871", "A5878", "A5879"}), 96),
            log(header95, {"A5870", "A5872", "A5879", "A58  "}));
}

}  // namespace
}  // namespace tarnix
