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

TEST(Text, TrimAndCase) {
  EXPECT_EQ(Trim("  K3ZZZ  "), "K3ZZZ");
  EXPECT_EQ(LTrim("  K3 ZZ  "), "K3 ZZ  ");
  EXPECT_EQ(RTrim("  K3 ZZ  "), "  K3 ZZ");
  EXPECT_EQ(Trim("     "), "");
  EXPECT_EQ(LTrim(""), "");
  EXPECT_EQ(UCase("k3zzz/p 5nn"), "K3ZZZ/P 5NN");
}

TEST(Text, PaddingAtAndAroundTheWidth) {
  EXPECT_EQ(PadRight("OH", 5), "OH   ");
  EXPECT_EQ(PadRight("OHIOX", 5), "OHIOX");
  EXPECT_EQ(PadRight("OHIOXY", 5), "OHIOX");
  EXPECT_EQ(PadLeft("12", 4), "  12");
  EXPECT_EQ(PadLeft("1234", 4), "1234");
  EXPECT_EQ(PadLeft("12345", 4), "12345");
}

TEST(Text, NumberTextAndGrouping) {
  EXPECT_EQ(NumberText(12), " 12");
  EXPECT_EQ(NumberText(0), " 0");
  EXPECT_EQ(NumberText(-3), "-3");
  struct Row { long value; const char* text; };
  const Row rows[] = {{0, "0"},           {999, "999"},           {1000, "1,000"},
                      {999999, "999,999"}, {1000000, "1,000,000"}, {1234567, "1,234,567"},
                      {-1234, "-1,234"},   {-999, "-999"}};
  for (const Row& r : rows) EXPECT_EQ(Grouped(r.value), r.text) << r.value;
}

TEST(Text, RemoveCharsCharSumAndRounding) {
  EXPECT_EQ(RemoveChars("K3.ZZ?Z.", ".?"), "K3ZZZ");
  EXPECT_EQ(RemoveChars("??", ".?"), "");
  EXPECT_EQ(CharSum("K3ZZZ"), 75 + 51 + 90 + 90 + 90);
  EXPECT_EQ(CharSum(""), 0);
  EXPECT_EQ(RoundEven(2.5), 2);
  EXPECT_EQ(RoundEven(3.5), 4);
  EXPECT_EQ(RoundEven(-2.5), -2);
  EXPECT_EQ(RoundEven(2.51), 3);
  EXPECT_EQ(RoundEven(-8.0), -8);
}

}  // namespace
}  // namespace tarnix
