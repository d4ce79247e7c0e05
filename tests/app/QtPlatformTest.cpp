// The Qt desktop services: filters, colours, message boxes and timers.

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QTest>

#include <memory>

#include "AppTestSupport.h"
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

}  // namespace
}  // namespace tarnix
