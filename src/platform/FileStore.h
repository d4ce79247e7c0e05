#pragma once
// Files on disk, as the log needs them: whole reads, writes of one record at
// an offset with the file opened and closed around the write, and the
// renames, copies and deletes of the File menu. Every operation reports a
// failure as a text for the operator; none throws.
//
// Tests put a fault-injecting store in its place.

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace tarnix {

// An error text, or nothing on success.
using FileError = std::optional<std::string>;

class FileStore {
 public:
  virtual ~FileStore() = default;
  virtual bool Exists(const std::string& path) = 0;
  // The length of the file in bytes; nothing when there is no such file.
  virtual std::optional<uint64_t> Size(const std::string& path) = 0;
  virtual FileError ReadAll(const std::string& path, std::string& bytes) = 0;
  // Opens the file (creating it if missing), writes the bytes at the offset,
  // and closes it. A gap before the offset reads as zero bytes.
  virtual FileError WriteAt(const std::string& path, uint64_t offset, std::span<const char> bytes) = 0;
  // Creates or empties the file and writes the bytes.
  virtual FileError Replace(const std::string& path, std::span<const char> bytes) = 0;
  virtual FileError Remove(const std::string& path) = 0;
  virtual FileError Rename(const std::string& from, const std::string& to) = 0;
  virtual FileError Copy(const std::string& from, const std::string& to) = 0;
};

// The computer's own file system.
class DiskFileStore : public FileStore {
 public:
  bool Exists(const std::string& path) override;
  std::optional<uint64_t> Size(const std::string& path) override;
  FileError ReadAll(const std::string& path, std::string& bytes) override;
  FileError WriteAt(const std::string& path, uint64_t offset, std::span<const char> bytes) override;
  FileError Replace(const std::string& path, std::span<const char> bytes) override;
  FileError Remove(const std::string& path) override;
  FileError Rename(const std::string& from, const std::string& to) override;
  FileError Copy(const std::string& from, const std::string& to) override;
};

// A new, empty folder under the system's temporary folder, removed with
// everything in it when the object goes: a program folder for a throw-away
// log or a test.
class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  const std::string Path;  // with a trailing "/"
};

}  // namespace tarnix
