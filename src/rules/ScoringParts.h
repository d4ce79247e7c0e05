#pragma once
// The multiplier steps by contest family, for rules/Scoring.cpp: the
// contests that go by a table of states, provinces, counties or sections
// (ScoringDomestic.cpp) and those that go by country, zone, prefix or call
// (ScoringDx.cpp). Each has a live form, which also fills QMult, and a replay
// form, which reads the key back from the stored record.

#include <string>

#include "rules/Scoring.h"

namespace tarnix {

// CQP, PAQP, NEQP, Sprint, NAQP, Sweepstakes, and ARRL DX from a DX station.
MultOutcome DomesticMult(ScoringState& s, QsoRecord& record, const ReceivedFields& received,
                         const std::string& exchange);
MultOutcome DomesticReplay(ScoringState& s, const QsoRecord& record);

// ARRL DX from the US or Canada, CQWW, WPX, All Asian, ARRL 10, Generic, CW Open.
MultOutcome DxMult(ScoringState& s, QsoRecord& record, const ReceivedFields& received, const std::string& prefix);
MultOutcome DxReplay(ScoringState& s, const QsoRecord& record);

// The country row of a call; the call itself is left as it was.
int16_t CountryRowOf(ScoringState& s, const std::string& call);

// A country's prefix as QMult keeps it: without the leading "*" of a country
// that counts for some awards only. Empty for row 0.
std::string CountryMultText(const CountryData& countries, int row);

// A worked mark "N" turned "Y"; true when it was "N".
bool MarkWorked(std::string& mark);

}  // namespace tarnix
