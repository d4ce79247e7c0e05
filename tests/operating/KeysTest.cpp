#include <gtest/gtest.h>

#include "operating/Keys.h"

namespace tarnix {
namespace {

TEST(KeyByName, NamesAndModifiers) {
  struct Row { const char* name; int code, shift; };
  for (const Row& row : {Row{"Enter", 13, 0}, Row{"F9", 120, 0}, Row{"Ctrl+F9", 120, 2}, Row{"F12", 123, 0},
                         Row{"Alt+M", 77, 4}, Row{"Ctrl+Down", 40, 2}, Row{"Alt+Up", 38, 4},
                         Row{"shift+alt+insert", 45, 5}, Row{"Apostrophe", 222, 0}, Row{"CapsLock", 20, 0},
                         Row{"PageDown", 34, 0}, Row{"Ctrl+x", 88, 2}}) {
    std::optional<NamedKey> key = KeyByName(row.name);
    ASSERT_TRUE(key) << row.name;
    EXPECT_EQ(key->Code * 10 + key->Shift, row.code * 10 + row.shift) << row.name;
  }
  for (const char* bad : {"", "F13", "F0", "Hyper+A", "Ctrl+", "+", "PgUp", "Ctrl+F1x"})
    EXPECT_FALSE(KeyByName(bad)) << bad;
}

}  // namespace
}  // namespace tarnix
