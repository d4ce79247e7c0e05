// The multiplier steps of the contests that go by the call: its country
// (ARRL DX from the US or Canada, CQWW, ARRL 10, Generic), CQWW's zone, its
// WPX prefix (WPX, All Asian) or the call itself (CW Open). Worked state is
// kept in the counters' arrays by country row, zone or prefix and BandIndex,
// so no log scan is needed.

#include "core/Text.h"
#include "rules/ScoringParts.h"

namespace tarnix {
namespace {

void CountMult(ScoringState& s, int band) {
  ++s.Log.BandMults.at(static_cast<std::size_t>(band));
  ++s.Log.TotalMults;
}

// Adds the QSO to the count of (row, band); true when it was the first.
bool CountFirst(int16_t& count) {
  bool first = count == 0;
  ++count;
  return first;
}

// ARRL DX from the US or Canada: a country per band, but the K and VE rows
// count nothing (their points are "0", set by the live step).
MultOutcome ArrlCountry(ScoringState& s, int row, int band) {
  const CountryData& c = s.Countries;
  if (row == 0 || row == c.CountryRowK || row == c.CountryRowVE) return {};
  if (!CountFirst(s.Counters.CountryBandCount.At(row, band))) return {};
  CountMult(s, band);
  return {true, 0};
}

// CQWW: the country and the zone each count once per band, so one QSO can
// give two multipliers. A zone outside 1..40 (a record changed by hand)
// counts nothing.
void CqwwCount(ScoringState& s, int row, int zone, int band) {
  ContestCounters& k = s.Counters;
  auto b = static_cast<std::size_t>(band);
  if (row > 0 && CountFirst(k.CountryBandCount.At(row, band))) {
    CountMult(s, band);
    ++k.BandCountries.at(b);
  }
  if (zone >= 1 && zone <= MaxZones && CountFirst(k.ZoneBandCount.At(zone, band))) {
    CountMult(s, band);
    ++k.BandZones.at(b);
  }
}

// All Asian: a prefix per band, kept in the band's column until its 150 rows
// are full; a prefix that finds no room always counts as new.
MultOutcome AllAsianPrefix(ScoringState& s, const std::string& prefix, int band) {
  for (int row = 1; row <= PrefixRowsPerBand; ++row) {
    std::string& entry = s.Counters.PrefixTable150.At(row, band);
    if (entry == prefix) return {};
    if (entry.empty()) {
      entry = prefix;
      break;
    }
  }
  return {true, 0};
}

bool IsTenStateRow(const CountryData& c, int row) {
  return row == c.CountryRowK || row == c.CountryRowVE || row == c.CountryRowKL || row == c.CountryRowKH6;
}

// ARRL 10 in the US and Canada (with Alaska and Hawaii): the state or
// province once on CW (BandIndex 1) and once on phone. The row is reported
// on any match, for the map, even when it was worked before.
MultOutcome TenState(ScoringState& s, const std::string& mult, int band) {
  TenTableType& table = s.Tables.TenTable;
  for (int row = 1; row <= TenMultRows; ++row) {
    if (table.At(row, 1) != mult) continue;
    bool cw = band == 1;
    if (MarkWorked(table.At(row, cw ? 2 : 3))) {
      ++(cw ? s.Counters.TenCWMults : s.Counters.TenSSBMults);
      ++s.Log.TotalMults;
    }
    return {true, static_cast<int16_t>(row)};
  }
  return {};
}

// ARRL 10 elsewhere: a country once per mode (its BandIndex).
MultOutcome TenCountry(ScoringState& s, int row, int band) {
  if (!CountFirst(s.Counters.CountryBandCount.At(row, band))) return {};
  CountMult(s, band);
  return {true, 0};
}

// Generic marks no multiplier: it counts countries per band and per mode.
void GenericCount(ScoringState& s, int row, int band) {
  if (row == 0) return;
  ContestCounters& k = s.Counters;
  if (CountFirst(k.CountryBandCount.At(row, band))) ++k.BandCountries.at(static_cast<std::size_t>(band));
  bool cw = (band >= 1 && band <= 8) || (band >= 21 && band <= 23);
  ++(cw ? k.CWCountryCount : k.SSBCountryCount).at(static_cast<std::size_t>(row));
}

// The WPX prefix as QMult keeps it, upper case; the worked lists hold it in
// the same form, so that replay from QMult finds what logging stored.
std::string StoredPrefix(QsoRecord& r, const std::string& prefix) {
  r.QMult.Set(UCase(prefix));
  return r.QMult.Trimmed();
}

}  // namespace

int16_t CountryRowOf(ScoringState& s, const std::string& call) {
  std::string text = call;
  return FindCountry(s.Countries, s.Contest, text);
}

std::string CountryMultText(const CountryData& countries, int row) {
  if (row == 0) return {};
  std::string prefix = countries.CountryTable.at(static_cast<std::size_t>(row)).Prefix;
  return !prefix.empty() && prefix[0] == '*' ? prefix.substr(1) : prefix;
}

MultOutcome DxMult(ScoringState& s, QsoRecord& r, const ReceivedFields& f, const std::string& prefix) {
  const int band = r.QBand;
  const std::string call = r.QCall.Trimmed();
  switch (s.Contest.ContestIndex) {
    case ArrlDx: {
      int row = CountryRowOf(s, call);
      r.QMult.Set(CountryMultText(s.Countries, row));
      if (row != 0 && (row == s.Countries.CountryRowK || row == s.Countries.CountryRowVE)) r.QPoints.Set("0");
      return ArrlCountry(s, row, band);
    }
    case Cqww: {
      int row = CountryRowOf(s, call);
      r.QMult.Set(CountryMultText(s.Countries, row));
      CqwwCount(s, row, r.QRcvNumber, band);
      return {};
    }
    case Wpx:
      return {AddToList(s.Counters.WPXPrefixList, StoredPrefix(r, prefix)), 0};
    case AllAsian:
      return AllAsianPrefix(s, StoredPrefix(r, prefix), band);
    case Ten: {
      int row = CountryRowOf(s, call);
      r.QMult.Set(CountryMultText(s.Countries, row));
      if (row == 0) return {};
      if (!IsTenStateRow(s.Countries, row)) return TenCountry(s, row, band);
      r.QMult.Set(f.TenMult);
      return TenState(s, r.QMult.Trimmed(), band);
    }
    default:  // Generic and CW Open store nothing and count as replay does
      return DxReplay(s, r);
  }
}

MultOutcome DxReplay(ScoringState& s, const QsoRecord& r) {
  const int band = r.QBand;
  const std::string call = r.QCall.Trimmed();
  switch (s.Contest.ContestIndex) {
    case ArrlDx:
      return ArrlCountry(s, CountryRowOf(s, call), band);
    case Cqww:
      CqwwCount(s, CountryRowOf(s, call), r.QRcvNumber, band);
      return {};
    case Wpx:
      return {AddToList(s.Counters.WPXPrefixList, r.QMult.Trimmed()), 0};
    case AllAsian:
      return AllAsianPrefix(s, r.QMult.Trimmed(), band);
    case Ten: {
      int row = CountryRowOf(s, call);
      if (row == 0) return {};
      return IsTenStateRow(s.Countries, row) ? TenState(s, r.QMult.Trimmed(), band) : TenCountry(s, row, band);
    }
    case Generic:
      GenericCount(s, CountryRowOf(s, call), band);
      return {};
    case CwOpen:
      // The distinct calls are the multipliers.
      AddToList(s.Counters.CWOCallList, call);
      s.Log.TotalMults = s.Counters.CWOCallList.Count;
      return {};
    default:
      return {};
  }
}

}  // namespace tarnix
