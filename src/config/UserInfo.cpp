#include "config/UserInfo.h"

#include <stdexcept>

#include "core/Text.h"

namespace tarnix {
namespace {

constexpr std::array<const char*, UserInfoFields> Captions = {
    "Callsign Used:", "Operators:", "Location:", "Name:", "Address:", "City/State/Zip:",
    "Country:", "Club/Team:", "Rig:", "Antennas:", "E-Mail:"};

void ShowError(MessageBoxes& boxes, const char* text, const char* title) {
  boxes.Show({text, title, MsgButtons::OK, MsgIcon::Exclamation, MsgAnswer::OK});
}

}  // namespace

std::string& UserInfo::Field(UserProfileRecord& p, int index) {
  switch (index) {
    case 0: return p.Callsign;
    case 1: return p.Operators;
    case 2: return p.Location;
    case 3: return p.Name;
    case 4: return p.Address;
    case 5: return p.City;
    case 6: return p.Country;
    case 7: return p.Club;
    case 8: return p.Rig;
    case 9: return p.Ant;
    case 10: return p.Email;
  }
  throw std::out_of_range("Textinfo index");
}

// The boxes show the record's fields after the profile name, in member order.
int UserInfo::MaxLength(int index) { return static_cast<int>(UserProfileWidths.at(static_cast<std::size_t>(index) + 1)); }

UserInfo::UserInfo(Settings& settings, UserInfoClipboard& clipboard, MessageBoxes& boxes,
                   std::function<void()> writeSettings)
    : S(settings), Clipboard(clipboard), Boxes(boxes), WriteSettings(std::move(writeSettings)) {
  for (int i = 0; i < UserInfoFields; ++i) Labelinfo[static_cast<std::size_t>(i)].Caption = Captions[static_cast<std::size_t>(i)];
  Shown = S.CurrentUserProfile >= 1 && S.CurrentUserProfile <= UserProfileCount ? S.CurrentUserProfile : 1;
  FillCombo();
  ShowProfile(Shown);
  ShowRenameControls(false);
}

void UserInfo::FillCombo() {
  ComboUserProfile.Items.clear();
  for (int n = 1; n <= UserProfileCount; ++n) ComboUserProfile.Items.push_back(S.UserProfile[n].ProfileName);
  ComboUserProfile.ListIndex = Shown - 1;
}

void UserInfo::ShowProfile(int profile) {
  Shown = profile;
  for (int i = 0; i < UserInfoFields; ++i)
    Textinfo[static_cast<std::size_t>(i)].Text = Field(S.UserProfile[profile], i).substr(0, static_cast<std::size_t>(MaxLength(i)));
}

void UserInfo::StoreBoxes(int profile) {
  for (int i = 0; i < UserInfoFields; ++i) Field(S.UserProfile[profile], i) = Trim(Textinfo[static_cast<std::size_t>(i)].Text);
}

void UserInfo::ShowRenameControls(bool renaming) {
  LabelUserProfile.Caption = renaming ? "New Name:" : "User Profile:";
  ComboUserProfile.Visible = !renaming;
  TextRename.Visible = renaming;
  CmdRenameOK.Visible = renaming;
  CmdRenameCancel.Visible = renaming;
  CmdOK.Visible = !renaming;
  CmdCancel.Visible = !renaming;
}

void UserInfo::ComboUserProfile_Click(int listIndex) {
  if (listIndex < 0 || listIndex >= UserProfileCount) return;
  StoreBoxes(Shown);
  ShowProfile(listIndex + 1);
  ComboUserProfile.ListIndex = listIndex;
  S.CurrentUserProfile = static_cast<int16_t>(Shown);
  S.CurrentUserProfileName = S.UserProfile[Shown].ProfileName;
}

void UserInfo::Textinfo_Change(int index, const std::string& text) {
  Textinfo.at(static_cast<std::size_t>(index)).Text = text.substr(0, static_cast<std::size_t>(MaxLength(index)));
}

void UserInfo::TextRename_Change(const std::string& text) { TextRename.Text = text.substr(0, RenameMaxLength); }

void UserInfo::mnuPostUserSave_Click() {
  StoreBoxes(Shown);
  WriteSettings();
}

void UserInfo::mnuPostUserCopy_Click() {
  for (std::size_t i = 0; i < Clipboard.Fields.size(); ++i) Clipboard.Fields[i] = Trim(Textinfo[i].Text);
}

void UserInfo::mnuPostUserPaste_Click() {
  MsgAnswer answer = Boxes.Show({"Do you want to replace the User Data on the displayed Profile?",
                                 "Warning -- Information will be overwritten", MsgButtons::YesNo,
                                 MsgIcon::Exclamation, MsgAnswer::No});
  if (answer != MsgAnswer::Yes) return;
  for (int i = 0; i < UserInfoFields; ++i) {
    std::string value = Clipboard.Fields[static_cast<std::size_t>(i)].substr(0, static_cast<std::size_t>(MaxLength(i)));
    Textinfo[static_cast<std::size_t>(i)].Text = value;
    Field(S.UserProfile[Shown], i) = value;
  }
}

void UserInfo::mnuPostUserRename_Click() {
  ShowRenameControls(true);
  TextRename.Text = S.UserProfile[Shown].ProfileName.substr(0, RenameMaxLength);
  TextRename.SelStart = 0;
  TextRename.SelLength = static_cast<int>(TextRename.Text.size());
}

void UserInfo::CmdRenameOK_Click() {
  std::string name = Trim(TextRename.Text);
  if (name.empty()) {
    ShowError(Boxes, "Blank Names are not allowed.  Try again.", "Error -- Blank Name");
    return;
  }
  for (int n = 1; n <= UserProfileCount; ++n) {
    if (n != Shown && Trim(S.UserProfile[n].ProfileName) == name) {
      ShowError(Boxes, "The new name is the same as that of another User Profile.  Choose another name.",
                "Error -- Duplicate Name");
      return;
    }
  }
  S.UserProfile[Shown].ProfileName = name;
  S.CurrentUserProfile = static_cast<int16_t>(Shown);
  S.CurrentUserProfileName = name;
  FillCombo();
  ShowRenameControls(false);
  WriteSettings();
}

void UserInfo::CmdRenameCancel_Click() { ShowRenameControls(false); }

void UserInfo::CmdOK_Click() {
  mnuPostUserSave_Click();
  Visible = false;
}

void UserInfo::CmdCancel_Click() { Visible = false; }

}  // namespace tarnix
