#include "core/QsoRecord.h"

#include <algorithm>
#include <cstring>

namespace tarnix {
namespace {

// Byte offsets of the disk form.
constexpr std::size_t OffDate = 0, OffTime = 2, OffBand = 4, OffCall = 6, OffNumber = 16,
                      OffRcvNumber = 18, OffMult = 20, OffPoints = 25, OffRcvText = 26,
                      OffFreq = 36, OffRadio = 46, OffReserved = 48;

// A scratch area the size of the widest record: encode and decode work on the
// whole 60 bytes and copy only the part that the shape holds.
using Wide = std::array<char, QsoRecordSize>;

template <std::size_t N>
void PutText(Wide& buffer, std::size_t offset, const FixedText<N>& field) {
  std::memcpy(buffer.data() + offset, field.Bytes.data(), N);
}

template <std::size_t N>
void GetText(const Wide& buffer, std::size_t offset, FixedText<N>& field) {
  std::memcpy(field.Bytes.data(), buffer.data() + offset, N);
}

}  // namespace

void PutInt16(std::span<char> out, std::size_t offset, int16_t value) {
  auto bits = static_cast<uint16_t>(value);
  out[offset] = static_cast<char>(bits & 0xFF);
  out[offset + 1] = static_cast<char>(bits >> 8);
}

int16_t GetInt16(std::span<const char> in, std::size_t offset) {
  auto low = static_cast<unsigned char>(in[offset]);
  auto high = static_cast<unsigned char>(in[offset + 1]);
  return static_cast<int16_t>(static_cast<uint16_t>(low | (high << 8)));
}

std::array<char, QsoRecordSize> EncodeRecord(const QsoRecord& r) {
  Wide buffer;
  PutInt16(buffer, OffDate, r.QDate);
  PutInt16(buffer, OffTime, r.QTime);
  PutInt16(buffer, OffBand, r.QBand);
  PutText(buffer, OffCall, r.QCall);
  PutInt16(buffer, OffNumber, r.QNumber);
  PutInt16(buffer, OffRcvNumber, r.QRcvNumber);
  PutText(buffer, OffMult, r.QMult);
  PutText(buffer, OffPoints, r.QPoints);
  PutText(buffer, OffRcvText, r.QRcvText);
  PutText(buffer, OffFreq, r.QFreq);
  PutText(buffer, OffRadio, r.QRadio);
  PutText(buffer, OffReserved, r.QReserved);
  return buffer;
}

void EncodeRecord(const QsoRecord& record, std::span<char> out) {
  Wide buffer = EncodeRecord(record);
  std::copy_n(buffer.begin(), std::min(out.size(), buffer.size()), out.begin());
}

QsoRecord DecodeRecord(std::span<const char> in) {
  // Blanks for the text, then zeros written over the integer places.
  Wide buffer;
  buffer.fill(' ');
  for (std::size_t offset : {OffDate, OffTime, OffBand, OffNumber, OffRcvNumber})
    PutInt16(buffer, offset, 0);
  std::copy_n(in.begin(), std::min(in.size(), buffer.size()), buffer.begin());

  QsoRecord r;
  r.QDate = GetInt16(buffer, OffDate);
  r.QTime = GetInt16(buffer, OffTime);
  r.QBand = GetInt16(buffer, OffBand);
  GetText(buffer, OffCall, r.QCall);
  r.QNumber = GetInt16(buffer, OffNumber);
  r.QRcvNumber = GetInt16(buffer, OffRcvNumber);
  GetText(buffer, OffMult, r.QMult);
  GetText(buffer, OffPoints, r.QPoints);
  GetText(buffer, OffRcvText, r.QRcvText);
  GetText(buffer, OffFreq, r.QFreq);
  GetText(buffer, OffRadio, r.QRadio);
  GetText(buffer, OffReserved, r.QReserved);
  return r;
}

}  // namespace tarnix
