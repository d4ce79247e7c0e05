#pragma once
// The multiplier tables of the domestic contests: rows of text columns, filled
// from the startup data file (config/StartupData.h) each time a log is opened
// and marked by the scoring rules as multipliers are worked.
//
// Alternative-form columns hold the accepted forms of a multiplier; a column
// the item gave no form for holds "@", which no operator can type. Worked
// marks are "N" until the multiplier is worked, then "Y". Rows and columns
// count from 1; an access outside the table's bounds is a program fault and
// throws std::out_of_range("Subscript out of range").

#include <array>
#include <string>
#include <string_view>

#include "config/StartupData.h"
#include "core/LogStore.h"

namespace tarnix {

// The text of a form column that holds no form.
inline constexpr std::string_view NoForm = "@";

template <int Rows, int Columns>
class MultTable {
 public:
  static constexpr int RowCount = Rows;
  static constexpr int ColumnCount = Columns;

  std::string& At(int row, int column) { return Cells[Slot(row, column)]; }
  const std::string& At(int row, int column) const { return Cells[Slot(row, column)]; }

  // Every row's cell in one column.
  void FillColumn(int column, std::string_view text) {
    for (int row = 1; row <= Rows; ++row) At(row, column) = text;
  }

  bool operator==(const MultTable&) const = default;

 private:
  static std::size_t Slot(int row, int column);
  std::array<std::string, static_cast<std::size_t>(Rows * Columns)> Cells;
};

template <int Rows, int Columns>
std::size_t MultTable<Rows, Columns>::Slot(int row, int column) {
  if (row < 1 || row > Rows || column < 1 || column > Columns) ThrowSubscript();
  return static_cast<std::size_t>((row - 1) * Columns + (column - 1));
}

// Columns 1 to 3 forms, 4 the worked mark.
using CQPTableType = MultTable<CQPMultRows, 4>;
// The California counties for a California station: forms only, as all
// counties together count as the one multiplier of California.
using CQPCountyTableType = MultTable<CQPMultRows, 3>;
using SSTableType = MultTable<SSSectionRows, 4>;
// Column 1 the multiplier, 2 the worked mark.
using SprintTableType = MultTable<SprintMultRows, 2>;
using PAQPTableType = MultTable<PAQPMultRows, 4>;
// Column 1 the first five characters of the text, 2 its last three, 3 the
// whole text, 4 the worked mark.
using NEQPTableType = MultTable<NEQPMultRows, 4>;
// Column 1 the multiplier; column BandIndex + 1 the worked mark on that band
// (2 to 15).
using NAQPTableType = MultTable<NAQPMultRows, 15>;
// Column 1 the state or province, 2 the CW mark, 3 the phone mark.
using TenTableType = MultTable<TenMultRows, 3>;
using ARRLTableType = MultTable<ARRLMultRows, 15>;

struct MultiplierTables {
  CQPTableType CQPTable;
  CQPCountyTableType CQPCountyTable;
  SSTableType SSTable;
  SprintTableType SprintTable;
  PAQPTableType PAQPTable;
  NEQPTableType NEQPTable;
  NAQPTableType NAQPTable;
  TenTableType TenTable;
  ARRLTableType ARRLTable;

  bool operator==(const MultiplierTables&) const = default;
};

// The up to three accepted forms of one item, "ALAM/ALAME/ALA/": the item is
// trimmed and given a closing "/" if it lacks one; then each column takes the
// text up to the next "/", right-trimmed, and the next column starts behind
// that "/", left-trimmed, until the closing "/" is reached. Columns not
// reached hold "@". An item without "/" fills column 1 alone.
std::array<std::string, 3> SplitMultItem(std::string_view item);

// Puts the forms of consecutive items into columns 1 to 3 of every row of
// table: row r takes the item at place firstPlace + r - 1 of MultList.
template <int Rows, int Columns>
void SplitMultList(const StartupData& data, int firstPlace, MultTable<Rows, Columns>& table) {
  static_assert(Columns >= 3);
  for (int row = 1; row <= Rows; ++row) {
    int place = firstPlace + row - 1;
    if (place < 1 || place > MultListPlaces) ThrowSubscript();
    std::array<std::string, 3> forms = SplitMultItem(data.MultList[static_cast<std::size_t>(place)]);
    for (int column = 1; column <= 3; ++column) table.At(row, column) = std::move(forms[column - 1]);
  }
}

// The tables of a log being opened in contest contestIndex, from the file's
// lists, with every worked mark reset to "N"; inState is the station's
// InState (CQP: inside California).
//
// CQP in California: CQPTable takes the states and provinces (from place 1)
// and CQPCountyTable the counties (from place 59). CQP out of state: CQPTable
// takes the counties. SS: SSTable from place 117. PAQP: PAQPTable's column 1
// takes the file's list and is then split into its own columns 1 to 3.
// NEQP: column 3 takes the file's text, column 1 its first five characters
// and column 2 its last three, blanks included. Sprint, NAQP, ARRL 10 and
// ARRL DX: column 1 takes the file's list.
//
// The tables of other contests are left empty.
void LoadMultiplierTables(const StartupData& data, int contestIndex, bool inState, MultiplierTables& tables);

}  // namespace tarnix
