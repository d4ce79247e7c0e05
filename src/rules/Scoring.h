#pragma once
// QSO points and multipliers of the thirteen contests: the points step and the
// multiplier step of every logged QSO, the same steps replayed from the
// stored record when a log is opened, the tally of points into the counters,
// the claimed score, and what a call or exchange would be worth before it is
// logged (the needed-on and the Worked/NEEDED labels).
//
// The logging step runs, in this order: the points step (skipped for a dupe,
// which keeps "0"), the multiplier step (run for a dupe too: the worked marks
// decide, not the dupe flag), the record is stored, then the tally. Replay
// runs the multiplier step and the tally on the stored fields, so that a log
// opened again has exactly the counters its live logging left.
//
// A few rules test for CW with "BandIndex below 9" rather than the full CW
// test of core/Bands.h; they are kept so, as they are the band-1-to-8 case of
// those contests. Everything runs on the user-interface thread.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "config/StartupData.h"
#include "core/Contest.h"
#include "core/LogStore.h"
#include "core/QsoRecord.h"
#include "rules/ContestCounters.h"
#include "rules/Countries.h"
#include "rules/MultiplierTables.h"
#include "rules/Parsers.h"

namespace tarnix {

// The parts of the program the rules read and change, for one call.
struct ScoringState {
  const ContestState& Contest;
  const StartupData& Data;
  CountryData& Countries;
  MultiplierTables& Tables;
  ContestCounters& Counters;
  LogStore& Log;
};

// What the multiplier step tells the form: the QSO gave a new multiplier,
// and the table row it marked (0 when the contest has no rows or none was
// marked). ARRL 10 sets both on any state or province matched, new or not.
struct MultOutcome {
  bool NewMult = false;
  int16_t NewMultRow = 0;
};

// The points step of a QSO that is not a dupe: QPoints of record by the
// contest's rule. record holds the logged call and band. prefix is the call's
// WPX prefix (CQWW and WPX from the US or Canada); countyLine is CQP's
// county-line mark. WPX also counts SameContinentQSOs here.
void ScorePoints(ScoringState& s, QsoRecord& record, const std::string& prefix, bool countyLine);

// The multiplier step of a QSO being logged: QMult, the worked marks and
// arrays, and for ARRL DX, CQWW, ARRL 10 and CW Open (whose distinct calls
// are its multipliers) the multiplier counters
// themselves (the others leave TotalMults and BandMults to the tally of a
// NewMult). record holds the logged call, band, points and received number;
// prefix is the call's WPX prefix (WPX, All Asian); exchange is the exchange
// box as typed (ARRL DX from a DX station).
MultOutcome ScoreMultiplier(ScoringState& s, QsoRecord& record, const ReceivedFields& received,
                            const std::string& prefix, const std::string& exchange);

// Both steps again for a logged QSO, from its stored fields, when a log is
// opened: the points are the stored ones, so only WPX's SameContinentQSOs is
// counted again, and not for a QSO stored with "0" (a dupe, whose points step
// did not run). Never changes the record.
MultOutcome ReplayQso(ScoringState& s, const QsoRecord& record);

// The numeric value of a QSO's points: the digit, but PAQP's "3" is 15
// tenths and its other digits count in tenths too.
int PointsValue(int contestIndex, const QsoRecord& record);

// A counted QSO into the totals: a new multiplier of its multiplier step
// into TotalMults and the band's (but in ARRL DX and ARRL 10, which count
// their own), its points into TotalQSOPoints, the band's points (not in
// Sprint, SS and NAQP), the contest's CW and phone QSO counters and the
// band's average points (ARRL DX, CQWW, WPX, All Asian, CW Open). BandQSOs
// must already count the QSO.
void TallyPoints(ScoringState& s, const QsoRecord& record, const MultOutcome& outcome);

// TotalQSOPoints times TotalMults; PAQP's tenths divided by ten first.
int32_t ClaimedScoreOf(int contestIndex, int32_t totalQSOPoints, int16_t totalMults);

// The two labels beside the boxes: "Score: " and "Mults:  ", or the
// Generic log's CW and phone countries.
struct ScoreCaptions {
  std::string Score, Mults;
};
ScoreCaptions ScoreCaptionsOf(const ScoringState& s);

// The caption of LabelNeededOn while the exchange is typed (ARRL DX from a DX
// station, NAQP): the multiplier, " needed on  ", and the bands of the current
// mode on which it is still needed, the current one in brackets. Nothing when
// the label stays hidden.
std::optional<std::string> NeededOnText(const ScoringState& s, std::string_view exchange);

// NeedPfxLabel and LblWpxCountry for a typed call.
struct WorkedLabels {
  bool Shown = false;      // NeedPfxLabel is shown (its text may be empty)
  std::string Text;        // its lines, "\n" between them
  bool Needed = false;     // shown as needed (red) rather than worked (blue)
  bool CountryShown = false;
  std::string Country;     // LblWpxCountry: the country's name
};

// What the labels say of call in the open log: "Country Ck" (ARRL DX from the
// US or Canada, CQWW) or "Prefix Ck" (WPX, All Asian) with the prefix and
// " Worked" or " NEEDED" on the current band; ARRL 10 and Generic give the
// CW and phone state of the country. Nothing is shown in other contests, for
// an empty call or for a call of no country where the country decides.
WorkedLabels WorkedOrNeeded(ScoringState& s, const std::string& call);

}  // namespace tarnix
