// The libFuzzer entry of one harness. fuzz/CMakeLists.txt compiles this file
// once per harness, TARNIX_FUZZ_HARNESS naming it as Harnesses() does. A
// broken promise of the program (Outcome::Fault) is reported and stopped on
// as libFuzzer stops on a crash, so that the input is kept.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "FuzzEntries.h"

namespace {

const tarnix::fuzz::Harness& ThisHarness() {
  static const tarnix::fuzz::Harness* harness = [] {
    const tarnix::fuzz::Harness* found = tarnix::fuzz::HarnessNamed(TARNIX_FUZZ_HARNESS);
    if (!found) {
      std::fprintf(stderr, "fuzz: no harness named %s in FuzzEntries.cpp\n", TARNIX_FUZZ_HARNESS);
      std::abort();
    }
    return found;
  }();
  return *harness;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  tarnix::fuzz::Outcome outcome = ThisHarness().Run(std::string_view(reinterpret_cast<const char*>(data), size));
  if (!outcome.Fault.empty()) {
    std::fprintf(stderr, "fuzz: %s\n", outcome.Fault.c_str());
    std::abort();
  }
  return 0;
}
