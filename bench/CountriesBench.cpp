// Speed of the country resolver on the list a new program folder gets: the
// lookups of a full 8000-QSO log, and the start-up read.

#include <benchmark/benchmark.h>

#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "config/CountrySeed.h"
#include "core/LogStore.h"
#include "rules/Countries.h"

namespace {

using namespace tarnix;

std::string SeededList() {
  std::ifstream file(std::string(HamradioFilesDir) + "cty.dat", std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return MakeSeedCountryFile(text.str());
}

// A DX contest log: calls of some hundred prefixes, the big countries more
// often, one in eight worked portable, from another country or (US calls)
// in another call area.
std::vector<std::string> MakeLogCalls(int count) {
  static const char* const kPrefixes[] = {
      "K", "W", "N", "K", "W", "N", "AA", "KA", "KB", "KC", "WA", "VE", "VA", "VY1", "DL", "DJ", "DK", "DL",
      "G", "M", "2E", "F", "EA", "EA8", "I", "IT9", "IK", "JA", "JH", "JR", "7K", "UA", "RA", "R", "UA9", "RA0",
      "OH", "OH0", "SM", "LA", "OZ", "PA", "ON", "HB9", "OE", "OK", "OM", "SP", "HA", "YO", "LZ", "YU", "9A",
      "S5", "YB", "VK", "ZL", "PY", "PU", "LU", "CE", "CX", "XE", "KP4", "KH6", "KL7", "VP2E", "C6A", "ZS", "5B",
      "4X", "VU", "BY", "BA", "HL", "DS", "BV", "3D2", "FO", "V5", "CN", "SU", "TA", "EI", "GM", "GW", "GI",
      "GD", "CT", "CU", "TF", "OY", "LY", "YL", "ES", "UR", "UT", "EW", "4L", "EK", "UN", "A4", "A6", "A7", "HZ",
      "9K", "AP", "HS", "XV", "9M2", "9V", "DU", "JT", "KH2", "KG4", "ZF", "8P", "J3", "PJ2", "FM", "HI", "YV",
      "HK", "OA", "HC", "TI", "TG", "9Y", "V3", "ZD8", "D4", "EA9", "SV", "SV9", "9H", "ZB", "T7", "HV", "1A"};
  constexpr int kCount = sizeof kPrefixes / sizeof kPrefixes[0];
  std::vector<std::string> calls;
  unsigned seed = 2024;
  auto next = [&seed] { return seed = seed * 1103515245u + 12345u, (seed >> 8) & 0xffff; };
  for (int i = 0; i < count; ++i) {
    std::string call = kPrefixes[next() % kCount];
    if (call.back() < '0' || call.back() > '9') call += static_cast<char>('0' + next() % 10);
    for (unsigned letters = 1 + next() % 3; letters > 0; --letters) call += static_cast<char>('A' + next() % 26);
    switch (next() % 40) {
      case 0: call += "/P"; break;
      case 1: call += "/M"; break;
      case 2: call = "DL/" + call; break;
      case 3: call += "/KH6"; break;
      case 4:
        call += '/';
        call += call[0] == 'K' || call[0] == 'W' || call[0] == 'N' ? static_cast<char>('0' + next() % 10) : 'P';
        break;
      default: break;
    }
    calls.push_back(call);
  }
  return calls;
}

// FindCountry for every call of a full log, as a replay of the log does.
void BM_FindCountryFullLog(benchmark::State& state) {
  auto data = std::make_unique<CountryData>();
  CountryFileResult read = ReadCountryText(SeededList(), "cty.dat", *data);
  if (!read.Ok) {
    state.SkipWithError(("cty.dat: " + read.Detail).c_str());
    return;
  }
  const std::vector<std::string> calls = MakeLogCalls(MaxQsos);
  ContestState contest;
  contest.ContestIndex = static_cast<int16_t>(state.range(0));
  long found = 0;
  for (auto _ : state) {
    for (const std::string& logged : calls) {
      std::string call = logged;
      found += FindCountry(*data, contest, call) != 0;
    }
    benchmark::DoNotOptimize(found);
  }
  state.SetItemsProcessed(state.iterations() * MaxQsos);
  if (found != static_cast<long>(state.iterations()) * MaxQsos)
    state.SkipWithError("a call of the log found no country");
}
BENCHMARK(BM_FindCountryFullLog)->Arg(Cqww)->Arg(ArrlDx)->Unit(benchmark::kMicrosecond);

// Reading the list at start-up, index included.
void BM_ReadCountryList(benchmark::State& state) {
  const std::string text = SeededList();
  auto data = std::make_unique<CountryData>();
  for (auto _ : state) {
    CountryFileResult read = ReadCountryText(text, "cty.dat", *data);
    benchmark::DoNotOptimize(read.Ok);
  }
  state.SetLabel(std::to_string(data->CountryCount) + " countries, " + std::to_string(data->PrefixCount) +
                 " prefixes");
}
BENCHMARK(BM_ReadCountryList)->Unit(benchmark::kMillisecond);

}  // namespace
