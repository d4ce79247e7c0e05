// The disk as the log uses it, on real files, with the errors the kernel
// gives: a full device, a folder that is a regular file. And the fault store
// the entry tests put in its place, whose torn writes must leave exactly the
// first half of the bytes.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "platform/Scripted.h"
#include "TestFiles.h"

namespace tarnix {
namespace {

std::span<const char> Bytes(const std::string& text) { return {text.data(), text.size()}; }

TEST(DiskFileStore, WritesAtAnOffsetOverAGapOfZerosAndGivesKernelErrorsAsTexts) {
  TempFolder folder;
  DiskFileStore disk;
  const std::string path = folder.Path + "log.TNX";
  EXPECT_EQ(disk.Size(path), std::nullopt);
  EXPECT_EQ(disk.WriteAt(path, 4, Bytes("QSO")), std::nullopt);
  EXPECT_EQ(ReadFile(path), std::string("\0\0\0\0QSO", 7));
  EXPECT_EQ(disk.WriteAt(path, 1, Bytes("ab")), std::nullopt);  // in place, the rest kept
  EXPECT_EQ(ReadFile(path), std::string("\0ab\0QSO", 7));
  EXPECT_EQ(disk.Size(path), 7u);
  EXPECT_EQ(disk.Replace(path, Bytes("HDR")), std::nullopt);
  EXPECT_EQ(ReadFile(path), "HDR");
  EXPECT_EQ(disk.Size(folder.Path), std::nullopt);  // a folder is no file
  // Errors as the kernel reports them, all of which a root user meets too.
  if (std::filesystem::exists("/dev/full")) {  // a device that is always full
    EXPECT_EQ(disk.WriteAt("/dev/full", 60, Bytes("K3ZZZ")), "Can't write /dev/full: No space left on device");
    EXPECT_EQ(disk.Replace("/dev/full", Bytes("K3ZZZ")), "Can't write /dev/full: No space left on device");
  }
  const std::string notFolder = folder.Path + "contest";
  WriteFile(notFolder, "a file where the log's folder was");
  EXPECT_EQ(disk.WriteAt(notFolder + "/log.TNX", 0, Bytes("HDR")),
            "Can't open " + notFolder + "/log.TNX: Not a directory");
  EXPECT_EQ(disk.Replace(notFolder + "/log.TNX", Bytes("HDR")),
            "Can't create " + notFolder + "/log.TNX: Not a directory");
  EXPECT_EQ(disk.Size(notFolder + "/log.TNX"), std::nullopt);
  EXPECT_EQ(ReadFile(notFolder), "a file where the log's folder was");
}

TEST(FaultFileStore, FailsTheChosenWritesAndTearsThemOnRequest) {
  TempFolder folder;
  FaultFileStore disk;
  const std::string path = folder.Path + "log.TNX";
  disk.FailOnlyWrite = 2;
  EXPECT_EQ(disk.Replace(path, Bytes("HEADER")), std::nullopt);
  EXPECT_EQ(disk.WriteAt(path, 6, Bytes("QSO1")), "Can't write: No space left on device");
  EXPECT_EQ(ReadFile(path), "HEADER");  // nothing of the failed write
  disk.TearFailedWrites = true;
  disk.FailFromWrite = 4;
  EXPECT_EQ(disk.WriteAt(path, 6, Bytes("QSO1")), std::nullopt);
  EXPECT_EQ(disk.WriteAt(path, 10, Bytes("QSO2")), "Can't write: No space left on device");
  EXPECT_EQ(ReadFile(path), "HEADERQSO1QS");  // half of the failed write
  EXPECT_EQ(disk.Replace(path, Bytes("NEWHEAD")), "Can't write: No space left on device");
  EXPECT_EQ(ReadFile(path), "NEW");
  EXPECT_EQ(disk.Writes, 5);
}

}  // namespace
}  // namespace tarnix
