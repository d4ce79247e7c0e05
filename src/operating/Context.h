#pragma once
// The program's state, owned in one place and passed by reference.
//
// There are no mutable globals: every form model and rule is given the
// Context it works on. One Context is one running logger.

#include <memory>
#include <string>

#include "config/Settings.h"
#include "config/StartupData.h"
#include "config/UserInfo.h"
#include "core/Contest.h"
#include "core/LogStore.h"
#include "keying/KeyingState.h"
#include "radio/RadioState.h"
#include "rules/ContestCounters.h"
#include "rules/Countries.h"
#include "rules/DupeCheck.h"
#include "rules/MultiplierTables.h"

namespace tarnix {

struct Context {
  std::string AppPath;         // program folder, with a trailing "/"
  Settings Config;
  ContestState Contest;
  LogStore Log;
  StartupData Data;            // the contest data file, read once
  CountryData Countries;       // the country list, read once
  MultiplierTables Tables;     // loaded from Data for the open log
  ContestCounters Counters;
  PortableTable Portables;     // the log's calls with "/", for the dupe check
  RadioState Radio;
  KeyingState Keying;
  UserInfoClipboard UserClipboard;  // the profile form's copy, for the whole run
};

// A Context lives on the heap: the log store's tables are large.
inline std::unique_ptr<Context> MakeContext(std::string appPath) {
  auto ctx = std::make_unique<Context>();
  ctx->AppPath = std::move(appPath);
  return ctx;
}

}  // namespace tarnix
