// Start-up and shut-down around the main form: the start's fatal files, the
// radios' defaults, the clock labels, the welcome and About boxes, recovery
// of a log left by a killed program, and the manual backup.

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sys/wait.h>
#include <unistd.h>

#include "operating/AboutTarnix.h"
#include "operating/LoggerTest.h"
#include "operating/Startup.h"
#include "TestFiles.h"

namespace tarnix {
namespace {

namespace fs = std::filesystem;

TEST(Startup, AMissingSettingsFileEndsTheStart) {
  TempFolder home, emptyData;
  setenv("TARNIX_DATA", emptyData.Path.c_str(), 1);  // nothing to seed from
  ScriptedPlatform desk;
  auto ctx = MakeContext(home.Path);
  EXPECT_FALSE(StartProgram(*ctx, desk.View));
  unsetenv("TARNIX_DATA");
  ASSERT_EQ(desk.Boxes.Shown.size(), 1u);
  EXPECT_EQ(desk.Boxes.Shown[0].Icon, MsgIcon::Critical);
  const std::string message =
      "Can't find or read startup files tarnix125.ini or tarnix121.dat.  "
      "Make sure they are in the same drive/directory used to start program.\n\n";
  EXPECT_EQ(desk.Boxes.Shown[0].Text.substr(0, message.size()), message);
}

TEST(Startup, ADamagedDataFileEndsTheStartAndAMissingCountryListDoesNot) {
  TempFolder home;
  std::ofstream(home.Path + "tarnix121.dat") << "[CQP X Coordinates]\r\n12, west\r\n";
  ScriptedPlatform desk;
  auto ctx = MakeContext(home.Path);
  EXPECT_FALSE(StartProgram(*ctx, desk.View));
  EXPECT_EQ(desk.Boxes.Shown.back().Icon, MsgIcon::Critical);
  EXPECT_EQ(desk.Boxes.Shown.back().Text.substr(0, 61), "Can't find or read startup file tarnix121.dat, and can't proc");

  // With the data file whole but the country list unreadable (a folder in
  // its place), the start says so and goes on.
  fs::remove(home.Path + "tarnix121.dat");
  fs::remove(home.Path + "cty.dat");
  fs::create_directory(home.Path + "cty.dat");
  ScriptedPlatform desk2;
  auto ctx2 = MakeContext(home.Path);
  EXPECT_TRUE(StartProgram(*ctx2, desk2.View));
  ASSERT_EQ(desk2.Boxes.Shown.size(), 1u);
  EXPECT_EQ(desk2.Boxes.Shown[0].Icon, MsgIcon::Exclamation);
  EXPECT_EQ(desk2.Boxes.Shown[0].Text.substr(0, 43), "Can't find or read country file cty.dat.  T");
  EXPECT_EQ(ctx2->Radio.LastFreqByBand[2][3], 14025.0f);  // both radios start on the data's frequencies
}

TEST(Startup, RadiosTakeTheirModelsDefaults) {
  Settings s;
  s.RadioDefaultSettings[3] = {"Icom 756 Pro-A", "5C", 19200, 8, 'N', 1, true, false};
  s.Radio[1] = {"Icom 756 Pro-A", "", 0, 0, ' ', 0, false, false};
  s.Radio[2] = {"Homebrew", "01", 4800, 7, 'E', 2, false, true};
  CopyRadioDefaults(s);
  EXPECT_EQ(s.Radio[1], s.RadioDefaultSettings[3]);
  EXPECT_EQ(s.Radio[2].BaudRate, 4800);  // a name in no row keeps its own
  EXPECT_EQ(s.Radio[2].Parity, 'E');
}

using StartAndStopTest = LoggerTest;

TEST_F(StartAndStopTest, ClockLabelsInBothSpellings) {
  struct Row { const char* gmtFlag; const char* correction; int hour, minute; const char* gmt; const char* local; };
  const Row rows[] = {
      {"True", "-8", 3, 0, "GMT: 0300", "LocalTime: 1900"},
      {"True", "0", 23, 59, "GMT: 2359", "LocalTime: 2359"},
      {"False", "5", 22, 30, "GMT: 0330", "Local Time: 2230"},
      {"true", "-3", 1, 7, "GMT: 2207", "Local Time: 0107"},  // only the exact word counts
  };
  for (const Row& r : rows) {
    ctx.Config.IsGMTFlag = r.gmtFlag;
    ctx.Config.TimeCorrection = r.correction;
    desk.Time.Set({2026, 11, 22, r.hour, r.minute, 0});
    desk.Time.Advance(1000);
    EXPECT_EQ(form.TimeGMTLabel.Caption, r.gmt) << r.gmtFlag << r.correction;
    EXPECT_EQ(form.TimeLocalLabel.Caption, r.local) << r.gmtFlag << r.correction;
  }
  EXPECT_EQ(form.ClockTicks, 4);
  desk.Time.Advance(7000);
  EXPECT_EQ(form.ClockTicks, 1);  // the eleventh tick starts the count again
}

TEST_F(StartAndStopTest, WelcomeClosesItselfAndAboutWaitsForOk) {
  AboutTarnix welcome(desk.Time, true);
  desk.Forms.ShowModeless(welcome);
  EXPECT_EQ(welcome.Caption, "WELCOME");
  EXPECT_FALSE(welcome.Command1.Enabled);
  welcome.Command1_Click();
  EXPECT_TRUE(welcome.Visible);
  desk.Time.Advance(999);
  EXPECT_TRUE(welcome.Visible);
  desk.Time.Advance(1);
  EXPECT_FALSE(welcome.Visible);
  EXPECT_FALSE(welcome.Timer1->Enabled());

  desk.Forms.Actions["AboutTarnix"].push_back([](FormModel& f) {
    auto& about = static_cast<AboutTarnix&>(f);
    EXPECT_EQ(about.Caption, "About TARNIX");
    EXPECT_TRUE(about.Command1.Enabled);
    EXPECT_FALSE(about.Timer1->Enabled());
    about.Command1_Click();
    EXPECT_FALSE(about.Visible);
  });
  form.mnuHelpAbout_Click();
  EXPECT_EQ(desk.Forms.Shown.back(), "AboutTarnix");
}

// A child process logs three QSOs into a new, unnamed log and is killed
// outright. The next start finds the temporary log and offers it back.
void CrashWithAnUnnamedLog(const std::string& appPath) {
  pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    ScriptedLogger run(appPath, ScriptedLogger::Start::Fresh);
    run.Desk.Time.Set({2026, 11, 22, 12, 0, 0});
    run.NewLog(Generic);
    for (const char* call : {"K3ZZZ", "W1AW", "N5DX"}) run.Enter(call, "");
    raise(SIGKILL);
  }
  int status = 0;
  waitpid(child, &status, 0);
  ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
}

TEST_F(StartAndStopTest, RecoveryYesCarriesTheLogOnUnnamed) {
  CrashWithAnUnnamedLog(home.Path);
  form.CheckRecovery();
  ASSERT_FALSE(desk.Boxes.Shown.empty());
  EXPECT_EQ(desk.Boxes.Shown[0].Text,
            "TARNIX has detected a backup file indicating the program was terminated abnormally.  "
            "Do you want to open it as a log file?");
  EXPECT_EQ(ctx.Log.LogState, LogStateKind::Unnamed);
  EXPECT_EQ(ctx.Log.QSOCount, 4);
  EXPECT_EQ(ctx.Log.LogRecords.At(3).QCall.Trimmed(), "N5DX");
  EXPECT_EQ(form.FileIDLabel.Caption, "Log: [Unnamed] - - Contest: Generic Log");
  run.Enter("G4BUO", "");  // the log carries on in the temporary file
  EXPECT_EQ(ReadFile(home.Path + "!temp%!!.tnb").size(), 5u * 60);
}

TEST_F(StartAndStopTest, RecoveryNoKeepsTheThreeLastAbandonedLogs) {
  auto unsaved = [this](int n) { return home.Path + "Unsaved TNX Log " + std::to_string(n) + ".tnx"; };
  form.CheckRecovery();  // no temporary file: nothing is asked
  EXPECT_TRUE(desk.Boxes.Shown.empty());
  for (int crash = 1; crash <= 4; ++crash) {
    CrashWithAnUnnamedLog(home.Path);
    std::ofstream(home.Path + "!temp%!!.tnb", std::ios::app) << "crash " << crash;  // tell them apart
    desk.Boxes.Answers.push_back(MsgAnswer::No);
    form.CheckRecovery();
    EXPECT_FALSE(fs::exists(home.Path + "!temp%!!.tnb"));
  }
  EXPECT_FALSE(fs::exists(unsaved(4)));
  for (int n = 1; n <= 3; ++n) {
    std::string bytes = ReadFile(unsaved(n));
    EXPECT_EQ(bytes.substr(bytes.size() - 7), "crash " + std::to_string(5 - n)) << n;
  }
  EXPECT_EQ(ctx.Log.LogState, LogStateKind::None);
}

TEST_F(StartAndStopTest, BackupCopiesTheNamedLogFromMemory) {
  desk.Time.Set({2026, 11, 22, 12, 0, 0});
  run.NewLog(Generic);
  run.Enter("K3ZZZ", "");
  TempFolder backup;
  ctx.Config.BackUpDrive = backup.Path;
  form.mnuFileBackup_Click();  // an unnamed log has no backup
  EXPECT_TRUE(fs::is_empty(backup.Path));

  run.SaveAs(home.Path + "cq.TNX");
  form.mnuFileBackup_Click();
  EXPECT_EQ(ReadFile(backup.Path + "cq.TNX"), ReadFile(home.Path + "cq.TNX"));
  run.Enter("W1AW", "");
  form.mnuFileBackup_Click();  // a second backup replaces the first
  EXPECT_EQ(ReadFile(backup.Path + "cq.TNX"), ReadFile(home.Path + "cq.TNX"));
  EXPECT_EQ(ReadFile(backup.Path + "cq.TNX").size(), 3u * 60);

  ctx.Config.BackUpDrive = "[none]";
  fs::remove(backup.Path + "cq.TNX");
  form.mnuFileBackup_Click();
  EXPECT_TRUE(fs::is_empty(backup.Path));
}

TEST_F(StartAndStopTest, ExitFromANamedLogAsksOnlyWhetherToExit) {
  run.NewLog(Generic);
  run.SaveAs(home.Path + "x.TNX");
  desk.Boxes.Shown.clear();
  desk.Boxes.Answers.push_back(MsgAnswer::No);
  EXPECT_FALSE(form.mnuFileExit_Click());
  EXPECT_TRUE(form.mnuFileExit_Click());
  ASSERT_EQ(desk.Boxes.Shown.size(), 2u);
  EXPECT_EQ(desk.Boxes.Shown[1].Text, "Exit TARNIX?");
  EXPECT_EQ(desk.Boxes.Shown[1].Title, "Exit TARNIX?");
}

}  // namespace
}  // namespace tarnix
