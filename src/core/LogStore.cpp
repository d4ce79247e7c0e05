#include "core/LogStore.h"

#include <stdexcept>

namespace tarnix {

void ThrowSubscript() { throw std::out_of_range("Subscript out of range"); }

CallIndexEntry::CallIndexEntry(std::string_view text) {
  Length = static_cast<uint8_t>(std::min(text.size(), Bytes.size()));
  std::copy_n(text.begin(), Length, Bytes.begin());
}

QsoRecord& LoggedRecord(LogStore& log, int n) {
  if (log.RecordLength == static_cast<int16_t>(QsoRecordShortSize)) return log.LogRecordsShort.At(n);
  if (log.RecordLength == static_cast<int16_t>(QsoRecordMidSize)) return log.LogRecordsMid.At(n);
  return log.LogRecords.At(n);
}

int IndexFindCall(LogStore& log, std::string_view key, bool searchOnly) {
  int lo = 1, hi = log.CallIndexCount;
  while (lo <= hi) {
    int mid = (lo + hi) / 2;
    std::string_view call = log.CallIndex.At(mid).Call();
    if (call == key) return mid;
    if (call < key) lo = mid + 1;
    else hi = mid - 1;
  }
  int place = (lo + hi) / 2 + 1;
  if (searchOnly) return place;

  int count = log.CallIndexCount + 1;
  log.CallIndex.At(count);  // the bound of the index is the bound of the log
  log.CallIndex.ShiftUp(place, count - 1);
  log.CallIndex.At(place) = CallIndexEntry(key);
  log.CallIndexCount = static_cast<int16_t>(count);
  return place;
}

void StampQsoMinute(LogStore& log, int n) {
  const QsoRecord& qso = log.LogRecords.At(n);
  int minutes = 60 * (qso.QTime / 100) + qso.QTime % 100;
  if (n > 1 && qso.QDate != log.LogRecords.At(n - 1).QDate && log.ContestDay < MaxContestDay)
    ++log.ContestDay;
  log.QsoMinute.At(n) = static_cast<int16_t>(minutes + (log.ContestDay - 1) * 1440);
}

void ResetLog(LogStore& log) {
  log.ContestDay = 1;
  log.QSOCount = 1;
  log.TotalMults = 0;
  log.TotalQSOPoints = 0;
  log.ClaimedScore = 0;
  log.CallIndexCount = 0;
  log.OperatingMinutes = 0;
  log.RunOnBand = 0;
  log.BandQSOs.fill(0);
  log.BandPoints.fill(0);
  log.BandMults.fill(0);
  log.BandMinutes.fill(0);
  log.LogRecordsShort.Fill(QsoRecord{});
}

}  // namespace tarnix
