#include "platform/FileStore.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

namespace tarnix {
namespace {

namespace fs = std::filesystem;

std::string Failure(const std::string& what, const std::string& path) {
  return what + " " + path + ": " + std::strerror(errno);
}

std::string Failure(const std::string& what, const std::string& path, const std::error_code& error) {
  return what + " " + path + ": " + error.message();
}

std::string MakeTempFolder() {
  std::random_device random;
  for (;;) {
    fs::path folder = fs::temp_directory_path() / ("tarnix-" + std::to_string(random()));
    if (fs::create_directory(folder)) return folder.string() + "/";
  }
}

}  // namespace

TempFolder::TempFolder() : Path(MakeTempFolder()) {}

TempFolder::~TempFolder() {
  std::error_code ignored;
  fs::remove_all(Path, ignored);
}

bool DiskFileStore::Exists(const std::string& path) {
  std::error_code ignored;
  return fs::is_regular_file(path, ignored);
}

std::optional<uint64_t> DiskFileStore::Size(const std::string& path) {
  std::error_code error;
  if (!fs::is_regular_file(path, error)) return std::nullopt;
  uint64_t size = fs::file_size(path, error);
  if (error) return std::nullopt;
  return size;
}

FileError DiskFileStore::ReadAll(const std::string& path, std::string& bytes) {
  errno = 0;
  std::ifstream in(path, std::ios::binary);
  if (!in) return Failure("Can't open", path);
  bytes.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  if (in.bad()) return Failure("Can't read", path);
  return std::nullopt;
}

FileError DiskFileStore::WriteAt(const std::string& path, uint64_t offset, std::span<const char> bytes) {
  errno = 0;
  std::fstream file(path, std::ios::binary | std::ios::in | std::ios::out);
  if (!file) file.open(path, std::ios::binary | std::ios::out);  // a new file
  if (!file) return Failure("Can't open", path);
  file.seekp(static_cast<std::streamoff>(offset));
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (file.fail()) return Failure("Can't write", path);
  return std::nullopt;
}

FileError DiskFileStore::Replace(const std::string& path, std::span<const char> bytes) {
  errno = 0;
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  if (!file) return Failure("Can't create", path);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (file.fail()) return Failure("Can't write", path);
  return std::nullopt;
}

FileError DiskFileStore::Remove(const std::string& path) {
  std::error_code error;
  fs::remove(path, error);
  if (error) return Failure("Can't delete", path, error);
  return std::nullopt;
}

FileError DiskFileStore::Rename(const std::string& from, const std::string& to) {
  std::error_code error;
  fs::rename(from, to, error);
  if (error) return Failure("Can't rename", from, error);
  return std::nullopt;
}

FileError DiskFileStore::Copy(const std::string& from, const std::string& to) {
  std::error_code error;
  fs::copy_file(from, to, fs::copy_options::overwrite_existing, error);
  if (error) return Failure("Can't copy", from, error);
  return std::nullopt;
}

}  // namespace tarnix
