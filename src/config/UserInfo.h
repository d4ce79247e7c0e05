#pragma once
// UserInfo: the form that edits the four user profiles (the operator's data
// for the post-contest files) and picks the one in use, as a presentation
// model.
//
// ComboUserProfile lists the four profile names; the eleven Textinfo boxes
// show the fields of the profile shown, each limited to its field's width.
// Choosing another profile keeps what the boxes hold in the profile that was
// shown. Save (and OK) store the boxes, trimmed, and write the settings file
// through the callback the caller gives; Cancel closes without storing. The
// menu copies the boxes to a clipboard record owned by the caller, so that it
// outlives the form, and pastes it after asking. Rename swaps the combo for
// TextRename and the OK/Cancel buttons for CmdRenameOK/CmdRenameCancel;
// blank names and another profile's name are refused with a message box.
//
// Runs on the user-interface thread; a failed write is the callback's to
// report.

#include <array>
#include <functional>
#include <string>

#include "config/Settings.h"
#include "platform/Controls.h"
#include "platform/Platform.h"

namespace tarnix {

inline constexpr int UserInfoFields = 11;

// The eleven box texts last copied; empty until a copy.
struct UserInfoClipboard {
  std::array<std::string, UserInfoFields> Fields;
};

class UserInfo : public FormModel {
 public:
  // writeSettings writes the whole settings file.
  UserInfo(Settings& settings, UserInfoClipboard& clipboard, MessageBoxes& boxes,
           std::function<void()> writeSettings);

  std::string FormName() const override { return "UserInfo"; }
  void CloseByFrame() override { CmdCancel_Click(); }

  // The field a box shows, and its width (also the box's MaxLength).
  static std::string& Field(UserProfileRecord& profile, int index);
  static int MaxLength(int index);

  void ComboUserProfile_Click(int listIndex);
  // The operator's edit of a box; text beyond the width is cut.
  void Textinfo_Change(int index, const std::string& text);
  void TextRename_Change(const std::string& text);
  void mnuPostUserSave_Click();
  void mnuPostUserRename_Click();
  void mnuPostUserCopy_Click();
  void mnuPostUserPaste_Click();
  void CmdOK_Click();
  void CmdCancel_Click();
  void CmdRenameOK_Click();
  void CmdRenameCancel_Click();

  // The profile the boxes show, 1 to 4.
  int ShownProfile() const { return Shown; }

  ListBox ComboUserProfile;
  Label LabelUserProfile{"User Profile:"};
  std::array<TextBox, UserInfoFields> Textinfo;
  std::array<Label, UserInfoFields> Labelinfo;
  MenuItem UserMenu{"Profile Operations"};
  MenuItem mnuPostUserSave{"Save Profile"};
  MenuItem mnuPostUserRename{"Rename Profile"};
  MenuItem mnuPostUserCopy{"Copy User Info"};
  MenuItem mnuPostUserPaste{"Paste User Info"};
  Button CmdOK{"OK"};
  Button CmdCancel{"Cancel"};
  TextBox TextRename;
  Button CmdRenameOK{"OK"};
  Button CmdRenameCancel{"Cancel"};

  static constexpr int RenameMaxLength = 20;

 private:
  void FillCombo();
  void ShowProfile(int profile);
  void StoreBoxes(int profile);
  void ShowRenameControls(bool renaming);

  Settings& S;
  UserInfoClipboard& Clipboard;
  MessageBoxes& Boxes;
  std::function<void()> WriteSettings;
  int Shown = 1;
};

}  // namespace tarnix
