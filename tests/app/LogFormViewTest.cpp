// The main window over a LogForm: keys typed into the entry boxes as real Qt
// key events, checked against the log the model keeps and the window drawn.

#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <stdexcept>

#include "LogFormView.h"
#include "core/ChCoForm.h"
#include "operating/Context.h"
#include "operating/LogForm.h"
#include "operating/RecordingStation.h"
#include "platform/Scripted.h"

namespace tarnix {
namespace {

class LogFormViewTest : public ::testing::Test {
 protected:
  LogFormViewTest() {
    desk.Time.Set({2024, 11, 23, 14, 5, 0});
    // The contest chooser of New Log picks Generic and presses OK.
    QueueContestChoice(desk.Forms, Generic);
    view.show();
    view.activateWindow();
    active = QTest::qWaitForWindowActive(&view);
  }

  template <class T>
  T& Child(const QString& name) {
    T* widget = view.findChild<T*>(name);
    if (!widget) throw std::runtime_error("no widget " + name.toStdString());
    return *widget;
  }
  QLineEdit& Box(int box) { return Child<QLineEdit>(QStringLiteral("InData%1").arg(box)); }
  QLabel& LabelNamed(const char* name) { return Child<QLabel>(QString::fromLatin1(name)); }
  QAction& ActionNamed(const char* name) { return Child<QAction>(QString::fromLatin1(name)); }
  const QsoRecord& Qso(int n) { return ctx->Log.LogRecords.At(n); }

