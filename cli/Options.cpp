#include "Options.h"

#include <cstdio>
#include <filesystem>
#include <map>
#include <ostream>

#include "core/Text.h"

namespace tarnix::cli {

bool ParseClock(const std::string& text, LocalDateTime& when) {
  int y, mo, d, h, mi;
  char tail;
  if (std::sscanf(text.c_str(), "%d-%d-%d %d:%d%c", &y, &mo, &d, &h, &mi, &tail) == 5) {
    if (mo < 1 || mo > 12 || d < 1 || d > 31 || h < 0 || h > 23 || mi < 0 || mi > 59) return false;
    when = {y, mo, d, h, mi, 0};
    return true;
  }
  if (std::sscanf(text.c_str(), "%d:%d%c", &h, &mi, &tail) == 2) {
    if (h < 0 || h > 23 || mi < 0 || mi > 59) return false;
    when.Hour = h;
    when.Minute = mi;
    when.Second = 0;
    return true;
  }
  return false;
}

std::string Absolute(const std::string& path) { return std::filesystem::absolute(path).lexically_normal().string(); }

bool ReadOptions(const Args& args, NewOptions& options, Args& positional, std::ostream& err) {
  static const std::map<std::string, std::pair<int, int>> kQth = {
      {"usa", {-1, 0}}, {"canada", {-1, 1}}, {"usve", {-1, 0}}, {"dx", {-1, 1}}, {"in", {0, -1}}, {"out", {1, -1}}};
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    if (a.rfind("--", 0) != 0) {
      positional.push_back(a);
      continue;
    }
    if (i + 1 >= args.size()) {
      err << "tarnix-cli: " << a << " wants a value\n";
      return false;
    }
    const std::string& value = args[++i];
    ContestChoice& c = options.Choice;
    if (a == "--contest") {
      c.ContestIndex = static_cast<int>(Val(value));
      options.HasContest = true;
    } else if (a == "--mode" && (value == "cw" || value == "phone")) {
      c.ModeButton = value == "phone" ? 0 : 1;
    } else if (a == "--qth" && kQth.count(value)) {
      auto [location, qth] = kQth.at(value);
      if (location >= 0) c.LocationButton = location;
      if (qth >= 0) c.QthButton = qth;
    } else if (a == "--qth" && value.size() == 2 && std::string("AFASEUNAOCSA").find(value) % 2 == 0) {
      c.QthButton = 2;
      c.Continent = value;
    } else if (a == "--cwo-hour" && (value == "1200" || value == "2000" || value == "400")) {
      c.QthButton = value == "1200" ? 0 : value == "2000" ? 1 : 2;
    } else if (a == "--clock" && ParseClock(value, options.Clock)) {
    } else {
      err << "tarnix-cli: bad option " << a << " " << value << "\n";
      return false;
    }
  }
  if (options.HasContest && (options.Choice.ContestIndex < 1 || options.Choice.ContestIndex > ContestCount)) {
    err << "tarnix-cli: --contest must be 1 to 13\n";
    return false;
  }
  return true;
}

bool ChoiceOffered(const ContestChoice& choice, std::ostream& err) {
  ContestState scratch;
  bool cancelled = false;
  ChCoForm form(scratch, cancelled);
  if (MakeChoice(form, choice)) return true;
  err << "tarnix-cli: the contest form does not offer that mode or location for contest " << choice.ContestIndex
      << "\n";
  return false;
}

}  // namespace tarnix::cli
