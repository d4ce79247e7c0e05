#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <sstream>
#include <string>

#include "config/CountrySeed.h"
#include "rules/Countries.h"

namespace tarnix {
namespace {

namespace fs = std::filesystem;

std::string ReadText(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

void WriteText(const fs::path& path, const std::string& text) { std::ofstream(path, std::ios::binary) << text; }

TEST(CountrySeedFilter, DropsWholeCallEntriesAndKeepsTheRest) {
  const std::string full =
      "Conway Reef:              32:  56:  OC:  -22.00:  -175.00:   -12.0:  3D2/c:\r\n"
      "    =3D20CR,=3D2C,\r\n"
      "    =3D2CR;\r\n"
      "' a comment\r\n"
      "Canada:                   05:  09:  NA:   44.35:    78.75:     5.0:  VE:\r\n"
      "    CF,=VE2EM/M,VE,\r\n"
      "    =VER20230502,VE3(4)[4],=4Y1CAO[4],=CY0S(1)[2],VY1(1)[2];\r\n";
  EXPECT_EQ(MakeSeedCountryFile(full),
            "' Country list: every header and prefix, without the whole-call (\"=\") entries\n"
            "Conway Reef:              32:  56:  OC:  -22.00:  -175.00:   -12.0:  3D2/c:\n"
            "Canada:                   05:  09:  NA:   44.35:    78.75:     5.0:  VE:\n"
            "    CF,VE,VE3(4)[4],VY1(1)[2];\n");

  // A long list is broken after a "," and reads back entry for entry.
  std::string many = "Land:  1:  1:  EU:  0.00:  0.00:  0.0:  L:\n    ";
  for (int n = 0; n < 40; ++n) many += "L" + std::to_string(n) + "(14),=L" + std::to_string(n) + "X,";
  many += "LZ;\n";
  std::string seeded = MakeSeedCountryFile(many);
  auto data = std::make_unique<CountryData>();
  ASSERT_TRUE(ReadCountryText(seeded, "seed", *data).Ok);
  ASSERT_EQ(data->PrefixCount, 41);
  EXPECT_EQ(data->PrefixTable[1] + data->PrefixTable[40] + data->PrefixTable[41], "L0(14)*1L39(14)*1LZ*1");
}

// The package's list: every country, every prefix, no whole call, and within
// the bounds of the tables.
TEST(CountrySeedFilter, PackageListReadsBackWithinTheBounds) {
  std::string full = ReadText(fs::path(HamradioFilesDir) / "cty.dat");
  if (full.empty()) GTEST_SKIP() << "hamradio-files is not installed";
  int headers = 0;
  std::istringstream lines(full);
  for (std::string line; std::getline(lines, line);)
    if (!line.empty() && line.back() == ':') ++headers;

  std::string seeded = MakeSeedCountryFile(full);
  EXPECT_EQ(seeded.find('=', seeded.find('\n')), std::string::npos);  // the comment line names "="
  auto data = std::make_unique<CountryData>();
  CountryFileResult result = ReadCountryText(seeded, "cty.dat", *data);
  ASSERT_TRUE(result.Ok) << result.Detail;
  EXPECT_EQ(data->CountryCount, headers);
  EXPECT_LE(data->PrefixCount, MaxPrefixEntries);
  // The first and the last entries of the USA's list of prefixes.
  EXPECT_EQ(data->CountryTable[data->CountryRowK].Name, "United States of America");
  std::string row = "*" + std::to_string(data->CountryRowK);
  int firstUsa = 0, lastUsa = 0;
  for (int i = 1; i <= data->PrefixCount; ++i)
    if (data->PrefixTable[i].ends_with(row)) (firstUsa ? lastUsa : firstUsa) = i;
  EXPECT_EQ(data->PrefixTable[firstUsa], "AA" + row);
  EXPECT_EQ(data->PrefixTable[lastUsa], "WZ9(4)[8]" + row);
}

TEST(CountrySeedFolder, WritesMissingFilesAndNeverReplacesTheOperatorsOwn) {
  fs::path root = fs::temp_directory_path() / ("tarnix-seed-" + std::to_string(::getpid()));
  fs::create_directories(root / "source");
  fs::create_directories(root / "app");
  WriteText(root / "source" / "cty.dat", "Land:  1:  1:  EU:  0.00:  0.00:  0.0:  L:\n  L,=L1A;\n");
  WriteText(root / "source" / "MASTER.SCP", "K1ABC\nW1AW\n");
  const std::string app = (root / "app").string() + "/", source = (root / "source").string();

  EXPECT_EQ(SeedCountryFile(app, source), std::nullopt);
  EXPECT_EQ(ReadText(root / "app" / "cty.dat"),
            "' Country list: every header and prefix, without the whole-call (\"=\") entries\n"
            "Land:  1:  1:  EU:  0.00:  0.00:  0.0:  L:\n    L;\n");
  EXPECT_EQ(ReadText(root / "app" / "master.scp"), "K1ABC\nW1AW\n");

  WriteText(root / "app" / "cty.dat", "mine\n");
  fs::remove(root / "app" / "master.scp");
  EXPECT_EQ(SeedCountryFile(app, source), std::nullopt);
  EXPECT_EQ(ReadText(root / "app" / "cty.dat") + ReadText(root / "app" / "master.scp"), "mine\nK1ABC\nW1AW\n");

  fs::remove(root / "app" / "cty.dat");
  fs::remove(root / "app" / "master.scp");
  EXPECT_EQ(SeedCountryFile(app, (root / "nowhere").string()),
            "Can't read " + (root / "nowhere" / "cty.dat").string() + "\nCan't read " +
                (root / "nowhere" / "MASTER.SCP").string());
  EXPECT_FALSE(fs::exists(root / "app" / "cty.dat") || fs::exists(root / "app" / "master.scp"));
  fs::remove_all(root);
}

}  // namespace
}  // namespace tarnix
