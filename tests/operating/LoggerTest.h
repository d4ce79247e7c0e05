#pragma once
// The logger on a program folder of its own, fresh or started for real (the
// parsers and rules then take their tables from the shipped data file and
// the countries from the seeded cty.dat), with its parts by their short names
// and the reads the tests share.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "operating/ScriptedLogger.h"

namespace tarnix {

using Lines = std::vector<std::string>;

template <ScriptedLogger::Start How>
class LoggerTestOf : public ::testing::Test {
 protected:
  LoggerTestOf() { desk.Time.Set({2026, 11, 22, 14, 5, 0}); }

  TempFolder home;
  ScriptedLogger run{home.Path, How};
  Context& ctx = run.Ctx;
  ScriptedPlatform& desk = run.Desk;
  RecordingStation& station = run.Station;
  LogForm& form = run.Form;

  // A new log over the one open, which is not kept.
  void NewLog(const ContestChoice& choice) {
    if (How == ScriptedLogger::Start::Program) {
      ASSERT_TRUE(run.Started);
    }
    if (ctx.Log.LogState != LogStateKind::None)
      desk.Boxes.Answers.push_back(ctx.Log.LogState == LogStateKind::Named ? MsgAnswer::Yes : MsgAnswer::No);
    run.NewLog(choice);
  }
  void NewLog(int contest, bool phone = false) {
    NewLog(ContestChoice{contest, IsMixedModeContest(contest) ? -1 : phone ? 0 : 1});
  }
  const QsoRecord& Qso(int n) const { return ctx.Log.LogRecords.At(n); }
  std::string Call(int n) const { return Qso(n).QCall.Trimmed(); }
  // The last box shown as "text|title".
  std::string LastBox() const {
    return desk.Boxes.Shown.empty() ? "" : desk.Boxes.Shown.back().Text + "|" + desk.Boxes.Shown.back().Title;
  }
};

using LoggerTest = LoggerTestOf<ScriptedLogger::Start::Fresh>;
using StartedTest = LoggerTestOf<ScriptedLogger::Start::Program>;

// For the keyboard: a new log with the settings the keys read in a known
// state, the clock at 14:05 and nothing shown or asked yet.
class KeyboardTest : public StartedTest {
 protected:
  void NewLog(int contest, bool phone = false, int qth = -1) {
    StartedTest::NewLog(ContestChoice{contest, IsMixedModeContest(contest) ? -1 : phone ? 0 : 1, -1, qth});
    if (phone && IsMixedModeContest(contest)) ctx.Contest.BandIndex = 11;
    desk.Time.Set({2026, 11, 22, 14, 5, 0});
    Settings& s = ctx.Config;
    s.CWActivated = true;
    s.CWSpeedIncrement = "2";
    s.SendF1Enabled = s.LogandSendF5Enabled = s.LogandSendF6Enabled = false;
    s.Key1IsMapped = s.Key2IsMapped = false;
    desk.Boxes.Shown.clear();
    station.Requests.clear();
  }
  // The word typed into the emptied call box and Enter pressed there.
  void Command(const std::string& text) {
    form.SetFocus(CallBox);
    run.Put(CallBox, "");
    run.Type(text);
    run.Key("Enter");
  }
};

}  // namespace tarnix
