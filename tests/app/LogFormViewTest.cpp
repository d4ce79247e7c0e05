// The main window over a LogForm: keys typed into the entry boxes as real Qt
// key events, checked against the log the model keeps and the window drawn.

#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QCoreApplication>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <utility>

#include "AppTestSupport.h"
#include "LogFormView.h"
#include "core/ChCoForm.h"
#include "operating/Context.h"
#include "operating/LogForm.h"
#include "operating/RecordingStation.h"
#include "platform/Scripted.h"

namespace tarnix {
namespace {

using testing::Child;

class LogFormViewTest : public ::testing::Test {
 protected:
  LogFormViewTest() {
    desk.Time.Set({2024, 11, 23, 14, 5, 0});
    QueueContestChoice(desk.Forms, Generic);  // for File > New Log
    view.show();
    view.activateWindow();
    active = QTest::qWaitForWindowActive(&view);
  }
  QLineEdit& Box(int box) { return Child<QLineEdit>(view, QStringLiteral("InData%1").arg(box)); }
  std::string Text(int box) { return Box(box).text().toStdString(); }
  std::pair<int, int> Selection(int box) { return {model.InData[box].SelStart, model.InData[box].SelLength}; }
  QLabel& Label(const char* name) { return Child<QLabel>(view, name); }
  std::string Caption(const char* name) { return Label(name).text().toStdString(); }
  bool Enabled(const char* menu) { return Child<QMenu>(view, menu).menuAction()->isEnabled(); }
  void Click(const char* button) { QTest::mouseClick(&Child<QPushButton>(view, button), Qt::LeftButton); }
  // Types text into the box, then presses the keys.
  void Press(int box, const char* text, std::initializer_list<QKeyCombination> keys = {}) {
    QTest::keyClicks(&Box(box), text);
    for (QKeyCombination key : keys) QTest::keyClick(&Box(box), key.key(), key.keyboardModifiers());
  }
  void NewLog() {
    Child<QAction>(view, "mnuFileNewLog").trigger();
    ASSERT_EQ(ctx->Contest.ContestIndex, Generic);
  }
  // The call and the received exchange of QSO n.
  std::string Qso(int n) {
    const QsoRecord& r = ctx->Log.LogRecords.At(n);
    return r.QCall.Trimmed() + "|" + r.QRcvText.Trimmed();
  }
  bool Focused(QWidget& widget) { return QApplication::focusWidget() == &widget; }
  std::string BoxTitles() {
    std::string out;
    for (const MessageBoxRequest& box : desk.Boxes.Shown) out += box.Title + "|";
    return out;
  }
  QTemporaryDir home;
  std::unique_ptr<Context> ctx = MakeContext(home.path().toStdString() + "/");
  ScriptedPlatform desk;
  RecordingStation station;
  LogForm model{*ctx, desk.View, station.View};
  LogFormView view{model};
  bool active = false;
};

TEST_F(LogFormViewTest, WithoutALogTheFormIsGreyAndTheEntryClosedThenThreeQsosTypedAsKeys) {
  EXPECT_FALSE(Box(CallBox).isEnabled() || Box(ExchangeBox).isEnabled() ||
               Child<QPushButton>(view, "AddButton").isEnabled() || Enabled("mnuEdit") || Enabled("mnuView"));
  QAction& newLog = Child<QAction>(view, "mnuFileNewLog");
  EXPECT_TRUE(newLog.isEnabled());
  EXPECT_EQ(newLog.text(), QStringLiteral("&New Log"));
  EXPECT_FALSE(Label("QSONrLabel").isVisible() || Label("FileIDLabel").isVisible());
  QImage image = view.grab().toImage();
  EXPECT_EQ(image.pixelColor(image.width() - 4, image.height() - 4), QColor(224, 224, 224));  // BackColor

  ASSERT_TRUE(active);
  NewLog();
  ASSERT_EQ(desk.Forms.Shown, std::vector<std::string>{"ChCoForm"});
  EXPECT_TRUE(Box(CallBox).isEnabled() && Enabled("mnuEdit") && Label("FileIDLabel").isVisible());
  EXPECT_EQ(Caption("FileIDLabel"), model.FileIDLabel.Caption);
  EXPECT_EQ(Caption("lblExchange"), model.lblExchange.Caption);
  EXPECT_EQ(Label("QSONrLabel").palette().color(QPalette::WindowText), QColor(0, 0, 255));
  EXPECT_TRUE(Focused(Box(CallBox)));
  // QSO 1: lower case comes back upper-cased by the model; Space moves on.
  Press(CallBox, "w1aw");
  EXPECT_EQ(Text(CallBox) + "|" + model.InData[CallBox].Text, "W1AW|W1AW");
  Press(CallBox, "", {Qt::Key_Space});
  EXPECT_TRUE(model.FocusedBox == ExchangeBox && Focused(Box(ExchangeBox)));
  EXPECT_EQ(Text(CallBox), "W1AW");  // the Space was used up
  Press(ExchangeBox, "599 ct");
  EXPECT_EQ(Text(ExchangeBox), "599 CT");
  Press(ExchangeBox, "", {Qt::Key_Return});
  ASSERT_EQ(ctx->Log.QSOCount, 2);
  EXPECT_EQ(Qso(1), "W1AW|599 CT");
  EXPECT_EQ(Text(CallBox) + Text(ExchangeBox), "");
  EXPECT_TRUE(Focused(Box(CallBox)));
  EXPECT_EQ(Caption("LastQSOLabel"), model.LastQSOLabel.Caption);
  EXPECT_NE(Caption("LastQSOLabel").find("W1AW  599 CT"), std::string::npos);
  EXPECT_TRUE(Label("LastQSOLabel").font().bold());
  // QSO 2: the box's own editing keys, then typing at the moved caret.
  Press(CallBox, "k1ttxx", {Qt::Key_Backspace});
  EXPECT_EQ(model.InData[CallBox].Text, "K1TTX");
  Press(CallBox, "", {Qt::Key_Home, Qt::Key_Delete});
  EXPECT_EQ(model.InData[CallBox].Text, "1TTX");
  EXPECT_EQ(model.InData[CallBox].SelStart, 0);
  Press(CallBox, "", {Qt::Key_N});
  EXPECT_EQ(Text(CallBox), "N1TTX");
  Press(CallBox, "", {Qt::Key_End, Qt::Key_Left, Qt::Key_Backspace});
  Press(CallBox, "ttt");
  EXPECT_EQ(Text(CallBox), "N1TTTTX");
  QTest::mouseClick(&Box(ExchangeBox), Qt::LeftButton);
  EXPECT_EQ(model.FocusedBox, ExchangeBox);
  Press(ExchangeBox, "5nn ma", {Qt::Key_Enter});
  ASSERT_EQ(ctx->Log.QSOCount, 3);
  EXPECT_EQ(Qso(2), "N1TTTTX|5NN MA");
  // QSO 3: a selection, by Ctrl+A with the caret already at the end or by
  // Shift+Home, is replaced by what is typed; notes past ten characters go
  // to the multiplier field.
  Press(CallBox, "dl1xyz", {Qt::ControlModifier | Qt::Key_A});
  EXPECT_EQ(Selection(CallBox), std::pair(0, 6));
  Press(CallBox, "n2ic");
  EXPECT_EQ(Text(CallBox), "N2IC");
  Press(CallBox, "", {Qt::Key_Space});
  Press(ExchangeBox, "57 ", {Qt::ShiftModifier | Qt::Key_Home});
  EXPECT_EQ(Selection(ExchangeBox), std::pair(0, 3));
  Press(ExchangeBox, "599 1234 abcdef", {Qt::Key_Return});
  ASSERT_EQ(ctx->Log.QSOCount, 4);
  EXPECT_EQ(Qso(3) + "|" + ctx->Log.LogRecords.At(3).QMult.Trimmed(), "N2IC|599 1234 A|BCDEF");
  EXPECT_EQ(ctx->Log.LogRecords.At(3).QTime, 1405);
  EXPECT_EQ(Caption("QSONrLabel"), model.QSONrLabel.Caption);
  EXPECT_EQ(Caption("QSONrLabel"), "QSO Nr  4    (20m CW)");
  EXPECT_EQ(Caption("LastQSOLabel"), model.LastQSOLabel.Caption);
  // The window as drawn: the form's size, white behind the entry, and with
  // text on it in many shades.
  image = view.grab().toImage();
  ASSERT_FALSE(image.isNull());
  EXPECT_EQ(image.size(), view.size());
  EXPECT_EQ(image.pixelColor(image.width() - 4, image.height() - 4), QColor(255, 255, 255));
  QSet<QRgb> colours;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) colours.insert(image.pixel(x, y));
  EXPECT_GT(colours.size(), 20);
  EXPECT_TRUE(image.save(QStringLiteral(TARNIX_SCREENSHOT)));
}

TEST_F(LogFormViewTest, ClosingAsksTheModelAndStaysOpenOnCancel) {
  NewLog();
  desk.Boxes.Answers = {MsgAnswer::Cancel};
  EXPECT_FALSE(view.close());
  EXPECT_TRUE(view.isVisible());
  EXPECT_EQ(BoxTitles(), "Save Log?|");
  // File > Exit asks the same question; No ends the program.
  desk.Boxes.Answers = {MsgAnswer::No};
  Child<QAction>(view, "mnuFileExit").trigger();
  EXPECT_FALSE(view.isVisible());
  EXPECT_EQ(BoxTitles(), "Save Log?|Save Log?|");
}

TEST_F(LogFormViewTest, AddAndCancelButtonsActOnTheEntry) {
  NewLog();
  Press(CallBox, "ve3ej");
  Click("CancelButton");
  EXPECT_EQ(Text(CallBox), "");
  EXPECT_EQ(ctx->Log.QSOCount, 1);
  Press(CallBox, "ve3ej");
  Click("AddButton");
  ASSERT_EQ(ctx->Log.QSOCount, 2);
  EXPECT_EQ(ctx->Log.LogRecords.At(1).QCall.Trimmed(), "VE3EJ");
  EXPECT_TRUE(Focused(Box(CallBox)));  // the button took no focus
}

TEST_F(LogFormViewTest, KeyboardCommandsThroughKeyEvents) {
  ASSERT_TRUE(active);
  NewLog();
  ctx->Config.Key1IsMapped = true;
  ctx->Config.Key1Mapping = "rightbracket";
  ctx->Config.CWSpeedIncrement = "2";
  // Alt-M keeps a call and empties the boxes; Ctrl-X empties them without
  // the box's own cut.
  Press(CallBox, "w1aw", {Qt::AltModifier | Qt::Key_M});
  EXPECT_EQ(Text(CallBox), "");
  Press(CallBox, "k3zzz", {Qt::ControlModifier | Qt::Key_X});
  EXPECT_EQ(Text(CallBox), "");
  // The band ring and the mode, drawn in the window.
  Press(CallBox, "", {Qt::ControlModifier | Qt::Key_Down});
  EXPECT_EQ(Caption("QSONrLabel"), "QSO Nr  1    (30m CW)");
  Press(CallBox, "", {Qt::ControlModifier | Qt::Key_Up, Qt::ControlModifier | Qt::Key_Right});
  EXPECT_EQ(Caption("QSONrLabel") + "|" + Caption("lblCWPC"), "QSO Nr  1    (20m SSB)|DVK:");
  EXPECT_TRUE(Child<QCheckBox>(view, "CheckCall").isVisible());
  Press(CallBox, "", {Qt::ControlModifier | Qt::Key_Left});
  EXPECT_EQ(Caption("lblCWPC"), "CW-PC:");
  EXPECT_FALSE(Child<QCheckBox>(view, "CheckCall").isVisible());
  // "+" and Page Down on CW change the speed; the box gets nothing.
  ctx->Config.CWActivated = true;
  Press(CallBox, "+", {Qt::Key_PageDown, Qt::Key_PageDown});
  EXPECT_EQ(Caption("lblSpeedCW") + "|" + Text(CallBox), "26|");
  // Alt-Left brings back the call Alt-M kept; "]" mapped to Insert sends it
  // with the exchange and moves on; F1 and the keyboard CW box of Caps Lock.
  Press(CallBox, "", {Qt::AltModifier | Qt::Key_Left});
  EXPECT_EQ(Text(CallBox), "W1AW");
  Press(CallBox, "]");
  EXPECT_TRUE(Focused(Box(ExchangeBox)));
  EXPECT_EQ(Text(CallBox), "W1AW");
  Press(ExchangeBox, "", {Qt::Key_F1, Qt::Key_CapsLock});
  QLineEdit& keyboardCW = Child<QLineEdit>(view, "KeyboardCWText");
  EXPECT_TRUE(keyboardCW.isVisible() && !Label("FileIDLabel").isVisible() && Focused(keyboardCW));
  QTest::keyClicks(&keyboardCW, "tu");
  EXPECT_EQ(keyboardCW.text(), QStringLiteral("TU"));
  QTest::keyClick(&keyboardCW, Qt::Key_CapsLock);
  EXPECT_FALSE(keyboardCW.isVisible());
  EXPECT_TRUE(Focused(Box(ExchangeBox)));
  EXPECT_EQ(station.Requests,
            (std::vector<std::string>{"SendMessageRow 10", "SendMessageKey 1", "SendCW T", "SendCW U"}));
  // F9 makes radio 2 active: the label turns red.
  Press(ExchangeBox, "", {Qt::Key_F9});
  EXPECT_EQ(Caption("ActiveRadioLabel"), "Radio2");
  EXPECT_EQ(Label("ActiveRadioLabel").palette().color(QPalette::WindowText), QColor(255, 0, 0));
  // A key pressed while a message box pumps events, as a blocking send will:
  // the "+" is handled inside the Enter that asked, and the QSO is logged.
  Press(ExchangeBox, "", {Qt::Key_Space});
  Press(ExchangeBox, "599 ma", {Qt::Key_Return});
  ASSERT_EQ(ctx->Log.QSOCount, 2);
  EXPECT_EQ(Qso(1) + "|" + ctx->Log.LogRecords.At(1).QRadio.Trimmed(), "W1AW|599 MA|2");
  Press(CallBox, "va3abcdefgh");
  desk.Boxes.OnShow = [this](const MessageBoxRequest&) {
    QCoreApplication::postEvent(&Box(CallBox), new QKeyEvent(QEvent::KeyPress, Qt::Key_Plus, Qt::NoModifier, "+"));
    QCoreApplication::processEvents();
  };
  Press(CallBox, "", {Qt::Key_Return});
  desk.Boxes.OnShow = nullptr;
  EXPECT_EQ(BoxTitles(), "Entry Too Long|");
  EXPECT_EQ(Caption("lblSpeedCW"), "28");
  ASSERT_EQ(ctx->Log.QSOCount, 3);
  EXPECT_EQ(ctx->Log.LogRecords.At(2).QCall.Trimmed() + "|" + Text(CallBox), "VA3ABCDEFG|");
}

}  // namespace
}  // namespace tarnix
