// What the entry form cannot show of the parsers: received fields that no
// record field keeps, the selection of ARRL 10's box that does not stop the
// logging, and the CQWW zone pre-fill.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>

#include "rules/Parsers.h"

namespace tarnix {
namespace {

TEST(Parsers, FieldsKeptBesideTheRecord) {
  auto tables = std::make_unique<MultiplierTables>();
  ContestState cqp;
  cqp.ContestIndex = Cqp;
  ReceivedFields f;
  auto cqpFields = [&] { return std::to_string(f.CQPNumber) + "|" + f.CQPMult + "|" + std::to_string(f.CountyLine); };
  // A refused parse keeps what it reached before the multiplier test.
  EXPECT_EQ(NumberMultParse("12345 ALA", cqp, *tables, f).Message, "Multiplier is Invalid.");
  EXPECT_EQ(cqpFields(), "1234|5 ALA|0");
  NumberMultParse(" 7 xyz/ ", cqp, *tables, f);
  EXPECT_EQ(cqpFields(), "7|XYZ|1");
  SprintParse("5 JOECA", f);
  EXPECT_EQ(f.SprintName + "|" + f.SprintMult, "JOE|CA");
  SprintParse("12 ALAN NEWFOUNDLAND", f);
  EXPECT_EQ(f.SprintName + "|" + f.SprintMult, "ALAN|NEWFO");
  NAQPParse("jean-luc  qc.", f);
  EXPECT_EQ(f.NAQPName + "|" + f.NAQPMult, "JEAN-LUC|QC.");
  EXPECT_TRUE(NAQPParse("BOB", f).Error);
  EXPECT_EQ(f.NAQPName, "JEAN-LUC");
}

TEST(Parsers, TenSerialOutOfRangeSelectsTheFieldWithoutRefusing) {
  auto tables = std::make_unique<MultiplierTables>();
  ReceivedFields f;
  f.TenNumber = 77;
  for (std::string exchange : {"0", " 00001 "}) {
    ParseResult r = TenParse(exchange, *tables, f);
    EXPECT_FALSE(r.Error) << exchange;
    EXPECT_EQ(r.Title + "|" + r.Message, "Invalid Serial Number|Number must be between 1 and 9999.");
    EXPECT_EQ(std::tuple(r.SelStart, r.SelLength, f.TenNumber), std::tuple(0, int(exchange.size()), 77));
  }
}

TEST(Parsers, CqwwPrefillIsABlankAndTheZone) {
  auto countries = std::make_unique<CountryData>();
  ASSERT_TRUE(ReadCountryText("Alpha Land:               05:  08:  NA:   37.60:    91.87:     5.0:  K:\n"
                              "    K,N,W,K6(3);\n"
                              "Fed. Rep. of Germany:     14:  28:  EU:   51.00:   -10.00:    -1.0:  DL:\n"
                              "    DL;\n"
                              "Mexico:                   06:  10:  NA:   21.32:   100.23:     6.0:  XE:\n"
                              "    XE;\n",
                              "test.dat", *countries).Ok);
  ContestState cqww;
  cqww.ContestIndex = Cqww;
  // The entry's zone; the US zone by call area, two digits; the country's
  // zone; no country.
  for (auto [call, fill] : {std::pair{"K6ABC", " 3"}, {"K3ZZZ", " 05"}, {"DL1ABC", " 14"}, {"XE1ABC", " 06"},
                            {"ZZ9ZZ", " "}})
    EXPECT_EQ(CQWWZonePrefill(*countries, cqww, call), fill) << call;
}

}  // namespace
}  // namespace tarnix
