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
#include "core/ChCoForm.h"
#include "operating/LogForm.h"
#include "operating/RecordingStation.h"
#include "operating/Startup.h"
#include "platform/Scripted.h"

namespace {

using namespace tarnix;
using bench::MakeCalls;

// A started program with a saved log of the calls, each logged through the
// main form on one of the six contest bands with the exchange of its place.
struct SavedLog {
  TempFolder Home;
  ScriptedPlatform Desk;
  RecordingStation Station;
  std::unique_ptr<Context> Ctx = MakeContext(Home.Path);
  std::unique_ptr<LogForm> Form;
  std::string Path = Home.Path + "full.TNX";
  bool Ok = false;

  SavedLog(const ContestChoice& choice, const std::vector<std::string>& calls,
           const std::function<std::string(int)>& exchange) {
    if (!StartProgram(*Ctx, Desk.View)) return;
    Form = std::make_unique<LogForm>(*Ctx, Desk.View, Station.View);
    Desk.Time.Set({2026, 11, 28, 0, 0, 0});
    QueueContestChoice(Desk.Forms, choice);
    Form->mnuFileNewLog_Click();
    for (std::size_t i = 0; i < calls.size(); ++i) {
      Ctx->Contest.BandIndex = static_cast<int16_t>(1 + i % 6);
      std::string text = exchange(static_cast<int>(i));
      Form->InData_Change(CallBox, calls[i], static_cast<int>(calls[i].size()));
      Form->SetFocus(ExchangeBox);
      Form->InData_Change(ExchangeBox, text, static_cast<int>(text.size()));
      Form->InData_KeyDown(ExchangeBox, KeyEnter, 0);
      Desk.Time.Advance(10 * 1000);
    }
    Desk.Files.Names.push_back(Path);
    Form->mnuFileSave_Click();
    Ok = Ctx->Log.QSOCount == static_cast<int>(calls.size()) + 1;
  }

  void Open() {
    Desk.Boxes.Answers.push_back(MsgAnswer::Yes);  // open a different one
    Desk.Files.Names.push_back(Path);
    Form->mnuFileOpenLog_Click();
  }
};

void OpenLog(benchmark::State& state, SavedLog& log) {
  if (!log.Ok) {
    state.SkipWithError("the log could not be made");
    return;
  }
  const int16_t mults = log.Ctx->Log.TotalMults;
  for (auto _ : state) {
    log.Open();
    benchmark::DoNotOptimize(log.Ctx->Log.TotalMults);
  }
  if (log.Ctx->Log.QSOCount != MaxQsos + 1 || log.Ctx->Log.TotalMults != mults)
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
