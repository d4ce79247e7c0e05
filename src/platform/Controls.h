#pragma once
// The state of the controls a form model shows. A view draws these and feeds
// the operator's actions back to the model; it holds no state of its own.

#include <cstdint>
#include <string>
#include <vector>

namespace tarnix {

// Colours as 24-bit values in blue-green-red byte order: 255 is pure red,
// 16711680 pure blue.
inline constexpr int32_t ColourBlack = 0;
inline constexpr int32_t ColourRed = 255;
inline constexpr int32_t ColourDarkRed = 192;
inline constexpr int32_t ColourBlue = 16711680;
inline constexpr int32_t ColourWhite = 16777215;
inline constexpr int32_t ColourLightGrey = 14737632;

struct Label {
  std::string Caption;
  bool Visible = true;
  bool Enabled = true;
  int32_t ForeColor = ColourBlack;
};

struct TextBox {
  std::string Text;
  int SelStart = 0;
  int SelLength = 0;
  bool Visible = true;
  bool Enabled = true;
  int32_t ForeColor = ColourBlack;
};

struct Button {
  std::string Caption;
  bool Visible = true;
  bool Enabled = true;
};

struct OptionButton {
  std::string Caption;
  bool Visible = true;
  bool Enabled = true;
  bool Value = false;
};

struct CheckBox {
  std::string Caption;
  bool Visible = true;
  bool Enabled = true;
  bool Value = false;
};

struct Frame {
  std::string Caption;
  bool Visible = true;
};

struct ListBox {
  std::vector<std::string> Items;
  int ListIndex = -1;
  bool Visible = true;
  bool Enabled = true;
};

struct MenuItem {
  std::string Caption;
  bool Visible = true;
  bool Enabled = true;
  bool Checked = false;
};

}  // namespace tarnix
