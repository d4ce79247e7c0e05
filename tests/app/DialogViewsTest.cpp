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

#include <memory>
#include <stdexcept>

#include "AppTestSupport.h"
#include "BandModeView.h"
#include "ChCoFormView.h"
#include "DialogViews.h"
#include "platform/Scripted.h"
#include "platform/qt/QtPlatform.h"

namespace tarnix {
namespace {

template <class T>
T& Child(QWidget& parent, const QString& name) {
  T* widget = parent.findChild<T*>(name);
  if (!widget) throw std::runtime_error("no widget " + name.toStdString());
  return *widget;
}

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

class ChCoFormViewTest : public ::testing::Test {
 protected:
  ChCoFormViewTest() {
    model.Visible = true;  // as the form host does
    view.show();
  }
  QRadioButton& Qth(int i) { return Child<QRadioButton>(view, QStringLiteral("ButtonQTH%1").arg(i)); }
  QComboBox& Combo() { return Child<QComboBox>(view, QStringLiteral("ComboQTH")); }

  ContestState state;
  bool cancelled = true;
  ChCoForm model{state, cancelled};
  ChCoFormView view{model};
  QListWidget& list = Child<QListWidget>(view, QStringLiteral("List1"));
};

TEST_F(ChCoFormViewTest, ShowsTheContestListWithTheModelsSelection) {
  ASSERT_EQ(list.count(), ContestCount);
  for (int row = 0; row < list.count(); ++row)
    EXPECT_EQ(list.item(row)->text().toStdString(), model.List1.Items[static_cast<std::size_t>(row)]);
  EXPECT_EQ(list.currentRow(), 3);
  EXPECT_FALSE(Child<QGroupBox>(view, QStringLiteral("Frame2")).isVisible());
}

TEST_F(ChCoFormViewTest, CqwwShowsTheQthFrameAndTheThirdOptionEnablesTheContinents) {
  int row = ChCoForm::PositionOfContest(Cqww);
  ClickRow(list, row);
  EXPECT_EQ(model.List1.ListIndex, row);
  QGroupBox& frame2 = Child<QGroupBox>(view, QStringLiteral("Frame2"));
  EXPECT_TRUE(frame2.isVisible());
  EXPECT_EQ(frame2.title(), QStringLiteral(" QTH "));
  EXPECT_TRUE(Child<QGroupBox>(view, QStringLiteral("Frame1")).isVisible());
  EXPECT_EQ(Qth(0).text(), QStringLiteral(" USA"));
  EXPECT_TRUE(Qth(0).isChecked());
  EXPECT_FALSE(Qth(1).isChecked());
  EXPECT_FALSE(Qth(2).isChecked());
  EXPECT_TRUE(Combo().isVisible());
  EXPECT_FALSE(Combo().isEnabled());
  EXPECT_EQ(Combo().currentText(), QStringLiteral("NA"));

  ClickOption(Qth(2));
  EXPECT_TRUE(Qth(2).isChecked());
  EXPECT_FALSE(Qth(0).isChecked());
  EXPECT_TRUE(Combo().isEnabled());

  // Up from NA is EU; OK stores it and closes the dialog.
  Combo().setFocus();
  QTest::keyClick(&Combo(), Qt::Key_Up);
  EXPECT_EQ(model.ComboQTH.ListIndex, 2);
  QTest::mouseClick(&Child<QPushButton>(view, QStringLiteral("CmdOK")), Qt::LeftButton);
  EXPECT_FALSE(model.Visible);
  EXPECT_FALSE(view.isVisible());
  EXPECT_EQ(view.result(), QDialog::Accepted);
  EXPECT_FALSE(cancelled);
  EXPECT_EQ(state.ContestIndex, Cqww);
  EXPECT_FALSE(state.StationInUSA);
  EXPECT_EQ(state.StationContinent, "EU");
}

TEST_F(ChCoFormViewTest, ClickingAnOptionTheModelRefusesChangesNothing) {
  // The CW Open has no phone: its option is shown but disabled.
  ClickRow(list, ChCoForm::PositionOfContest(CwOpen));
  QRadioButton& phone = Child<QRadioButton>(view, QStringLiteral("ButtonMode0"));
  QRadioButton& cw = Child<QRadioButton>(view, QStringLiteral("ButtonMode1"));
  EXPECT_FALSE(phone.isEnabled());
  ClickOption(phone);
  EXPECT_FALSE(phone.isChecked());
  EXPECT_TRUE(cw.isChecked());
  // A click on the option already set leaves it set.
  ClickOption(cw);
  EXPECT_TRUE(cw.isChecked());
  EXPECT_TRUE(model.ButtonMode[1].Value);
}

TEST_F(ChCoFormViewTest, EscapeIsTheFormsCancel) {
  QTest::keyClick(&view, Qt::Key_Escape);
  EXPECT_TRUE(cancelled);
  EXPECT_FALSE(model.Visible);
  EXPECT_FALSE(view.isVisible());
  EXPECT_EQ(view.result(), QDialog::Rejected);
}

TEST(QtFormHostTest, RunsTheRegisteredDialogModallyUntilTheModelHides) {
  QtFormHost host;
  RegisterDialogViews(host);
  EXPECT_TRUE(host.Has("ChCoForm"));
  EXPECT_TRUE(host.Has("BandMode"));

  ContestState state;
  bool cancelled = true;
  ChCoForm chooser(state, cancelled);
  testing::WhenModalShown([](QWidget& dialog) {
    ClickRow(Child<QListWidget>(dialog, QStringLiteral("List1")), ChCoForm::PositionOfContest(Generic));
    QTest::mouseClick(&Child<QPushButton>(dialog, QStringLiteral("CmdOK")), Qt::LeftButton);
  });
  host.ShowModal(chooser);
  EXPECT_FALSE(chooser.Visible);
  EXPECT_FALSE(cancelled);
  EXPECT_EQ(state.ContestIndex, Generic);
}

TEST(QtFormHostTest, AFormWithNoDialogIsClosedByItsFrame) {
  QtFormHost host;
  ContestState state;
  bool cancelled = false;
  ChCoForm chooser(state, cancelled);
  host.ShowModal(chooser);
  EXPECT_FALSE(chooser.Visible);
  EXPECT_TRUE(cancelled);
}

class BandModeViewTest : public ::testing::Test {
 protected:
  BandModeViewTest() {
    state.ContestIndex = Generic;
    state.BandIndex = StartBandFor(state);
    SetDefaultBands(state);
    model = std::make_unique<BandMode>(state, boxes);
    model->Visible = true;
    view = std::make_unique<BandModeView>(*model);
    view->show();
  }
  QCheckBox& Band(int row) { return Child<QCheckBox>(*view, QStringLiteral("BandBox%1").arg(row)); }

