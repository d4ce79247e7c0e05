#pragma once
// A program started for real on a fresh program folder, with its main form:
// the parsers and rules take their tables from the shipped data file.

#include <gtest/gtest.h>

#include <memory>

#include "operating/LogForm.h"
#include "operating/RecordingStation.h"
#include "operating/Startup.h"
#include "platform/Scripted.h"

namespace tarnix {

class StartedFormTest : public ::testing::Test {
 protected:
  TempFolder home;
  std::unique_ptr<Context> ctx = MakeContext(home.Path);
  ScriptedPlatform desk;
  bool started = StartProgram(*ctx, desk.View);
  RecordingStation station;
  LogForm form{*ctx, desk.View, station.View};
};

}  // namespace tarnix
