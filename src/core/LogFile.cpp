#include "core/LogFile.h"

#include <algorithm>

#include "core/Text.h"

namespace tarnix {
namespace {

// Offsets of the header fields.
constexpr std::size_t OffReserved1 = 0, OffReserved2 = 2, OffWide = 4, OffReserved3 = 6, OffOldMark = 16,
                      OffReserved4 = 18, OffContest = 20, OffQth = 25;

constexpr std::string_view kContinents = "AFASEUNAOCSA";  // digits "4".."9" in this order

// Continent of a location digit "4".."9", or empty.
std::string ContinentOfDigit(char digit) {
  if (digit < '4' || digit > '9') return {};
  return std::string(kContinents.substr(static_cast<std::size_t>(digit - '4') * 2, 2));
}

// The USA, Canada and continent flags of CQWW and WPX from a location digit;
// returns false for a digit outside "2".."9".
bool ReadStationDigit(char digit, ContestState& s) {
  if (digit == '2') s.StationInUSA = true;
  else if (digit == '3') s.StationInCanada = true;
  else if (std::string continent = ContinentOfDigit(digit); !continent.empty()) s.StationContinent = continent;
  else return false;
  return true;
}

// Rewrites each 26-byte record of an old log; the header is rewritten first.
std::string RewriteOldLog(const std::string& bytes, const std::function<void(LogHeader&)>& header,
                          const std::function<void(QsoRecord&)>& record) {
  constexpr std::size_t R = QsoRecordShortSize;
  std::size_t count = bytes.size() / R;
  std::string out(std::max(count, std::size_t{1}) * R, '\0');
  LogHeader h = DecodeHeader(std::span(bytes.data(), std::min(bytes.size(), LogHeaderSize)));
  header(h);
  auto headerBytes = EncodeHeader(h);
  std::copy(headerBytes.begin(), headerBytes.end(), out.begin());
  for (std::size_t n = 1; n < count; ++n) {
    QsoRecord r = DecodeRecord(std::span(bytes.data() + n * R, R));
    record(r);
    EncodeRecord(r, std::span(out.data() + n * R, R));
  }
  out.resize(std::max(count * R, LogHeaderSize));
  return out;
}

}  // namespace

std::array<char, LogHeaderSize> EncodeHeader(const LogHeader& h) {
  std::array<char, LogHeaderSize> out{};
  PutInt16(out, OffReserved1, h.HdrReserved1);
  PutInt16(out, OffReserved2, h.HdrReserved2);
  PutInt16(out, OffWide, h.HdrWide);
  std::copy(h.HdrReserved3.Bytes.begin(), h.HdrReserved3.Bytes.end(), out.begin() + OffReserved3);
  PutInt16(out, OffOldMark, h.HdrOldMark);
  PutInt16(out, OffReserved4, h.HdrReserved4);
  std::copy(h.HdrContest.Bytes.begin(), h.HdrContest.Bytes.end(), out.begin() + OffContest);
  out[OffQth] = h.HdrQth.Bytes[0];
  return out;
}

LogHeader DecodeHeader(std::span<const char> bytes) {
  std::array<char, LogHeaderSize> in;
  in.fill(' ');
  for (std::size_t offset : {OffReserved1, OffReserved2, OffWide, OffOldMark, OffReserved4}) PutInt16(in, offset, 0);
  std::copy_n(bytes.begin(), std::min(bytes.size(), in.size()), in.begin());
  LogHeader h;
  h.HdrReserved1 = GetInt16(in, OffReserved1);
  h.HdrReserved2 = GetInt16(in, OffReserved2);
  h.HdrWide = GetInt16(in, OffWide);
  std::copy_n(in.begin() + OffReserved3, 10, h.HdrReserved3.Bytes.begin());
  h.HdrOldMark = GetInt16(in, OffOldMark);
  h.HdrReserved4 = GetInt16(in, OffReserved4);
  std::copy_n(in.begin() + OffContest, 5, h.HdrContest.Bytes.begin());
  h.HdrQth.Bytes[0] = in[OffQth];
  return h;
}

LogHeader MakeHeader(const ContestState& s) {
  int c = s.ContestIndex;
  std::string suffix = "  ";
  if (OneOf(c, {ArrlDx, Cqww, Sprint, Sweepstakes, Wpx, AllAsian, Naqp, CwOpen}))
    suffix = s.ModeEnabled[2] ? "CW" : "SB";
  else if (OneOf(c, {Cqp, Paqp, Neqp}))
    suffix = s.InState ? "IN" : "OS";

  std::string qth = " ";
  if (c == ArrlDx) {
    qth = s.IsUSVEStation ? "1" : "2";
  } else if (c == Cqww || c == Wpx) {
    if (s.StationInUSA) qth = "2";
    else if (s.StationInCanada) qth = "3";
    else if (auto at = kContinents.find(s.StationContinent); s.StationContinent.size() == 2 && at % 2 == 0 &&
                                                            at != std::string_view::npos)
      qth = std::string(1, static_cast<char>('4' + at / 2));
  } else if (c == CwOpen) {
    qth = s.CWOStartHour == 1200 ? "1" : s.CWOStartHour == 2000 ? "2" : "3";
  }

  LogHeader h;
  h.HdrContest.Set(std::string(ContestTable(c).HeaderCode) + suffix);
  h.HdrQth.Set(qth);
  return h;
}

HeaderReading ReadHeader(const LogHeader& h, ContestState& s, bool& wideLog) {
  HeaderReading result;
  if (h.HdrOldMark > 0) {
    result.Incompatible = true;
    return result;
  }
  wideLog = h.HdrWide == 1;
  std::string code = h.HdrContest.Str();
  int contest = ContestFromHeaderCode(code);
  if (contest == 0) {
    result.UnknownContest = true;
    return result;
  }
  s.ContestIndex = static_cast<int16_t>(contest);
  char digit = h.HdrQth.Bytes[0];
  std::string suffix = code.substr(3, 2);

  switch (contest) {
    case ArrlDx:
      s.IsUSVEStation = digit != '2';
      break;
    case CwOpen:
      s.CWOStartHour = digit == '1' ? 1200 : digit == '2' ? 2000 : 400;
      break;
    case Cqww:
      s.StationInUSA = s.StationInCanada = false;
      ReadStationDigit(digit, s);
      break;
    case Wpx:
      s.StationInUSA = s.StationInCanada = false;
      if (!ReadStationDigit(digit, s)) {
        // Logs of version 6.5 and earlier: "1" was Canada, anything else USA.
        if (digit == '1') s.StationInCanada = true;
        else s.StationInUSA = true;
        result.ConvertWpx = true;
      }
      break;
    case Sweepstakes:
      if (code[2] == '9') s.SSYear = 97;
      else result.ConvertOldSweepstakes = true;
      break;
    default:
      break;
  }

  if (IsMixedModeContest(contest)) {
    s.ModeEnabled[1] = s.ModeEnabled[2] = true;
    if (contest == Cqp) {
      if (suffix == "IN") s.InState = true;
      else if (suffix == "OS") s.InState = false;
      else result.AskCqpLocation = true;
    }
  } else {
    s.ModeEnabled[2] = suffix == "CW";
    s.ModeEnabled[1] = !s.ModeEnabled[2];
  }
  return result;
}

int RecordLengthOf(bool wideLog, int contestIndex) {
  if (wideLog) return static_cast<int>(QsoRecordSize);
  if (OneOf(contestIndex, {Sprint, Naqp, Generic})) return static_cast<int>(QsoRecordMidSize);
  return static_cast<int>(QsoRecordShortSize);
}

std::string ConvertWpxLog(const std::string& bytes, const std::function<std::string(const std::string&)>& wpxPrefix) {
  return RewriteOldLog(
      bytes, [](LogHeader& h) { h.HdrQth.Set(h.HdrQth.Bytes[0] == '1' ? "3" : "2"); },
      [&wpxPrefix](QsoRecord& r) {
        if (r.QMult.Trimmed().empty()) r.QMult.Set(wpxPrefix(r.QCall.Trimmed()));
      });
}

std::string ConvertOldSweepstakesLog(const std::string& bytes, int ssYear) {
  return RewriteOldLog(
      bytes,
      [](LogHeader& h) {
        std::string code = h.HdrContest.Str();
        h.HdrContest.Set(code.substr(0, 2) + "9" + code.substr(3, 2));
      },
      [ssYear](QsoRecord& r) {
        std::string mult = r.QMult.Str();
        int old = static_cast<int>(Val(mult.substr(3, 2)));
        int row = 0;
        if (ssYear == 95) row = old >= 1 && old <= 10 ? old : old >= 11 && old <= 69 ? old + 1 : old >= 70 && old <= 77 ? old + 2 : 0;
        else row = old >= 1 && old <= 70 ? old : old >= 71 && old <= 78 ? old + 1 : 0;
        r.QMult.Set(mult.substr(0, 3) + (row > 0 ? PadLeft(std::to_string(row), 2) : std::string()));
      });
}

}  // namespace tarnix
