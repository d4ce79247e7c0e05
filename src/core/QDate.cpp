#include "core/QDate.h"

#include <cstdio>
#include <cstdlib>

namespace tarnix {
namespace {

int DaysInMonth(int month, int year) {
  static const int kDays[13] = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (month == 2 && (year == 2004 || year == 2008 || year == 2012 || year == 2016)) return 29;
  return kDays[month];
}

}  // namespace

int16_t EncodeQDate(const CivilDate& date) {
  int yearDigit = date.Year % 10;
  if (date.Year < 2000) return static_cast<int16_t>(date.Month * 1000 + date.Day * 10 + yearDigit);
  int value = (date.Month + 20) * 1000 + date.Day * 10 + yearDigit;
  bool tensDigitIsOne = (date.Year / 10) % 10 == 1;
  return static_cast<int16_t>(tensDigitIsOne ? -value : value);
}

int16_t GetGMTDate(const CivilDate& today, int dayOffset) {
  CivilDate d = today;
  if (dayOffset > 0) {
    if (d.Day + 1 > DaysInMonth(d.Month, d.Year)) {
      d.Day = 1;
      if (++d.Month > 12) {
        d.Month = 1;
        ++d.Year;
      }
    } else {
      ++d.Day;
    }
  } else if (dayOffset < 0) {
    if (d.Day == 1) {
      if (--d.Month < 1) {
        d.Month = 12;
        --d.Year;
      }
      d.Day = DaysInMonth(d.Month, d.Year);
    } else {
      --d.Day;
    }
  }
  return EncodeQDate(d);
}

std::string QDateText(int16_t qdate) {
  int value = std::abs(static_cast<int>(qdate));
  char decade = qdate < 0 ? '1' : '9';
  int month = value / 1000;
  if (qdate < 0 || (value >= 10000 && month >= 20)) {
    month -= 20;
    if (qdate >= 0) decade = '0';
  }
  int day = (value / 10) % 100;
  int yearDigit = value % 10;
  char text[16];
  std::snprintf(text, sizeof text, "%02d/%02d/%c%d", month % 100, day, decade, yearDigit);
  return text;
}

std::string QTimeText(int16_t qtime) {
  char text[8];
  std::snprintf(text, sizeof text, "%04d", static_cast<int>(qtime));
  return text;
}

}  // namespace tarnix
