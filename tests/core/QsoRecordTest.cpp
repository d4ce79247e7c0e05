#include <gtest/gtest.h>

#include <string>

#include "core/QsoRecord.h"

namespace tarnix {
namespace {

std::string Bytes(std::initializer_list<int> values) {
  std::string out;
  for (int v : values) out += static_cast<char>(v);
  return out;
}

QsoRecord Sample() {
  QsoRecord r;
  r.QDate = -21155;  // Jan 15 2015
  r.QTime = 1234;
  r.QBand = 3;
  r.QNumber = 300;
  r.QRcvNumber = 45;
  r.QCall.Set("K3ZZZ");
  r.QMult.Set("OH");
  r.QPoints.Set("3");
  r.QRcvText.Set("599 OH");
  r.QFreq.Set("14025.5");
  r.QRadio.Set("1");
  return r;
}

// The sample's disk form, field by field.
const std::string kDisk = Bytes({0x5D, 0xAD, 0xD2, 0x04, 0x03, 0x00}) + "K3ZZZ     " +
                          Bytes({0x2C, 0x01, 0x2D, 0x00}) + "OH   " + "3" + "599 OH    " + "14025.5   " +
                          "1 " + std::string(12, ' ');

TEST(QsoRecord, EncodesAllThreeShapesAndDecodingFillsWhatAShortRecordLacks) {
  auto disk = EncodeRecord(Sample());
  EXPECT_EQ(std::string(disk.data(), disk.size()), kDisk);
  for (std::size_t size : {QsoRecordShortSize, QsoRecordMidSize}) {
    std::string out(size, '#');
    EncodeRecord(Sample(), out);
    EXPECT_EQ(out, kDisk.substr(0, size)) << size;
  }
  EXPECT_EQ(DecodeRecord(kDisk), Sample());
  QsoRecord old = DecodeRecord(std::span<const char>(kDisk.data(), QsoRecordShortSize));
  EXPECT_EQ(old.QPoints.Str() + "|" + old.QRcvText.Str(), "3|          ");
  QsoRecord mid = DecodeRecord(std::span<const char>(kDisk.data(), QsoRecordMidSize));
  EXPECT_EQ(mid.QRcvText.Str() + "|" + mid.QFreq.Str() + "|" + mid.QRadio.Str(), "599 OH    |          |  ");
  // Date, time, band and four letters of the call only.
  QsoRecord cut = DecodeRecord(std::span<const char>(kDisk.data(), 10));
  EXPECT_EQ(cut.QBand, 3);
  EXPECT_EQ(cut.QNumber + cut.QRcvNumber, 0);
  EXPECT_EQ(cut.QCall.Str() + "|" + cut.QMult.Str(), "K3ZZ      |     ");
  EXPECT_EQ(DecodeRecord(std::span<const char>()), QsoRecord{});
}

TEST(QsoRecord, TenCharacterCallFillsTheFieldLongerIsCutAndIntegersAreLittleEndian) {
  QsoRecord r;
  r.QCall.Set("VE3ABCDEFG");
  r.QNumber = 7;
  auto disk = EncodeRecord(r);
  EXPECT_EQ(std::string(disk.data() + 6, 12), "VE3ABCDEFG" + Bytes({0x07, 0x00}));
  r.QCall.Set("VE3ABCDEFGH");
  EXPECT_EQ(r.QCall.Str(), "VE3ABCDEFG");
  // Sixteen-bit integers are little-endian.
  struct Row { int16_t value; int low, high; };
  const Row rows[] = {{0, 0x00, 0x00},   {1, 0x01, 0x00},     {-1, 0xFF, 0xFF},    {255, 0xFF, 0x00},
                      {256, 0x00, 0x01}, {32767, 0xFF, 0x7F}, {-32768, 0x00, 0x80}};
  for (const Row& r : rows) {
    std::string buffer(3, 'x');
    PutInt16(buffer, 1, r.value);
    EXPECT_EQ(buffer, "x" + Bytes({r.low, r.high})) << r.value;
    EXPECT_EQ(GetInt16(buffer, 1), r.value);
  }
}

}  // namespace
}  // namespace tarnix
