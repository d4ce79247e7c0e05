#pragma once
// One run of the logger without a window: the headless logger started on the
// program folder. Message boxes print as "MSGBOX <title>|<text>" and get
// their default answer.

#include <ostream>
#include <string>

#include "operating/ScriptedLogger.h"

namespace tarnix::cli {

class Session : public ScriptedLogger {
 public:
  // appPath empty: the program folder of the user ($TARNIX_HOME...).
  // Started is false when the start failed (its MSGBOX line says why).
  explicit Session(std::ostream& out, const std::string& appPath = {});
};

}  // namespace tarnix::cli
