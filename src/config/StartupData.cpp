#include "config/StartupData.h"

#include <cerrno>
#include <charconv>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>

namespace tarnix {
namespace {

enum class ItemKind { Text, Int16, Int32 };

// Where a section's items go: place runs from 1 to the section's count.
// value is the item's number for the numeric kinds.
using StoreItem = void (*)(StartupData& data, int place, std::string& text, long long value);

struct Section {
  std::string_view Name;
  int Count;
  ItemKind Kind;
  StoreItem Store;
};

template <typename List>
typename List::value_type& Place(List& list, int place) {
  return list[static_cast<std::size_t>(place)];
}

const Section Sections[] = {
    {"[CQP State/Province Mults]", CQPMultRows, ItemKind::Text,
     [](StartupData& d, int p, std::string& t, long long) { Place(d.MultList, CQPStatePlace - 1 + p) = std::move(t); }},
    {"[CQP Cal County Mults]", CQPMultRows, ItemKind::Text,
     [](StartupData& d, int p, std::string& t, long long) {
       Place(d.MultList, CQPCountyPlace - 1 + p) = std::move(t);
     }},
    {"[SS Mults]", SSSectionRows, ItemKind::Text,
     [](StartupData& d, int p, std::string& t, long long) {
       Place(d.MultList, SSSectionPlace - 1 + p) = std::move(t);
     }},
    {"[SS Short Forms]", SSSectionRows, ItemKind::Text,
     [](StartupData& d, int p, std::string& t, long long) { Place(d.SSShortForms, p) = std::move(t); }},
    {"[Sprint Mults]", SprintMultRows, ItemKind::Text,
     [](StartupData& d, int p, std::string& t, long long) { Place(d.SprintMults, p) = std::move(t); }},
    {"[PAQP Mults]", PAQPMultRows, ItemKind::Text,
     [](StartupData& d, int p, std::string& t, long long) { Place(d.PAQPMults, p) = std::move(t); }},
    {"[NEQP Mults]", NEQPMultRows, ItemKind::Text,
     [](StartupData& d, int p, std::string& t, long long) { Place(d.NEQPMults, p) = std::move(t); }},
    {"[NAQP Mults]", NAQPMultRows, ItemKind::Text,
     [](StartupData& d, int p, std::string& t, long long) { Place(d.NAQPMults, p) = std::move(t); }},
    {"[10M Mults]", TenMultRows, ItemKind::Text,
     [](StartupData& d, int p, std::string& t, long long) { Place(d.TenMults, p) = std::move(t); }},
    {"[ARRL Mults]", ARRLMultRows, ItemKind::Text,
     [](StartupData& d, int p, std::string& t, long long) { Place(d.ARRLMults, p) = std::move(t); }},
    {"[CQP X Coordinates]", CQPMapPlaces, ItemKind::Int16,
     [](StartupData& d, int p, std::string&, long long v) { Place(d.CQPMapX, p) = static_cast<int16_t>(v); }},
    {"[CQP Y Coordinates]", CQPMapPlaces, ItemKind::Int16,
     [](StartupData& d, int p, std::string&, long long v) { Place(d.CQPMapY, p) = static_cast<int16_t>(v); }},
    {"[SS X Coordinates]", SSSectionRows, ItemKind::Int16,
     [](StartupData& d, int p, std::string&, long long v) { Place(d.SSMapX, p) = static_cast<int16_t>(v); }},
    {"[SS Y Coordinates]", SSSectionRows, ItemKind::Int16,
     [](StartupData& d, int p, std::string&, long long v) { Place(d.SSMapY, p) = static_cast<int16_t>(v); }},
    {"[ARRL USVEMultOrder]", ARRLMultRows, ItemKind::Int16,
     [](StartupData& d, int p, std::string&, long long v) {
       Place(d.ARRLOrder, p) = {static_cast<int16_t>(v), static_cast<int16_t>(p)};
     }},
    {"[10M X Coordinates]", TenMultRows, ItemKind::Int16,
     [](StartupData& d, int p, std::string&, long long v) { Place(d.TenMapX, p) = static_cast<int16_t>(v); }},
    {"[10M Y Coordinates]", TenMultRows, ItemKind::Int16,
     [](StartupData& d, int p, std::string&, long long v) { Place(d.TenMapY, p) = static_cast<int16_t>(v); }},
    {"[ARRL X Coordinates]", ARRLMultRows, ItemKind::Int16,
     [](StartupData& d, int p, std::string&, long long v) { Place(d.ARRLMapX, p) = static_cast<int16_t>(v); }},
    {"[ARRL Y Coordinates]", ARRLMultRows, ItemKind::Int16,
     [](StartupData& d, int p, std::string&, long long v) { Place(d.ARRLMapY, p) = static_cast<int16_t>(v); }},
    {"[CW Characters]", CWCharacterCount, ItemKind::Text,
     [](StartupData& d, int p, std::string& t, long long) { Place(d.CWCharacters, p) = std::move(t); }},
    {"[Band Frequencies]", BandIndexCount, ItemKind::Int32,
     [](StartupData& d, int p, std::string&, long long v) { Place(d.BandFrequencies, p) = static_cast<int32_t>(v); }},
};

bool IsBlank(char c) { return c == ' ' || c == '\t'; }
bool IsLineEnd(char c) { return c == '\r' || c == '\n'; }

std::string_view TrimBlanks(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

// Walks the text once, by lines for the section names and by items inside a
// section, sharing one position as the platform's file input does. A line
// ends in CR LF, LF or CR.
class Cursor {
 public:
  explicit Cursor(std::string_view text) : Text(text) {
    if (Text.starts_with("\xEF\xBB\xBF")) Pos = 3;  // a byte order mark some editors write
  }

  // The line the last item began on, or the reader's line when no item
  // was found.
  int ItemLine() const { return ItemLineNumber; }

  // The rest of the current line, and the reader moves to the next one.
  // False at the end of the text.
  bool NextLine(std::string_view& line) {
    if (Pos >= Text.size()) return false;
    std::size_t start = Pos;
    while (Pos < Text.size() && !IsLineEnd(Text[Pos])) ++Pos;
    line = Text.substr(start, Pos - start);
    SkipLineEnd();
    return true;
  }

  enum class Item { Read, EndOfText, OpenQuote, TextAfterQuote };

  Item NextItem(std::string& item) {
    while (Pos < Text.size() && (IsBlank(Text[Pos]) || IsLineEnd(Text[Pos]))) {
      if (IsBlank(Text[Pos]))
        ++Pos;
      else
        SkipLineEnd();
    }
    ItemLineNumber = LineNumber;
    if (Pos >= Text.size()) return Item::EndOfText;
    if (Text[Pos] == '"') {
      std::size_t close = Pos + 1;
      while (close < Text.size() && Text[close] != '"' && !IsLineEnd(Text[close])) ++close;
      if (close >= Text.size() || Text[close] != '"') return Item::OpenQuote;
      item.assign(Text.substr(Pos + 1, close - Pos - 1));
      Pos = close + 1;
      while (Pos < Text.size() && IsBlank(Text[Pos])) ++Pos;
      if (Pos < Text.size() && Text[Pos] != ',' && !IsLineEnd(Text[Pos])) return Item::TextAfterQuote;
    } else {
      std::size_t start = Pos;
      while (Pos < Text.size() && Text[Pos] != ',' && !IsLineEnd(Text[Pos])) ++Pos;
      item.assign(TrimBlanks(Text.substr(start, Pos - start)));
    }
    if (Pos < Text.size()) {
      if (Text[Pos] == ',')
        ++Pos;
      else
        SkipLineEnd();
    }
    return Item::Read;
  }

 private:
  void SkipLineEnd() {
    if (Pos >= Text.size()) return;
    if (Text[Pos] == '\r' && Pos + 1 < Text.size() && Text[Pos + 1] == '\n') ++Pos;
    ++Pos;
    ++LineNumber;
  }

  std::string_view Text;
  std::size_t Pos = 0;
  int LineNumber = 1;
  int ItemLineNumber = 1;
};

// A whole number with an optional sign, and nothing else.
bool ReadWholeNumber(std::string_view text, long long low, long long high, long long& value) {
  if (text.starts_with('+')) {
    text.remove_prefix(1);
    if (text.starts_with('-')) return false;
  }
  auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  return error == std::errc() && end == text.data() + text.size() && value >= low && value <= high;
}

StartupDataResult Failure(std::string detail) { return {false, std::string(StartupFileMessage), std::move(detail)}; }

}  // namespace

StartupDataResult ParseStartupData(std::string_view text, const std::string& fileName, StartupData& data) {
  // Read into a copy, so that a damaged file leaves nothing half filled.
  StartupData work = data;
  Cursor cursor(text);
  std::string_view line;
  std::string item;
  while (cursor.NextLine(line)) {
    line = TrimBlanks(line);
    const Section* section = nullptr;
    for (const Section& s : Sections)
      if (line == s.Name) section = &s;
    if (!section) continue;  // blank lines and notes outside sections
    for (int place = 1; place <= section->Count; ++place) {
      auto where = [&] {
        return fileName + " line " + std::to_string(cursor.ItemLine()) + ": item " + std::to_string(place) + " of " +
               std::to_string(section->Count) + " of " + std::string(section->Name);
      };
      switch (cursor.NextItem(item)) {
        case Cursor::Item::Read:
          break;
        case Cursor::Item::EndOfText:
          return Failure(where() + ": the file ends before it");
        case Cursor::Item::OpenQuote:
          return Failure(where() + ": its double quote is not closed on the line");
        case Cursor::Item::TextAfterQuote:
          return Failure(where() + ": text follows its closing double quote");
      }
      long long value = 0;
      if (section->Kind != ItemKind::Text) {
        bool wide = section->Kind == ItemKind::Int32;
        long long low = wide ? std::numeric_limits<int32_t>::min() : std::numeric_limits<int16_t>::min();
        long long high = wide ? std::numeric_limits<int32_t>::max() : std::numeric_limits<int16_t>::max();
        if (!ReadWholeNumber(item, low, high, value))
          return Failure(where() + ": \"" + item + "\" is not a whole number from " + std::to_string(low) + " to " +
                         std::to_string(high));
      }
      section->Store(work, place, item, value);
    }
  }
  data = std::move(work);
  return {true, {}, {}};
}

StartupDataResult ReadStartupFile(const std::string& path, StartupData& data) {
  std::error_code error;
  if (std::filesystem::is_directory(path, error)) return Failure(path + ": is a folder, not a file");
  std::ifstream in(path, std::ios::binary);
  if (!in) return Failure(path + ": can't be opened (" + std::strerror(errno) + ")");
  std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  if (in.bad()) return Failure(path + ": can't be read (" + std::strerror(errno) + ")");
  return ParseStartupData(text, path, data);
}

}  // namespace tarnix
