// The log and settings files failing in the middle of a contest: every write
// of a contest failed in turn with each answer of the error routine, a disk
// that stays full until the operator frees space, the kernel's own errors (a
// full device, the log's folder gone or read-only), a log file deleted or cut
// short while open, and a settings file that cannot be written at exit. In
// every case what was already on disk stays there, the operator is told, and
// the log on disk opens with exactly the QSOs the program counted.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

#include "config/SettingsFile.h"
#include "operating/ScriptedLogger.h"
#include "operating/Startup.h"
#include "TestFiles.h"

namespace tarnix {
namespace {

namespace fs = std::filesystem;

const std::vector<std::string> kCalls = {"K3ZZZ", "W1AW", "N5DX", "DL1ABC", "JA1XYZ", "VE3EJ", "G4BUO", "OH2BH"};

// A program with its main form, in a program folder of its own.
struct Folder {
  TempFolder Home;
};
struct Station : Folder, ScriptedLogger {
  Station() : ScriptedLogger(Home.Path, Start::Fresh) { Desk.Time.Set({2026, 11, 22, 12, 0, 0}); }

  void NewLog() { ScriptedLogger::NewLog(Generic); }
  // A new log saved as name in the program folder.
  std::string NamedLog(const std::string& name) {
    NewLog();
    SaveAs(Home.Path + name);
    return Home.Path + name;
  }
  void Log(const std::string& call) { Enter(call, ""); }
  // Enter again on what an aborted entry left in the boxes.
  void EnterAgain() { Form.InData_KeyDown(ExchangeBox, KeyEnter, 0); }
  std::vector<std::string> CallsInMemory() {
    std::vector<std::string> calls;
    for (int n = 1; n < Ctx.Log.QSOCount; ++n) calls.push_back(LoggedRecord(Ctx.Log, n).QCall.Trimmed());
    return calls;
  }
  int BoxesTitled(const std::string& title) const {
    int count = 0;
    for (const auto& box : Desk.Boxes.Shown) count += box.Title == title;
    return count;
  }
  // The first line of the first box with the title.
  std::string FirstLineOf(const std::string& title) const {
    for (const auto& box : Desk.Boxes.Shown)
      if (box.Title == title) return box.Text.substr(0, box.Text.find('\n'));
    return "";
  }
};

// The calls of the log file as File > Open loads it in another program.
std::vector<std::string> CallsOnDisk(const std::string& path) {
  Station reader;
  EXPECT_TRUE(reader.Open(path)) << path;
  return reader.CallsInMemory();
}

std::vector<std::string> Without(std::vector<std::string> calls, std::size_t index) {
  if (index < calls.size()) calls.erase(calls.begin() + static_cast<std::ptrdiff_t>(index));
  return calls;
}

const char* AnswerName(MsgAnswer answer) {
  return answer == MsgAnswer::Retry ? "retry" : answer == MsgAnswer::Ignore ? "ignore" : "abort";
}

// Write 1 is the new log's header, write k + 1 the k-th QSO. Each fails once,
// cleanly or torn in half, and the operator answers retry, ignore or abort;
// after an abort the entry, still in the boxes, is entered again. Only an
// ignored QSO may be missing, and only from both memory's count and the disk.
TEST(FileFault, EveryWriteOfAContestFailsOnceWithEachAnswer) {
  int writes = 0;
  {
    Station clean;
    clean.NewLog();
    for (const std::string& call : kCalls) clean.Log(call);
    ASSERT_EQ(CallsOnDisk(clean.Form.Document.FileName), kCalls);
    writes = clean.Desk.Disk.Writes;
  }
  ASSERT_EQ(writes, static_cast<int>(kCalls.size()) + 1);
  int tried = 0;
  for (int k = 1; k <= writes; ++k)
    for (MsgAnswer answer : {MsgAnswer::Retry, MsgAnswer::Ignore, MsgAnswer::Abort})
      for (bool torn : {false, true}) {
        SCOPED_TRACE("write " + std::to_string(k) + ", " + AnswerName(answer) + (torn ? ", torn" : ""));
        Station s;
        s.Desk.Disk.FailOnlyWrite = k;
        s.Desk.Disk.TearFailedWrites = torn;
        s.Desk.Boxes.Answers = {answer};
        s.NewLog();
        if (s.Ctx.Log.LogState == LogStateKind::None) {  // the header aborted: no log yet
          EXPECT_EQ(k, 1);
          s.NewLog();
        }
        for (const std::string& call : kCalls) {
          s.Log(call);
          if (s.Form.InData[CallBox].Text == call) s.EnterAgain();
        }
        ++tried;
        ASSERT_EQ(s.BoxesTitled("File Error"), 1);
        EXPECT_EQ(s.FirstLineOf("File Error"), "Can't write: No space left on device");
        std::vector<std::string> expected = answer == MsgAnswer::Ignore && k > 1 ? Without(kCalls, k - 2) : kCalls;
        EXPECT_EQ(s.CallsInMemory(), expected);
        EXPECT_EQ(CallsOnDisk(s.Form.Document.FileName), expected);
      }
  EXPECT_EQ(tried, writes * 6);
}

// The disk fills at write k and stays full through one retry; the operator
// frees space and retries again. Nothing is lost.
TEST(FileFault, ADiskFullUntilSpaceIsFreedLosesNothing) {
  for (int k = 1; k <= static_cast<int>(kCalls.size()) + 1; ++k) {
    SCOPED_TRACE("full from write " + std::to_string(k));
    Station s;
    s.Desk.Disk.FailFromWrite = k;
    s.Desk.Disk.TearFailedWrites = true;
    int asked = 0;
    s.Desk.Boxes.OnShow = [&](const MessageBoxRequest& box) {
      if (box.Title == "File Error" && ++asked == 2) s.Desk.Disk.FailFromWrite = 0;  // space freed
    };
    s.Desk.Boxes.Answers = {MsgAnswer::Retry, MsgAnswer::Retry};
    s.NewLog();
    for (const std::string& call : kCalls) s.Log(call);
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(s.CallsInMemory(), kCalls);
    EXPECT_EQ(CallsOnDisk(s.Form.Document.FileName), kCalls);
  }
}

class DiskFault : public ::testing::Test {
 protected:
  Station s;
  std::string path;
  std::string before;  // the log file before the fault

