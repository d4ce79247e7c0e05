// Speed of the log store and the entry path at the log's full size.

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "BenchLogs.h"
#include "core/LogStore.h"
#include "operating/ScriptedLogger.h"

namespace {

using namespace tarnix;
using bench::MakeCalls;

// Building the sorted call index of a full log, one insert per QSO.
void BM_IndexFindCallFill(benchmark::State& state) {
  auto calls = MakeCalls(MaxQsos);
  auto log = std::make_unique<LogStore>();
  for (auto _ : state) {
    log->CallIndexCount = 0;
    for (const std::string& call : calls) IndexFindCall(*log, call + "03", false);
    benchmark::DoNotOptimize(log->CallIndexCount);
  }
  state.SetItemsProcessed(state.iterations() * MaxQsos);
}
BENCHMARK(BM_IndexFindCallFill)->Unit(benchmark::kMillisecond);

// A search of the full index, as the call box does at each key.
void BM_IndexFindCallSearch(benchmark::State& state) {
  auto calls = MakeCalls(MaxQsos);
  auto log = std::make_unique<LogStore>();
  for (const std::string& call : calls) IndexFindCall(*log, call + "03", false);
  std::size_t i = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(IndexFindCall(*log, calls[i++ % calls.size()].substr(0, 3), true));
  }
}
BENCHMARK(BM_IndexFindCallSearch);

// Logging a full Generic log of 8000 QSOs through the main form.
void BM_ProcessEntryFullLog(benchmark::State& state) {
  auto calls = MakeCalls(MaxQsos);
  for (auto _ : state) {
    state.PauseTiming();
    TempFolder home;
    ScriptedLogger run(home.Path, ScriptedLogger::Start::Fresh);
    run.Desk.Time.Set({2026, 11, 22, 0, 0, 0});
    run.NewLog(Generic);
    state.ResumeTiming();
    for (const std::string& call : calls) {
      run.Enter(call, "599 NOTES", ScriptedLogger::Input::Pasted);
      run.Desk.Time.Advance(10 * 1000);
    }
    benchmark::DoNotOptimize(run.Ctx.Log.QSOCount);
  }
  state.SetItemsProcessed(state.iterations() * MaxQsos);
}
BENCHMARK(BM_ProcessEntryFullLog)->Unit(benchmark::kMillisecond);

// Opening a full 8000-QSO log: the file read, the records decoded and every
// counter rebuilt by replay.
void BM_OpenFullLog(benchmark::State& state) {
  auto calls = MakeCalls(MaxQsos);
  TempFolder home;
  ScriptedLogger run(home.Path, ScriptedLogger::Start::Fresh);
  run.Desk.Time.Set({2026, 11, 22, 0, 0, 0});
  run.NewLog(Generic);
  for (const std::string& call : calls) {
    run.Enter(call, "");
    run.Desk.Time.Advance(10 * 1000);
  }
  run.SaveAs(home.Path + "full.TNX");
  for (auto _ : state) {
    run.Desk.Boxes.Answers.push_back(MsgAnswer::Yes);  // open a different one
    run.Open(home.Path + "full.TNX");
    benchmark::DoNotOptimize(run.Ctx.Log.QSOCount);
  }
  if (run.Ctx.Log.QSOCount != MaxQsos + 1) state.SkipWithError("the log did not open whole");
}
BENCHMARK(BM_OpenFullLog)->Unit(benchmark::kMillisecond);

}  // namespace
