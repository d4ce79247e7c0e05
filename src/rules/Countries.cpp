#include "rules/Countries.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "core/Text.h"

namespace tarnix {
namespace {

void ClearCountryData(CountryData& data) {
  data.CountryTable.fill(CountryRecord{});
  for (int i = 1; i <= data.PrefixCount; ++i) data.PrefixTable[i].clear();
  data.CountryCount = 0;
  data.PrefixCount = 0;
  data.CountryRowK = data.CountryRowVE = data.CountryRowKH6 = data.CountryRowKL = 0;
  data.LookupZone = 0;
  data.Index.Whole.clear();
  data.Index.Start.clear();
  data.Index.LongestStart = 0;
}

// The text left of the next ":" of rest, which then goes on behind it.
// False when rest holds no ":".
bool NextField(std::string_view& rest, std::string_view& field) {
  std::size_t colon = rest.find(':');
  if (colon == std::string_view::npos) return false;
  field = rest.substr(0, colon);
  rest.remove_prefix(colon + 1);
  return true;
}

std::string_view LastTwo(std::string_view field) {
  return field.size() <= 2 ? field : field.substr(field.size() - 2);
}

// A header "Name: CQ: ITU: Continent: Latitude: Longitude: Offset: Prefix:"
// into record. False, with record untouched, when a field is missing.
bool ReadHeader(std::string_view line, CountryRecord& record) {
  std::string_view rest = line;
  std::string_view name, zone, itu, continent, latitude, longitude, offset, prefix;
  if (!NextField(rest, name) || !NextField(rest, zone) || !NextField(rest, itu) || !NextField(rest, continent) ||
      !NextField(rest, latitude) || !NextField(rest, longitude) || !NextField(rest, offset) ||
      !NextField(rest, prefix))
    return false;
  record = CountryRecord{};
  record.Name = RTrim(Trim(name).substr(0, 25));
  record.Zone = std::string(LastTwo(zone));
  record.Continent = std::string(LastTwo(continent));
  record.Latitude = static_cast<float>(Val(latitude));
  record.Longitude = static_cast<float>(-Val(longitude));
  record.Prefix = UCase(Trim(prefix)).substr(0, 5);
  return true;
}

// Where entry number entry counts as the first of its pattern.
void Claim(PrefixSlot& slot, int16_t entry, bool visibleInArrlDx) {
  if (slot.First == 0) slot.First = entry;
  if (visibleInArrlDx && slot.FirstForArrlDx == 0) slot.FirstForArrlDx = entry;
}

int16_t SlotEntry(const PrefixSlot& slot, bool arrlDx) { return arrlDx ? slot.FirstForArrlDx : slot.First; }

}  // namespace

CountryFileResult ReadCountryText(std::string_view text, const std::string& fileName, CountryData& data) {
  ClearCountryData(data);
  CountryFileResult result;
  std::string countryNumber;  // of the last header; empty before the first
  int lineNumber = 0;
  auto fail = [&](const std::string& what) {
    result.Ok = false;
    result.Message = std::string(CountryFileMessage);
    result.Detail = fileName + ", line " + std::to_string(lineNumber) + ": " + what;
    BuildPrefixIndex(data);
    return result;
  };
  auto addEntry = [&](const std::string& pattern) {
    if (data.PrefixCount >= MaxPrefixEntries) return false;
    data.PrefixTable[++data.PrefixCount] = pattern + "*" + countryNumber;
    return true;
  };

  std::size_t pos = 0;
  while (pos < text.size()) {
    std::size_t end = text.find('\n', pos);
    if (end == std::string_view::npos) end = text.size();
    std::string line(text.substr(pos, end - pos));
    pos = end + 1;
    ++lineNumber;
    std::replace(line.begin(), line.end(), '\t', ' ');
    std::replace(line.begin(), line.end(), '\r', ' ');
    line = Trim(line);
    if (line.empty() || line[0] == '\'') continue;

    if (line.back() == ':') {
      if (data.CountryCount >= MaxCountries) return fail("more than " + std::to_string(MaxCountries) + " countries");
      CountryRecord record;
      if (!ReadHeader(line, record))
        return fail("a country header needs eight fields, each ended by \":\": " + line);
      data.CountryTable[++data.CountryCount] = std::move(record);
      countryNumber = std::to_string(data.CountryCount);
      continue;
    }

    // A prefix line: entries separated by ","; a line ending in "," goes on
    // on the next line, ";" ends the country's list. The "#" makes a line
    // with neither end like one ended by ";".
    if (line.back() != ';' && line.back() != ',') line += '#';
    std::string_view rest = line;
    std::size_t comma;
    while ((comma = rest.find(',')) != std::string_view::npos) {
      if (!addEntry(Trim(rest.substr(0, comma))))
        return fail("more than " + std::to_string(MaxPrefixEntries) + " prefix entries");
      rest.remove_prefix(comma + 1);
    }
    if (!rest.empty()) {
      rest.remove_suffix(1);
      if (!addEntry(Trim(rest))) return fail("more than " + std::to_string(MaxPrefixEntries) + " prefix entries");
    }
  }

  for (int row = 1; row <= data.CountryCount; ++row) {
    std::string prefix = Trim(data.CountryTable[row].Prefix);
    if (prefix == "K") data.CountryRowK = static_cast<int16_t>(row);
    if (prefix == "VE") data.CountryRowVE = static_cast<int16_t>(row);
    if (prefix == "KH6") data.CountryRowKH6 = static_cast<int16_t>(row);
    if (prefix == "KL") data.CountryRowKL = static_cast<int16_t>(row);
  }
  BuildPrefixIndex(data);
  result.Ok = true;
  return result;
}

CountryFileResult ReadCountryFile(const std::string& path, CountryData& data) {
  std::error_code error;
  std::ifstream file;
  if (std::filesystem::is_regular_file(path, error)) file.open(path, std::ios::binary);
  std::ostringstream text;
  if (file) text << file.rdbuf();
  if (!file.is_open() || !file || file.bad()) {
    ClearCountryData(data);
    CountryFileResult result;
    result.Message = std::string(CountryFileMessage);
    result.Detail = "can't read " + path;
    return result;
  }
  return ReadCountryText(text.str(), path, data);
}

void BuildPrefixIndex(CountryData& data) {
  PrefixIndex& index = data.Index;
  index.Whole.clear();
  index.Start.clear();
  index.LongestStart = 0;
  for (int i = 1; i <= data.PrefixCount; ++i) {
    const std::string& text = data.PrefixTable[i];
    PrefixEntry& entry = index.Entries[i];
    entry = PrefixEntry{};
    std::size_t star = text.find('*');
    std::string pattern = text.substr(0, star);
    double row = star == std::string::npos ? 0 : Val(text.substr(star + 1));
    // The reader writes only rows of the table; another row never matches.
    if (row < 0 || row > MaxCountries) continue;
    entry.Row = static_cast<int16_t>(row);
    if (std::size_t bracket = pattern.find('['); bracket != std::string::npos) pattern.resize(bracket);
    if (std::size_t paren = pattern.find('('); paren != std::string::npos) {
      entry.Zone = static_cast<int16_t>(Val(pattern.substr(paren + 1, 2)));
      pattern.resize(paren);
    }
    if (std::size_t equals = pattern.find('='); equals != std::string::npos) {
      pattern = pattern.substr(equals + 1);
      entry.ExactOnly = true;
    }
    entry.Pattern = pattern;
    bool visibleInArrlDx = data.CountryTable[entry.Row].Prefix.rfind('*', 0) != 0;
    auto id = static_cast<int16_t>(i);
    Claim(index.Whole.try_emplace(pattern).first->second, id, visibleInArrlDx);
    // An empty pattern is never longer than the best so far.
    if (!entry.ExactOnly && !pattern.empty()) {
      Claim(index.Start.try_emplace(pattern).first->second, id, visibleInArrlDx);
      index.LongestStart = std::max(index.LongestStart, pattern.size());
    }
  }
}

int16_t FindCountry(CountryData& data, const ContestState& contest, std::string& call) {
  const PrefixIndex& index = data.Index;
  const bool arrlDx = contest.ContestIndex == ArrlDx;
  int16_t row = 0;
  int16_t zone = 0;
  for (bool firstPass = true;; firstPass = false) {
    const bool hasSlash = call.find('/') != std::string::npos;
    int16_t entry = 0;
    bool exactHit = false;
    if (auto it = index.Whole.find(std::string_view(call)); it != index.Whole.end()) {
      entry = SlotEntry(it->second, arrlDx);
      exactHit = entry != 0;
    }
    if (!exactHit) {
      std::size_t length = std::min(index.LongestStart, call.empty() ? 0 : call.size() - 1);
      for (; length >= 1 && entry == 0; --length) {
        auto it = index.Start.find(std::string_view(call).substr(0, length));
        if (it != index.Start.end()) entry = SlotEntry(it->second, arrlDx);
      }
    }
    if (exactHit || !hasSlash || !firstPass) {
      if (entry != 0) {
        row = index.Entries[entry].Row;
        zone = index.Entries[entry].Zone;
      }
      break;
    }
    // A portable or otherwise decorated call not listed whole: look up the
    // prefix it is worked under.
    call = GetWPXPrefix(call);
  }
  // Guantanamo: only KG4 plus two letters is there; other KG4 calls are
  // ordinary US calls of the 4th district.
  if (call.compare(0, 3, "KG4") == 0) {
    if (call.size() == 5) {
      zone = 8;
    } else {
      row = data.CountryRowK;
      zone = 5;
    }
  }
  data.LookupZone = zone;
  return row;
}

int16_t GetHeading(const CountryData& data, const Settings& settings, int row) {
  if (row < 0 || row > MaxCountries) return 999;
  const CountryRecord& country = data.CountryTable[row];
  // The rounded factors keep the headings those of earlier releases, which
  // operators compare against their maps.
  const double toRadians = 0.017453;
  const double toDegrees = 57.2958;
  // Each step is kept as a single float, the functions work in double.
  const float a = static_cast<float>(settings.StationLatitude * toRadians);
  const float b = static_cast<float>(country.Latitude * toRadians);
  const float d = static_cast<float>((country.Longitude - settings.StationLongitude) * toRadians);
  const double ca = std::cos(double{a}), sa = std::sin(double{a});
  const double cb = std::cos(double{b}), sb = std::sin(double{b});
  const double cd = std::cos(double{d}), sd = std::sin(double{d});
  const float y = static_cast<float>(cb * sd);
  const float x = static_cast<float>(ca * sb - cb * sa * cd);
  auto degrees = [&](double radians) { return radians * toDegrees; };
  auto atanOf = [](float ratio) { return std::atan(double{ratio}); };
  float h;
  if (y > 0) {
    if (x > 0)
      h = static_cast<float>(degrees(atanOf(y / x)));
    else if (x == 0)
      h = 90;
    else
      h = static_cast<float>(180 - degrees(atanOf(-y / x)));
  } else if (y == 0) {
    h = x < 0 ? 180 : 0;
  } else if (y < 0) {
    if (x > 0)
      h = static_cast<float>(degrees(-atanOf(-y / x)));
    else if (x == 0)
      h = 270;
    else
      h = static_cast<float>(degrees(atanOf(y / x)) - 180);
  } else {
    return 999;  // not a number: a position out of all range
  }
  double heading = h >= 0 ? std::trunc(h) : 360 - std::trunc(-h);
  if (!(heading >= 0 && heading <= 360)) return 999;
  return static_cast<int16_t>(heading);
}

std::string NameHeadingLine(CountryData& data, const Settings& settings, int row) {
  std::string heading;
  std::string name;
  if (row < 0 || row > MaxCountries) {
    heading = "999";
  } else {
    CountryRecord& country = data.CountryTable[row];
    name = country.Name;
    heading = Trim(country.Heading);
    // 0 counts as not yet computed: a country at the station's own spot is
    // computed again at each display.
    if (heading.empty() || Val(heading) == 0) {
      heading = std::to_string(GetHeading(data, settings, row));
      country.Heading = heading.substr(0, 3);
    }
  }
  return "Name: " + PadRight(name.substr(0, 21), 21) + "Hdg: " + heading;
}

}  // namespace tarnix