  ContestState state;
  ScriptedMessageBoxes boxes;
  std::unique_ptr<BandMode> model;
  std::unique_ptr<BandModeView> view;
};

TEST_F(BandModeViewTest, ShowsEveryBoxAndNoteAsTheModelHasThem) {
  for (int row = 1; row <= BandRowCount; ++row) {
    const CheckBox& m = model->BandBox[static_cast<std::size_t>(row)];
    EXPECT_EQ(Band(row).text().toStdString(), m.Caption) << row;
    EXPECT_EQ(Band(row).isVisible(), m.Visible) << row;
    EXPECT_EQ(Band(row).isChecked(), m.Value) << row;
    EXPECT_EQ(Band(row).isEnabled(), m.Enabled) << row;
  }
  EXPECT_TRUE(Band(11).isVisible());  // Generic shows eleven rows
  EXPECT_FALSE(Band(12).isVisible());
  for (std::size_t i = 0; i < model->NoteLines.size(); ++i)
    EXPECT_EQ(Child<QLabel>(*view, QStringLiteral("NoteLine%1").arg(i)).text().toStdString(), model->NoteLines[i]);
}

TEST_F(BandModeViewTest, RemovingEveryBandIsRefusedAndCancelRestores) {
  std::array<bool, BandRowCount + 1> before = state.BandEnabled;
  for (int row = 1; row <= BandRowCount; ++row)
    if (Band(row).isChecked()) QTest::mouseClick(&Band(row), Qt::LeftButton);
  for (int row = 1; row <= BandRowCount; ++row) EXPECT_FALSE(model->BandBox[static_cast<std::size_t>(row)].Value);

  QTest::mouseClick(&Child<QPushButton>(*view, QStringLiteral("Command1")), Qt::LeftButton);
  ASSERT_EQ(boxes.Shown.size(), 1u);
  EXPECT_EQ(boxes.Shown[0].Title, "Band Selection Error");
  EXPECT_TRUE(view->isVisible());  // the form stays open
  for (int row = 1; row <= BandRowCount; ++row) EXPECT_EQ(Band(row).isChecked(), before[static_cast<std::size_t>(row)]);

  QTest::mouseClick(&Child<QPushButton>(*view, QStringLiteral("Command2")), Qt::LeftButton);
  EXPECT_FALSE(view->isVisible());
  EXPECT_EQ(view->result(), QDialog::Rejected);
  EXPECT_EQ(state.BandEnabled, before);
}

}  // namespace
}  // namespace tarnix
