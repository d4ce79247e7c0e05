#include "config/AppPath.h"

#include <cstdlib>
#include <filesystem>

namespace tarnix {

std::string ResolveAppPath() {
  std::filesystem::path folder;
  if (const char* home = std::getenv("TARNIX_HOME"); home && *home) {
    folder = home;
  } else if (const char* data = std::getenv("XDG_DATA_HOME"); data && *data) {
    folder = std::filesystem::path(data) / "tarnix";
  } else {
    const char* user = std::getenv("HOME");
    folder = std::filesystem::path(user && *user ? user : ".") / ".local" / "share" / "tarnix";
  }
  std::error_code ignored;
  std::filesystem::create_directories(folder, ignored);
  std::string path = folder.string();
  if (path.empty() || path.back() != '/') path += '/';
  return path;
}

std::string ShippedDataDir() {
  if (const char* data = std::getenv("TARNIX_DATA"); data && *data) return data;
  return TARNIX_DATA_DIR;
}

std::optional<std::string> SeedProgramFolder(const std::string& appPath, const std::string& dataDir) {
  namespace fs = std::filesystem;
  std::string problems;
  for (std::string_view name : ShippedDataFiles) {
    fs::path target = fs::path(appPath) / name;
    std::error_code error;
    if (fs::exists(target, error)) continue;
    fs::path source = fs::path(dataDir) / name;
    fs::copy_file(source, target, fs::copy_options::skip_existing, error);
    if (error)
      problems += (problems.empty() ? "" : "\n") + std::string("Can't copy ") + source.string() + " to " +
                  target.string() + ": " + error.message();
  }
  if (problems.empty()) return std::nullopt;
  return problems;
}

}  // namespace tarnix
