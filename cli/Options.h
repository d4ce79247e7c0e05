#pragma once
// The options and values several tarnix-cli commands share: the contest of
// a new log as the contest form offers it, the clock, and paths.

#include <iosfwd>
#include <string>

#include "Commands.h"
#include "core/ChCoForm.h"
#include "platform/Platform.h"
#include "platform/SystemClock.h"

namespace tarnix::cli {

// The options of a new log, as the contest form offers them.
struct NewOptions {
  ContestChoice Choice;
  bool HasContest = false;
  LocalDateTime Clock = SystemLocalTime();
};

// Reads --contest, --mode, --qth, --cwo-hour and --clock; the rest of the
// arguments, not options, are returned in positional. False with a message
// on a usage error.
bool ReadOptions(const Args& args, NewOptions& options, Args& positional, std::ostream& err);

// Checks the choice on a contest form of its own, so that an option the
// form does not offer for the contest is reported rather than ignored.
bool ChoiceOffered(const ContestChoice& choice, std::ostream& err);

// "YYYY-MM-DD HH:MM" or "HH:MM" (keeping the date); false if malformed.
bool ParseClock(const std::string& text, LocalDateTime& when);

// The absolute, normal form of a path given on the command line.
std::string Absolute(const std::string& path);

}  // namespace tarnix::cli
