#pragma once
// Whole files read and written byte for byte, for the tests that check what
// the program left on disk.

#include <fstream>
#include <iterator>
#include <string>

namespace tarnix {

// The file's bytes; empty when it cannot be read.
inline std::string ReadFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

inline void WriteFile(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}

}  // namespace tarnix
