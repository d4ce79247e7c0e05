// Inputs the fuzz harnesses (fuzz/) once failed on, fed again through the
// same entry points, so that every fault fixed stays fixed in the normal
// build. tests/fuzz_regressions/HARNESS/NAME.bin is the input and NAME.out
// what the program must make of it (FuzzEntries.h: the message boxes' titles,
// whether the file was read or opened, the counts).
//
// The seed corpus of the harnesses, real files of each kind, goes through
// the same entries: each must be read or opened, with no broken promise.

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <string>
#include <vector>

#include "FuzzEntries.h"
#include "TestFiles.h"

namespace tarnix::fuzz {
namespace {

namespace fs = std::filesystem;

struct Case {
  std::string Harness;  // the folder's name
  fs::path Input;
  friend void PrintTo(const Case& c, std::ostream* out) { *out << c.Input.string(); }
};

// Every file of root/HARNESS/, but the expected results (".out"), sorted.
std::vector<Case> CasesUnder(const fs::path& root) {
  std::vector<Case> cases;
  std::error_code error;
  for (const auto& folder : fs::directory_iterator(root, error))
    if (folder.is_directory())
      for (const auto& file : fs::directory_iterator(folder.path()))
        if (file.is_regular_file() && file.path().extension() != ".out")
          cases.push_back({folder.path().filename().string(), file.path()});
  std::sort(cases.begin(), cases.end(), [](const Case& a, const Case& b) { return a.Input < b.Input; });
  return cases;
}

std::string CaseName(const ::testing::TestParamInfo<Case>& info) {
  std::string name = info.param.Harness + "_" + info.param.Input.stem().string();
  std::replace_if(name.begin(), name.end(), [](unsigned char c) { return !std::isalnum(c); }, '_');
  return name;
}

// The harness's outcome for the case's input, which must break no promise.
std::string SummaryOf(const Case& c) {
  const Harness* harness = HarnessNamed(c.Harness);
  if (!harness) {
    ADD_FAILURE() << "no harness " << c.Harness;
    return "";
  }
  Outcome outcome = harness->Run(ReadFile(c.Input));
  EXPECT_EQ(outcome.Fault, "");
  return outcome.Summary;
}

class FuzzRegression : public ::testing::TestWithParam<Case> {};

TEST_P(FuzzRegression, GivesTheKeptResult) {
  fs::path expected = GetParam().Input;
  expected.replace_extension(".out");
  ASSERT_TRUE(fs::exists(expected)) << expected << " is missing";
  EXPECT_EQ(SummaryOf(GetParam()), ReadFile(expected));
}

INSTANTIATE_TEST_SUITE_P(Inputs, FuzzRegression, ::testing::ValuesIn(CasesUnder(TARNIX_FUZZ_REGRESSIONS)), CaseName);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(FuzzRegression);

// What each reader says of a file it takes: the start of its summary, or for
// the exchanges and the keys a logged QSO.
bool Accepted(const std::string& harness, const std::string& summary) {
  if (harness == "log_file") return summary.find("log: named") != std::string::npos;
  if (harness == "exchange") return summary.find("logged\n") != std::string::npos;
  if (harness == "keys") return summary.find("QSOs ") != std::string::npos && !summary.ends_with("QSOs 0\n");
  return summary.starts_with("read");
}

class FuzzSeed : public ::testing::TestWithParam<Case> {};

TEST_P(FuzzSeed, IsReadWhole) {
  std::string summary = SummaryOf(GetParam());
  EXPECT_TRUE(Accepted(GetParam().Harness, summary)) << summary;
}

INSTANTIATE_TEST_SUITE_P(Corpus, FuzzSeed, ::testing::ValuesIn(CasesUnder(TARNIX_FUZZ_CORPUS)), CaseName);

TEST(FuzzSeedCorpus, EveryHarnessHasSeeds) {
  std::vector<Case> seeds = CasesUnder(TARNIX_FUZZ_CORPUS);
  for (const Harness& harness : Harnesses())
    EXPECT_TRUE(std::any_of(seeds.begin(), seeds.end(), [&](const Case& c) { return c.Harness == harness.Name; }))
        << harness.Name;
}

}  // namespace
}  // namespace tarnix::fuzz
