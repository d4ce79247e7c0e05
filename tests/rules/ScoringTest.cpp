// The score and the multiplier rules the entry form cannot reach: the claimed
// score of the tenths PAQP counts in, and All Asian's full prefix column.

#include <gtest/gtest.h>

#include "operating/Context.h"
#include "rules/Scoring.h"

namespace tarnix {
namespace {

// PAQP holds its points in tenths: the score is the points divided by ten,
// times the multipliers, rounded to the whole number as every number given
// to an integer is, a half to the even neighbour. Three CW QSOs of 1.5 and
// two phone QSOs of 1 are 65 tenths.
TEST(Scoring, ClaimedScoreAndPaqpTenths) {
  struct Row { int contest; int32_t points; int16_t mults; int32_t score; };
  for (const Row& row : {Row{Cqww, 22, 16, 352}, Row{Paqp, 60, 3, 18}, Row{Paqp, 15, 1, 2}, Row{Paqp, 25, 1, 2},
                         Row{Paqp, 65, 1, 6}, Row{Paqp, 65, 3, 20}, Row{Paqp, 65, 5, 32}, Row{Paqp, 35, 1, 4},
                         Row{Paqp, 0, 7, 0}})
    EXPECT_EQ(ClaimedScoreOf(row.contest, row.points, row.mults), row.score) << row.points << "x" << row.mults;
}

// The 151st prefix of a band finds no room in its column and counts as new
// every time.
TEST(Scoring, AllAsianFullBandCountsEveryNewPrefixAgain) {
  auto ctx = MakeContext("");
  ctx->Contest.ContestIndex = AllAsian;
  for (int row = 1; row <= PrefixRowsPerBand; ++row) ctx->Counters.PrefixTable150.At(row, 3) = "P" + std::to_string(row);
  ScoringState s{ctx->Contest, ctx->Data, ctx->Countries, ctx->Tables, ctx->Counters, ctx->Log};
  QsoRecord r;
  r.QBand = 3;
  EXPECT_FALSE(ScoreMultiplier(s, r, ReceivedFields{}, "P150", "").NewMult);
  EXPECT_TRUE(ScoreMultiplier(s, r, ReceivedFields{}, "JA1", "").NewMult);
  EXPECT_TRUE(ScoreMultiplier(s, r, ReceivedFields{}, "JA1", "").NewMult);
  r.QBand = 4;
  EXPECT_TRUE(ScoreMultiplier(s, r, ReceivedFields{}, "JA1", "").NewMult);
  EXPECT_FALSE(ScoreMultiplier(s, r, ReceivedFields{}, "JA1", "").NewMult);
}

}  // namespace
}  // namespace tarnix
