#include "rules/MultiplierTables.h"

#include "core/Contest.h"
#include "core/Text.h"

namespace tarnix {
namespace {

constexpr std::string_view NotWorked = "N";

// The file's list goes into one column, row for row.
template <int Rows, int Columns>
void FillColumnFrom(const TextList<Rows>& list, int column, MultTable<Rows, Columns>& table) {
  for (int row = 1; row <= Rows; ++row) table.At(row, column) = list[static_cast<std::size_t>(row)];
}

template <int Rows, int Columns>
void ResetMarks(MultTable<Rows, Columns>& table, int firstColumn, int lastColumn) {
  for (int column = firstColumn; column <= lastColumn; ++column) table.FillColumn(column, NotWorked);
}

}  // namespace

std::array<std::string, 3> SplitMultItem(std::string_view item) {
  std::array<std::string, 3> forms;
  forms.fill(std::string(NoForm));
  std::string rest = Trim(item);
  if (rest.empty() || rest.back() != '/') rest += '/';
  for (std::string& form : forms) {
    std::size_t slash = rest.find('/');  // always found: rest ends in "/"
    form = RTrim(std::string_view(rest).substr(0, slash));
    if (slash + 1 == rest.size()) break;
    rest = LTrim(std::string_view(rest).substr(slash + 1));
  }
  return forms;
}

void LoadMultiplierTables(const StartupData& data, int contestIndex, bool inState, MultiplierTables& tables) {
  tables = MultiplierTables{};
  switch (contestIndex) {
    case Cqp:
      if (inState) {
        SplitMultList(data, CQPStatePlace, tables.CQPTable);
        SplitMultList(data, CQPCountyPlace, tables.CQPCountyTable);
      } else {
        SplitMultList(data, CQPCountyPlace, tables.CQPTable);
      }
      ResetMarks(tables.CQPTable, 4, 4);
      break;
    case Sweepstakes:
      SplitMultList(data, SSSectionPlace, tables.SSTable);
      ResetMarks(tables.SSTable, 4, 4);
      break;
    case Paqp: {
      PAQPTableType& table = tables.PAQPTable;
      FillColumnFrom(data.PAQPMults, 1, table);
      for (int row = 1; row <= PAQPMultRows; ++row) {
        std::array<std::string, 3> forms = SplitMultItem(table.At(row, 1));
        for (int column = 1; column <= 3; ++column) table.At(row, column) = std::move(forms[column - 1]);
      }
      ResetMarks(table, 4, 4);
      break;
    }
    case Neqp: {
      NEQPTableType& table = tables.NEQPTable;
      FillColumnFrom(data.NEQPMults, 3, table);
      for (int row = 1; row <= NEQPMultRows; ++row) {
        const std::string& whole = table.At(row, 3);
        table.At(row, 1) = whole.substr(0, 5);
        table.At(row, 2) = whole.substr(whole.size() > 3 ? whole.size() - 3 : 0);
      }
      ResetMarks(table, 4, 4);
      break;
    }
    case Sprint:
      FillColumnFrom(data.SprintMults, 1, tables.SprintTable);
      ResetMarks(tables.SprintTable, 2, 2);
      break;
    case Naqp:
      FillColumnFrom(data.NAQPMults, 1, tables.NAQPTable);
      ResetMarks(tables.NAQPTable, 2, NAQPTableType::ColumnCount);
      break;
    case Ten:
      FillColumnFrom(data.TenMults, 1, tables.TenTable);
      ResetMarks(tables.TenTable, 2, 3);
      break;
    case ArrlDx:
      FillColumnFrom(data.ARRLMults, 1, tables.ARRLTable);
      ResetMarks(tables.ARRLTable, 2, ARRLTableType::ColumnCount);
      break;
    default:
      break;
  }
}

}  // namespace tarnix
