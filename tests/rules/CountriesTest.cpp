#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "TestFiles.h"
#include "config/CountrySeed.h"
#include "core/Text.h"
#include "rules/Countries.h"

namespace tarnix {
namespace {

// One case of each rule. "ZZ" stands before any header; Hawaii's line has no
// ";" at its end.
const char* const kSmallList =
    "' made for the resolver tests\n"
    "ZZ;\n"
    "Alpha Land:               05:  08:  NA:   37.60:    91.87:     5.0:  k:\n"
    "    K,N,W,AA,\n"
    "\n"
    "    K6(3)[6],K7[6],=K1ABC(4)[7],=K0XYZ/P;\n"
    "Guantanamo Bay:           08:  11:  NA:   20.00:    75.00:     5.0:  KG4:\n"
    "    KG4;\n"
    "Hawaii:                   31:  61:  OC:   21.12:   157.48:    10.0:  KH6:\n"
    "    KH6,K6B\n"
    "Italy:                    15:  28:  EU:   42.82:   -12.58:    -1.0:  I:\n"
    "    I,IT;\n"
    "Sicily:                   15:  28:  EU:   37.50:   -14.00:    -1.0:  *IT9:\n"
    "    IT,IT9;\n";

std::unique_ptr<CountryData> Read(const std::string& text, CountryFileResult& result) {
  auto data = std::make_unique<CountryData>();
  result = ReadCountryText(text, "test.dat", *data);
  return data;
}

// "row|LookupZone|call as the lookup left it"
std::string Find(CountryData& data, std::string call, int contestIndex = Cqww) {
  ContestState contest;
  contest.ContestIndex = static_cast<int16_t>(contestIndex);
  int row = FindCountry(data, contest, call);
  return std::to_string(row) + "|" + std::to_string(data.LookupZone) + "|" + call;
}

// The lookup as a plain scan of the entries in file order, each taken apart
// the way the scan reads it, to hold the indexed lookup to.
struct ReferenceEntry {
  std::string Pattern;
  int Row = 0, Zone = 0;
  bool ExactOnly = false;
};

std::vector<ReferenceEntry> ReferenceEntries(const CountryData& data, bool arrlDx) {
  std::vector<ReferenceEntry> entries;
  for (int i = 1; i <= data.PrefixCount; ++i) {
    const std::string& text = data.PrefixTable[i];
    ReferenceEntry e{text.substr(0, text.find('*')), static_cast<int>(Val(text.substr(text.find('*') + 1)))};
    if (arrlDx && data.CountryTable[e.Row].Prefix.rfind('*', 0) == 0) continue;
    e.Pattern = e.Pattern.substr(0, e.Pattern.find('['));
    if (std::size_t paren = e.Pattern.find('('); paren != std::string::npos) {
      e.Zone = static_cast<int>(Val(e.Pattern.substr(paren + 1, 2)));
      e.Pattern.resize(paren);
    }
    if (std::size_t equals = e.Pattern.find('='); equals != std::string::npos)
      e.Pattern = e.Pattern.substr(equals + 1), e.ExactOnly = true;
    entries.push_back(e);
  }
  return entries;
}

std::string ReferenceFind(const CountryData& data, const std::vector<ReferenceEntry>& entries, std::string call) {
  int row = 0, zone = 0;
  for (int pass = 1;; ++pass) {
    std::size_t length = call.size(), best = 0;
    bool exact = false;
    row = zone = 0;
    for (const ReferenceEntry *e = entries.data(), *end = e + entries.size(); e != end && !exact; ++e) {
      std::size_t m = e->Pattern.size();
      exact = m == length && std::memcmp(e->Pattern.data(), call.data(), m) == 0;
      if (exact || (length > m && m > best && !e->ExactOnly && std::memcmp(e->Pattern.data(), call.data(), m) == 0))
        row = e->Row, zone = e->Zone, best = m;
    }
    if (exact || call.find('/') == std::string::npos || pass == 2) break;
    call = GetWPXPrefix(call);
  }
  if (call.compare(0, 3, "KG4") == 0) {
    if (call.size() == 5) zone = 8;
    else row = data.CountryRowK, zone = 5;
  }
  return std::to_string(row) + "|" + std::to_string(zone) + "|" + call;
}

TEST(CountriesReader, FillsBothTablesFromHeadersAndContinuedPrefixLines) {
  CountryFileResult result;
  auto data = Read(kSmallList, result);
  ASSERT_TRUE(result.Ok) << result.Detail;
  EXPECT_EQ(data->CountryCount, 5);
  const CountryRecord& alpha = data->CountryTable[1];
  EXPECT_EQ(alpha.Name + "|" + alpha.Zone + "|" + alpha.Continent + "|" + alpha.Prefix + "|" +
                data->CountryTable[5].Prefix, "Alpha Land|05|NA|K|*IT9");
  EXPECT_FLOAT_EQ(alpha.Latitude, 37.60f);
  EXPECT_FLOAT_EQ(alpha.Longitude, -91.87f);
  std::vector<std::string> entries(data->PrefixTable.begin() + 1, data->PrefixTable.begin() + 1 + data->PrefixCount);
  EXPECT_EQ(entries, (std::vector<std::string>{"ZZ*", "K*1", "N*1", "W*1", "AA*1", "K6(3)[6]*1", "K7[6]*1",
                                               "=K1ABC(4)[7]*1", "=K0XYZ/P*1", "KG4*2", "KH6*3", "K6B*3", "I*4",
                                               "IT*4", "IT*5", "IT9*5"}));
  EXPECT_EQ(std::vector<int>({data->CountryRowK, data->CountryRowVE, data->CountryRowKH6, data->CountryRowKL}),
            std::vector<int>({1, 0, 3, 0}));
}

TEST(CountriesReader, DamagedOrOversizedFilesStopWithTheMessageAndKeepWhatWasRead) {
  const std::string message =
      "Can't find or read country file cty.dat.  This is not a fatal error unless you are using a contest that "
      "requires it.  Make sure it is in the same drive/directory used to start program.";
  auto data = std::make_unique<CountryData>();
  CountryFileResult result = ReadCountryFile("/nonexistent/cty.dat", *data);
  EXPECT_FALSE(result.Ok);
  EXPECT_EQ(result.Message, message);
  data = Read(std::string(kSmallList) + "Broken Land:  05:  08:\n  BL;\n", result);
  EXPECT_EQ(result.Message, message);
  EXPECT_EQ(result.Detail.rfind("test.dat, line 15: ", 0), 0u) << result.Detail;
  EXPECT_EQ(std::tuple(data->CountryCount, data->CountryRowK), std::tuple(5, 0));
  EXPECT_EQ(Find(*data, "K6BA"), "3|0|K6BA");  // what was read is searchable
  std::string text;
  for (int n = 1; n <= 351; ++n) text += "Land " + std::to_string(n) + ": 1: 1: EU: 0: 0: 0: L:\n";
  data = Read(text, result);
  EXPECT_EQ(data->CountryCount, 350);
  EXPECT_EQ(result.Detail, "test.dat, line 351: more than 350 countries");
  text = "Land: 1: 1: EU: 0: 0: 0: L:\n";
  for (int n = 0; n < 10001; ++n) text += "P" + std::to_string(n) + ",\n";
  data = Read(text, result);
  EXPECT_FALSE(result.Ok);
  EXPECT_EQ(data->PrefixTable[data->PrefixCount], "P9999*1");
  // Control characters and stray separators make odd entries, not a fault.
  data = Read("X: 1: 1: EU: 0: 0: 0: X:\n\x01\x02,,;;\n\xff:x;\n", result);
  EXPECT_TRUE(result.Ok);
  EXPECT_EQ(data->PrefixTable[3] + data->PrefixTable[4], ";*1\xff:x*1");
}

TEST(CountriesFind, EveryRuleOnASmallList) {
  CountryFileResult result;
  auto data = Read(kSmallList, result);
  const std::tuple<const char*, int, const char*> cases[] = {
      {"K1ABC", Cqww, "1|4|K1ABC"},    // "=" entry with its zone
      {"K1ABCD", Cqww, "1|0|K1ABCD"},  // "=" needs the whole call
      {"K6XX", Cqww, "1|3|K6XX"},      // CQ zone override
      {"K7XX", Cqww, "1|0|K7XX"},      // ITU override ignored
      {"K6BXX", Cqww, "3|0|K6BXX"},    // longer beats the zone override
      {"KH6", Cqww, "3|0|KH6"},        // whole call on a plain entry
      {"IT1AB", Cqww, "4|0|IT1AB"},    // equal length: Italy's IT comes first
      {"IT9AB", Cqww, "5|0|IT9AB"},   {"IT9", Cqww, "5|0|IT9"},
      {"IT9AB", ArrlDx, "4|0|IT9AB"},  // "*" countries are not there in ARRL DX
      {"IT9", ArrlDx, "4|0|IT9"},
      {"ZZ1AB", Cqww, "0|0|ZZ1AB"},    // entry without a country
      {"9X1AB", Cqww, "0|0|9X1AB"},   {"", Cqww, "0|0|"},
      {"K3ZZZ/KH6", Cqww, "3|0|KH6"},  // second pass on the WPX prefix
      {"K0XYZ/P", Cqww, "1|0|K0XYZ/P"},  // listed whole: found on the first pass
      {"K/P", Cqww, "1|0|K/0"},        // one second pass only, though "K/0" holds a "/"
      {"K3ZZZ/P", Cqww, "1|0|K3"},    {"W6XYZ/7", Cqww, "1|0|W7"},  {"DL/K3ZZZ", Cqww, "0|0|DL0"},
      {"KG4AB", Cqww, "2|8|KG4AB"},   {"KG4ABC", Cqww, "1|5|KG4ABC"}, {"KG4A", Cqww, "1|5|KG4A"},
      {"KG4AB/P", Cqww, "1|5|KG4"}};
  for (auto [call, contest, expected] : cases) EXPECT_EQ(Find(*data, call, contest), expected) << call;
}

// The package's list, less its "=" entries, as a new program folder gets it.
class CountriesOnSeededList : public ::testing::Test {
 protected:
  void SetUp() override {
    std::string text = ReadFile(std::string(HamradioFilesDir) + "cty.dat");
    if (text.empty()) GTEST_SKIP() << "hamradio-files is not installed";
    ASSERT_TRUE(ReadCountryText(MakeSeedCountryFile(text), "cty.dat", *data).Ok);
  }
  std::string NameOf(const std::string& call, int contestIndex = Cqww) {
    std::string found = Find(*data, call, contestIndex);
    return data->CountryTable[static_cast<int>(Val(found))].Name + found.substr(found.find('|'));
  }
  std::unique_ptr<CountryData> data = std::make_unique<CountryData>();
};

TEST_F(CountriesOnSeededList, WellKnownCalls) {
  EXPECT_EQ(data->CountryTable[data->CountryRowK].Name + data->CountryTable[data->CountryRowVE].Name +
                data->CountryTable[data->CountryRowKH6].Name + data->CountryTable[data->CountryRowKL].Name,
            "United States of AmericaCanadaHawaiiAlaska");
  const std::pair<const char*, const char*> cases[] = {
      {"K3ZZZ", "United States of America|0|K3ZZZ"},  {"W6XYZ", "United States of America|3|W6XYZ"},
      {"AA0XX", "United States of America|4|AA0XX"},  {"K3ZZZ/P", "United States of America|0|K3"},
      {"K3ZZZ/KH6", "Hawaii|0|KH6"},                  {"KL7AA", "Alaska|0|KL7AA"},
      {"KG4AB", "Guantanamo Bay|8|KG4AB"},            {"KG4ABC", "United States of America|5|KG4ABC"},
      {"VE2ABC", "Canada|0|VE2ABC"},                  {"VE3XYZ", "Canada|4|VE3XYZ"},
      {"VY1AA", "Canada|1|VY1AA"},                    {"DL1ABC", "Fed. Rep. of Germany|0|DL1ABC"},
      {"JA1XYZ", "Japan|0|JA1XYZ"},                   {"C6AXX", "Bahamas|0|C6AXX"},
      {"R0AAA", "Asiatic Russia|18|R0AAA"},           {"IT9ABC", "Sicily|0|IT9ABC"}};
  for (auto [call, expected] : cases) EXPECT_EQ(NameOf(call), expected);
  EXPECT_EQ(NameOf("IT9ABC", ArrlDx), "Italy|0|IT9ABC");
}

// The index answers as the plain scan does, on calls made from the list's
// patterns: whole, longer, shorter and with slashes.
TEST_F(CountriesOnSeededList, IndexedLookupEqualsThePlainScan) {
  std::vector<std::string> calls = {"", "K", "KG4", "KG4AB/P", "3D2XY/P", "C6A/K3ZZZ", "K3ZZZ/3", "DL/OH2XX"};
  for (int i = 1; i <= data->PrefixCount; i += 8) {
    std::string p = data->PrefixTable[i].substr(0, data->PrefixTable[i].find_first_of("([*"));
    calls.insert(calls.end(), {p, p + "1AB", p + "ZZ", p.substr(0, p.size() - 1), "K3ZZZ/" + p, p + "9Q/P", p + "/" + p});
  }
  for (int contest : {int{ArrlDx}, int{Cqww}}) {
    std::vector<ReferenceEntry> entries = ReferenceEntries(*data, contest == ArrlDx);
    for (const std::string& call : calls)
      ASSERT_EQ(Find(*data, call, contest), ReferenceFind(*data, entries, call)) << call;
  }
  EXPECT_GT(calls.size(), 5000u);
}

TEST(CountriesPrefixes, WpxPrefixOfEveryCallShapeNAZoneByCallAreaAndClassOfWorkedPrefix) {
  const std::pair<const char*, const char*> cases[] = {
      {"K3ZZZ", "K3"},      {"3D2XY", "3D2"},       {"ABCD", "AB0"},       {"K3ZZZ/P", "K3"},   {"K3ZZZ/KH6", "KH6"},
      {"VP2E/K3ZZZ", "VP2E"}, {"K3ZZZ/3", "K3"},    {"W6XYZ/3", "W3"},     {"K3ZZZ/MM", "K3"},  {"K3ZZZ/N", "K3"},
      {"MM/K3ZZZ", "K3"},   {"DL/K3ZZZ", "DL0"},    {"K3ZZZ/X", "X0"},     {"F/K3ZZZ", "F0"},   {"K3ZZZ/", "K3"},
      {"4XAB", "4X0"},      {"K", "K0"},            {"C6AXX", "C6"},       {"C6A/K3ZZZ", "C6"}, {"KH6XX/AM", "AM0"},
      {"K3ZZZ/VP2E", "VP2E"}, {"3/K1ABC", "3/K3"}};  // a digit in front also loses the last two characters
  for (auto [call, prefix] : cases) EXPECT_EQ(GetWPXPrefix(call), prefix) << call;
  const std::pair<const char*, int> zones[] = {
      {"VY1AA", 1}, {"VE8AA", 1}, {"VO2AA", 2}, {"VY2AA", 2}, {"VO1AA", 5}, {"VE3AA", 4}, {"VE7AA", 3}, {"XK9A", 5},
      {"K6AA", 3},  {"W1AW", 5},  {"N0AA", 4},  {"AA5B", 4},  {"AJ1A", 5},  {"K1", 5},    {"A1", 0},    {"AH6A", 0},
      {"KL7A", 0},  {"KP4A", 0},  {"DL1A", 0},  {"KABC", 0},  {"AM1A", 0}};
  for (auto [call, zone] : zones) EXPECT_EQ(GetNAZone(call), zone) << call;
  using enum NAClass;
  const std::pair<const char*, NAClass> classes[] = {
      {"K3", USA},       {"C6", OtherNA},  {"J7", OtherNA},  {"V5", None},     {"W", None},      {"AK0", USA},
      {"KG4", USA},      {"KL7", OtherNA}, {"KP4", OtherNA}, {"KH6", None},    {"6Y5", OtherNA}, {"XE1", OtherNA},
      {"XJ1", Canada},   {"VE3", Canada},  {"HU1", OtherNA}, {"J8A", OtherNA}, {"PJ7", OtherNA}, {"PJ4", None},
      {"VP9", OtherNA},  {"VP8", None},    {"DL1", None}};
  for (auto [prefix, expected] : classes) EXPECT_EQ(ClassifyNAPrefix(prefix), expected) << prefix;
}

// From (0, 0) to points 10 degrees away each way; the file holds west
// longitude positive.
TEST(CountriesHeading, EveryQuadrantAndTheNameLine) {
  const char* const points[] = {"10: 0", "0: -10", "-10: 0", "0: 10", "10: -10", "-10: -10", "-10: 10", "10: 10",
                                "36.40: -138.38", "51.00: -10.00"};
  std::string text;
  for (const char* point : points) text += std::string("P: 1: 1: EU: ") + point + ": 0: P:\n";
  CountryFileResult result;
  auto data = Read(text, result);
  data->CountryTable[10].Name = "Fed. Rep. of Germany";
  Settings station;
  const int expected[] = {0, 0, 90, 180, 270, 44, 135, 225, 316};  // NE: atan(0.98481) is 44.56 degrees
  for (int row = 0; row <= 8; ++row) EXPECT_EQ(GetHeading(*data, station, row), expected[row]) << row;
  EXPECT_EQ(GetHeading(*data, station, 351), 999);
  station.StationLatitude = 41.71f;  // Newington, Connecticut
  station.StationLongitude = -72.73f;
  EXPECT_EQ(GetHeading(*data, station, 9), 336);  // Japan: h is -24.76
  EXPECT_EQ(NameHeadingLine(*data, station, 10), "Name: Fed. Rep. of Germany Hdg: 49");
  station.StationLatitude = 0;  // the cache is kept for the whole run
  EXPECT_EQ(NameHeadingLine(*data, station, 10), "Name: Fed. Rep. of Germany Hdg: 49");
  EXPECT_EQ(data->CountryTable[10].Heading, "49");
  data->CountryTable[5].Name = "United States of America";
  station.StationLongitude = 0;
  EXPECT_EQ(NameHeadingLine(*data, station, 5), "Name: United States of AmerHdg: 44");
  // A heading of 0 counts as not computed and follows the station.
  EXPECT_EQ(NameHeadingLine(*data, station, 1), "Name: P                    Hdg: 0");
  station.StationLongitude = -10;
  EXPECT_EQ(NameHeadingLine(*data, station, 1), "Name: P                    Hdg: 44");
}

}  // namespace
}  // namespace tarnix
