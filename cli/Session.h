#pragma once
// One run of the logger without a window: the scripted desktop, the program
// state read from the program folder, and the main form model. Message boxes
// print as "MSGBOX <title>|<text>" and get their default answer.

#include <memory>
#include <ostream>
#include <string>

#include "operating/LogForm.h"
#include "operating/RecordingStation.h"
#include "platform/Scripted.h"

namespace tarnix::cli {

class Session {
 public:
  // appPath empty: the program folder of the user ($TARNIX_HOME...).
  explicit Session(std::ostream& out, const std::string& appPath = {});

  // False when the start failed (its MSGBOX line says why).
  bool Started = false;
  // File > Open with the dialog answered by path; true when the log is open.
  bool Open(const std::string& path);

  ScriptedPlatform Desk;
  RecordingStation Station;
  std::unique_ptr<Context> Ctx;
  LogForm Form;

 private:
  std::unique_ptr<Context> Begin(std::ostream& out, const std::string& appPath);
};

}  // namespace tarnix::cli
