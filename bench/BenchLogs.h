#pragma once
// Logs for the benchmarks: distinct, realistic-looking calls in a scrambled
// order, the same on every run.

#include <string>
#include <vector>

namespace tarnix::bench {

inline std::vector<std::string> MakeCalls(int count) {
  static const char* const kPrefixes[] = {"K", "W", "N", "AA", "DL", "G", "JA", "VE", "OH", "PY"};
  std::vector<std::string> calls;
  unsigned seed = 12345;
  for (int i = 0; i < count; ++i) {
    seed = seed * 1103515245u + 12345u;
    std::string call = kPrefixes[seed % 10];
    call += static_cast<char>('0' + (seed >> 8) % 10);
    call += static_cast<char>('A' + i % 26);
    call += static_cast<char>('A' + (i / 26) % 26);
    call += static_cast<char>('A' + (i / 676) % 26);
    calls.push_back(call);
  }
  return calls;
}

}  // namespace tarnix::bench
