// Speed of the dupe check on a full 8000-QSO log: the scan, its worst case
// where every logged call has the character sum of the call typed, the focus
// step of the exchange box as the operator meets it, and the match lists
// refreshed at each key in the call box.

#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

#include "BenchLogs.h"
#include "core/LogStore.h"
#include "core/Text.h"
#include "operating/ScriptedLogger.h"
#include "rules/DupeCheck.h"

namespace {

using namespace tarnix;
using bench::MakeCalls;

// 8000 distinct calls "K3" and four letters, all with the character sum of
// "K3MMMM": every one passes the quick filter for that call.
std::vector<std::string> CollidingCalls() {
  std::vector<std::string> calls;
  for (int a = 0; a < 26 && calls.size() < MaxQsos; ++a)
    for (int b = 0; b < 26 && calls.size() < MaxQsos; ++b)
      for (int c = 0; c < 26 && calls.size() < MaxQsos; ++c) {
        int d = 48 - a - b - c;  // 4 x ('M' - 'A')
        if (d < 0 || d > 25) continue;
        std::string call = "K3";
        for (int letter : {a, b, c, d}) call += static_cast<char>('A' + letter);
        if (call != "K3MMMM") calls.push_back(call);
      }
  return calls;
}

// A log store holding the calls as QSOs 1..8000 on 20m CW, with the call
// arrays and the sorted index as the logging step leaves them.
std::unique_ptr<LogStore> FullLog(const std::vector<std::string>& calls) {
  auto log = std::make_unique<LogStore>();
  for (std::size_t i = 0; i < calls.size(); ++i) {
    int n = static_cast<int>(i) + 1;
    QsoRecord& r = log->LogRecords.At(n);
    r.QCall.Set(calls[i]);
    r.QBand = 3;
    r.QNumber = static_cast<int16_t>(n);
    log->CallSum.At(n - 1) = CharSum(calls[i]);
    log->CallText.At(n - 1) = calls[i];
    IndexFindCall(*log, calls[i] + "03", false);
  }
  log->QSOCount = static_cast<int16_t>(calls.size() + 1);
  return log;
}

void Scan(benchmark::State& state, const std::vector<std::string>& calls, const std::string& typed,
          const PortableTable& portables) {
  auto log = FullLog(calls);
  if (log->QSOCount != MaxQsos + 1) state.SkipWithError("the log is not full");
  DupeResult result;
  for (auto _ : state) {
    ScanForDupes(*log, portables, Cqww, 3, typed, result);
    benchmark::DoNotOptimize(result.FoundInLog);
  }
  state.SetItemsProcessed(state.iterations() * MaxQsos);
}

// A call not in the log, against calls of spread sums: the usual case.
void BM_ScanSpreadSums(benchmark::State& state) { Scan(state, MakeCalls(MaxQsos), "K3ZZZ", PortableTable{}); }
BENCHMARK(BM_ScanSpreadSums)->Unit(benchmark::kMicrosecond);

// Worst case: all 8000 QSOs share the call's sum and are compared as text.
void BM_ScanAllSumsCollide(benchmark::State& state) {
  auto calls = CollidingCalls();
  if (CharSum(calls.front()) != CharSum("K3MMMM")) state.SkipWithError("the sums differ");
  Scan(state, calls, "K3MMMM", PortableTable{});
}
BENCHMARK(BM_ScanAllSumsCollide)->Unit(benchmark::kMicrosecond);

// Worst case with a full portable table searched first, the last row giving
// the alternative form.
void BM_ScanAllSumsCollideFullPortableTable(benchmark::State& state) {
  PortableTable portables;
  for (int i = 1; i < PortableRows; ++i) {
    std::string call = "W";
    call += std::to_string(i);
    call += "XX/P";
    AddPortableCall(portables, call);
  }
  AddPortableCall(portables, "K3MMMM/QRP");
  Scan(state, CollidingCalls(), "K3MMMM", portables);
}
BENCHMARK(BM_ScanAllSumsCollideFullPortableTable)->Unit(benchmark::kMicrosecond);

// The focus step of the exchange box on a full log of colliding calls: the
// scan, the grid and the dupe line, as the operator moves from the call box.
void BM_ExchangeFocusStep(benchmark::State& state) {
  auto calls = CollidingCalls();
  TempFolder home;
  ScriptedLogger run(home.Path, ScriptedLogger::Start::Fresh);
  run.Desk.Time.Set({2026, 11, 22, 0, 0, 0});
  run.NewLog(Cqww);
  for (const std::string& call : calls) run.Enter(call, "5");
  if (run.Ctx.Log.QSOCount != MaxQsos + 1) state.SkipWithError("the log did not fill");
  LogForm& form = run.Form;
  // Two logged calls in turn, so that each focus step scans for a new call.
  std::size_t turn = 0;
  for (auto _ : state) {
    form.SetFocus(CallBox);
    form.InData[CallBox].Text = calls[calls.size() - 1 - turn++ % 2];
    form.SetFocus(ExchangeBox);
    benchmark::DoNotOptimize(run.Dupes().IsDupe);
  }
  if (!run.Dupes().IsDupe) state.SkipWithError("the call was not found a dupe");
}
BENCHMARK(BM_ExchangeFocusStep)->Unit(benchmark::kMicrosecond);

// One key in the call box on a full log: the bisection and at most 101
// entries, here all beginning with what is typed.
void BM_MatchLoggedCalls(benchmark::State& state) {
  auto log = FullLog(CollidingCalls());
  for (auto _ : state) {
    CallMatches m = MatchLoggedCalls(*log, Cqww, 3, "K3M");
    benchmark::DoNotOptimize(m.OtherList.size());
  }
}
BENCHMARK(BM_MatchLoggedCalls)->Unit(benchmark::kMicrosecond);

}  // namespace
