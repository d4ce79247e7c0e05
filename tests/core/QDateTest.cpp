#include <gtest/gtest.h>

#include "core/QDate.h"

namespace tarnix {
namespace {

TEST(QDate, EncodesByDecade) {
  struct Row { const char* name; CivilDate date; int16_t code; };
  const Row rows[] = {{"1990s", {1995, 1, 15}, 1155},       {"last of 1990s", {1999, 12, 31}, 12319},
                      {"2000s", {2005, 1, 15}, 21155},      {"first of 2000s", {2000, 1, 1}, 21010},
                      {"end of 2000s", {2009, 12, 31}, 32319}, {"2010s negated", {2015, 1, 15}, -21155},
                      {"first of 2010s", {2010, 1, 1}, -21010}, {"last of 2010s", {2019, 12, 31}, -32319},
                      {"2020s repeat 2000s", {2026, 11, 22}, 31226}, {"first of 2020s", {2020, 1, 1}, 21010}};
  for (const Row& r : rows) EXPECT_EQ(EncodeQDate(r.date), r.code) << r.name;
}

TEST(QDate, DayOffsetsFollowTheOwnMonthTable) {
  struct Row { const char* name; CivilDate today; int offset; int16_t code; };
  const Row rows[] = {
      {"same day", {2005, 6, 14}, 0, 26145},
      {"next day mid-month", {2005, 6, 14}, 1, 26155},
      {"month end to next month", {2010, 1, 31}, 1, -22010},
      {"April 30 to May 1", {2005, 4, 30}, 1, 25015},
      {"year end", {2009, 12, 31}, 1, -21010},
      {"Feb 28 2012 to Feb 29", {2012, 2, 28}, 1, -22292},
      {"Feb 29 2012 to Mar 1", {2012, 2, 29}, 1, -23012},
      {"Feb 28 2008 to Feb 29", {2008, 2, 28}, 1, 22298},
      {"Feb 28 2024 to Mar 1", {2024, 2, 28}, 1, 23014},
      {"Feb 28 2000 to Mar 1", {2000, 2, 28}, 1, 23010},
      {"previous day mid-month", {2005, 6, 14}, -1, 26135},
      {"Feb 2 to Feb 1", {2005, 2, 2}, -1, 22015},
      {"Mar 1 2024 to Feb 28", {2024, 3, 1}, -1, 22284},
      {"Mar 1 2020 to Feb 28", {2020, 3, 1}, -1, 22280},
      {"Mar 1 2012 to Feb 29", {2012, 3, 1}, -1, -22292},
      {"Mar 1 2016 to Feb 29", {2016, 3, 1}, -1, -22296},
      {"May 1 to Apr 30", {2005, 5, 1}, -1, 24305},
      {"Jan 1 2010 to Dec 31 2009", {2010, 1, 1}, -1, 32319},
      {"Jan 1 2000 to Dec 31 1999", {2000, 1, 1}, -1, 12319}};
  for (const Row& r : rows) EXPECT_EQ(GetGMTDate(r.today, r.offset), r.code) << r.name;
}

TEST(QDate, DateTextReadsTheDecadeFromSignAndFirstDigitAndTimeTextHasFourDigits) {
  struct Row { int16_t code; const char* text; };
  const Row rows[] = {{1155, "01/15/95"},   {1010, "01/01/90"},   {12015, "12/01/95"}, {12319, "12/31/99"},
                      {21155, "01/15/05"},  {32319, "12/31/09"},  {31226, "11/22/06"}, {-21155, "01/15/15"},
                      {-32319, "12/31/19"}, {-21010, "01/01/10"}};
  for (const Row& r : rows) EXPECT_EQ(QDateText(r.code), r.text) << r.code;
  const Row times[] = {{5, "0005"}, {0, "0000"}, {59, "0059"}, {100, "0100"}, {2359, "2359"}};
  for (const Row& r : times) EXPECT_EQ(QTimeText(r.code), r.text) << r.code;
}

}  // namespace
}  // namespace tarnix
