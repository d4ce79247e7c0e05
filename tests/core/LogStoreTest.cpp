#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <tuple>

#include "core/LogStore.h"

namespace tarnix {
namespace {

std::string Entries(const LogStore& log) {
  std::string out;
  for (int i = 1; i <= log.CallIndexCount; ++i) out += std::string(log.CallIndex.At(i).Text()) + " ";
  return out;
}

TEST(CallIndex, RepeatedCallsFollowTheirEarlierEntriesAndASearchInsertsNothing) {
  auto log = std::make_unique<LogStore>();
  // Added in this order; each row is the place the entry goes.
  const std::pair<const char*, int> added[] = {{"K3ZZZ05", 1}, {"W1AW03", 2}, {"K3ZZZ11", 2}, {"K3Z03", 1},
                                               {"AA1A01", 1},  {"K3ZZZ03", 5}, {"W1AW05", 7}};
  for (auto [key, place] : added) EXPECT_EQ(IndexFindCall(*log, key, false), place) << key;
  const std::string sorted = "AA1A01 K3Z03 K3ZZZ05 K3ZZZ11 K3ZZZ03 W1AW03 W1AW05 ";
  EXPECT_EQ(log->CallIndexCount, 7);
  EXPECT_EQ(Entries(*log), sorted);
  // A search finds whole calls and places partial ones.
  const std::pair<const char*, int> searched[] = {{"K3Z", 2}, {"K3ZZZ", 4}, {"W1AW", 6},  {"AA1A", 1},  {"K3ZZ", 3},
                                                  {"A", 1},   {"ZZ9", 8},   {"k3zzz", 8}, {"K3ZZZZ", 6}};
  for (auto [key, place] : searched) EXPECT_EQ(IndexFindCall(*log, key, true), place) << key;
  // A key equal to an entry's call is found, not inserted.
  EXPECT_EQ(IndexFindCall(*log, "W1AW", false), 6);
  EXPECT_EQ(Entries(*log), sorted);
}

TEST(LogStore, MinuteStampsCountContestDaysUpToEighteen) {
  auto log = std::make_unique<LogStore>();
  auto stamp = [&](int n, int date, int time) {
    log->LogRecords.At(n).QDate = static_cast<int16_t>(date);
    log->LogRecords.At(n).QTime = static_cast<int16_t>(time);
    StampQsoMinute(*log, n);
    return log->QsoMinute.At(n);
  };
  EXPECT_EQ(stamp(1, 21010, 0), 0);
  EXPECT_EQ(stamp(2, 21010, 2359), 1439);
  EXPECT_EQ(stamp(3, 21020, 1), 1441);
  EXPECT_EQ(stamp(4, 21020, 1230), 2190);
  EXPECT_EQ(log->ContestDay, 2);
  // Then one QSO on each of the dates Jan 3 .. Jan 21.
  for (int day = 3; day <= 21; ++day)
    EXPECT_EQ(stamp(day + 2, 21000 + 10 * day, 100), 60 + ((day < 18 ? day : 18) - 1) * 1440) << day;
  EXPECT_EQ(log->ContestDay, 18);
}

TEST(LogStore, ResetClearsCountersAndIndexAndTablesRefuseSubscriptsOutsideTheirBounds) {
  auto log = std::make_unique<LogStore>();
  IndexFindCall(*log, "K3ZZZ05", false);
  log->ContestDay = 4;
  log->QSOCount = 12;
  log->TotalQSOPoints = 30;
  log->TotalMults = 5;
  log->BandQSOs[3] = 11;
  log->BandPoints[24] = 2;
  log->BandMults[1] = 1;
  log->BandMinutes[9] = 7.5f;
  ResetLog(*log);
  EXPECT_EQ(std::tuple(log->ContestDay, log->QSOCount), std::tuple(1, 1));
  EXPECT_EQ(log->CallIndexCount + log->TotalQSOPoints + log->TotalMults, 0);
  EXPECT_EQ(log->BandQSOs[3] + log->BandPoints[24] + log->BandMults[1], 0);
  EXPECT_EQ(log->BandMinutes[9], 0.0f);
  EXPECT_NO_THROW(log->LogRecords.At(8000));
  EXPECT_NO_THROW(log->CallSum.At(7999));
  EXPECT_NO_THROW(log->LogRecordsMid.At(5000));
  try {
    log->LogRecords.At(8001);
    FAIL() << "QSO 8001 was accepted";
  } catch (const std::out_of_range& e) {
    EXPECT_STREQ(e.what(), "Subscript out of range");
  }
  EXPECT_THROW(log->CallSum.At(8000), std::out_of_range);
  EXPECT_THROW(log->LogRecordsMid.At(5001), std::out_of_range);
  EXPECT_THROW(log->LogRecords.At(-1), std::out_of_range);
}

}  // namespace
}  // namespace tarnix
