#pragma once
// Whole files read and written byte for byte, and the CR LF lines of the
// program's text files, for the tests that check what is on disk.

#include <fstream>
#include <initializer_list>
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

// Each line followed by CR LF.
template <class Range = std::initializer_list<std::string>>
std::string CrLfLines(const Range& lines) {
  std::string out;
  for (const auto& line : lines) out += std::string(line) + "\r\n";
  return out;
}

}  // namespace tarnix
