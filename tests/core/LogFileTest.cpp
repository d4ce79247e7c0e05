// The log file's header, how it sets the contest, and the conversions of old
// logs, byte for byte.

#include <gtest/gtest.h>

#include "core/LogFile.h"

namespace tarnix {
namespace {

// The 26 header bytes of a new log: wide flag 1, blanks, the code and digit.
std::string HeaderBytes(const std::string& contest5, char qth, int16_t wide = 1) {
  std::string b(4, '\0');
  b += static_cast<char>(wide & 0xFF);
  b += static_cast<char>((wide >> 8) & 0xFF);
  b += std::string(10, ' ');
  b += std::string(4, '\0');
  b += contest5;
  b += qth;
  return b;
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
    EXPECT_EQ(read.ContestIndex, row.state.ContestIndex) << row.name;
    EXPECT_EQ(read.StationContinent, row.state.StationContinent) << row.name;
    EXPECT_EQ(read.StationInUSA, row.state.StationInUSA) << row.name;
    if (!IsMixedModeContest(row.state.ContestIndex)) {
      EXPECT_EQ(read.ModeEnabled, row.state.ModeEnabled) << row.name;
    }
  }
}

TEST(LogHeader, ReadingOldAndForeignHeaders) {
  auto read = [](const std::string& bytes, ContestState& s, bool& wide) {
    return ReadHeader(DecodeHeader(std::span(bytes.data(), bytes.size())), s, wide);
  };
  ContestState s;
  bool wide = true;

  // WPX logs of 6.5 and earlier: "0" is USA, "1" Canada, anything else USA.
  for (auto [digit, usa] : {std::pair{'0', true}, {'1', false}, {'X', true}}) {
    s = {};
    HeaderReading r = read(HeaderBytes("WPXCW", digit, 0), s, wide);
    EXPECT_TRUE(r.ConvertWpx) << digit;
    EXPECT_FALSE(wide);
    EXPECT_EQ(s.StationInUSA, usa) << digit;
    EXPECT_EQ(s.StationInCanada, !usa) << digit;
  }
  s = {};
  EXPECT_FALSE(read(HeaderBytes("WPXCW", '5'), s, wide).ConvertWpx);
  EXPECT_EQ(s.StationContinent, "AS");

  s = {};
  EXPECT_TRUE(read(HeaderBytes("SS CW", ' ', 0), s, wide).ConvertOldSweepstakes);
  s = {};
  EXPECT_FALSE(read(HeaderBytes("SS9SB", ' '), s, wide).ConvertOldSweepstakes);
  EXPECT_EQ(s.SSYear, 97);
  EXPECT_TRUE(s.ModeEnabled[1]);

  s = {};
  EXPECT_TRUE(read(HeaderBytes("CQP  ", ' '), s, wide).AskCqpLocation);
  // PAQP and NEQP keep InState whatever the suffix says.
  s = {};
  s.InState = true;
  read(HeaderBytes("PAQOS", ' '), s, wide);
  EXPECT_TRUE(s.InState);

  // ARRL DX: anything but "2" is a USA or Canada station.
  s = {};
  read(HeaderBytes("ARLCW", '7'), s, wide);
  EXPECT_TRUE(s.IsUSVEStation);

  std::string incompatible = HeaderBytes("WW CW", '2');
  incompatible[16] = 1;
  s = {};
  EXPECT_TRUE(read(incompatible, s, wide).Incompatible);

  s = {};
  s.ContestIndex = Cqww;
  EXPECT_TRUE(read(HeaderBytes("ZZ CW", ' '), s, wide).UnknownContest);
  EXPECT_EQ(s.ContestIndex, Cqww);
  // A garbage header shorter than 26 bytes reads as blanks and zeros.
  EXPECT_TRUE(read(std::string("\x07\x01GE", 4), s, wide).UnknownContest);
}

TEST(LogHeader, RecordLengthByShape) {
  EXPECT_EQ(RecordLengthOf(true, Sprint), 60);
  EXPECT_EQ(RecordLengthOf(false, Sprint), 36);
  EXPECT_EQ(RecordLengthOf(false, Naqp), 36);
  EXPECT_EQ(RecordLengthOf(false, Generic), 36);
  EXPECT_EQ(RecordLengthOf(false, Cqww), 26);
}

// A 26-byte record: date, time, band, call, number, received, mult, points.
std::string OldRecord(const std::string& call, const std::string& mult5, int16_t number) {
  std::string b = {'\x45', '\x7a', '\x5e', '\x05', '\x03', '\x00'};  // 31301, 1374, 3
  b += (call + std::string(10, ' ')).substr(0, 10);
  b += static_cast<char>(number);
  b += '\0';
  b += "\x0a";  // received 10
  b += '\0';
  b += mult5;
  b += "2";
  return b;
}

TEST(OldLogConversion, WpxLogGetsLocationAndPrefixes) {
  std::string old = HeaderBytes("WPXCW", '1', 0) + OldRecord("K3ZZZ", "     ", 1) + OldRecord("W3LPL", "W3   ", 2) +
                    "xyz";  // a torn tail is not a record
  std::string converted = ConvertWpxLog(old, [](const std::string& call) { return call == "K3ZZZ" ? "K3" : "??"; });
  std::string expected = HeaderBytes("WPXCW", '3', 0) + OldRecord("K3ZZZ", "K3   ", 1) + OldRecord("W3LPL", "W3   ", 2);
  EXPECT_EQ(converted, expected);

  old[25] = '0';
  EXPECT_EQ(ConvertWpxLog(old, [](const std::string&) { return ""; })[25], '2');
}

TEST(OldLogConversion, SweepstakesSectionsRenumberedByYear) {
  auto log = [](const std::vector<std::string>& mults) {
    std::string b = HeaderBytes("SS CW", ' ', 0);
    int16_t n = 1;
    for (const std::string& m : mults) b += OldRecord("K3ZZZ", m, n++);
    return b;
  };
  // 1995 (77 sections): 1..10 stay, 11..69 move up one, 70..77 up two.
  std::string converted95 = ConvertOldSweepstakesLog(log({"A58 5", "A5810", "B7211", "Q9969", "Q9970", "A0177", "A0178"}), 95);
  std::string header95 = HeaderBytes("SS9CW", ' ', 0);
  EXPECT_EQ(converted95, header95 + OldRecord("K3ZZZ", "A58 5", 1) + OldRecord("K3ZZZ", "A5810", 2) +
                             OldRecord("K3ZZZ", "B7212", 3) + OldRecord("K3ZZZ", "Q9970", 4) +
                             OldRecord("K3ZZZ", "Q9972", 5) + OldRecord("K3ZZZ", "A0179", 6) +
                             OldRecord("K3ZZZ", "A01  ", 7));
  // 1996 (78 sections): 1..70 stay, 71..78 move up one.
  std::string converted96 = ConvertOldSweepstakesLog(log({"A5870", "A5871", "A5878", "A5879"}), 96);
  EXPECT_EQ(converted96, header95 + OldRecord("K3ZZZ", "A5870", 1) + OldRecord("K3ZZZ", "A5872", 2) +
                             OldRecord("K3ZZZ", "A5879", 3) + OldRecord("K3ZZZ", "A58  ", 4));
}

}  // namespace
}  // namespace tarnix
