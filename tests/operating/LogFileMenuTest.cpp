// The File menu on real files: a new log on disk QSO by QSO, Save As, Open
// with replay of every shape, the conversions, Kill All and the write errors.

#include <filesystem>

#include "core/LogFile.h"
#include "operating/LoggerTest.h"
#include "TestFiles.h"

namespace tarnix {
namespace {

std::string HeaderOf(const std::string& contest5, char qth, int16_t wide) {
  LogHeader h;
  h.HdrWide = wide;
  h.HdrContest.Set(contest5);
  h.HdrQth.Set(std::string(1, qth));
  auto b = EncodeHeader(h);
  return {b.begin(), b.end()};
}

std::string RecordOf(const std::string& call, int16_t number, int16_t band, std::size_t length,
                     const std::string& mult = "", const std::string& text = "") {
  QsoRecord r;
  r.QDate = 31226;
  r.QTime = 1200;
  r.QBand = band;
  r.QCall.Set(call);
  r.QNumber = number;
  r.QMult.Set(mult);
  r.QPoints.Set("1");
  r.QRcvText.Set(text);
  auto b = EncodeRecord(r);
  return std::string(b.begin(), b.begin() + static_cast<std::ptrdiff_t>(length));
}

class LogFileMenuTest : public LoggerTest {
 protected:
  void SetUp() override { desk.Time.Set({2026, 11, 22, 12, 0, 0}); }
  void Log(const std::string& call, const std::string& notes = "") { run.Enter(call, notes); }
  void Open(const std::string& path) { run.Open(path); }
};

TEST_F(LogFileMenuTest, EveryQsoIsOnDiskTheMomentItIsLogged) {
  run.NewLog(Generic);
  std::string temp = home.Path + "!temp%!!.tnb";
  EXPECT_EQ(ReadFile(temp), HeaderOf("GEN  ", ' ', 1));
  EXPECT_EQ(ctx.Log.LogState, LogStateKind::Unnamed);

  Log("K3ZZZ", "599 PA");
  std::string file = ReadFile(temp);
  ASSERT_EQ(file.size(), 120u);
  EXPECT_EQ(file.substr(26, 34), std::string(34, '\0'));  // the rest of the header's place
  auto first = EncodeRecord(ctx.Log.LogRecords.At(1));
  EXPECT_EQ(file.substr(60), std::string(first.begin(), first.end()));
  Log("W1AW");
  EXPECT_EQ(ReadFile(temp).size(), 180u);

  // Save As moves the log: the temporary file goes.
  std::string saved = home.Path + "field day 2026.TNX";
  run.SaveAs(saved);
  EXPECT_FALSE(std::filesystem::exists(temp));
  EXPECT_EQ(ReadFile(saved).size(), 180u);
  EXPECT_EQ(ctx.Log.LogState, LogStateKind::Named);
  EXPECT_EQ(ctx.Config.RecentFile[1], saved);
  EXPECT_EQ(ctx.Config.OpenFilePath, home.Path);
  EXPECT_TRUE(form.mnuFileBackup.Enabled);
  std::string shown = saved.size() > 30 ? saved.substr(0, 15) + "..." + saved.substr(saved.size() - 12) : saved;
  EXPECT_EQ(form.FileIDLabel.Caption, "Log: " + shown + " - - Contest: [Generic]");

  // Logging goes on into the named file.
  Log("N5DX");
  EXPECT_EQ(ReadFile(saved).size(), 240u);

  // Opening it again replays the three QSOs.
  desk.Boxes.Answers.push_back(MsgAnswer::Yes);  // "open a different one?"
  Open(saved);
  EXPECT_EQ(ctx.Log.QSOCount, 4);
  EXPECT_EQ(ctx.Log.BandQSOs[3], 3);
  EXPECT_EQ(ctx.Log.LogRecords.At(3).QCall.Trimmed(), "N5DX");
  EXPECT_EQ(form.FileIDLabel.Caption, "Log: " + saved + " - - Contest: Generic Log");
}

TEST_F(LogFileMenuTest, SaveAsRefusals) {
  run.NewLog(Generic);
  run.SaveAs(home.Path + "log.txt");
  EXPECT_EQ(desk.Boxes.Shown.back().Text, "Log file must have the extension .TNX");
  EXPECT_EQ(ctx.Log.LogState, LogStateKind::Unnamed);

  std::string existing = home.Path + "old.tnx";
  WriteFile(existing, "keep me");
  run.SaveAs(existing);  // the question's default answer is Cancel
  EXPECT_EQ(desk.Boxes.Shown.back().Text, existing + " already exists. OK to overwrite it?");
  EXPECT_EQ(ReadFile(existing), "keep me");
  EXPECT_EQ(ctx.Log.LogState, LogStateKind::Unnamed);

  desk.Boxes.Answers.push_back(MsgAnswer::OK);
  run.SaveAs(existing);
  EXPECT_EQ(ReadFile(existing), HeaderOf("GEN  ", ' ', 1));
}

TEST_F(LogFileMenuTest, OpensEveryShapeAndDamage) {
  struct Row {
    const char* name;
    std::string bytes;
    int qsoCount;
    int recordLength;
  };
  const std::string cqww = HeaderOf("WW CW", '2', 1);
  const Row rows[] = {
      {"header only", cqww, 1, 60},
      {"two wide records", cqww + std::string(34, '\0') + RecordOf("K3ZZZ", 1, 3, 60) + RecordOf("W1AW", 2, 3, 60), 3, 60},
      {"torn last record", cqww + std::string(34, '\0') + RecordOf("K3ZZZ", 1, 3, 60) + RecordOf("W1AW", 2, 3, 41), 2, 60},
      {"shorter than a record", cqww + "xyz", 1, 60},
      {"old 26-byte CQWW", HeaderOf("WW CW", '2', 0) + RecordOf("K3ZZZ", 1, 3, 26) + RecordOf("JA1XYZ", 2, 4, 26), 3, 26},
      {"old 36-byte NAQP", HeaderOf("NA CW", ' ', 0) + std::string(10, '\0') + RecordOf("K3ZZZ", 1, 3, 36, " 5", "BOB"), 2, 36},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    std::string path = home.Path + "shape.TNX";
    WriteFile(path, row.bytes);
    desk.Boxes.Answers.push_back(MsgAnswer::Yes);
    Open(path);
    EXPECT_EQ(ctx.Log.LogState, LogStateKind::Named);
    EXPECT_EQ(ctx.Log.QSOCount, row.qsoCount);
    EXPECT_EQ(ctx.Log.RecordLength, row.recordLength);
    if (row.qsoCount > 1) {
      EXPECT_EQ(LoggedRecord(ctx.Log, 1).QCall.Trimmed(), "K3ZZZ");
    }
    EXPECT_EQ(ReadFile(path), row.bytes);  // opening writes nothing
  }
  EXPECT_EQ(ctx.Log.LogRecordsMid.At(1).QRcvText.Trimmed(), "BOB");
  EXPECT_EQ(ctx.Log.LogRecordsMid.At(1).QRadio.Str(), "  ");  // beyond the 36 bytes: blanks
}

TEST_F(LogFileMenuTest, ForeignAndIncompatibleFilesOpenNoLog) {
  std::string path = home.Path + "foreign.TNX";
  WriteFile(path, HeaderOf("ZZ CW", '2', 1) + std::string(200, 'x'));
  Open(path);
  EXPECT_EQ(desk.Boxes.Shown.back().Title, "Unknown Log Format");
  EXPECT_EQ(ctx.Log.LogState, LogStateKind::None);
  EXPECT_FALSE(form.InData[CallBox].Enabled);
  EXPECT_FALSE(form.EndRequested);

  // A Cabrillo file has text where the old-format mark stands: it is taken
  // for a log of an incompatible format, and the program ends.
  WriteFile(path, "START-OF-LOG: 3.0\r\nCONTEST: CQ-WW-CW\r\n");
  Open(path);
  EXPECT_EQ(desk.Boxes.Shown.back().Title, "Incompatible file format error");
  EXPECT_TRUE(form.EndRequested);
  EXPECT_EQ(ctx.Log.LogState, LogStateKind::None);
  EXPECT_EQ(ReadFile(path), "START-OF-LOG: 3.0\r\nCONTEST: CQ-WW-CW\r\n");

  std::filesystem::remove(path);
  Open(path);  // gone: the error routine's default answer abandons the load
  EXPECT_EQ(desk.Boxes.Shown.back().Title, "File Error");
  EXPECT_EQ(ctx.Log.LogState, LogStateKind::None);
}

TEST_F(LogFileMenuTest, OldLogsAreConvertedOnOpen) {
  std::string wpx = home.Path + "wpx.TNX";
  std::string oldWpx = HeaderOf("WPXCW", '0', 0) + RecordOf("K3ZZZ", 1, 3, 26, "K3");
  WriteFile(wpx, oldWpx);
  Open(wpx);
  EXPECT_EQ(desk.Boxes.Shown.back().Title, "WPX File Conversion");
  EXPECT_EQ(desk.Boxes.Shown.back().Text,
            "The File selected,  " + wpx + ", is in the format for versions 6.5 and earlier of TARNIX.  It will be "
            "converted to new format readable only by version 7.0 and later.  The old file will be saved as  " +
                home.Path + "wpx.TNb");
  EXPECT_EQ(ReadFile(home.Path + "wpx.TNb"), oldWpx);
  EXPECT_EQ(ReadFile(wpx), HeaderOf("WPXCW", '2', 0) + RecordOf("K3ZZZ", 1, 3, 26, "K3"));
  EXPECT_TRUE(ctx.Contest.StationInUSA);
  EXPECT_EQ(ctx.Log.QSOCount, 2);

  std::string ss = home.Path + "ss.TNX";
  WriteFile(ss, HeaderOf("SS CW", ' ', 0) + RecordOf("K3ZZZ", 1, 3, 26, "A5812"));
  desk.Boxes.Answers = {MsgAnswer::Yes, MsgAnswer::No};  // open another; pre-1996
  Open(ss);
  EXPECT_EQ(desk.Boxes.Shown.back().Title, "Pre-1997 SS Log.  How Many Sections?");
  EXPECT_EQ(ctx.Contest.SSYear, 95);
  EXPECT_EQ(ReadFile(ss), HeaderOf("SS9CW", ' ', 0) + RecordOf("K3ZZZ", 1, 3, 26, "A5813"));

  std::string cqp = home.Path + "cqp.TNX";
  WriteFile(cqp, HeaderOf("CQP  ", ' ', 1));
  desk.Boxes.Answers = {MsgAnswer::Yes, MsgAnswer::No};
  Open(cqp);
  EXPECT_EQ(desk.Boxes.Shown.back().Title, "Need Station Location Info");
  EXPECT_FALSE(ctx.Contest.InState);
  EXPECT_EQ(ReadFile(cqp), HeaderOf("CQP  ", ' ', 1));  // the header is not changed
}

TEST_F(LogFileMenuTest, KillAllKeepsACopyAndEmptiesTheLog) {
  run.NewLog(Generic);
  Log("K3ZZZ");
  Log("W1AW");
  desk.Boxes.Answers.push_back(MsgAnswer::Yes);
  form.mnuEditKillALLEntries_Click();
  // A wide log's copy holds the header and blank 26-byte records.
  auto blank = EncodeRecord(QsoRecord{});
  std::string blank26(blank.begin(), blank.begin() + 26);
  EXPECT_EQ(ReadFile(home.Path + "KilledFile.tnx"), HeaderOf("GEN  ", ' ', 1) + blank26 + blank26);
  EXPECT_EQ(ReadFile(home.Path + "!temp%!!.tnb"), HeaderOf("GEN  ", ' ', 1));
  EXPECT_EQ(ctx.Log.QSOCount, 1);
  EXPECT_EQ(ctx.Log.BandQSOs[3], 0);
}

TEST_F(LogFileMenuTest, WriteErrorsAskAndKeepTheQso) {
  run.NewLog(Generic);
  int before = desk.Disk.Writes;
  desk.Disk.FailOnlyWrite = before + 1;
  desk.Boxes.Answers.push_back(MsgAnswer::Retry);
  Log("K3ZZZ");
  EXPECT_EQ(desk.Boxes.Shown.back().Title, "File Error");
  EXPECT_EQ(ctx.Log.QSOCount, 2);  // the retry wrote it
  EXPECT_EQ(ReadFile(home.Path + "!temp%!!.tnb").size(), 120u);

  desk.Disk.FailFromWrite = desk.Disk.Writes + 1;  // the disk is full from now on
  Log("W1AW");                                     // default answer: Abort
  EXPECT_EQ(ctx.Log.QSOCount, 2);
  EXPECT_EQ(form.InData[CallBox].Text, "W1AW");  // still in the box to try again
  EXPECT_EQ(ctx.Log.LogRecords.At(2).QCall.Trimmed(), "W1AW");  // and in memory

  desk.Boxes.Answers.push_back(MsgAnswer::Ignore);
  form.InData_KeyDown(ExchangeBox, KeyEnter, 0);
  EXPECT_EQ(ctx.Log.QSOCount, 2);  // not on disk, so not counted
  EXPECT_EQ(form.InData[CallBox].Text, "");
  EXPECT_EQ(ReadFile(home.Path + "!temp%!!.tnb").size(), 120u);
}

TEST_F(LogFileMenuTest, RecentFilesNewestFirstAndCancelKeepsTheLog) {
  std::vector<std::string> names;
  for (int i = 1; i <= 5; ++i) {
    names.push_back(home.Path + "log" + std::to_string(i) + ".TNX");
    WriteFile(names.back(), HeaderOf("GEN  ", ' ', 1));
    desk.Boxes.Answers.push_back(MsgAnswer::Yes);
    Open(names.back());
  }
  EXPECT_EQ(ctx.Config.RecentFile[1], names[4]);
  EXPECT_EQ(ctx.Config.RecentFile[4], names[1]);
  EXPECT_TRUE(form.mnuFileArray[4].Visible);
  EXPECT_EQ(form.mnuFileArray[2].Caption, names[3]);

  desk.Boxes.Answers.push_back(MsgAnswer::Yes);
  form.mnuFileArray_Click(3);
  EXPECT_EQ(form.Document.FileName, names[2]);
  EXPECT_EQ(ctx.Config.RecentFile[1], names[2]);

  Log("K3ZZZ");
  desk.Boxes.Answers.push_back(MsgAnswer::Yes);
  form.mnuFileOpenLog_Click();  // the dialog is cancelled
  EXPECT_EQ(ctx.Log.QSOCount, 2);
  EXPECT_EQ(form.Document.FileName, names[2]);

  // Exit from an unnamed log with No removes the temporary file.
  desk.Boxes.Answers = {MsgAnswer::Yes};  // start a new one
  run.NewLog(Generic);
  desk.Boxes.Answers = {MsgAnswer::No};
  EXPECT_TRUE(form.mnuFileExit_Click());
  EXPECT_FALSE(std::filesystem::exists(home.Path + "!temp%!!.tnb"));
}

TEST_F(LogFileMenuTest, UserProfilesAreKeptInTheSettingsFile) {
  desk.Forms.Actions["UserInfo"].push_back([](FormModel& f) {
    auto& profiles = static_cast<UserInfo&>(f);
    profiles.Textinfo_Change(0, "k3zzz");
    profiles.CmdOK_Click();
  });
  form.mnuFileUserInfo_Click();
  EXPECT_EQ(ctx.Config.UserProfile[1].Callsign, "k3zzz");
  std::string written = ReadFile(home.Path + "tarnix125.ini");
  EXPECT_NE(written.find("\r\nUserProfile.Callsign=k3zzz\r\n"), std::string::npos);
}

}  // namespace
}  // namespace tarnix
