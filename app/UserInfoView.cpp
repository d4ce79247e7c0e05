#include "UserInfoView.h"

#include <QAction>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include "ViewBinding.h"
#include "platform/qt/QtConvert.h"

namespace tarnix {
namespace {

template <class Widget>
Widget* Named(const QString& name, QWidget* parent) {
  auto* widget = new Widget(parent);
  widget->setObjectName(name);
  return widget;
}

// Sets a box's text only when it differs, so that the caret stays where the
// operator is typing.
void ShowText(QLineEdit& box, const TextBox& model) {
  QString text = ToQt(model.Text);
  if (box.text() != text) box.setText(text);
  box.setVisible(model.Visible);
  box.setEnabled(model.Enabled);
}

QPushButton* MakeButton(const char* name, QWidget* parent) {
  return Named<QPushButton>(QString::fromLatin1(name), parent);
}

}  // namespace

QAction* UserInfoView::AddAction(const char* name, void (UserInfo::*click)()) {
  QAction* action = UserMenu->addAction(QString());
  action->setObjectName(QString::fromLatin1(name));
  connect(action, &QAction::triggered, this, [this, click] { Forward([&] { (Model.*click)(); }); });
  return action;
}

UserInfoView::UserInfoView(UserInfo& model, QWidget* parent) : ModalFormView(model, parent), Model(model) {
  setWindowTitle(QStringLiteral("User Information"));
  auto* menus = new QMenuBar(this);
  UserMenu = menus->addMenu(QString());
  UserMenu->setObjectName(QStringLiteral("UserMenu"));
  mnuPostUserSave = AddAction("mnuPostUserSave", &UserInfo::mnuPostUserSave_Click);
  mnuPostUserRename = AddAction("mnuPostUserRename", &UserInfo::mnuPostUserRename_Click);
  mnuPostUserCopy = AddAction("mnuPostUserCopy", &UserInfo::mnuPostUserCopy_Click);
  mnuPostUserPaste = AddAction("mnuPostUserPaste", &UserInfo::mnuPostUserPaste_Click);

  // The combo and the rename box share one place; one of them is shown.
  LabelUserProfile = MakeLabel("LabelUserProfile", this);
  ComboUserProfile = Named<QComboBox>(QStringLiteral("ComboUserProfile"), this);
  connect(ComboUserProfile, &QComboBox::activated, this,
          [this](int index) { Forward([&] { Model.ComboUserProfile_Click(index); }); });
  TextRename = Named<QLineEdit>(QStringLiteral("TextRename"), this);
  TextRename->setMaxLength(UserInfo::RenameMaxLength);
  connect(TextRename, &QLineEdit::textEdited, this,
          [this](const QString& text) { Forward([&] { Model.TextRename_Change(FromQt(text)); }); });
  auto* profileRow = new QHBoxLayout;
  profileRow->addWidget(LabelUserProfile);
  profileRow->addWidget(ComboUserProfile, 1);
  profileRow->addWidget(TextRename, 1);

  auto* fields = new QFormLayout;
  for (int i = 0; i < UserInfoFields; ++i) {
    auto index = static_cast<std::size_t>(i);
    Labelinfo[index] = MakeLabel(QStringLiteral("Labelinfo%1").arg(i).toLatin1().constData(), this);
    Textinfo[index] = Named<QLineEdit>(QStringLiteral("Textinfo%1").arg(i), this);
    Textinfo[index]->setMaxLength(UserInfo::MaxLength(i));
    Textinfo[index]->setMinimumWidth(Textinfo[index]->fontMetrics().averageCharWidth() * 40);
    connect(Textinfo[index], &QLineEdit::textEdited, this,
            [this, i](const QString& text) { Forward([&] { Model.Textinfo_Change(i, FromQt(text)); }); });
    fields->addRow(Labelinfo[index], Textinfo[index]);
  }

  CmdOK = MakeButton("CmdOK", this);
  CmdOK->setDefault(true);
  connect(CmdOK, &QPushButton::clicked, this, [this] { Forward([this] { Model.CmdOK_Click(); }); });
  CmdCancel = MakeButton("CmdCancel", this);
  connect(CmdCancel, &QPushButton::clicked, this,
          [this] { Forward([this] { Model.CmdCancel_Click(); }, QDialog::Rejected); });
  CmdRenameOK = MakeButton("CmdRenameOK", this);
  connect(CmdRenameOK, &QPushButton::clicked, this, [this] { Forward([this] { Model.CmdRenameOK_Click(); }); });
  CmdRenameCancel = MakeButton("CmdRenameCancel", this);
  connect(CmdRenameCancel, &QPushButton::clicked, this, [this] { Forward([this] { Model.CmdRenameCancel_Click(); }); });
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  for (QPushButton* button : {CmdOK, CmdCancel, CmdRenameOK, CmdRenameCancel}) buttons->addWidget(button);

  auto* layout = new QVBoxLayout(this);
  layout->setMenuBar(menus);
  layout->addLayout(profileRow);
  layout->addLayout(fields);
  layout->addLayout(buttons);
  Refresh();
}

void UserInfoView::Refresh() {
  QScopedValueRollback<bool> guard(Refreshing, true);
  UserMenu->setTitle(ToQt(Model.UserMenu.Caption));
  Show(*mnuPostUserSave, Model.mnuPostUserSave);
  Show(*mnuPostUserRename, Model.mnuPostUserRename);
  Show(*mnuPostUserCopy, Model.mnuPostUserCopy);
  Show(*mnuPostUserPaste, Model.mnuPostUserPaste);

  Show(*LabelUserProfile, Model.LabelUserProfile);
  Show(*ComboUserProfile, Model.ComboUserProfile);

  // Opening the rename box selects the name, as the model asks, once.
  bool startsRename = !RenameShown && Model.TextRename.Visible;
  RenameShown = Model.TextRename.Visible;
  ShowText(*TextRename, Model.TextRename);
  if (startsRename) {
    TextRename->setSelection(Model.TextRename.SelStart, Model.TextRename.SelLength);
    TextRename->setFocus();
  }
  for (std::size_t i = 0; i < Textinfo.size(); ++i) {
    Show(*Labelinfo[i], Model.Labelinfo[i]);
    ShowText(*Textinfo[i], Model.Textinfo[i]);
  }
  Show(*CmdOK, Model.CmdOK);
  Show(*CmdCancel, Model.CmdCancel);
  Show(*CmdRenameOK, Model.CmdRenameOK);
  Show(*CmdRenameCancel, Model.CmdRenameCancel);
  CmdOK->setDefault(Model.CmdOK.Visible);
  CmdRenameOK->setDefault(Model.CmdRenameOK.Visible);
}

}  // namespace tarnix
