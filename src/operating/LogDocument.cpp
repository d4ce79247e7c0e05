#include "operating/LogDocument.h"

#include <filesystem>

#include "core/Text.h"
#include "rules/Countries.h"

namespace tarnix {
namespace {

bool SamePath(const std::string& a, const std::string& b) {
  std::error_code ignored;
  return a == b || std::filesystem::equivalent(a, b, ignored);
}

// A log file's bytes: the header, then records 1 to lastQso of the table,
// record n in the slot n of recordSize bytes (60 for a new log, 36 or 26 for
// the old shapes).
template <typename Records>
std::string BytesOf(const LogHeader& header, const Records& records, int lastQso, std::size_t recordSize) {
  std::string bytes(static_cast<std::size_t>(lastQso + 1) * recordSize, '\0');
  auto encoded = EncodeHeader(header);
  std::copy(encoded.begin(), encoded.end(), bytes.begin());
  for (int n = 1; n <= lastQso; ++n)
    EncodeRecord(records.At(n), std::span(bytes.data() + static_cast<std::size_t>(n) * recordSize, recordSize));
  return bytes;
}

}  // namespace

void LogDocument::Tell(const std::string& text, const std::string& title, MsgIcon icon) {
  Desk.Boxes.Show({text, title, MsgButtons::OK, icon, MsgAnswer::OK});
}

MsgAnswer LogDocument::FileErrorRoutine(const std::string& error) {
  return Desk.Boxes.Show({error, "File Error", MsgButtons::AbortRetryIgnore, MsgIcon::Critical, MsgAnswer::Abort});
}

bool LogDocument::WriteWithRetry(const std::function<FileError()>& write) {
  for (;;) {
    FileError error = write();
    if (!error) return true;
    MsgAnswer answer = FileErrorRoutine(*error);
    if (answer == MsgAnswer::Ignore) return true;
    if (answer != MsgAnswer::Retry) return false;
  }
}

bool LogDocument::Create(const ContestState& state) {
  SavedHeader = MakeHeader(state);
  auto header = EncodeHeader(SavedHeader);
  return WriteWithRetry([&] { return Desk.Disk.Replace(FileName, header); });
}

bool LogDocument::Read(std::string& bytes) {
  for (;;) {
    FileError error = Desk.Disk.ReadAll(FileName, bytes);
    if (!error) return true;
    if (FileErrorRoutine(*error) != MsgAnswer::Retry) return false;
  }
}

bool LogDocument::Convert(std::string& bytes, bool sweepstakes) {
  const std::string& name = FileName;
  std::string keptName = name.substr(0, name.size() - 1) + "b";
  std::string converted;
  if (sweepstakes) {
    bool yes = Desk.Boxes.Show({"This SS file is for a pre-1997 contest. TARNIX will convert it to "
                                "ver. 5 log format.  In order to display the "
                                "sections correctly, please press YES if the contest "
                                "was in 1996 (78 sections) or NO for pre-1996 (77 sections).",
                                "Pre-1997 SS Log.  How Many Sections?", MsgButtons::YesNo, MsgIcon::Question,
                                MsgAnswer::Yes}) == MsgAnswer::Yes;
    Ctx.Contest.SSYear = yes ? 96 : 95;
    converted = ConvertOldSweepstakesLog(bytes, Ctx.Contest.SSYear);
  } else {
    Tell("The File selected,  " + name + ", is in the format for versions 6.5 and earlier" +
             " of TARNIX.  It will be converted to new format readable only by version 7.0 and" +
             " later.  The old file will be saved as  " + keptName,
         "WPX File Conversion", MsgIcon::Information);
    converted = ConvertWpxLog(bytes, [](const std::string& call) { return GetWPXPrefix(call); });
  }
  if (FileError error = Desk.Disk.Rename(name, keptName)) {
    FileErrorRoutine(*error);
    return false;
  }
  if (!WriteWithRetry([&] { return Desk.Disk.Replace(name, converted); })) return false;
  bytes = std::move(converted);
  return true;
}

// A log file that is gone, or shorter than the header and the n - 1 QSOs
// before (deleted, cut short, or its header torn by a full disk whose error
// was ignored), is written again whole: written alone, the record would land
// behind a gap of zero bytes, with the header and the earlier QSOs lost from
// the disk. (A log of an old shape keeps its records in the arrays of that
// shape, which memory cannot give back as a file.)
FileError LogDocument::WriteRecord(int n) {
  const bool wide = Ctx.Log.RecordLength == static_cast<int16_t>(QsoRecordSize);
  const uint64_t before = n == 1 ? LogHeaderSize : static_cast<uint64_t>(n) * QsoRecordSize;
  std::optional<uint64_t> size = Desk.Disk.Size(FileName);
  if (wide && (!size || *size < before)) {
    if (FileError error = Desk.Disk.Replace(FileName, FileBytes(n))) return error;
    Tell("The log file " + FileName + " was missing or cut short. It has been written again from memory, with " +
             std::to_string(n) + (n == 1 ? " QSO." : " QSOs."),
         "Log File Rewritten", MsgIcon::Exclamation);
    return std::nullopt;
  }
  auto bytes = EncodeRecord(Ctx.Log.LogRecords.At(n));
  return Desk.Disk.WriteAt(FileName, static_cast<uint64_t>(n) * QsoRecordSize, bytes);
}

std::string LogDocument::FileBytes(int lastQso) const {
  return BytesOf(SavedHeader, Ctx.Log.LogRecords, lastQso, QsoRecordSize);
}

// The copy holds the header and, at the record length of the old shapes,
// the short or middle records. A log of 60-byte records has its QSOs in
// neither, so its copy holds blank records.
bool LogDocument::WriteKilledFile() {
  const int c = Ctx.Contest.ContestIndex;
  const int last = Ctx.Log.QSOCount - 1;
  std::string bytes = c == Sprint || c == Naqp
                          ? BytesOf(SavedHeader, Ctx.Log.LogRecordsMid, last, QsoRecordMidSize)
                          : BytesOf(SavedHeader, Ctx.Log.LogRecordsShort, last, QsoRecordShortSize);
  return WriteWithRetry([&] { return Desk.Disk.Replace(Ctx.AppPath + "KilledFile.tnx", bytes); });
}

bool LogDocument::Empty() {
  auto header = EncodeHeader(SavedHeader);
  return WriteWithRetry([&] { return Desk.Disk.Replace(FileName, header); });
}

bool LogDocument::MoveTo(const std::string& name) {
  if (name.size() < 3 || UCase(name.substr(name.size() - 3)) != "TNX") {
    Tell("Log file must have the extension .TNX", "TARNIX", MsgIcon::Exclamation);
    return false;
  }
  bool sameFile = SamePath(name, FileName);
  if (!sameFile && Desk.Disk.Exists(name)) {
    if (Desk.Boxes.Show({name + " already exists." + " OK to overwrite it?", "TARNIX", MsgButtons::OKCancel,
                         MsgIcon::Question, MsgAnswer::Cancel}) != MsgAnswer::OK)
      return false;
    if (FileError error = Desk.Disk.Remove(name)) {
      Tell(*error, "TARNIX", MsgIcon::Critical);
      return false;
    }
  }
  if (!sameFile) {
    if (FileError error = Desk.Disk.Copy(FileName, name)) {
      Tell(*error + "\nThe log stays in " + FileName + ".", "TARNIX", MsgIcon::Critical);
      return false;
    }
    if (FileError error = Desk.Disk.Remove(FileName)) Tell(*error, "TARNIX", MsgIcon::Exclamation);
  }
  FileName = name;
  Ctx.Log.LogState = LogStateKind::Named;
  return true;
}

void LogDocument::Backup(const std::string& folder) {
  std::string target = (std::filesystem::path(folder) / std::filesystem::path(FileName).filename()).string();
  std::string bytes = FileBytes(Ctx.Log.QSOCount - 1);
  WriteWithRetry([&]() -> FileError {
    if (Desk.Disk.Exists(target))
      if (FileError error = Desk.Disk.Remove(target)) return error;
    return Desk.Disk.Replace(target, bytes);
  });
}

bool LogDocument::RotateUnsavedLogs() {
  auto unsaved = [this](int n) { return Ctx.AppPath + "Unsaved TNX Log " + std::to_string(n) + ".tnx"; };
  FileError error;
  auto move = [&](const std::string& from, const std::string& to) {
    if (!error) error = Desk.Disk.Rename(from, to);
  };
  if (Desk.Disk.Exists(unsaved(3))) error = Desk.Disk.Remove(unsaved(3));
  if (Desk.Disk.Exists(unsaved(2))) move(unsaved(2), unsaved(3));
  if (Desk.Disk.Exists(unsaved(1))) move(unsaved(1), unsaved(2));
  move(TempFileName(), unsaved(1));
  if (!error) return true;
  Tell("Can't find or read startup files tarnix125.ini or tarnix121.dat.  "
       "Make sure they are in the same drive/directory used to start program.\n\n" + *error,
       "TARNIX", MsgIcon::Critical);
  return false;
}

void LogDocument::DeleteTemp() {
  if (FileError error = Desk.Disk.Remove(TempFileName())) Tell(*error, "TARNIX", MsgIcon::Exclamation);
}

}  // namespace tarnix
