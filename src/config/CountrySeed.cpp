#include "config/CountrySeed.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <vector>

#include "core/Text.h"

namespace tarnix {
namespace {

// One country's part of the file: its header (empty for entries in front of
// the first header) and its entries, in order.
struct CountryBlock {
  std::string Header;
  std::vector<std::string> Entries;
};

// The entries of one prefix line, split as the country file reader splits
// them: at each ",", the rest less its last character (";", or the end of a
// line that has neither "," nor ";").
void SplitEntries(std::string line, std::vector<std::string>& entries) {
  if (line.back() != ';' && line.back() != ',') line += '#';
  std::string_view rest = line;
  std::size_t comma;
  while ((comma = rest.find(',')) != std::string_view::npos) {
    entries.push_back(Trim(rest.substr(0, comma)));
    rest.remove_prefix(comma + 1);
  }
  if (!rest.empty()) {
    rest.remove_suffix(1);
    entries.push_back(Trim(rest));
  }
}

void WriteEntries(const std::vector<std::string>& entries, std::string& out) {
  constexpr std::size_t LineWidth = 78;
  std::string line = "    ";
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const std::string& entry = entries[i];
    // A line must not begin with "'", which would make it a comment.
    bool canBreak = entry.empty() || entry[0] != '\'';
    if (line.size() > 4 && canBreak && line.size() + entry.size() + 1 > LineWidth) {
      out += line + "\n";
      line = "    ";
    }
    line += entry;
    line += i + 1 < entries.size() ? ',' : ';';
  }
  out += line + "\n";
}

std::optional<std::string> ReadWhole(const std::filesystem::path& path, std::string& text) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream buffer;
  if (file) buffer << file.rdbuf();
  if (!file || file.bad()) return "Can't read " + path.string();
  text = buffer.str();
  return std::nullopt;
}

// Writes text to path through a temporary file, so that path is either
// absent or whole.
std::optional<std::string> WriteWhole(const std::filesystem::path& path, const std::string& text) {
  std::filesystem::path temporary = path;
  temporary += ".tmp";
  {
    std::ofstream file(temporary, std::ios::binary | std::ios::trunc);
    file << text;
    file.flush();
    if (!file) {
      std::error_code ignored;
      std::filesystem::remove(temporary, ignored);
      return "Can't write " + path.string();
    }
  }
  std::error_code error;
  std::filesystem::rename(temporary, path, error);
  if (error) {
    std::filesystem::remove(temporary, error);
    return "Can't write " + path.string();
  }
  return std::nullopt;
}

}  // namespace

std::string MakeSeedCountryFile(const std::string& fullText) {
  std::vector<CountryBlock> blocks(1);
  std::size_t pos = 0;
  while (pos < fullText.size()) {
    std::size_t end = fullText.find('\n', pos);
    if (end == std::string::npos) end = fullText.size();
    std::string line = fullText.substr(pos, end - pos);
    pos = end + 1;
    std::replace(line.begin(), line.end(), '\t', ' ');
    std::replace(line.begin(), line.end(), '\r', ' ');
    line = Trim(line);
    if (line.empty() || line[0] == '\'') continue;
    if (line.back() == ':') {
      blocks.push_back({line, {}});
      continue;
    }
    std::vector<std::string> entries;
    SplitEntries(line, entries);
    for (std::string& entry : entries)
      if (entry.find('=') == std::string::npos) blocks.back().Entries.push_back(std::move(entry));
  }

  std::string out = "' Country list: every header and prefix, without the whole-call (\"=\") entries\n";
  for (const CountryBlock& block : blocks) {
    if (!block.Header.empty()) out += block.Header + "\n";
    if (!block.Entries.empty()) WriteEntries(block.Entries, out);
  }
  return out;
}

std::optional<std::string> SeedCountryFile(const std::string& appPath, std::string_view sourceDir) {
  namespace fs = std::filesystem;
  std::string problems;
  auto note = [&](const std::string& problem) { problems += (problems.empty() ? "" : "\n") + problem; };
  std::error_code error;

  fs::path country = fs::path(appPath) / "cty.dat";
  if (!fs::exists(country, error)) {
    std::string text;
    if (auto problem = ReadWhole(fs::path(sourceDir) / "cty.dat", text))
      note(*problem);
    else if (auto writeProblem = WriteWhole(country, MakeSeedCountryFile(text)))
      note(*writeProblem);
  }

  fs::path master = fs::path(appPath) / "master.scp";
  if (!fs::exists(master, error)) {
    std::string text;
    if (auto problem = ReadWhole(fs::path(sourceDir) / "MASTER.SCP", text))
      note(*problem);
    else if (auto writeProblem = WriteWhole(master, text))
      note(*writeProblem);
  }

  if (problems.empty()) return std::nullopt;
  return problems;
}

}  // namespace tarnix
