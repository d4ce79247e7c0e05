#pragma once
// The QSO record and its disk forms.
//
// A QSO is twelve fields; on disk it is 60 bytes, little-endian 16-bit
// integers and blank-padded 8-bit text, at fixed offsets. Logs of old
// versions hold only the first eight fields (26 bytes) or the first nine
// (36 bytes). The in-memory record keeps the text fields as their fixed-width
// bytes, so that what is written is exactly what was read.

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace tarnix {

// A blank-padded text field of N characters.
template <std::size_t N>
struct FixedText {
  std::array<char, N> Bytes;

  FixedText() { Bytes.fill(' '); }
  explicit FixedText(std::string_view text) { Set(text); }

  // Stores text left-justified: cut at N characters or padded with blanks.
  void Set(std::string_view text) {
    Bytes.fill(' ');
    for (std::size_t i = 0; i < N && i < text.size(); ++i) Bytes[i] = text[i];
  }
  std::string Str() const { return std::string(Bytes.data(), N); }
  // The field as the program compares it: without outer blanks.
  std::string Trimmed() const {
    std::size_t first = 0, last = N;
    while (first < N && Bytes[first] == ' ') ++first;
    while (last > first && Bytes[last - 1] == ' ') --last;
    return std::string(Bytes.data() + first, last - first);
  }
  bool operator==(const FixedText&) const = default;
};

struct QsoRecord {
  int16_t QDate = 0;        // coded GMT date, see QDate.h
  int16_t QTime = 0;        // HHMM as a decimal number
  int16_t QBand = 0;        // BandIndex 1..24
  FixedText<10> QCall;      // "VOID" marks a voided QSO
  int16_t QNumber = 0;
  int16_t QRcvNumber = 0;   // serial, zone, age or power by contest
  FixedText<5> QMult;
  FixedText<1> QPoints;
  FixedText<10> QRcvText;
  FixedText<10> QFreq;
  FixedText<2> QRadio;
  FixedText<12> QReserved;  // never written by the program

  bool operator==(const QsoRecord&) const = default;
};

inline constexpr std::size_t QsoRecordSize = 60;       // fields 1..12
inline constexpr std::size_t QsoRecordMidSize = 36;    // fields 1..9
inline constexpr std::size_t QsoRecordShortSize = 26;  // fields 1..8

// Writes the first `out.size()` bytes of the record's 60-byte disk form;
// out.size() is 26, 36 or 60.
void EncodeRecord(const QsoRecord& record, std::span<char> out);
std::array<char, QsoRecordSize> EncodeRecord(const QsoRecord& record);

// Reads a record from its disk form. Bytes beyond the end of `in` read as
// blanks in text fields and zeros in numbers, so a short or old-shape record
// decodes without harm.
QsoRecord DecodeRecord(std::span<const char> in);

// Little-endian 16-bit integers as the log file holds them.
void PutInt16(std::span<char> out, std::size_t offset, int16_t value);
int16_t GetInt16(std::span<const char> in, std::size_t offset);

}  // namespace tarnix