  // A named log with three QSOs on disk.
  void LogThree(const std::string& name = "contest.TNX") {
    path = s.NamedLog(name);
    for (int i = 0; i < 3; ++i) s.Log(kCalls[static_cast<std::size_t>(i)]);
    before = ReadFile(path);
    ASSERT_EQ(before.size(), 4u * QsoRecordSize);
  }
  std::string LastBoxTitle() const { return s.Desk.Boxes.Shown.empty() ? "" : s.Desk.Boxes.Shown.back().Title; }
  std::string LastBoxText() const { return s.Desk.Boxes.Shown.empty() ? "" : s.Desk.Boxes.Shown.back().Text; }
};

// A full disk as the kernel reports it: the log's name leads to /dev/full
// until the operator, asked, makes room and retries.
TEST_F(DiskFault, TheKernelsDiskFullIsToldAndRetried) {
  if (!fs::exists("/dev/full")) GTEST_SKIP() << "no /dev/full on this system";
  LogThree();
  fs::rename(path, path + ".kept");
  fs::create_symlink("/dev/full", path);
  std::string told;
  s.Desk.Boxes.OnShow = [&](const MessageBoxRequest& box) {
    told = box.Text;
    fs::remove(path);
    fs::rename(path + ".kept", path);
  };
  s.Desk.Boxes.Answers = {MsgAnswer::Retry};
  s.Log("DL1ABC");
  EXPECT_EQ(told.substr(0, told.find('\n')), "Can't write " + path + ": No space left on device");
  EXPECT_EQ(s.Ctx.Log.QSOCount, 5);
  EXPECT_EQ(ReadFile(path).substr(0, before.size()), before);
  EXPECT_EQ(CallsOnDisk(path), std::vector<std::string>(kCalls.begin(), kCalls.begin() + 4));
}

// The log's folder gone (moved, a drive unplugged), with a regular file
// where it was, which stops root as well: the operator aborts, the entry
// stays in the boxes and in memory, and once the folder is back Enter logs
// it behind the three on disk.
TEST_F(DiskFault, AGoneFolderIsToldAndTheEntryWaits) {
  fs::create_directory(s.Home.Path + "logs");
  LogThree("logs/contest.TNX");
  fs::rename(s.Home.Path + "logs", s.Home.Path + "logs.moved");
  std::ofstream(s.Home.Path + "logs") << "not a folder";
  s.Log("DL1ABC");  // the default answer: abort
  EXPECT_EQ(s.BoxesTitled("File Error"), 1);
  EXPECT_EQ(s.FirstLineOf("File Error"), "Can't create " + path + ": Not a directory");
  EXPECT_EQ(s.Ctx.Log.QSOCount, 4);
  EXPECT_EQ(s.Form.InData[CallBox].Text, "DL1ABC");
  EXPECT_EQ(s.Ctx.Log.LogRecords.At(4).QCall.Trimmed(), "DL1ABC");

  fs::remove(s.Home.Path + "logs");
  fs::rename(s.Home.Path + "logs.moved", s.Home.Path + "logs");
  s.EnterAgain();
  EXPECT_EQ(s.Ctx.Log.QSOCount, 5);
  EXPECT_EQ(ReadFile(path).substr(0, before.size()), before);
  EXPECT_EQ(CallsOnDisk(path), std::vector<std::string>(kCalls.begin(), kCalls.begin() + 4));
}

// A folder and log made read-only: the write is refused, the operator
// ignores it, and logging goes on once the folder is writable again.
TEST_F(DiskFault, AReadOnlyLogIsToldAndIgnored) {
  if (geteuid() == 0)
    GTEST_SKIP() << "running as root, which file modes do not stop; AGoneFolderIsToldAndTheEntryWaits covers a refused "
                    "write for root";
  LogThree();
  fs::permissions(path, fs::perms::owner_write, fs::perm_options::remove);
  fs::permissions(s.Home.Path, fs::perms::owner_write, fs::perm_options::remove);
  s.Desk.Boxes.Answers = {MsgAnswer::Ignore};
  s.Log("DL1ABC");
  EXPECT_EQ(s.FirstLineOf("File Error"), "Can't open " + path + ": Permission denied");
  EXPECT_EQ(s.Ctx.Log.QSOCount, 4);
  EXPECT_EQ(s.Form.InData[CallBox].Text, "");
  EXPECT_EQ(ReadFile(path), before);

  fs::permissions(s.Home.Path, fs::perms::owner_write, fs::perm_options::add);
  fs::permissions(path, fs::perms::owner_write, fs::perm_options::add);
  s.Log("JA1XYZ");
  EXPECT_EQ(CallsOnDisk(path), (std::vector<std::string>{"K3ZZZ", "W1AW", "N5DX", "JA1XYZ"}));
}

// A log file deleted, or cut short, while it is open: the next QSO writes
// the whole log again from memory and the operator is told. The file then
// holds the same bytes it held before, and the new QSO behind them.
TEST_F(DiskFault, ALogFileDeletedOrCutShortIsWrittenAgainFromMemory) {
  LogThree();
  fs::remove(path);
  s.Log("DL1ABC");
  EXPECT_EQ(LastBoxTitle(), "Log File Rewritten");
  EXPECT_EQ(LastBoxText(), "The log file " + path + " was missing or cut short. It has been written again from memory, "
                           "with 4 QSOs.");
  EXPECT_EQ(s.Ctx.Log.QSOCount, 5);
  std::string rewritten = ReadFile(path);
  ASSERT_EQ(rewritten.size(), 5u * QsoRecordSize);
  EXPECT_EQ(rewritten.substr(0, before.size()), before);
  std::size_t shown = s.Desk.Boxes.Shown.size();
  s.Log("JA1XYZ");  // the file is whole again: written in place, nothing told
  EXPECT_EQ(s.Desk.Boxes.Shown.size(), shown);

  std::ofstream(path, std::ios::binary | std::ios::trunc) << before.substr(0, 100);  // another program cut it
  s.Log("VE3EJ");
  EXPECT_EQ(LastBoxTitle(), "Log File Rewritten");
  EXPECT_EQ(ReadFile(path).substr(0, before.size()), before);
  EXPECT_EQ(CallsOnDisk(path), std::vector<std::string>(kCalls.begin(), kCalls.begin() + 6));

  // The temporary log of an unnamed contest alike, from its first QSO on.
  Station fresh;
  fresh.NewLog();
  fs::remove(fresh.Form.Document.FileName);
  fresh.Log("K3ZZZ");
  ASSERT_FALSE(fresh.Desk.Boxes.Shown.empty());
  EXPECT_EQ(fresh.Desk.Boxes.Shown.back().Text,
            "The log file " + fresh.Form.Document.FileName + " was missing or cut short. It has been written again from "
                                                      "memory, with 1 QSO.");
  EXPECT_EQ(CallsOnDisk(fresh.Form.Document.FileName), std::vector<std::string>{"K3ZZZ"});
}

// The settings file cannot be replaced at exit: the disk is full, or a
// folder stands where the new file goes. The exit goes on, the operator is
// told, and the old settings file and the log stay as they were.
TEST_F(DiskFault, SettingsUnwritableAtExitAreToldAndTheOldFileKept) {
  LogThree();
  const std::string settings = SettingsPath(s.Ctx);
  const std::string temporary = settings + ".new";  // where the new file is written first
  ASSERT_EQ(WriteSettings(settings, s.Ctx.Config), std::nullopt);
  const std::string old = ReadFile(settings);
  s.Ctx.Config.RecentFile[4] = "changed";  // something to save

  struct Fault {
    const char* name;
    std::function<void()> make;
    std::string cause;
  };
  std::vector<Fault> faults = {{"a folder in the way", [&] { fs::create_directory(temporary); }, "Is a directory"}};
  if (fs::exists("/dev/full"))
    faults.push_back({"a full disk", [&] { fs::create_symlink("/dev/full", temporary); }, "No space left on device"});
  for (const Fault& fault : faults) {
    SCOPED_TRACE(fault.name);
    fault.make();
    s.Desk.Boxes.Answers = {MsgAnswer::Yes};  // "Exit TARNIX?"
    EXPECT_TRUE(s.Form.mnuFileExit_Click());
    EXPECT_EQ(LastBoxTitle(), "Settings File Error");
    EXPECT_EQ(LastBoxText(), "Can't write " + settings + ": " + fault.cause + "\nThe settings were not saved.");
    EXPECT_EQ(ReadFile(settings), old);
    EXPECT_EQ(ReadFile(path), before);
    fs::remove(temporary);
  }
}

}  // namespace
}  // namespace tarnix
