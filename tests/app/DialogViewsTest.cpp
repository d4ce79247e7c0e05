// The contest and band choosers over their models, clicked with the mouse,
// and shown modally through the Qt form host.

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTest>

#include "AppTestSupport.h"
#include "BandModeView.h"
#include "ChCoFormView.h"
#include "DialogViews.h"
#include "platform/Scripted.h"
#include "platform/qt/QtPlatform.h"

namespace tarnix {
namespace {

using testing::Child;

// Clicks an option where the operator would: its button and caption, which
// for an option without a caption is only the round button at its left.
void ClickOption(QRadioButton& option) {
  QStyleOptionButton style;
  style.initFrom(&option);
  style.text = option.text();
  QRect area = option.style()->subElementRect(QStyle::SE_RadioButtonClickRect, &style, &option);
  QTest::mouseClick(&option, Qt::LeftButton, {}, area.center());
}

void ClickRow(QListWidget& list, int row) {
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
}

void Click(QWidget& dialog, const char* button) {
  QTest::mouseClick(&Child<QPushButton>(dialog, button), Qt::LeftButton);
}

class ChCoFormViewTest : public ::testing::Test {
 protected:
  ChCoFormViewTest() {
    model.Visible = true;  // as the form host does
    view.show();
  }
  QRadioButton& Qth(int i) { return Child<QRadioButton>(view, QStringLiteral("ButtonQTH%1").arg(i)); }
  std::string QthChecked() {
    std::string out;
    for (int i = 0; i < 3; ++i) out += Qth(i).isChecked() ? '1' : '0';
    return out;
  }
  QGroupBox& Frame(int i) { return Child<QGroupBox>(view, QStringLiteral("Frame%1").arg(i)); }
  ContestState state;
  bool cancelled = true;
  ChCoForm model{state, cancelled};
  ChCoFormView view{model};
  QListWidget& list = Child<QListWidget>(view, "List1");
  QComboBox& combo = Child<QComboBox>(view, "ComboQTH");
};

TEST_F(ChCoFormViewTest, ShowsTheModelsListClickingAnOptionItRefusesChangesNothingAndEscapeCancels) {
  ASSERT_EQ(list.count(), ContestCount);
  for (int row = 0; row < list.count(); ++row)
    EXPECT_EQ(list.item(row)->text().toStdString(), model.List1.Items[static_cast<std::size_t>(row)]);
  EXPECT_EQ(list.currentRow(), 3);
  EXPECT_FALSE(Frame(2).isVisible());
  // The CW Open has no phone: its option is shown but disabled.
  ClickRow(list, ChCoForm::PositionOfContest(CwOpen));
  QRadioButton& phone = Child<QRadioButton>(view, "ButtonMode0");
  QRadioButton& cw = Child<QRadioButton>(view, "ButtonMode1");
  EXPECT_FALSE(phone.isEnabled());
  ClickOption(phone);
  EXPECT_TRUE(!phone.isChecked() && cw.isChecked());
  ClickOption(cw);  // the option already set stays set
  EXPECT_TRUE(cw.isChecked() && model.ButtonMode[1].Value);
  QTest::keyClick(&view, Qt::Key_Escape);
  EXPECT_TRUE(cancelled);
  EXPECT_FALSE(model.Visible || view.isVisible());
  EXPECT_EQ(view.result(), QDialog::Rejected);
}

TEST_F(ChCoFormViewTest, CqwwShowsTheQthFrameAndTheThirdOptionEnablesTheContinents) {
  int row = ChCoForm::PositionOfContest(Cqww);
  ClickRow(list, row);
  EXPECT_EQ(model.List1.ListIndex, row);
  EXPECT_TRUE(Frame(1).isVisible() && Frame(2).isVisible());
  EXPECT_EQ(Frame(2).title(), QStringLiteral(" QTH "));
  EXPECT_EQ(Qth(0).text(), QStringLiteral(" USA"));
  EXPECT_EQ(QthChecked(), "100");
  EXPECT_TRUE(combo.isVisible() && !combo.isEnabled());
  EXPECT_EQ(combo.currentText(), QStringLiteral("NA"));
  ClickOption(Qth(2));
  EXPECT_EQ(QthChecked(), "001");
  EXPECT_TRUE(combo.isEnabled());
  // Up from NA is EU; OK stores it and closes the dialog.
  combo.setFocus();
  QTest::keyClick(&combo, Qt::Key_Up);
  EXPECT_EQ(model.ComboQTH.ListIndex, 2);
  Click(view, "CmdOK");
  EXPECT_FALSE(model.Visible || view.isVisible() || cancelled || state.StationInUSA);
  EXPECT_EQ(view.result(), QDialog::Accepted);
  EXPECT_EQ(state.ContestIndex, Cqww);
  EXPECT_EQ(state.StationContinent, "EU");
}

TEST(QtFormHostTest, RunsTheRegisteredDialogModallyUntilTheModelHidesAndClosesAFormWithNone) {
  QtFormHost host;
  ContestState state;
  bool cancelled = false;
  ChCoForm unregistered(state, cancelled);
  host.ShowModal(unregistered);  // no dialog registered: closed by its frame
  EXPECT_FALSE(unregistered.Visible);
  EXPECT_TRUE(cancelled);
  RegisterDialogViews(host);
  EXPECT_TRUE(host.Has("ChCoForm") && host.Has("BandMode"));
  ChCoForm chooser(state, cancelled);
  testing::WhenModalShown([](QWidget& dialog) {
    ClickRow(Child<QListWidget>(dialog, "List1"), ChCoForm::PositionOfContest(Generic));
    Click(dialog, "CmdOK");
  });
  host.ShowModal(chooser);
  EXPECT_FALSE(chooser.Visible || cancelled);
  EXPECT_EQ(state.ContestIndex, Generic);
}

ContestState GenericBands() {
  ContestState state;
  state.ContestIndex = Generic;
  state.BandIndex = StartBandFor(state);
  SetDefaultBands(state);
  return state;
}

class BandModeViewTest : public ::testing::Test {
 protected:
  BandModeViewTest() {
    model.Visible = true;
    view.show();
  }
  QCheckBox& Band(int row) { return Child<QCheckBox>(view, QStringLiteral("BandBox%1").arg(row)); }
  ContestState state = GenericBands();
  ScriptedMessageBoxes boxes;
  BandMode model{state, boxes};
  BandModeView view{model};
};

TEST_F(BandModeViewTest, ShowsEveryBoxAndNoteAsTheModelHasThem) {
  for (int row = 1; row <= BandRowCount; ++row) {
    const CheckBox& m = model.BandBox[static_cast<std::size_t>(row)];
    EXPECT_EQ(Band(row).text().toStdString(), m.Caption) << row;
    EXPECT_EQ(Band(row).isVisible(), m.Visible) << row;
    EXPECT_EQ(Band(row).isChecked(), m.Value) << row;
    EXPECT_EQ(Band(row).isEnabled(), m.Enabled) << row;
  }
  EXPECT_TRUE(Band(11).isVisible() && !Band(12).isVisible());  // Generic shows eleven rows
  for (std::size_t i = 0; i < model.NoteLines.size(); ++i)
    EXPECT_EQ(Child<QLabel>(view, QStringLiteral("NoteLine%1").arg(i)).text().toStdString(), model.NoteLines[i]);
}

TEST_F(BandModeViewTest, RemovingEveryBandIsRefusedAndCancelRestores) {
  std::array<bool, BandRowCount + 1> before = state.BandEnabled;
  for (int row = 1; row <= BandRowCount; ++row)
    if (Band(row).isChecked()) QTest::mouseClick(&Band(row), Qt::LeftButton);
  for (int row = 1; row <= BandRowCount; ++row) EXPECT_FALSE(model.BandBox[static_cast<std::size_t>(row)].Value);
  Click(view, "Command1");
  ASSERT_EQ(boxes.Shown.size(), 1u);
  EXPECT_EQ(boxes.Shown[0].Title, "Band Selection Error");
  EXPECT_TRUE(view.isVisible());  // the form stays open
  for (int row = 1; row <= BandRowCount; ++row) EXPECT_EQ(Band(row).isChecked(), before[static_cast<std::size_t>(row)]);
  Click(view, "Command2");
  EXPECT_FALSE(view.isVisible());
  EXPECT_EQ(view.result(), QDialog::Rejected);
  EXPECT_EQ(state.BandEnabled, before);
}

}  // namespace
}  // namespace tarnix
