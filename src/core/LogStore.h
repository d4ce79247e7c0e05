#pragma once
// The log in memory: fixed arrays of QSO records, the sorted call index, the
// per-QSO call arrays of the dupe scan and the per-band counters.
//
// The bounds are part of the design: 8000 QSOs (5000 in logs of the old
// 36-byte shape). Every array is reached through a checked access, so a QSO
// beyond the bound raises std::out_of_range ("Subscript out of range"), which
// the logging step reports; nothing checks earlier.
//
// QSOCount is the number the next QSO will get: an empty log has 1.
// Everything here runs on the user-interface thread.

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/Bands.h"
#include "core/QsoRecord.h"

namespace tarnix {

inline constexpr int MaxQsos = 8000;
inline constexpr int MaxQsosMid = 5000;
inline constexpr int MaxContestDay = 18;
inline constexpr int QsoMinuteCount = 13001;

// A fixed-size table with VB-style checked access: At(i) throws
// std::out_of_range("Subscript out of range") outside the bounds.
template <typename T, int Low, int High>
class FixedTable {
 public:
  FixedTable() : Items(static_cast<std::size_t>(High - Low + 1)) {}
  T& At(int i) { return Items.at(Slot(i)); }
  const T& At(int i) const { return Items.at(Slot(i)); }
  void Fill(const T& value) { std::fill(Items.begin(), Items.end(), value); }
  // Moves elements first..last up by one place (last + 1 must exist).
  void ShiftUp(int first, int last) {
    if (first > last) return;
    At(last + 1);
    std::move_backward(Items.begin() + Slot(first), Items.begin() + Slot(last) + 1, Items.begin() + Slot(last) + 2);
  }

 private:
  static std::size_t Slot(int i);
  std::vector<T> Items;
};

void ThrowSubscript();

template <typename T, int Low, int High>
std::size_t FixedTable<T, Low, High>::Slot(int i) {
  if (i < Low || i > High) ThrowSubscript();
  return static_cast<std::size_t>(i - Low);
}

// An entry of the sorted call index: a call of up to ten characters followed
// by two digits of its BandIndex ("K3ZZZ05"). Kept as plain bytes so that an
// insert shifts the index with one memory move.
struct CallIndexEntry {
  uint8_t Length = 0;
  std::array<char, 12> Bytes{};

  CallIndexEntry() = default;
  explicit CallIndexEntry(std::string_view text);
  std::string_view Text() const { return {Bytes.data(), Length}; }
  // The entry less its two band digits.
  std::string_view Call() const { return Text().substr(0, Length >= 2 ? Length - 2u : 0u); }
};

enum class LogStateKind : int16_t { None = 0, Unnamed = 1, Named = 2 };

struct LogStore {
  FixedTable<QsoRecord, 0, MaxQsos> LogRecords;        // QSO n at n; 0 unused
  FixedTable<QsoRecord, 0, MaxQsos> LogRecordsShort;   // old 26-byte logs
  FixedTable<QsoRecord, 0, MaxQsosMid> LogRecordsMid;  // old 36-byte logs
  FixedTable<CallIndexEntry, 0, MaxQsos> CallIndex;    // entries 1..CallIndexCount
  int16_t CallIndexCount = 0;
  FixedTable<int16_t, 0, MaxQsos - 1> CallSum;         // QSO n at n - 1
  FixedTable<std::string, 0, MaxQsos - 1> CallText;    // QSO n at n - 1
  FixedTable<int16_t, 0, QsoMinuteCount - 1> QsoMinute;
  // Per BandIndex 1..24 (element 0 unused).
  std::array<int16_t, BandIndexCount + 1> BandQSOs{};
  std::array<int16_t, BandIndexCount + 1> BandPoints{};
  std::array<int16_t, BandIndexCount + 1> BandMults{};
  std::array<float, BandIndexCount + 1> BandMinutes{};

  int16_t QSOCount = 1;
  int32_t TotalQSOPoints = 0;
  int16_t TotalMults = 0;
  int32_t ClaimedScore = 0;
  int16_t ContestDay = 1;
  float OperatingMinutes = 0;
  int16_t RunOnBand = 0;        // minutes since the last change of band
  bool WideLog = true;          // the open log has 60-byte records
  int16_t RecordLength = 60;    // 60, or 36 or 26 for an old log
  LogStateKind LogState = LogStateKind::None;
};

// QSO n of the open log, in the array of its record length: the 26- and
// 36-byte shapes of old logs have arrays of their own.
QsoRecord& LoggedRecord(LogStore& log, int n);

// Search and insert on CallIndex, a bisection. Entries are a call followed by
// two band digits; the comparison ignores those digits. Returns the place of
// an entry whose call equals key, without inserting. Otherwise returns the
// place where key belongs and, unless searchOnly, inserts key there. An
// inserted key carries its band digits, so it never equals an entry and goes
// after the entries of the same call.
int IndexFindCall(LogStore& log, std::string_view key, bool searchOnly);

// Minute stamp of QSO n (added or replayed): minutes since midnight of the
// first contest day. A new date raises ContestDay, at most to 18.
void StampQsoMinute(LogStore& log, int n);

// Clears the store for a new log, an opened log or a reload. The wide and
// middle record arrays, CallSum and CallText are left: a load overwrites them.
void ResetLog(LogStore& log);

}  // namespace tarnix
