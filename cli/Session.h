#pragma once
// One run of the logger without a window: the scripted desktop, the program
// state read from the program folder, and the main form model. Message boxes
// print as "MSGBOX <title>|<text>" and get their default answer.

#include <memory>
#include <ostream>
#include <string>

#include "operating/LogForm.h"
#include "platform/Scripted.h"

namespace tarnix::cli {

class Session {
 public:
  // appPath empty: the program folder of the user ($TARNIX_HOME...).
  explicit Session(std::ostream& out, const std::string& appPath = {});

  // Reports a start that failed (the program folder's files unreadable).
  bool Start(std::ostream& err) const;
  // File > Open with the dialog answered by path; true when the log is open.
  bool Open(const std::string& path);

  ScriptedPlatform Desk;
  std::string StartError;  // before Ctx: starting the context sets it
  std::unique_ptr<Context> Ctx;
  LogForm Form;
};

}  // namespace tarnix::cli
