// QSO points, the tally into the counters, the claimed score, and the labels
// that tell what a call or exchange is worth before it is logged. The
// multiplier steps themselves are in ScoringDomestic.cpp and ScoringDx.cpp.

#include "rules/Scoring.h"

#include "core/Bands.h"
#include "core/Text.h"
#include "rules/ScoringParts.h"

namespace tarnix {
namespace {

// Table contests and ARRL DX from a DX station go by a table row; the
// others by the call.
bool GoesByTable(const ContestState& c) {
  return OneOf(c.ContestIndex, {Cqp, Paqp, Neqp, Sprint, Naqp, Sweepstakes}) ||
         (c.ContestIndex == ArrlDx && !c.IsUSVEStation);
}

struct Points {
  int Value = 0;
  bool SameContinent = false;  // WPX's own-continent count
};

// CQWW and WPX. From the US or Canada the worked prefix's class decides;
// elsewhere the worked country's continent against the station's.
Points DxPoints(ScoringState& s, const std::string& call, const std::string& prefix, int band) {
  const ContestState& c = s.Contest;
  const bool wpx = c.ContestIndex == Wpx;
  if (c.StationInUSA || c.StationInCanada) {
    const NAClass own = c.StationInUSA ? NAClass::USA : NAClass::Canada;
    const NAClass worked = ClassifyNAPrefix(prefix);
    const bool high = OneOf(band, {1, 2, 3, 9, 10, 11});
    if (worked == own) return {wpx ? 1 : 0, true};
    if (worked != NAClass::None) return {wpx ? (high ? 2 : 4) : 2};
    return {wpx ? (high ? 3 : 6) : 3};
  }
  // A call of no country has a blank continent: a different continent.
  const std::string& continent =
      s.Countries.CountryTable.at(static_cast<std::size_t>(CountryRowOf(s, call))).Continent;
  const bool high = band % 8 < 4;  // 8 and 16 are high bands too
  if (continent != c.StationContinent) return {wpx ? (high ? 3 : 6) : 3};
  if (c.StationContinent == "NA") return {wpx ? (high ? 2 : 4) : 2, true};
  return {wpx ? (high ? 1 : 2) : 1, true};
}

Points PointsFor(ScoringState& s, const std::string& call, const std::string& prefix, int band, bool countyLine) {
  const bool cw = band < 9;  // the shortcut these rules use
  switch (s.Contest.ContestIndex) {
    case ArrlDx:
      return {3};
    case Cqp:
      return {countyLine ? 0 : cw ? 3 : 2};
    case Cqww:
    case Wpx:
      return DxPoints(s, call, prefix, band);
    case Sweepstakes:
      return {2};
    case AllAsian: {
      const std::string& continent =
          s.Countries.CountryTable.at(static_cast<std::size_t>(CountryRowOf(s, call))).Continent;
      if (continent != "AS") return {0};
      return {OneOf(band, {6, 14}) ? 3 : OneOf(band, {5, 13}) ? 2 : 1};
    }
    case Paqp:
      return {OneOf(band, {1, 2, 3, 4, 7, 8}) ? 3 : OneOf(band, {5, 6}) ? 2 : 1};
    case Ten: {
      if (!cw) return {2};
      std::string end = call.size() >= 2 ? call.substr(call.size() - 2) : call;
      return {end == "/T" || end == "/N" ? 8 : 4};
    }
    case Neqp:
      return {cw ? 2 : 1};
    case Generic:
      return {band >= 9 && band <= 20 ? 1 : 2};
    default:  // Sprint, NAQP, CW Open
      return {1};
  }
}

void CountSameContinent(ScoringState& s, const Points& p) {
  if (s.Contest.ContestIndex == Wpx && p.SameContinent) ++s.Counters.SameContinentQSOs;
}

}  // namespace

bool MarkWorked(std::string& mark) {
  if (mark != "N") return false;
  mark = "Y";
  return true;
}

void ScorePoints(ScoringState& s, QsoRecord& r, const std::string& prefix, bool countyLine) {
  Points p = PointsFor(s, r.QCall.Trimmed(), UCase(prefix), r.QBand, countyLine);
  r.QPoints.Set(std::string(1, static_cast<char>('0' + p.Value)));
  CountSameContinent(s, p);
}

MultOutcome ScoreMultiplier(ScoringState& s, QsoRecord& r, const ReceivedFields& received, const std::string& prefix,
                            const std::string& exchange) {
  if (GoesByTable(s.Contest)) return DomesticMult(s, r, received, exchange);
  return DxMult(s, r, received, prefix);
}

MultOutcome ReplayQso(ScoringState& s, const QsoRecord& r) {
  if (s.Contest.ContestIndex == Wpx && r.QPoints.Str() != "0")
    CountSameContinent(s, PointsFor(s, r.QCall.Trimmed(), r.QMult.Trimmed(), r.QBand, false));
  if (GoesByTable(s.Contest)) return DomesticReplay(s, r);
  return DxReplay(s, r);
}

int PointsValue(int contestIndex, const QsoRecord& r) {
  int value = static_cast<int>(Val(r.QPoints.Str()));
  if (contestIndex != Paqp) return value;
  return value == 3 ? 15 : value * 10;
}

void TallyPoints(ScoringState& s, const QsoRecord& r, const MultOutcome& outcome) {
  const int c = s.Contest.ContestIndex;
  const int points = PointsValue(c, r);
  const auto band = static_cast<std::size_t>(r.QBand);
  LogStore& log = s.Log;
  ContestCounters& k = s.Counters;
  // ARRL DX and ARRL 10 count their multipliers in their multiplier step.
  if (outcome.NewMult && c != ArrlDx && c != Ten) {
    ++log.TotalMults;
    ++log.BandMults.at(band);
  }
  log.TotalQSOPoints += points;
  if (OneOf(c, {Sprint, Sweepstakes, Naqp})) return;
  log.BandPoints.at(band) = static_cast<int16_t>(log.BandPoints.at(band) + points);

  // Which points are phone and which CW, by contest; ARRL 10's 8 points
  // of a "/T" or "/N" call on CW count with the phone QSOs.
  int phone = -1, cw = -1;
  if (c == Cqp) phone = 2, cw = 3;
  if (c == Neqp || c == Generic) phone = 1, cw = 2;
  if (c == Paqp) {
    ++(points == 10 ? k.PhoneQSOs : k.CWQSOs);
  } else if (c == Ten) {
    if (points == 2 || points == 8) ++k.PhoneQSOs;
    if (points == 4) ++k.CWQSOs;
  } else if (points == phone) {
    ++k.PhoneQSOs;
  } else if (points == cw) {
    ++k.CWQSOs;
  }

  if (OneOf(c, {ArrlDx, Cqww, Wpx, AllAsian, CwOpen}) && log.BandQSOs.at(band) > 0)
    k.BandAvgPoints.at(band) = static_cast<float>(log.BandPoints.at(band)) / static_cast<float>(log.BandQSOs.at(band));
}

int32_t ClaimedScoreOf(int contestIndex, int32_t totalQSOPoints, int16_t totalMults) {
  if (contestIndex == Paqp) return static_cast<int32_t>(RoundEven(totalQSOPoints / 10.0 * totalMults));
  return totalQSOPoints * totalMults;
}

ScoreCaptions ScoreCaptionsOf(const ScoringState& s) {
  if (s.Contest.ContestIndex == Generic)
    return {" CW Cties: " + std::to_string(CountriesWorked(s.Counters.CWCountryCount)),
            "SSB Cties: " + std::to_string(CountriesWorked(s.Counters.SSBCountryCount))};
  return {"Score: " + Grouped(s.Log.ClaimedScore), "Mults:  " + std::to_string(s.Log.TotalMults)};
}

std::optional<std::string> NeededOnText(const ScoringState& s, std::string_view exchange) {
  const ContestState& c = s.Contest;
  std::string text = UCase(Trim(exchange));
  std::string mult;
  if (c.ContestIndex == ArrlDx && !c.IsUSVEStation) {
    if (text.size() < 2) return std::nullopt;
    mult = text;
  } else if (c.ContestIndex == Naqp) {
    std::size_t blank = text.find(' ');
    if (blank == std::string::npos) return std::nullopt;
    mult = LTrim(std::string_view(text).substr(blank));
    mult = mult.substr(0, mult.find(' '));
  } else {
    return std::nullopt;
  }

  // Column 1 holds the multiplier, column BandIndex + 1 its mark on that band.
  auto cell = [&](int row, int column) -> const std::string& {
    return c.ContestIndex == Naqp ? s.Tables.NAQPTable.At(row, column) : s.Tables.ARRLTable.At(row, column);
  };
  const int rows = c.ContestIndex == Naqp ? NAQPMultRows : ARRLMultRows;
  int row = 0;
  for (int r = 1; r <= rows && row == 0; ++r)
    if (cell(r, 1) == mult) row = r;
  if (row == 0) return std::nullopt;

  std::string caption = mult + " needed on  ";
  const int first = IsCWBand(c.BandIndex) ? 1 : 9;
  for (int band = first; band <= first + 5; ++band) {
    if (cell(row, band + 1) != "N") continue;
    const std::string& name = BandName(BandRow(band));
    caption += band == c.BandIndex ? " [" + name + "]" : " " + name;
  }
  return caption;
}

WorkedLabels WorkedOrNeeded(ScoringState& s, const std::string& typed) {
  const ContestState& c = s.Contest;
  const ContestCounters& k = s.Counters;
  const int band = c.BandIndex;
  const std::string call = UCase(RemoveChars(Trim(typed), ".?"));
  WorkedLabels out;
  if (call.empty() || band < 1 || band > BandIndexCount) return out;

  // Three lines: the kind of check, the prefix centred, the verdict.
  auto threeLines = [&out](const char* kind, const std::string& prefix, bool worked) {
    std::size_t pad = prefix.size() < 12 ? (12 - prefix.size()) / 2 : 0;
    out.Shown = true;
    out.Needed = !worked;
    out.Text = std::string(kind) + "\n" + std::string(pad, ' ') + prefix + "\n" + (worked ? " Worked" : " NEEDED");
  };
  // Two lines: the country on CW and on phone.
  auto modeLines = [&out](bool cwWorked, bool phoneWorked) {
    out.Shown = true;
    out.Needed = !cwWorked || !phoneWorked;
    out.Text = std::string(cwWorked ? "CW - Wkd" : "CW - NEED") + "\n" + (phoneWorked ? "PH - Wkd" : "PH - NEED");
  };
  auto country = [&out, &s](int row) {
    out.CountryShown = true;
    out.Country = s.Countries.CountryTable.at(static_cast<std::size_t>(row)).Name;
  };

  switch (c.ContestIndex) {
    case ArrlDx:
    case Cqww: {
      if (c.ContestIndex == ArrlDx && !c.IsUSVEStation) return out;
      int row = CountryRowOf(s, call);
      if (row == 0) return out;
      threeLines("Country Ck", CountryMultText(s.Countries, row), k.CountryBandCount.At(row, band) > 0);
      return out;
    }
    case Wpx:
    case AllAsian: {
      std::string prefix = UCase(GetWPXPrefix(call)).substr(0, 5);  // as QMult keeps it
      bool worked = false;
      if (c.ContestIndex == Wpx) {
        worked = FindInList(k.WPXPrefixList, prefix).Found;
        if (int row = CountryRowOf(s, call)) country(row);
      } else {
        for (int row = 1; row <= PrefixRowsPerBand && !worked; ++row) {
          const std::string& entry = k.PrefixTable150.At(row, band);
          if (entry.empty()) break;
          worked = entry == prefix;
        }
      }
      threeLines("Prefix Ck", prefix, worked);
      return out;
    }
    case Ten: {
      int row = CountryRowOf(s, call);
      if (row == 0) return out;
      const CountryData& d = s.Countries;
      if (row == d.CountryRowK || row == d.CountryRowVE || row == d.CountryRowKL || row == d.CountryRowKH6) {
        out.Shown = out.CountryShown = true;  // both emptied: these rows go by state
        return out;
      }
      modeLines(k.CountryBandCount.At(row, 1) > 0, k.CountryBandCount.At(row, 9) > 0);
      country(row);
      return out;
    }
    case Generic: {
      int row = CountryRowOf(s, call);
      if (row == 0) return out;
      auto r = static_cast<std::size_t>(row);
      if (row == s.Countries.CountryRowKH6) out.Shown = true;  // emptied
      else modeLines(k.CWCountryCount.at(r) > 0, k.SSBCountryCount.at(r) > 0);
      country(row);
      return out;
    }
    default:
      return out;
  }
}

}  // namespace tarnix
