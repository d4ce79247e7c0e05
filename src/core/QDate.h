#pragma once
// The coded date of a QSO, QDate.
//
// A date fits a 16-bit integer as the decimal digits month, day, last digit of
// the year:
//   199Y:                MMDDY            (Jan 15 1995 -> 1155)
//   200Y and every later year whose tens digit is not 1:
//                        (MM+20)DDY       (Jan 15 2005 -> 21155)
//   201Y (tens digit 1): -(MM+20)DDY      (Jan 15 2015 -> -21155)
// From 2020 on the year digit repeats the 2000s: Nov 22 2026 codes as 31226,
// which reads back as 2006. Old logs depend on this coding, so it stays.

#include <cstdint>
#include <string>

namespace tarnix {

struct CivilDate {
  int Year = 0;
  int Month = 0;
  int Day = 0;
};

int16_t EncodeQDate(const CivilDate& date);

// The coded date of `today` moved by dayOffset (-1, 0 or +1), by the program's
// own month table: February has 29 days only in 2004, 2008, 2012 and 2016,
// the only leap years it knows. Offset +1 from a month's last day gives day 1
// of the next month (December 31 gives January 1 of the next year); offset -1
// from day 1 gives the last day of the previous month.
int16_t GetGMTDate(const CivilDate& today, int dayOffset);

// Month, day and two-digit year of a coded date as "MM/DD/YY". The decade is
// read from the sign and the first digit: negative is 201Y, a five-digit value
// beginning 2 or 3 is 200Y, anything else 199Y.
std::string QDateText(int16_t qdate);

// HHMM with leading zeros: 5 gives "0005".
std::string QTimeText(int16_t qtime);

}  // namespace tarnix
