#include "operating/Keys.h"

#include <array>
#include <cctype>

#include "core/Text.h"

namespace tarnix {
namespace {

struct KeyRow {
  std::string_view Name;
  int Code;
};

constexpr std::array<KeyRow, 17> kKeys = {{
    {"Backspace", KeyBackspace}, {"Tab", KeyTab},     {"Enter", KeyEnter},     {"CapsLock", KeyCapsLock},
    {"Escape", KeyEscape},       {"Space", KeySpace}, {"PageUp", KeyPageUp},   {"PageDown", KeyPageDown},
    {"End", KeyEnd},             {"Home", KeyHome},   {"Left", KeyLeft},       {"Up", KeyUp},
    {"Right", KeyRight},         {"Down", KeyDown},   {"Insert", KeyInsert},   {"Delete", KeyDelete},
    {"Apostrophe", KeyApostrophe},
}};

std::optional<int> CodeOf(const std::string& upper) {
  for (const KeyRow& row : kKeys)
    if (UCase(std::string(row.Name)) == upper) return row.Code;
  if (upper.size() == 1 && std::isalnum(static_cast<unsigned char>(upper[0]))) return upper[0];
  if (upper.size() >= 2 && upper.size() <= 3 && upper[0] == 'F' && std::isdigit(static_cast<unsigned char>(upper[1]))) {
    int n = static_cast<int>(Val(upper.substr(1)));
    if (upper.find_first_not_of("0123456789", 1) == std::string::npos && n >= 1 && n <= 12) return KeyF1 + n - 1;
  }
  return std::nullopt;
}

}  // namespace

std::optional<NamedKey> KeyByName(std::string_view name) {
  NamedKey key;
  std::string rest = UCase(std::string(name));
  for (;;) {
    std::size_t plus = rest.find('+');
    if (plus == std::string::npos || plus == 0) break;
    std::string modifier = rest.substr(0, plus);
    if (modifier == "SHIFT") key.Shift |= ShiftMask;
    else if (modifier == "CTRL") key.Shift |= CtrlMask;
    else if (modifier == "ALT") key.Shift |= AltMask;
    else return std::nullopt;
    rest = rest.substr(plus + 1);
  }
  std::optional<int> code = CodeOf(rest);
  if (!code) return std::nullopt;
  key.Code = *code;
  return key;
}

}  // namespace tarnix
