#pragma once
// LogDocument: the open log as a file.
//
// Owns the open log's file name and the header it was created or opened
// with, and does everything that touches the file: the header of a new log,
// the read of a whole log, the conversion of old shapes, the write of one
// QSO at its place (or of the whole log again from memory when the file is
// gone or short), Save As's move, the backup copy, Kill All's copy and the
// emptied log, the rotation of logs left by a crash. Every write goes
// through one error routine that asks the operator to retry, ignore or
// abort, so that a full disk or a pulled stick never loses a QSO from
// memory.
//
// The records themselves are in the log store of the Context; the form
// loads and replays them. Runs on the user-interface thread; a message box
// may pump events, so a caller must not hold a reference into the records
// across a call that can ask.

#include <functional>
#include <string>

#include "core/LogFile.h"
#include "operating/Context.h"
#include "platform/Platform.h"

namespace tarnix {

class LogDocument {
 public:
  LogDocument(Context& ctx, Platform& platform) : Ctx(ctx), Desk(platform) {}

  std::string FileName;    // full path of the open log
  LogHeader SavedHeader;   // the open log's header, written again by Kill All and a rewrite

  // The temporary file every new log starts in.
  std::string TempFileName() const { return Ctx.AppPath + "!temp%!!.tnb"; }

  // The general error routine of file operations: retry, ignore or abort.
  MsgAnswer FileErrorRoutine(const std::string& error);
  // A write that the operator may retry; ignore counts as done, abort as not.
  bool WriteWithRetry(const std::function<FileError()>& write);

  // A new log of the contest state in the temporary file: its header. False
  // when the operator aborted the write.
  bool Create(const ContestState& state);
  // The whole file; a failure asks to retry, anything else is false.
  bool Read(std::string& bytes);
  // An old WPX log or a pre-1997 Sweepstakes log converted: the old file is
  // kept under the name ending in "b", bytes become the new log's, written
  // under the old name.
  bool Convert(std::string& bytes, bool sweepstakes);
  // Writes QSO n of the store at its place in the file, or the whole log
  // again from memory when the file is missing or shorter than the QSOs
  // before n (the operator is told).
  FileError WriteRecord(int n);
  // The log file as memory holds it: the header and QSOs 1 to lastQso, each
  // at the record length of a new log.
  std::string FileBytes(int lastQso) const;
  // Kill All: the copy "KilledFile.tnx" in the program folder, then the log
  // file emptied to its header. False when a write was aborted.
  bool WriteKilledFile();
  bool Empty();
  // Save As: the log file moves to name (a .TNX; an existing file there is
  // overwritten only when the operator agrees). True when it moved; the log
  // is then named.
  bool MoveTo(const std::string& name);
  // A copy of the named log into the backup folder, written from memory.
  void Backup(const std::string& folder);
  // The temporary log of a crash the operator did not take back: kept as
  // "Unsaved TNX Log 1.tnx", the older ones moved up to 3. False (and told)
  // when a rename failed, which ends the program.
  bool RotateUnsavedLogs();
  void DeleteTemp();

 private:
  void Tell(const std::string& text, const std::string& title, MsgIcon icon);

  Context& Ctx;
  Platform& Desk;
};

}  // namespace tarnix
