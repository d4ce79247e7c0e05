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

TEST(QtConvertTest, PipeFiltersBecomeQtNameFilters) {
  EXPECT_EQ(NameFiltersFromPipes("TNX logs (*.TNX)|*.TNX|All files (*.*)|*.*"),
            (QStringList{"TNX logs (*.TNX)", "All files (*)"}));
  EXPECT_EQ(NameFiltersFromPipes("Text (*.txt;*.log)|*.txt;*.log"), (QStringList{"Text (*.txt *.log)"}));
  // The pattern half is what filters, whatever the description shows.
  EXPECT_EQ(NameFiltersFromPipes("TNX logs (*.TNX)|*.TN?"), (QStringList{"TNX logs (*.TN?)"}));
  EXPECT_EQ(NameFiltersFromPipes("Cabrillo|*.LOG"), (QStringList{"Cabrillo (*.LOG)"}));
  EXPECT_EQ(NameFiltersFromPipes("*.TNX"), (QStringList{"*.TNX"}));
  EXPECT_EQ(NameFiltersFromPipes(""), QStringList());
}

TEST(QtConvertTest, ModelColoursAreBlueGreenRed) {
  EXPECT_EQ(ColourFromBgr(255), QColor(255, 0, 0));
  EXPECT_EQ(ColourFromBgr(16711680), QColor(0, 0, 255));
  EXPECT_EQ(ColourFromBgr(0x00C08040), QColor(0x40, 0x80, 0xC0));
  EXPECT_EQ(ColourFromBgr(14737632), QColor(224, 224, 224));
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
