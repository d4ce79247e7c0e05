#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <sstream>
#include <string>

#include "TestFiles.h"
#include "config/CountrySeed.h"
#include "platform/FileStore.h"
#include "rules/Countries.h"

namespace tarnix {
namespace {

const std::string Comment = "' Country list: every header and prefix, without the whole-call (\"=\") entries\n";

TEST(CountrySeedFilter, DropsWholeCallEntriesAndKeepsTheRest) {
  EXPECT_EQ(MakeSeedCountryFile("Conway Reef:              32:  56:  OC:  -22.00:  -175.00:   -12.0:  3D2/c:\r\n"
                                "    =3D20CR,=3D2C,\r\n"
                                "    =3D2CR;\r\n"
                                "' a comment\r\n"
                                "Canada:                   05:  09:  NA:   44.35:    78.75:     5.0:  VE:\r\n"
                                "    CF,=VE2EM/M,VE,\r\n"
                                "    =VER20230502,VE3(4)[4],=4Y1CAO[4],=CY0S(1)[2],VY1(1)[2];\r\n"),
            Comment +
                "Conway Reef:              32:  56:  OC:  -22.00:  -175.00:   -12.0:  3D2/c:\n"
                "Canada:                   05:  09:  NA:   44.35:    78.75:     5.0:  VE:\n"
                "    CF,VE,VE3(4)[4],VY1(1)[2];\n");
  // A long list is broken after a "," and reads back entry for entry.
  std::string many = "Land:  1:  1:  EU:  0.00:  0.00:  0.0:  L:\n    ";
  for (int n = 0; n < 40; ++n) many += "L" + std::to_string(n) + "(14),=L" + std::to_string(n) + "X,";
  auto data = std::make_unique<CountryData>();
  ASSERT_TRUE(ReadCountryText(MakeSeedCountryFile(many + "LZ;\n"), "seed", *data).Ok);
  ASSERT_EQ(data->PrefixCount, 41);
  EXPECT_EQ(data->PrefixTable[1] + data->PrefixTable[40] + data->PrefixTable[41], "L0(14)*1L39(14)*1LZ*1");
}

// The package's list: every country, every prefix, no whole call, and within
// the bounds of the tables.
TEST(CountrySeedFilter, PackageListReadsBackWithinTheBounds) {
  std::string full = ReadFile(std::string(HamradioFilesDir) + "cty.dat");
  if (full.empty()) GTEST_SKIP() << "hamradio-files is not installed";
  int headers = 0;
  std::istringstream lines(full);
  for (std::string line; std::getline(lines, line);) headers += !line.empty() && line.back() == ':';
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
  TempFolder root;
  std::filesystem::create_directories(root.Path + "source");
  std::filesystem::create_directories(root.Path + "app");
  WriteFile(root.Path + "source/cty.dat", "Land:  1:  1:  EU:  0.00:  0.00:  0.0:  L:\n  L,=L1A;\n");
  WriteFile(root.Path + "source/MASTER.SCP", "K1ABC\nW1AW\n");
  const std::string app = root.Path + "app/", source = root.Path + "source";
  EXPECT_EQ(SeedCountryFile(app, source), std::nullopt);
  EXPECT_EQ(ReadFile(app + "cty.dat"), Comment + "Land:  1:  1:  EU:  0.00:  0.00:  0.0:  L:\n    L;\n");
  EXPECT_EQ(ReadFile(app + "master.scp"), "K1ABC\nW1AW\n");
  WriteFile(app + "cty.dat", "mine\n");
  std::filesystem::remove(app + "master.scp");
  EXPECT_EQ(SeedCountryFile(app, source), std::nullopt);
  EXPECT_EQ(ReadFile(app + "cty.dat") + ReadFile(app + "master.scp"), "mine\nK1ABC\nW1AW\n");
  std::filesystem::remove(app + "cty.dat");
  std::filesystem::remove(app + "master.scp");
  EXPECT_EQ(SeedCountryFile(app, root.Path + "nowhere"),
            "Can't read " + root.Path + "nowhere/cty.dat\nCan't read " + root.Path + "nowhere/MASTER.SCP");
  EXPECT_FALSE(std::filesystem::exists(app + "cty.dat") || std::filesystem::exists(app + "master.scp"));
}

}  // namespace
}  // namespace tarnix
