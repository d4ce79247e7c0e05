// Speed of opening a full 8000-QSO log whose replay runs the country lookup
// and the multiplier steps for every QSO: CQWW (country and zone per band)
// and WPX (the sorted prefix list), with the country file the program seeds.
// Target: under 50 ms each.

#include <benchmark/benchmark.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "BenchLogs.h"
#include "operating/ScriptedLogger.h"

namespace {

using namespace tarnix;
using bench::MakeCalls;

// A started program with a saved log of the calls, each logged through the
// main form on one of the six contest bands with the exchange of its place.
struct SavedLog {
  TempFolder Home;
  ScriptedLogger Run{Home.Path, ScriptedLogger::Start::Program};
  std::string Path = Home.Path + "full.TNX";
  bool Ok = false;

  SavedLog(const ContestChoice& choice, const std::vector<std::string>& calls,
           const std::function<std::string(int)>& exchange) {
    if (!Run.Started) return;
    Run.Desk.Time.Set({2026, 11, 28, 0, 0, 0});
    Run.NewLog(choice);
    for (std::size_t i = 0; i < calls.size(); ++i) {
      Run.Ctx.Contest.BandIndex = static_cast<int16_t>(1 + i % 6);
      Run.Enter(calls[i], exchange(static_cast<int>(i)));
      Run.Desk.Time.Advance(10 * 1000);
    }
    Run.SaveAs(Path);
    Ok = Run.Ctx.Log.QSOCount == static_cast<int>(calls.size()) + 1;
  }

  void Open() {
    Run.Desk.Boxes.Answers.push_back(MsgAnswer::Yes);  // open a different one
    Run.Open(Path);
  }
};

void OpenLog(benchmark::State& state, SavedLog& log) {
  if (!log.Ok) {
    state.SkipWithError("the log could not be made");
    return;
  }
  const int16_t mults = log.Run.Ctx.Log.TotalMults;
  for (auto _ : state) {
    log.Open();
    benchmark::DoNotOptimize(log.Run.Ctx.Log.TotalMults);
  }
  if (log.Run.Ctx.Log.QSOCount != MaxQsos + 1 || log.Run.Ctx.Log.TotalMults != mults)
    state.SkipWithError("the replay did not rebuild the log");
  state.counters["mults"] = mults;
  state.SetItemsProcessed(state.iterations() * MaxQsos);
}

// CQWW from the USA: zones 1..40 in turn.
void BM_OpenCqwwLog(benchmark::State& state) {
  SavedLog log({Cqww, -1, -1, 0, ""}, MakeCalls(MaxQsos), [](int i) { return std::to_string(1 + i % 40); });
  OpenLog(state, log);
}
BENCHMARK(BM_OpenCqwwLog)->Unit(benchmark::kMillisecond);

// WPX from Europe, serials in turn: the usual few hundred prefixes.
void BM_OpenWpxLog(benchmark::State& state) {
  SavedLog log({Wpx, -1, -1, 2, "EU"}, MakeCalls(MaxQsos), [](int i) { return std::to_string(1 + i); });
  OpenLog(state, log);
}
BENCHMARK(BM_OpenWpxLog)->Unit(benchmark::kMillisecond);

// WPX where every QSO is a new prefix ("AB12XY" is AB12), in scrambled
// order: the sorted list grows to 8000 with an insert in its middle each time.
void BM_OpenWpxLogAllNewPrefixes(benchmark::State& state) {
  std::vector<std::string> calls;
  for (int i = 0; i < MaxQsos; ++i) {
    int k = static_cast<int>((static_cast<long>(i) * 7919) % MaxQsos);
    std::string call{static_cast<char>('A' + k % 26), static_cast<char>('A' + k / 26 % 26),
                     static_cast<char>('0' + k / 676 / 10), static_cast<char>('0' + k / 676 % 10), 'X', 'Y'};
    calls.push_back(call);
  }
  SavedLog log({Wpx, -1, -1, 2, "EU"}, calls, [](int i) { return std::to_string(1 + i); });
  OpenLog(state, log);
}
BENCHMARK(BM_OpenWpxLogAllNewPrefixes)->Unit(benchmark::kMillisecond);

}  // namespace
