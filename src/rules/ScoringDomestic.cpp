// The multiplier steps of the contests that go by a table: CQP, PAQP, NEQP,
// Sprint, NAQP, Sweepstakes, and ARRL DX seen from a DX station. A table
// row's worked mark turns from "N" to "Y" the first time it is worked; QMult
// keeps the row number (with the blank of a positive number's text), so that
// a later change to a row's abbreviation does not alter the log.

#include <cctype>

#include "core/Text.h"
#include "rules/ScoringParts.h"

namespace tarnix {
namespace {

// CQP from California: all the counties together credit this row of the
// states and provinces, California's.
constexpr int CaliforniaRow = 5;
// Sprint: this row (Hawaii) never counts.
constexpr int SprintRowNeverCounts = 11;

// The first row, other than skipRow, with text in one of the columns
// 1..lastColumn; 0 when none.
template <int Rows, int Columns>
int FormRow(const MultTable<Rows, Columns>& table, int lastColumn, std::string_view text, int skipRow = 0) {
  for (int row = 1; row <= Rows; ++row) {
    if (row == skipRow) continue;
    for (int column = 1; column <= lastColumn; ++column)
      if (table.At(row, column) == text) return row;
  }
  return 0;
}

// The row a stored QMult names: a blank then digits (" 12"); 0 for text
// typed as the operator sent it, which never starts with a blank.
int StoredRow(const FixedText<5>& mult, int rows) {
  std::string text = RTrim(mult.Str());
  if (text.size() < 2 || text[0] != ' ') return 0;
  for (std::size_t i = 1; i < text.size(); ++i)
    if (!std::isdigit(static_cast<unsigned char>(text[i]))) return 0;
  int row = static_cast<int>(Val(text));
  return row >= 1 && row <= rows ? row : 0;
}

MultOutcome MarkRow(std::string& mark, int row) {
  if (!MarkWorked(mark)) return {};
  return {true, static_cast<int16_t>(row)};
}

// A mark per band: column BandIndex + 1 of NAQPTable and ARRLTable.
template <int Rows, int Columns>
MultOutcome MarkBand(MultTable<Rows, Columns>& table, int row, int band) {
  return MarkRow(table.At(row, band + 1), row);
}

// ARRL DX counts its multipliers itself.
MultOutcome CountArrl(ScoringState& s, MultOutcome outcome, int band) {
  if (outcome.NewMult) {
    ++s.Log.BandMults.at(static_cast<std::size_t>(band));
    ++s.Log.TotalMults;
  }
  return outcome;
}

MultOutcome ArrlRow(ScoringState& s, const std::string& mult, int band) {
  int row = FormRow(s.Tables.ARRLTable, 1, mult);
  return row ? CountArrl(s, MarkBand(s.Tables.ARRLTable, row, band), band) : MultOutcome{};
}

MultOutcome CqpCredit(ScoringState& s, int row) { return row ? MarkRow(s.Tables.CQPTable.At(row, 4), row) : MultOutcome{}; }

// CQP: from California a county first, crediting California; otherwise a
// state, province or (out of state) county by its row.
MultOutcome CqpMult(ScoringState& s, QsoRecord& r, const std::string& m) {
  MultiplierTables& t = s.Tables;
  if (s.Contest.InState) {
    if (int county = FormRow(t.CQPCountyTable, 3, m)) {
      r.QMult.Set(t.CQPCountyTable.At(county, 1));
      return CqpCredit(s, CaliforniaRow);
    }
  }
  int row = FormRow(t.CQPTable, 3, m);
  r.QMult.Set(row ? NumberText(row) : m);
  return CqpCredit(s, row);
}

MultOutcome CqpReplay(ScoringState& s, const QsoRecord& r) {
  if (s.Contest.InState && FormRow(s.Tables.CQPCountyTable, 3, r.QMult.Trimmed()))
    return CqpCredit(s, CaliforniaRow);
  return CqpCredit(s, StoredRow(r.QMult, CQPMultRows));
}

// PAQP and NEQP: a row number, or QMult left as it stood when nothing
// matches.
template <int Rows, int Columns>
MultOutcome PartyMult(MultTable<Rows, Columns>& table, int formColumns, QsoRecord& r, const std::string& m) {
  int row = FormRow(table, formColumns, m);
  if (!row) return {};
  r.QMult.Set(NumberText(row));
  return MarkRow(table.At(row, 4), row);
}

template <int Rows, int Columns>
MultOutcome PartyReplay(MultTable<Rows, Columns>& table, const QsoRecord& r) {
  int row = StoredRow(r.QMult, Rows);
  return row ? MarkRow(table.At(row, 4), row) : MultOutcome{};
}

MultOutcome SprintMult(ScoringState& s, QsoRecord& r, const std::string& m) {
  int row = FormRow(s.Tables.SprintTable, 1, m, SprintRowNeverCounts);
  r.QMult.Set(row ? NumberText(row) : m);
  return row ? MarkRow(s.Tables.SprintTable.At(row, 2), row) : MultOutcome{};
}

MultOutcome SprintReplay(ScoringState& s, const QsoRecord& r) {
  int row = StoredRow(r.QMult, SprintMultRows);
  if (!row || row == SprintRowNeverCounts) return {};
  return MarkRow(s.Tables.SprintTable.At(row, 2), row);
}

MultOutcome NaqpMult(ScoringState& s, QsoRecord& r, const std::string& m) {
  int row = FormRow(s.Tables.NAQPTable, 1, m);
  r.QMult.Set(row ? NumberText(row) : m);
  return row ? MarkBand(s.Tables.NAQPTable, row, r.QBand) : MultOutcome{};
}

MultOutcome NaqpReplay(ScoringState& s, const QsoRecord& r) {
  int row = StoredRow(r.QMult, NAQPMultRows);
  return row ? MarkBand(s.Tables.NAQPTable, row, r.QBand) : MultOutcome{};
}

MultOutcome SectionCredit(ScoringState& s, int row) { return row ? MarkRow(s.Tables.SSTable.At(row, 4), row) : MultOutcome{}; }

// Sweepstakes stores precedence, check and the section's two-character short
// form; replay finds the section by the short form.
MultOutcome SSReplay(ScoringState& s, const QsoRecord& r) {
  std::string shortForm = r.QMult.Str().substr(3, 2);
  for (int row = 1; row <= SSSectionRows; ++row)
    if (s.Data.SSShortForms[static_cast<std::size_t>(row)] == shortForm) return SectionCredit(s, row);
  return {};
}

}  // namespace

MultOutcome DomesticMult(ScoringState& s, QsoRecord& r, const ReceivedFields& f, const std::string& exchange) {
  switch (s.Contest.ContestIndex) {
    case ArrlDx: {
      std::string mult = UCase(Trim(exchange));
      r.QMult.Set(mult);
      return ArrlRow(s, mult, r.QBand);
    }
    case Cqp:
      return CqpMult(s, r, f.CQPMult);
    case Paqp:
      return PartyMult(s.Tables.PAQPTable, 3, r, f.CQPMult);
    case Neqp:
      return PartyMult(s.Tables.NEQPTable, 2, r, f.CQPMult);
    case Sprint:
      return SprintMult(s, r, f.SprintMult);
    case Naqp:
      return NaqpMult(s, r, f.NAQPMult);
    case Sweepstakes:
      return SectionCredit(s, FormRow(s.Tables.SSTable, 3, f.SSSection));
    default:
      return {};
  }
}

MultOutcome DomesticReplay(ScoringState& s, const QsoRecord& r) {
  switch (s.Contest.ContestIndex) {
    case ArrlDx:
      return ArrlRow(s, r.QMult.Trimmed(), r.QBand);
    case Cqp:
      return CqpReplay(s, r);
    case Paqp:
      return PartyReplay(s.Tables.PAQPTable, r);
    case Neqp:
      return PartyReplay(s.Tables.NEQPTable, r);
    case Sprint:
      return SprintReplay(s, r);
    case Naqp:
      return NaqpReplay(s, r);
    case Sweepstakes:
      return SSReplay(s, r);
    default:
      return {};
  }
}

}  // namespace tarnix
