// The Qt desktop services (filters, colours, message boxes and timers) and
// the keys of the window by name: which key of the entry form each Qt key
// event is.

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QTest>

#include <memory>

#include "AppTestSupport.h"
#include "KeyMap.h"
#include "platform/qt/QtConvert.h"
#include "platform/qt/QtPlatform.h"

namespace tarnix {
namespace {

TEST(QtConvertTest, PipeFiltersBecomeQtNameFiltersAndModelColoursAreBlueGreenRed) {
  // The pattern half is what filters, whatever the description shows.
  const std::pair<const char*, QStringList> filters[] = {
      {"TNX logs (*.TNX)|*.TNX|All files (*.*)|*.*", {"TNX logs (*.TNX)", "All files (*)"}},
      {"Text (*.txt;*.log)|*.txt;*.log", {"Text (*.txt *.log)"}}, {"TNX logs (*.TNX)|*.TN?", {"TNX logs (*.TN?)"}},
      {"Cabrillo|*.LOG", {"Cabrillo (*.LOG)"}}, {"*.TNX", {"*.TNX"}}, {"", {}}};
  for (const auto& [pipes, names] : filters) EXPECT_EQ(NameFiltersFromPipes(pipes), names) << pipes;
  for (auto [bgr, colour] : {std::pair{255, QColor(255, 0, 0)}, {16711680, QColor(0, 0, 255)},
                             {0x00C08040, QColor(0x40, 0x80, 0xC0)}, {14737632, QColor(224, 224, 224)}})
    EXPECT_EQ(ColourFromBgr(bgr), colour) << bgr;
}

// Shows a box, answers it with one key, and returns what Show gave.
MsgAnswer AnswerWithKey(const MessageBoxRequest& request, Qt::Key key, QMessageBox::StandardButtons* shown) {
  testing::WhenModalShown([key, shown](QWidget& modal) {
    auto* box = qobject_cast<QMessageBox*>(&modal);
    if (!box) return;
    *shown = box->standardButtons();
    QTest::keyClick(box, key);
  });
  return QtMessageBoxes().Show(request);
}

TEST(QtMessageBoxesTest, EnterGivesTheDefaultAndEscapeTheHarmlessAnswer) {
  QMessageBox::StandardButtons shown;
  MessageBoxRequest yesNo{"Exit TARNIX?", "Exit TARNIX?", MsgButtons::YesNo, MsgIcon::Question, MsgAnswer::Yes};
  EXPECT_EQ(AnswerWithKey(yesNo, Qt::Key_Return, &shown), MsgAnswer::Yes);
  EXPECT_EQ(shown, QMessageBox::Yes | QMessageBox::No);
  EXPECT_EQ(AnswerWithKey(yesNo, Qt::Key_Escape, &shown), MsgAnswer::No);
  yesNo.Default = MsgAnswer::No;
  EXPECT_EQ(AnswerWithKey(yesNo, Qt::Key_Return, &shown), MsgAnswer::No);
  MessageBoxRequest save{"Save current log file?", "Save Log?", MsgButtons::YesNoCancel, MsgIcon::Question,
                         MsgAnswer::Yes};
  EXPECT_EQ(AnswerWithKey(save, Qt::Key_Escape, &shown), MsgAnswer::Cancel);
  EXPECT_EQ(shown, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
  MessageBoxRequest error{"Disk full", "Log File Error", MsgButtons::AbortRetryIgnore, MsgIcon::Critical,
                          MsgAnswer::Retry};
  EXPECT_EQ(AnswerWithKey(error, Qt::Key_Return, &shown), MsgAnswer::Retry);
  EXPECT_EQ(AnswerWithKey(error, Qt::Key_Escape, &shown), MsgAnswer::Abort);
}

TEST(QtTimersTest, TicksOnlyWhileEnabledWithAnInterval) {
  QtTimers timers;
  int ticks = 0;
  std::unique_ptr<Timer> timer = timers.CreateTimer([&ticks] { ++ticks; });
  EXPECT_FALSE(timer->Enabled());
  timer->SetEnabled(true);  // interval 0: held
  QTest::qWait(60);
  EXPECT_TRUE(timer->Enabled());
  EXPECT_EQ(ticks, 0);
  timer->SetInterval(10);
  EXPECT_TRUE(QTest::qWaitFor([&ticks] { return ticks >= 3; }, 2000));
  timer->SetEnabled(false);
  EXPECT_FALSE(timer->Enabled());
  int stopped = ticks;
  QTest::qWait(60);
  EXPECT_EQ(ticks, stopped);
}

TEST(FormKeyOf, QtKeysAndModifiersByName) {
  struct Row { const char* name; int qtKey; Qt::KeyboardModifiers modifiers; int code, shift; };
  const Row rows[] = {
      {"Return", Qt::Key_Return, {}, KeyEnter, 0},
      {"keypad Enter", Qt::Key_Enter, Qt::KeypadModifier, KeyEnter, 0},
      {"Shift+Enter", Qt::Key_Return, Qt::ShiftModifier, KeyEnter, ShiftMask},
      {"F1", Qt::Key_F1, {}, KeyF1, 0},
      {"Shift+F12", Qt::Key_F12, Qt::ShiftModifier, KeyF12, ShiftMask},
      {"Ctrl+F9", Qt::Key_F9, Qt::ControlModifier, KeyF9, CtrlMask},
      {"Alt+F9", Qt::Key_F9, Qt::AltModifier, KeyF9, AltMask},
      {"Alt+M", Qt::Key_M, Qt::AltModifier, KeyM, AltMask},
      {"Ctrl+X", Qt::Key_X, Qt::ControlModifier, KeyX, CtrlMask},
      {"Ctrl+Alt+Z", Qt::Key_Z, Qt::ControlModifier | Qt::AltModifier, KeyZ, CtrlMask | AltMask},
      {"Ctrl+Down", Qt::Key_Down, Qt::ControlModifier, KeyDown, CtrlMask},
      {"Alt+Left", Qt::Key_Left, Qt::AltModifier, KeyLeft, AltMask},
      {"Up", Qt::Key_Up, {}, KeyUp, 0},                     {"Page Up", Qt::Key_PageUp, {}, KeyPageUp, 0},
      {"Page Down", Qt::Key_PageDown, {}, KeyPageDown, 0},  {"Insert", Qt::Key_Insert, {}, KeyInsert, 0},
      {"Caps Lock", Qt::Key_CapsLock, {}, KeyCapsLock, 0},  {"apostrophe", Qt::Key_Apostrophe, {}, KeyApostrophe, 0},
      {"Space", Qt::Key_Space, {}, KeySpace, 0},            {"Tab", Qt::Key_Tab, {}, KeyTab, 0},
      {"plain letter", Qt::Key_K, {}, 'K', 0}};
  for (const Row& row : rows) {
    std::optional<NamedKey> key = FormKeyOf(row.qtKey, row.modifiers);
    ASSERT_TRUE(key) << row.name;
    EXPECT_EQ(std::pair(key->Code, key->Shift), std::pair(row.code, row.shift)) << row.name;
  }
  // These arrive as typed characters: the key-press step handles them.
  for (int qtKey : {Qt::Key_BracketRight, Qt::Key_Backslash, Qt::Key_Plus, Qt::Key_Minus, Qt::Key_Exclam,
                    Qt::Key_QuoteDbl, Qt::Key_Slash, Qt::Key_5, Qt::Key_Meta})
    EXPECT_FALSE(FormKeyOf(qtKey, Qt::NoModifier)) << qtKey;
}

}  // namespace
}  // namespace tarnix
