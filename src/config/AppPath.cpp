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

}  // namespace tarnix
