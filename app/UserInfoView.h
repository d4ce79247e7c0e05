#pragma once
// The user profile form: draws a UserInfo and forwards the operator's edits,
// menu choices and clicks. It closes when the model hides itself; the model's
// questions and refusals are message boxes it shows through the platform.

#include <array>

#include "ModalFormView.h"
#include "config/UserInfo.h"

class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;

namespace tarnix {

class UserInfoView : public ModalFormView {
  Q_OBJECT

 public:
  explicit UserInfoView(UserInfo& model, QWidget* parent = nullptr);

  void Refresh() override;

 private:
  QAction* AddAction(const char* name, void (UserInfo::*click)());

  UserInfo& Model;
  QMenu* UserMenu = nullptr;
  QAction* mnuPostUserSave = nullptr;
  QAction* mnuPostUserRename = nullptr;
  QAction* mnuPostUserCopy = nullptr;
  QAction* mnuPostUserPaste = nullptr;
  QLabel* LabelUserProfile = nullptr;
  QComboBox* ComboUserProfile = nullptr;
  QLineEdit* TextRename = nullptr;
  std::array<QLabel*, UserInfoFields> Labelinfo{};
  std::array<QLineEdit*, UserInfoFields> Textinfo{};
  QPushButton* CmdOK = nullptr;
  QPushButton* CmdCancel = nullptr;
  QPushButton* CmdRenameOK = nullptr;
  QPushButton* CmdRenameCancel = nullptr;
  bool RenameShown = false;
};

}  // namespace tarnix
