#pragma once
// A started program with the main form, for the tests of the keyboard: keys
// by name, text typed as the keyboard gives it, and the boxes and requests
// read back in one line each.

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "core/ChCoForm.h"
#include "operating/StartedFormTest.h"

namespace tarnix {

using Lines = std::vector<std::string>;

class KeyboardFixture : public StartedFormTest {
 protected:
  // A new log; the settings the keys read are set to a known state.
  void NewLog(int contest, bool phone = false, int qth = -1) {
    ASSERT_TRUE(started);
    if (ctx->Log.LogState != LogStateKind::None) desk.Boxes.Answers.push_back(MsgAnswer::No);
    ContestChoice choice;
    choice.ContestIndex = contest;
    choice.ModeButton = IsMixedModeContest(contest) ? -1 : phone ? 0 : 1;
    choice.QthButton = qth;
    QueueContestChoice(desk.Forms, choice);
    form.mnuFileNewLog_Click();
    if (phone && IsMixedModeContest(contest)) ctx->Contest.BandIndex = 11;
    desk.Time.Set({2026, 11, 22, 14, 5, 0});
    Settings& s = ctx->Config;
    s.CWActivated = true;
    s.CWSpeedIncrement = "2";
    s.SendF1Enabled = s.LogandSendF5Enabled = s.LogandSendF6Enabled = false;
    s.Key1IsMapped = s.Key2IsMapped = false;
    desk.Boxes.Shown.clear();
    station.Requests.clear();
  }
  void Key(const char* name) {
    std::optional<NamedKey> key = KeyByName(name);
    ASSERT_TRUE(key) << name;
    form.PressKey(key->Code, key->Shift);
  }
  void Type(const std::string& text) {
    for (char ch : text) form.TypeCharacter(ch);
  }
  void Log(const std::string& call, const std::string& exchange) {
    Type(call);
    form.SetFocus(ExchangeBox);
    form.InData_Change(ExchangeBox, "", 0);  // over the zone CQWW puts in
    Type(exchange);
    Key("Enter");
  }
  // Both boxes, with the caret in the focused one: "K3ZZZ_|599" (the caret
  // as "_"), "K3ZZZ|5_99".
  std::string Boxes() {
    std::string text;
    for (int box : {CallBox, ExchangeBox}) {
      const TextBox& b = form.InData[static_cast<std::size_t>(box)];
      std::string t = b.Text;
      if (form.FocusedBox == box) t.insert(static_cast<std::size_t>(b.SelStart), "_");
      text += (box == ExchangeBox ? "|" : "") + t;
    }
    return text;
  }
  Lines TakeRequests() {
    Lines taken = station.Requests;
    station.Requests.clear();
    return taken;
  }
};

}  // namespace tarnix
