#include <gtest/gtest.h>

#include <string>

#include "config/UserInfo.h"
#include "platform/Scripted.h"

namespace tarnix {
namespace {

class UserInfoTest : public ::testing::Test {
 protected:
  UserInfoTest() {
    const char* names[] = {"", "Home", "Club", "Guest", "Field Day"};
    for (int n = 1; n <= 4; ++n) {
      s.UserProfile[n].ProfileName = names[n];
      s.UserProfile[n].Callsign = "K" + std::to_string(n) + "ABC";
      s.UserProfile[n].Email = "op" + std::to_string(n) + "@example.org";
    }
    s.CurrentUserProfile = 2;
  }
  UserInfo& Open() {
    form = std::make_unique<UserInfo>(s, clipboard, boxes, [this] { ++writes; });
    form->Visible = true;  // as the form host does
    return *form;
  }
  std::string Boxes() const {
    std::string out;
    for (const TextBox& box : form->Textinfo) out += box.Text + "|";
    return out;
  }
  void Paste(MsgAnswer answer) {
    boxes.Answers.push_back(answer);
    form->mnuPostUserPaste_Click();
  }
  void Rename(const char* name) {
    form->TextRename_Change(name);
    form->CmdRenameOK_Click();
  }
  // The title and text of the last message box.
  std::string LastBox() const { return boxes.Shown.back().Title + ": " + boxes.Shown.back().Text; }
  Settings s;
  UserInfoClipboard clipboard;
  ScriptedMessageBoxes boxes;
  int writes = 0;
  std::unique_ptr<UserInfo> form;
};

TEST_F(UserInfoTest, OpensOnTheCurrentProfile) {
  UserInfo& f = Open();
  EXPECT_EQ(f.ComboUserProfile.Items, (std::vector<std::string>{"Home", "Club", "Guest", "Field Day"}));
  EXPECT_EQ(f.ComboUserProfile.ListIndex, 1);
  EXPECT_EQ(Boxes(), "K2ABC||||||||||op2@example.org|");
  const char* captions[] = {"Callsign Used:", "Operators:", "Location:", "Name:", "Address:", "City/State/Zip:",
                            "Country:", "Club/Team:", "Rig:", "Antennas:", "E-Mail:"};
  const int widths[] = {12, 20, 20, 30, 30, 30, 25, 40, 60, 60, 30};
  for (int i = 0; i < UserInfoFields; ++i) {
    EXPECT_EQ(f.Labelinfo[i].Caption, captions[i]);
    EXPECT_EQ(UserInfo::MaxLength(i), widths[i]);
  }
  EXPECT_EQ(f.LabelUserProfile.Caption, "User Profile:");
  EXPECT_EQ(f.UserMenu.Caption + "|" + f.mnuPostUserSave.Caption + "|" + f.mnuPostUserRename.Caption + "|" +
                f.mnuPostUserCopy.Caption + "|" + f.mnuPostUserPaste.Caption,
            "Profile Operations|Save Profile|Rename Profile|Copy User Info|Paste User Info");
  EXPECT_FALSE(f.TextRename.Visible || f.CmdRenameOK.Visible || f.CmdRenameCancel.Visible);
  f.Textinfo_Change(0, "VE3ABCDEFGHIJKL");
  EXPECT_EQ(f.Textinfo[0].Text, "VE3ABCDEFGHI");  // cut at 12
  s.CurrentUserProfile = 0;
  EXPECT_EQ(Open().ComboUserProfile.ListIndex, 0);
}

TEST_F(UserInfoTest, SwitchingKeepsTheShownValuesAndOkSavesCancelDoesNot) {
  UserInfo& f = Open();
  f.Textinfo_Change(1, "  W6XX W6YY ");
  f.ComboUserProfile_Click(3);
  EXPECT_EQ(s.UserProfile[2].Operators, "W6XX W6YY");
  EXPECT_EQ(Boxes(), "K4ABC||||||||||op4@example.org|");
  EXPECT_EQ(std::to_string(s.CurrentUserProfile) + " " + s.CurrentUserProfileName, "4 Field Day");
  EXPECT_EQ(writes, 0);
  f.Textinfo_Change(8, " K3 ");
  f.mnuPostUserSave_Click();
  EXPECT_EQ(s.UserProfile[4].Rig, "K3");
  EXPECT_TRUE(writes == 1 && f.Visible);
  f.Textinfo_Change(9, "Dipole");
  f.CmdCancel_Click();
  EXPECT_EQ(s.UserProfile[4].Ant, "");
  EXPECT_TRUE(writes == 1 && !f.Visible);
  UserInfo& g = Open();
  g.Textinfo_Change(9, "Dipole ");
  g.CmdOK_Click();
  EXPECT_EQ(s.UserProfile[4].Ant, "Dipole");
  EXPECT_TRUE(writes == 2 && !g.Visible);
}

TEST_F(UserInfoTest, CopyAndPasteAskFirst) {
  UserInfo& f = Open();
  f.mnuPostUserPaste_Click();  // nothing copied yet; the default answer is No
  EXPECT_EQ(LastBox(), "Warning -- Information will be overwritten: Do you want to replace the User Data on the "
                       "displayed Profile?");
  EXPECT_EQ(boxes.Shown.back().Buttons, MsgButtons::YesNo);
  EXPECT_EQ(Boxes(), "K2ABC||||||||||op2@example.org|");
  Paste(MsgAnswer::Yes);
  EXPECT_EQ(Boxes(), "|||||||||||");
  EXPECT_EQ(s.UserProfile[2].Callsign + s.UserProfile[2].Email, "");
  f.ComboUserProfile_Click(0);
  f.Textinfo_Change(3, " Ann ");
  f.mnuPostUserCopy_Click();
  f.ComboUserProfile_Click(2);
  Paste(MsgAnswer::No);
  EXPECT_EQ(s.UserProfile[3].Name, "");
  Paste(MsgAnswer::Yes);
  EXPECT_EQ(Boxes(), "K1ABC|||Ann|||||||op1@example.org|");
  EXPECT_EQ(s.UserProfile[3].Name + " " + s.UserProfile[3].Callsign, "Ann K1ABC");
  EXPECT_TRUE(boxes.Shown.size() == 4 && writes == 0);
}

TEST_F(UserInfoTest, RenameRefusesBlankAndOtherProfilesNames) {
  UserInfo& f = Open();
  f.mnuPostUserRename_Click();
  EXPECT_EQ(f.LabelUserProfile.Caption, "New Name:");
  EXPECT_FALSE(f.ComboUserProfile.Visible || f.CmdOK.Visible || f.CmdCancel.Visible);
  EXPECT_TRUE(f.TextRename.Visible && f.CmdRenameOK.Visible && f.CmdRenameCancel.Visible);
  EXPECT_EQ(f.TextRename.Text, "Club");
  EXPECT_EQ(f.TextRename.SelStart * 100 + f.TextRename.SelLength, 4);
  Rename("    ");
  EXPECT_EQ(LastBox(), "Error -- Blank Name: Blank Names are not allowed.  Try again.");
  Rename(" Guest ");
  EXPECT_EQ(LastBox(), "Error -- Duplicate Name: The new name is the same as that of another User Profile.  "
                       "Choose another name.");
  EXPECT_TRUE(f.TextRename.Visible && writes == 0);
  EXPECT_EQ(s.UserProfile[2].ProfileName, "Club");
  Rename("Club");  // its own name
  EXPECT_TRUE(boxes.Shown.size() == 2 && writes == 1 && f.ComboUserProfile.Visible);
  f.mnuPostUserRename_Click();
  Rename("Contest Club Station 1");  // kept to 20 characters
  EXPECT_EQ(s.UserProfile[2].ProfileName + "|" + f.ComboUserProfile.Items[1] + "|" + s.CurrentUserProfileName,
            "Contest Club Station|Contest Club Station|Contest Club Station");
  EXPECT_TRUE(f.ComboUserProfile.ListIndex == 1 && writes == 2);
  EXPECT_EQ(f.LabelUserProfile.Caption, "User Profile:");
  f.mnuPostUserRename_Click();
  f.TextRename_Change("Dropped");
  f.CmdRenameCancel_Click();
  EXPECT_EQ(f.LabelUserProfile.Caption, "User Profile:");
  EXPECT_TRUE(f.ComboUserProfile.Visible && f.CmdOK.Visible && !f.TextRename.Visible);
  EXPECT_EQ(s.UserProfile[2].ProfileName, "Contest Club Station");
}

}  // namespace
}  // namespace tarnix
