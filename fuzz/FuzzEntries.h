#pragma once
// The readers of outside input, each driven the way the program drives it,
// for the fuzz harnesses of this folder and for the regression test that
// replays every input they once failed on (tests/FuzzRegressionTest.cpp).
//
// Each entry takes the raw bytes and returns what the program made of them:
// a short, deterministic text (the message boxes' titles, whether the log
// opened, the counts...) that the regression test compares with the expected
// result kept beside the input. Fault is set when the program broke one of
// its own promises without crashing (a settings file it writes and then
// cannot read back, say); a harness treats that as a crash.

#include <string>
#include <string_view>
#include <vector>

namespace tarnix::fuzz {

struct Outcome {
  std::string Summary;
  std::string Fault;  // empty when nothing was wrong
};

// File > Open on a log file holding the bytes, in a started program: the
// header, the conversions of old logs, the records of every shape and their
// replay. Then the last logged call is typed into the call box and the box
// left, which runs the dupe check over what was loaded.
Outcome OpenLogFile(std::string_view bytes);

// The settings file tarnix125.ini read into default settings; when it reads,
// the text the program writes back must read again into the same text.
Outcome ReadSettingsFile(std::string_view bytes);

// The contest data file tarnix121.dat; when it reads, the multiplier tables
// of every contest are loaded from it and each domestic contest's parser
// checks an exchange made of each of the file's multipliers.
Outcome ReadStartupDataFile(std::string_view bytes);

// The country file cty.dat, then the lookups of the main form on calls taken
// from the same bytes (each word of the input) and on a few fixed calls.
Outcome ReadCountryFile(std::string_view bytes);

// The exchange parsers through the entry form. The first byte chooses the
// contest and the station's place among those the contest form offers; each
// following line is one QSO typed as the operator does: the first word into
// the call box, the call box left, the rest into the exchange box, Enter.
Outcome EnterExchanges(std::string_view bytes);

// The keyboard of the entry form. The first byte chooses the station as for
// EnterExchanges; then each printable byte is a character typed into the
// focused box, each byte from 0x80 up a key (the function, editing and
// command keys, with the modifiers a byte below 0x20 set for it), and a few
// bytes below 0x20 queue an answer for the next message box or move the
// clock on. After the keys, the log on disk must hold what memory holds.
Outcome PressKeys(std::string_view bytes);

// The harnesses by name, as the corpus and regression folders and the
// fuzzers of fuzz/CMakeLists.txt name them.
struct Harness {
  const char* Name;
  Outcome (*Run)(std::string_view);
};
const std::vector<Harness>& Harnesses();
const Harness* HarnessNamed(std::string_view name);  // nullptr when there is none

}  // namespace tarnix::fuzz
