#include <gtest/gtest.h>

#include "core/Text.h"

namespace tarnix {
namespace {

TEST(Text, ValReadsTheNumberATextBeginsWith) {
  struct Row { const char* name; const char* text; double value; };
  const Row rows[] = {
      {"report and suffix", "599 K", 599}, {"no number", "K", 0},     {"empty", "", 0},
      {"negative", "-8", -8},              {"plus sign", "+5", 5},    {"fraction", "14025.5 kHz", 14025.5},
      {"leading blanks", "   12", 12},     {"bare sign", "-", 0},     {"fraction only", ".5", 0.5},
      {"letters first", "AB45", 0},        {"digits then letters", "45AB", 45}};
  for (const Row& r : rows) EXPECT_DOUBLE_EQ(Val(r.text), r.value) << r.name;
}

// Each row: what the function made of its input, then what it must make.
TEST(Text, TrimCasePaddingRemovalAndNumberTexts) {
  const std::pair<std::string, std::string> rows[] = {
      {Trim("  K3ZZZ  "), "K3ZZZ"},        {LTrim("  K3 ZZ  "), "K3 ZZ  "},    {RTrim("  K3 ZZ  "), "  K3 ZZ"},
      {Trim("     "), ""},                 {LTrim(""), ""},                    {UCase("k3zzz/p 5nn"), "K3ZZZ/P 5NN"},
      {PadRight("OH", 5), "OH   "},        {PadRight("OHIOX", 5), "OHIOX"},    {PadRight("OHIOXY", 5), "OHIOX"},
      {PadLeft("12", 4), "  12"},          {PadLeft("1234", 4), "1234"},       {PadLeft("12345", 4), "12345"},
      {RemoveChars("K3.ZZ?Z.", ".?"), "K3ZZZ"}, {RemoveChars("??", ".?"), ""}, {NumberText(12), " 12"},
      {NumberText(0), " 0"},               {NumberText(-3), "-3"},             {Grouped(0), "0"},
      {Grouped(999), "999"},               {Grouped(1000), "1,000"},           {Grouped(999999), "999,999"},
      {Grouped(1000000), "1,000,000"},     {Grouped(1234567), "1,234,567"},    {Grouped(-1234), "-1,234"},
      {Grouped(-999), "-999"}};
  for (const auto& [made, expected] : rows) EXPECT_EQ(made, expected);
  const std::pair<long, long> numbers[] = {{CharSum("K3ZZZ"), 75 + 51 + 90 + 90 + 90}, {CharSum(""), 0},
                                           {RoundEven(2.5), 2},   {RoundEven(3.5), 4},   {RoundEven(-2.5), -2},
                                           {RoundEven(2.51), 3},  {RoundEven(-8.0), -8}};
  for (const auto& [made, expected] : numbers) EXPECT_EQ(made, expected);
}

}  // namespace
}  // namespace tarnix