  QTemporaryDir home;
  std::unique_ptr<Context> ctx = MakeContext(home.path().toStdString() + "/");
  ScriptedPlatform desk;
  RecordingStation station;
  LogForm model{*ctx, desk.View, station.View};
  LogFormView view{model};
  bool active = false;
};

QColor PixelAt(const QImage& image, int x, int y) { return image.pixelColor(x, y); }

TEST_F(LogFormViewTest, WithoutALogTheFormIsGreyAndTheEntryClosed) {
  EXPECT_FALSE(Box(CallBox).isEnabled());
  EXPECT_FALSE(Box(ExchangeBox).isEnabled());
  EXPECT_FALSE(Child<QPushButton>(QStringLiteral("AddButton")).isEnabled());
  EXPECT_FALSE(Child<QMenu>(QStringLiteral("mnuEdit")).menuAction()->isEnabled());
  EXPECT_FALSE(Child<QMenu>(QStringLiteral("mnuView")).menuAction()->isEnabled());
  EXPECT_TRUE(ActionNamed("mnuFileNewLog").isEnabled());
  EXPECT_EQ(ActionNamed("mnuFileNewLog").text(), QStringLiteral("&New Log"));
  EXPECT_FALSE(LabelNamed("QSONrLabel").isVisible());
  EXPECT_FALSE(LabelNamed("FileIDLabel").isVisible());

  // The empty lower part of the form shows BackColor, light grey.
  QImage image = view.grab().toImage();
  EXPECT_EQ(PixelAt(image, image.width() - 4, image.height() - 4), QColor(224, 224, 224));
}

TEST_F(LogFormViewTest, NewLogThenThreeQsosTypedAsKeys) {
  ASSERT_TRUE(active);
  ActionNamed("mnuFileNewLog").trigger();
  ASSERT_EQ(desk.Forms.Shown, std::vector<std::string>{"ChCoForm"});
  ASSERT_EQ(ctx->Contest.ContestIndex, Generic);
  EXPECT_TRUE(Box(CallBox).isEnabled());
  EXPECT_TRUE(Child<QMenu>(QStringLiteral("mnuEdit")).menuAction()->isEnabled());
  EXPECT_TRUE(LabelNamed("FileIDLabel").isVisible());
  EXPECT_EQ(LabelNamed("FileIDLabel").text().toStdString(), model.FileIDLabel.Caption);
  EXPECT_EQ(LabelNamed("lblExchange").text().toStdString(), model.lblExchange.Caption);
  EXPECT_EQ(LabelNamed("QSONrLabel").palette().color(QPalette::WindowText), QColor(0, 0, 255));
  EXPECT_EQ(QApplication::focusWidget(), &Box(CallBox));

  // QSO 1: lower case comes back upper-cased by the model; Space moves on.
  QTest::keyClicks(&Box(CallBox), "w1aw");
  EXPECT_EQ(Box(CallBox).text(), QStringLiteral("W1AW"));
  EXPECT_EQ(model.InData[CallBox].Text, "W1AW");
  QTest::keyClick(&Box(CallBox), Qt::Key_Space);
  EXPECT_EQ(model.FocusedBox, ExchangeBox);
  EXPECT_EQ(QApplication::focusWidget(), &Box(ExchangeBox));
  EXPECT_EQ(Box(CallBox).text(), QStringLiteral("W1AW"));  // the Space was used up
  QTest::keyClicks(&Box(ExchangeBox), "599 ct");
  EXPECT_EQ(Box(ExchangeBox).text(), QStringLiteral("599 CT"));
  QTest::keyClick(&Box(ExchangeBox), Qt::Key_Return);
  ASSERT_EQ(ctx->Log.QSOCount, 2);
  EXPECT_EQ(Qso(1).QCall.Trimmed(), "W1AW");
  EXPECT_EQ(Qso(1).QRcvText.Trimmed(), "599 CT");
  EXPECT_EQ(Box(CallBox).text(), QString());
  EXPECT_EQ(Box(ExchangeBox).text(), QString());
  EXPECT_EQ(QApplication::focusWidget(), &Box(CallBox));
  EXPECT_EQ(LabelNamed("LastQSOLabel").text().toStdString(), model.LastQSOLabel.Caption);
  EXPECT_TRUE(LabelNamed("LastQSOLabel").text().contains(QStringLiteral("W1AW  599 CT")));
  EXPECT_TRUE(LabelNamed("LastQSOLabel").font().bold());

  // QSO 2: the box's own editing keys, then typing at the moved caret.
  QTest::keyClicks(&Box(CallBox), "k1ttxx");
  QTest::keyClick(&Box(CallBox), Qt::Key_Backspace);
  EXPECT_EQ(model.InData[CallBox].Text, "K1TTX");
  QTest::keyClick(&Box(CallBox), Qt::Key_Home);
  QTest::keyClick(&Box(CallBox), Qt::Key_Delete);
  EXPECT_EQ(model.InData[CallBox].Text, "1TTX");
  EXPECT_EQ(model.InData[CallBox].SelStart, 0);
  QTest::keyClick(&Box(CallBox), Qt::Key_N);
  EXPECT_EQ(Box(CallBox).text(), QStringLiteral("N1TTX"));
  QTest::keyClick(&Box(CallBox), Qt::Key_End);
  QTest::keyClick(&Box(CallBox), Qt::Key_Left);
  QTest::keyClick(&Box(CallBox), Qt::Key_Backspace);
  QTest::keyClicks(&Box(CallBox), "ttt");
  EXPECT_EQ(Box(CallBox).text(), QStringLiteral("N1TTTTX"));
  // A click in the exchange box moves the model's focus there.
  QTest::mouseClick(&Box(ExchangeBox), Qt::LeftButton);
  EXPECT_EQ(model.FocusedBox, ExchangeBox);
  QTest::keyClicks(&Box(ExchangeBox), "5nn ma");
  QTest::keyClick(&Box(ExchangeBox), Qt::Key_Enter);
  ASSERT_EQ(ctx->Log.QSOCount, 3);
  EXPECT_EQ(Qso(2).QCall.Trimmed(), "N1TTTTX");
  EXPECT_EQ(Qso(2).QRcvText.Trimmed(), "5NN MA");

  // QSO 3: a selection, by Ctrl+A with the caret already at the end or by
  // Shift+Home, is replaced by what is typed; notes past ten characters go
  // to the multiplier field.
  QTest::keyClicks(&Box(CallBox), "dl1xyz");
  QTest::keyClick(&Box(CallBox), Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(model.InData[CallBox].SelStart, 0);
  EXPECT_EQ(model.InData[CallBox].SelLength, 6);
  QTest::keyClicks(&Box(CallBox), "n2ic");
  EXPECT_EQ(Box(CallBox).text(), QStringLiteral("N2IC"));
  QTest::keyClick(&Box(CallBox), Qt::Key_Space);
  QTest::keyClicks(&Box(ExchangeBox), "57 ");
  QTest::keyClick(&Box(ExchangeBox), Qt::Key_Home, Qt::ShiftModifier);
  EXPECT_EQ(model.InData[ExchangeBox].SelStart, 0);
  EXPECT_EQ(model.InData[ExchangeBox].SelLength, 3);
  QTest::keyClicks(&Box(ExchangeBox), "599 1234 abcdef");
  QTest::keyClick(&Box(ExchangeBox), Qt::Key_Return);
  ASSERT_EQ(ctx->Log.QSOCount, 4);
  EXPECT_EQ(Qso(3).QCall.Trimmed(), "N2IC");
  EXPECT_EQ(Qso(3).QRcvText.Trimmed(), "599 1234 A");
  EXPECT_EQ(Qso(3).QMult.Trimmed(), "BCDEF");
  EXPECT_EQ(Qso(3).QTime, 1405);

  EXPECT_EQ(LabelNamed("QSONrLabel").text().toStdString(), model.QSONrLabel.Caption);
  EXPECT_EQ(LabelNamed("QSONrLabel").text(), QStringLiteral("QSO Nr  4    (20m CW)"));
  EXPECT_EQ(LabelNamed("LastQSOLabel").text().toStdString(), model.LastQSOLabel.Caption);

  // The window as drawn: the form's size, white behind the entry, and with
  // text on it in many shades.
  QImage image = view.grab().toImage();
  ASSERT_FALSE(image.isNull());
  EXPECT_EQ(image.size(), view.size());
  EXPECT_EQ(PixelAt(image, image.width() - 4, image.height() - 4), QColor(255, 255, 255));
  QSet<QRgb> colours;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) colours.insert(image.pixel(x, y));
  EXPECT_GT(colours.size(), 20);
  EXPECT_TRUE(image.save(QStringLiteral(TARNIX_SCREENSHOT)));
}

TEST_F(LogFormViewTest, ClosingAsksTheModelAndStaysOpenOnCancel) {
  ActionNamed("mnuFileNewLog").trigger();
  ASSERT_EQ(ctx->Contest.ContestIndex, Generic);

  desk.Boxes.Answers = {MsgAnswer::Cancel};
  EXPECT_FALSE(view.close());
  EXPECT_TRUE(view.isVisible());
  ASSERT_EQ(desk.Boxes.Shown.size(), 1u);
  EXPECT_EQ(desk.Boxes.Shown[0].Title, "Save Log?");

  // File > Exit asks the same question; No ends the program.
  desk.Boxes.Answers = {MsgAnswer::No};
  ActionNamed("mnuFileExit").trigger();
  EXPECT_FALSE(view.isVisible());
  ASSERT_EQ(desk.Boxes.Shown.size(), 2u);
  EXPECT_EQ(desk.Boxes.Shown[1].Title, "Save Log?");
}

TEST_F(LogFormViewTest, AddAndCancelButtonsActOnTheEntry) {
  ActionNamed("mnuFileNewLog").trigger();
  QTest::keyClicks(&Box(CallBox), "ve3ej");
  QTest::mouseClick(&Child<QPushButton>(QStringLiteral("CancelButton")), Qt::LeftButton);
  EXPECT_EQ(Box(CallBox).text(), QString());
  EXPECT_EQ(ctx->Log.QSOCount, 1);

  QTest::keyClicks(&Box(CallBox), "ve3ej");
  QTest::mouseClick(&Child<QPushButton>(QStringLiteral("AddButton")), Qt::LeftButton);
  ASSERT_EQ(ctx->Log.QSOCount, 2);
  EXPECT_EQ(Qso(1).QCall.Trimmed(), "VE3EJ");
  EXPECT_EQ(QApplication::focusWidget(), &Box(CallBox));  // the button took no focus
}

TEST_F(LogFormViewTest, KeyboardCommandsThroughKeyEvents) {
  ASSERT_TRUE(active);
  ActionNamed("mnuFileNewLog").trigger();
  ASSERT_EQ(ctx->Contest.ContestIndex, Generic);
  ctx->Config.Key1IsMapped = true;
  ctx->Config.Key1Mapping = "rightbracket";
  ctx->Config.CWSpeedIncrement = "2";

  // Alt-M keeps a call and empties the boxes; Ctrl-X empties them without
  // the box's own cut.
  QTest::keyClicks(&Box(CallBox), "w1aw");
  QTest::keyClick(&Box(CallBox), Qt::Key_M, Qt::AltModifier);
  EXPECT_EQ(Box(CallBox).text(), QString());
  EXPECT_EQ(model.CallStack[1], "W1AW");
  QTest::keyClicks(&Box(CallBox), "k3zzz");
  QTest::keyClick(&Box(CallBox), Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(Box(CallBox).text(), QString());

  // The band ring and the mode, drawn in the window.
  QTest::keyClick(&Box(CallBox), Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(LabelNamed("QSONrLabel").text(), QStringLiteral("QSO Nr  1    (30m CW)"));
  QTest::keyClick(&Box(CallBox), Qt::Key_Up, Qt::ControlModifier);
  QTest::keyClick(&Box(CallBox), Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(LabelNamed("QSONrLabel").text(), QStringLiteral("QSO Nr  1    (20m SSB)"));
  EXPECT_EQ(LabelNamed("lblCWPC").text(), QStringLiteral("DVK:"));
  EXPECT_TRUE(Child<QCheckBox>(QStringLiteral("CheckCall")).isVisible());
  QTest::keyClick(&Box(CallBox), Qt::Key_Left, Qt::ControlModifier);
  EXPECT_EQ(LabelNamed("lblCWPC").text(), QStringLiteral("CW-PC:"));
  EXPECT_FALSE(Child<QCheckBox>(QStringLiteral("CheckCall")).isVisible());

  // "+" and Page Down on CW change the speed; the box gets nothing.
  ctx->Config.CWActivated = true;
  QTest::keyClick(&Box(CallBox), '+');
  QTest::keyClick(&Box(CallBox), Qt::Key_PageDown);
  QTest::keyClick(&Box(CallBox), Qt::Key_PageDown);
  EXPECT_EQ(LabelNamed("lblSpeedCW").text(), QStringLiteral("26"));
  EXPECT_EQ(Box(CallBox).text(), QString());

  // Alt-Left brings the call back; "]" mapped to Insert sends it with the
  // exchange and moves on; F1 and the keyboard CW box of Caps Lock.
  QTest::keyClick(&Box(CallBox), Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Box(CallBox).text(), QStringLiteral("W1AW"));
  QTest::keyClick(&Box(CallBox), ']');
  EXPECT_EQ(QApplication::focusWidget(), &Box(ExchangeBox));
  EXPECT_EQ(Box(CallBox).text(), QStringLiteral("W1AW"));
  QTest::keyClick(&Box(ExchangeBox), Qt::Key_F1);
  QTest::keyClick(&Box(ExchangeBox), Qt::Key_CapsLock);
  QLineEdit& keyboardCW = Child<QLineEdit>(QStringLiteral("KeyboardCWText"));
  EXPECT_TRUE(keyboardCW.isVisible());
  EXPECT_FALSE(LabelNamed("FileIDLabel").isVisible());
  EXPECT_EQ(QApplication::focusWidget(), &keyboardCW);
  QTest::keyClicks(&keyboardCW, "tu");
  EXPECT_EQ(keyboardCW.text(), QStringLiteral("TU"));
  QTest::keyClick(&keyboardCW, Qt::Key_CapsLock);
  EXPECT_FALSE(keyboardCW.isVisible());
  EXPECT_EQ(QApplication::focusWidget(), &Box(ExchangeBox));
  EXPECT_EQ(station.Requests,
            (std::vector<std::string>{"SendMessageRow 10", "SendMessageKey 1", "SendCW T", "SendCW U"}));

  // F9 makes radio 2 active: the label turns red.
  QTest::keyClick(&Box(ExchangeBox), Qt::Key_F9);
  EXPECT_EQ(LabelNamed("ActiveRadioLabel").text(), QStringLiteral("Radio2"));
  EXPECT_EQ(LabelNamed("ActiveRadioLabel").palette().color(QPalette::WindowText), QColor(255, 0, 0));

  // A key pressed while a message box pumps events, as a blocking send will:
  // the "+" is handled inside the Enter that asked, and the QSO is logged.
  QTest::keyClick(&Box(ExchangeBox), Qt::Key_Space);
  QTest::keyClicks(&Box(ExchangeBox), "599 ma");
  QTest::keyClick(&Box(ExchangeBox), Qt::Key_Return);
  ASSERT_EQ(ctx->Log.QSOCount, 2);
  EXPECT_EQ(Qso(1).QCall.Trimmed() + "|" + Qso(1).QRcvText.Trimmed() + "|" + Qso(1).QRadio.Trimmed(), "W1AW|599 MA|2");
  QTest::keyClicks(&Box(CallBox), "va3abcdefgh");
  desk.Boxes.OnShow = [this](const MessageBoxRequest&) {
    QCoreApplication::postEvent(&Box(CallBox), new QKeyEvent(QEvent::KeyPress, Qt::Key_Plus, Qt::NoModifier, "+"));
    QCoreApplication::processEvents();
  };
  QTest::keyClick(&Box(CallBox), Qt::Key_Return);
  desk.Boxes.OnShow = nullptr;
  ASSERT_EQ(desk.Boxes.Shown.size(), 1u);
  EXPECT_EQ(desk.Boxes.Shown[0].Title, "Entry Too Long");
  EXPECT_EQ(LabelNamed("lblSpeedCW").text(), QStringLiteral("28"));
  ASSERT_EQ(ctx->Log.QSOCount, 3);
  EXPECT_EQ(Qso(2).QCall.Trimmed(), "VA3ABCDEFG");
  EXPECT_EQ(Box(CallBox).text(), QString());
}

}  // namespace
}  // namespace tarnix
