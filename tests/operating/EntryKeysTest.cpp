// The keyboard of the entry form, key by key as the operator presses them:
// the typed characters, the remapped keys, the function keys, the Ctrl and
// Alt commands, the call stack, Space by contest, apostrophe and Insert. What
// a key asked of the senders and the radios is read from the station.

#include "operating/LoggerTest.h"

namespace tarnix {
namespace {

using EntryKeysTest = KeyboardTest;

TEST_F(EntryKeysTest, TypedCharactersUpperCasedQuotesDroppedBracketsUnmapped) {
  NewLog(Cqww);
  run.Type("k3\"z'z]z\\");
  EXPECT_EQ(run.Boxes(), "K3ZZZ_|");
  // "]" and "\" reach key-down as code 39 without a modifier, which no
  // handler takes when nothing is mapped.
  EXPECT_TRUE(station.Requests.empty());
  // Nor do they leave a mark that a key mapped later would take as theirs.
  ctx.Config.Key1IsMapped = true;
  ctx.Config.Key1Mapping = "All";
  run.Key("Left");
  EXPECT_TRUE(station.Requests.empty());
  EXPECT_EQ(run.Boxes(), "K3ZZ_Z|");
}

TEST_F(EntryKeysTest, BlankInTheCallBoxByContest) {
  struct Row { int contest; const char* boxes; };
  // A blank typed straight into the call box (as a paste of one character
  // would): dropped in the contests whose Space moves on, kept in the others.
  for (const Row& row : {Row{Cqp, "K3_|"}, Row{Cqww, "K3_|"}, Row{Sprint, "K3_|"}, Row{Sweepstakes, "K3_|"},
                         Row{Paqp, "K3_|"}, Row{Naqp, "K3_|"}, Row{Generic, "K3_|"}, Row{ArrlDx, "K3 _|"},
                         Row{Wpx, "K3 _|"}, Row{Ten, "K3 _|"}, Row{CwOpen, "K3 _|"}}) {
    NewLog(row.contest);
    run.Type("K3");
    form.InData_KeyPress(CallBox, ' ');
    EXPECT_EQ(run.Boxes(), row.boxes) << row.contest;
  }
}

TEST_F(EntryKeysTest, SpaceTogglesOrMovesOnByContest) {
  struct Row { int contest; const char* afterCall; const char* afterExchange; };
  for (const Row& row : {Row{ArrlDx, "K3ZZZ|_", "K3ZZZ_|PA"}, Row{Wpx, "K3ZZZ|_", "K3ZZZ_|5"},
                         Row{AllAsian, "K3ZZZ|_", "K3ZZZ_|5"}, Row{Ten, "K3ZZZ|_", "K3ZZZ_|5"},
                         Row{Neqp, "K3ZZZ|_", "K3ZZZ_|5"}, Row{Generic, "K3ZZZ|_", "K3ZZZ|5 _"},
                         Row{Sweepstakes, "K3ZZZ|_", "K3ZZZ|5 _"}, Row{CwOpen, "K3ZZZ|_", "K3ZZZ|5 _"}}) {
    NewLog(row.contest, false, row.contest == ArrlDx ? 1 : -1);
    run.Type("K3ZZZ ");
    EXPECT_EQ(run.Boxes(), row.afterCall) << row.contest;
    run.Type(row.contest == ArrlDx ? "PA " : "5 ");
    EXPECT_EQ(run.Boxes(), row.afterExchange) << row.contest;
  }
}

TEST_F(EntryKeysTest, RemappedKeysBecomeInsertOrF9) {
  struct Row { const char* name; int which; const char* mapping; const char* key; Lines sent; int radio; };
  const Row rows[] = {
      {"backslash as Insert", 1, "backslash", "\\", {"SendMessageRow 10"}, 1},
      {"bracket as Insert", 1, "rightbracket", "]", {"SendMessageRow 10"}, 1},
      {"up arrow as Insert", 1, "uparrow", "Up", {"SendMessageRow 10"}, 1},
      {"All takes the bracket", 1, "All", "]", {"SendMessageRow 10"}, 1},
      {"All takes the up arrow", 1, "All", "Up", {"SendMessageRow 10"}, 1},
      {"mapped to another key", 1, "backslash", "]", {}, 1},
      {"Shift+Up is not mapped", 1, "uparrow", "Shift+Up", {}, 1},
      {"backslash as F9", 2, "backslash", "\\", {}, 2},
      {"up arrow as F9", 2, "uparrow", "Up", {}, 2},
  };
  for (const Row& row : rows) {
    NewLog(Cqww);
    (row.which == 1 ? ctx.Config.Key1IsMapped : ctx.Config.Key2IsMapped) = true;
    (row.which == 1 ? ctx.Config.Key1Mapping : ctx.Config.Key2Mapping) = row.mapping;
    run.Type("W1AW");
    if (std::string(row.key).size() == 1) run.Type(row.key);
    else run.Key(row.key);
    EXPECT_EQ(station.Requests, row.sent) << row.name;
    EXPECT_EQ(ctx.Radio.ActiveRadio, row.radio) << row.name;
    EXPECT_EQ(form.InData[CallBox].Text, "W1AW") << row.name;
  }

  // Mapped or not, Alt-Up walks the call stack.
  NewLog(Cqww);
  ctx.Config.Key1IsMapped = true;
  ctx.Config.Key1Mapping = "uparrow";
  run.Type("DL1ABC");
  run.Key("Alt+M");
  run.Key("Alt+Up");
  EXPECT_EQ(run.Boxes(), "DL1ABC_|");
  EXPECT_TRUE(station.Requests.empty());
}

TEST_F(EntryKeysTest, PlusMinusAndPageKeysChangeTheCWSpeed) {
  NewLog(Cqww);
  EXPECT_EQ(form.lblCWPC.Caption + form.lblSpeedCW.Caption, "CW-PC:28");
  run.Type("+");
  EXPECT_EQ(form.lblSpeedCW.Caption, "30");
  run.Type("-!-");
  EXPECT_EQ(form.lblSpeedCW.Caption, "24");
  run.Key("PageUp");
  run.Key("PageUp");
  EXPECT_EQ(form.lblSpeedCW.Caption, "28");
  run.Key("PageDown");
  EXPECT_EQ(ctx.Keying.CWSpeed, 26);
  EXPECT_EQ(run.Boxes(), "_|");  // no key put anything in the box

  // The range is 18 to 50 WPM; a step that reaches a limit stops on it.
  ctx.Config.CWSpeedIncrement = "3";
  for (int i = 0; i < 8; ++i) run.Type("+");
  EXPECT_EQ(ctx.Keying.CWSpeed, 50);
  for (int i = 0; i < 11; ++i) run.Key("PageDown");
  EXPECT_EQ(ctx.Keying.CWSpeed, 18);

  // A message going out keeps its speed; without CW the page keys do nothing.
  station.SendingCW = true;
  run.Type("+");
  run.Key("PageUp");
  EXPECT_EQ(ctx.Keying.CWSpeed, 18);
  station.SendingCW = false;
  ctx.Config.CWActivated = false;
  run.Key("PageUp");
  EXPECT_EQ(ctx.Keying.CWSpeed, 18);
  run.Type("+");
  EXPECT_EQ(ctx.Keying.CWSpeed, 21);
  EXPECT_EQ(run.Boxes(), "_|");
}

TEST_F(EntryKeysTest, PlusMinusOnPhoneStepTheVoiceKeyersMode) {
  struct Row { const char* name; bool fast, normal, mixed; int from; const char* steps; };
  // Each row: the mode after each of three presses.
  const Row rows[] = {
      {"all allowed", true, true, true, 0, "Mixed Normal Fast "},
      {"no mixed", true, true, false, 0, "Normal Fast Normal "},
      {"only fast", true, false, false, 0, "Fast Fast Fast "},
      {"normal and mixed from normal", false, true, true, 1, "Mixed Normal Mixed "},
      {"only mixed from fast", false, false, true, 0, "Mixed Mixed Mixed "},
  };
  for (const Row& row : rows) {
    NewLog(Cqww, true);
    Settings& s = ctx.Config;
    s.DVKFastModeEnabled = row.fast;
    s.DVKNormalModeEnabled = row.normal;
    s.DVKMixedModeEnabled = row.mixed;
    s.DVKCallExchMode = static_cast<int16_t>(row.from);
    std::string seen;
    for (const char* key : {"+", "-", "!"}) {
      run.Type(key);
      seen += form.DVKSpeedLabel.Caption + " ";
    }
    EXPECT_EQ(seen, row.steps) << row.name;
    EXPECT_EQ(ctx.Keying.CWSpeed, 28) << row.name;
  }
  EXPECT_EQ(form.lblCWPC.Caption, "DVK:");
  EXPECT_TRUE(form.DVKSpeedLabel.Visible && form.CheckCall.Visible && !form.lblSpeedCW.Visible);
}

TEST_F(EntryKeysTest, FunctionKeysSendTheirMessages) {
  NewLog(Cqww, true);  // phone: always
  for (const char* key : {"F1", "F2", "Shift+F3", "F4", "F5", "F6", "F7", "F11", "Shift+F12", "F10"}) run.Key(key);
  EXPECT_EQ(station.TakeRequests(), (Lines{"SendMessageKey 1", "SendMessageKey 2", "SendMessageKey 3 dual",
                                   "SendMessageKey 4", "SendMessageKey 5", "SendMessageKey 6", "SendMessageKey 7",
                                   "SendMessageKey 8", "SendMessageKey 9 dual"}));
  run.Type("K3ZZZ");
  run.Key("F8");
  run.Key("CapsLock");
  EXPECT_TRUE(station.Requests.empty());  // F8 and Caps Lock are CW's
  EXPECT_EQ(form.FocusedBox, CallBox);

  // CW: with CWActivated, and F5 and F6 restart the rotation of the messages
  // after a QSO (TU3: F6, F6, F5); F4 does not.
  NewLog(Cqww);
  Command("TU3");
  station.LastMsgCallCorrect = true;
  ctx.Config.LogandSendF5Enabled = true;
  run.Enter("K3ZZZ", "5");
  run.Enter("W1AW", "5");
  run.Key("F5");
  run.Enter("N5DX", "4");
  run.Key("Shift+F6");
  run.Enter("VE3EJ", "4");
  run.Key("F4");
  run.Enter("W6XX", "3");
  run.Enter("K6AW", "3");
  run.Type("k3z.z");
  run.Key("F8");
  EXPECT_EQ(station.TakeRequests(),
            (Lines{"SendMessageKey 6", "SendMessageKey 6", "SendMessageKey 5", "SendMessageKey 6", "SendMessageKey 6 dual",
                   "SendMessageKey 6", "SendMessageKey 4", "SendMessageKey 6", "SendMessageKey 5", "SendCW K3Z.Z"}));
  station.LastMsgCallCorrect = false;
  ctx.Keying.WinkeyOpening = true;
  run.Key("F1");
  ctx.Keying.WinkeyOpening = false;
  ctx.Config.CWActivated = false;
  run.Key("F2");
  EXPECT_TRUE(station.Requests.empty());
  EXPECT_EQ(run.Boxes(), "K3Z.Z_|");
}

TEST_F(EntryKeysTest, CapsLockOpensTheKeyboardCWBox) {
  NewLog(Generic);
  run.Type("K3ZZZ");
  form.InData_SelChange(CallBox, 2, 0);
  run.Key("CapsLock");
  EXPECT_EQ(form.FocusedBox, KeyboardCWFocus);
  EXPECT_TRUE(form.KeyboardCWLabel.Visible && form.KeyboardCWText.Visible && !form.FileIDLabel.Visible);
  EXPECT_EQ(form.ActiveRadioLabel.ForeColor, 192);
  run.Type("tu+5nn-");
  EXPECT_EQ(form.KeyboardCWText.Text, "TU5NN");
  EXPECT_EQ(ctx.Keying.CWSpeed, 28);  // +2 and -2
  EXPECT_EQ(station.TakeRequests(), (Lines{"SendCW T", "SendCW U", "SendCW 5", "SendCW N", "SendCW N"}));
  run.Type("+");
  EXPECT_EQ(form.lblSpeedCW.Caption, "30");
  run.Key("Enter");  // only Caps Lock leaves the box
  EXPECT_EQ(form.FocusedBox, KeyboardCWFocus);
  run.Key("CapsLock");
  EXPECT_FALSE(form.KeyboardCWLabel.Visible || form.KeyboardCWText.Visible);
  EXPECT_TRUE(form.FileIDLabel.Visible);
  EXPECT_EQ(form.ActiveRadioLabel.ForeColor, ColourBlue);
  EXPECT_EQ(run.Boxes(), "K3_ZZZ|");
  run.Type("4");
  EXPECT_EQ(run.Boxes(), "K34_ZZZ|");
  EXPECT_EQ(ctx.Log.QSOCount, 1);
}

TEST_F(EntryKeysTest, WipeKeysClearTheEntry) {
  for (const char* key : {"Ctrl+X", "Ctrl+Z", "Alt+X", "Alt+Z"}) {
    NewLog(Cqww);
    run.Enter("K3ZZZ", "5");
    run.Type("K3ZZZ");
    form.SetFocus(ExchangeBox);  // the dupe shows
    ASSERT_TRUE(form.lblDupe.Visible && !form.lblCallsign.Visible) << key;
    run.Type("4");
    run.Key(key);
    EXPECT_EQ(run.Boxes(), "_|") << key;
    EXPECT_TRUE(!form.lblDupe.Visible && form.lblCallsign.Visible && form.lblExchange.Visible) << key;
    EXPECT_FALSE(form.CallMatchLabel1.Visible || form.Modelabel.Visible) << key;
    EXPECT_EQ(form.InData[CallBox].ForeColor, ColourBlack) << key;
    EXPECT_EQ(ctx.Log.QSOCount, 2) << key;
  }
}

TEST_F(EntryKeysTest, CtrlWStepsTheWinkeyerSpeedSourceCtrlRTheRitSwitch) {
  NewLog(Cqww);
  run.Key("Ctrl+W");  // the Winkeyer is closed
  EXPECT_EQ(ctx.Keying.WinkeySpeedMode, 1);
  ctx.Keying.WinkeyOpen = true;
  std::string colours;
  for (const char* key : {"Ctrl+W", "Alt+W", "Ctrl+W"}) {
    run.Key(key);
    colours += std::to_string(form.lblSpeedCW.ForeColor) + "/" + std::to_string(form.lblSpeedWK.ForeColor) + " ";
  }
  EXPECT_EQ(colours, "0/255 255/255 255/0 ");
  EXPECT_EQ(station.TakeRequests(), (Lines{"SetWinkeySpeedSource 2", "SetWinkeySpeedSource 3", "SetWinkeySpeedSource 1"}));
  EXPECT_TRUE(form.lblCWWK.Visible && form.lblSpeedWK.Visible);
  EXPECT_EQ(form.lblCWWK.Caption, "WK Pot:");

  run.Key("Ctrl+R");
  EXPECT_TRUE(ctx.Keying.ClearRITEnabled);
  run.Key("Alt+R");
  run.Key("Ctrl+R");
  EXPECT_FALSE(ctx.Keying.ClearRITEnabled);
  EXPECT_EQ(run.Boxes(), "_|");
}

TEST_F(EntryKeysTest, CallStackMemoriseAndRecall) {
  NewLog(Cqww);
  run.Enter("K3ZZA", "5");
  run.Key("Alt+Up");  // nothing stored: the empty row 1 empties the call box
  EXPECT_EQ(run.Boxes(), "_|");
  run.Key("Alt+M");  // an empty call box stores nothing
  for (const char* call : {"W1AW", "K3ZZZ", "DL1ABC", "JA1XYZ", "VE3EJ", "OH2BH"}) {
    run.Type(call);
    form.SetFocus(ExchangeBox);
    run.Type("14");
    run.Key("Alt+M");
    EXPECT_EQ(run.Boxes(), "_|") << call;
  }

  // Rows 1 to 5, newest first (W1AW went out at the bottom); Alt-Up from
  // the row last recalled, 1, goes round to 5.
  std::string walk;
  for (const char* key : {"Alt+Up", "Alt+Left", "Alt+Up", "Alt+Up", "Alt+Down", "Alt+Down", "Alt+Down", "Alt+Down",
                          "Alt+Down", "Alt+Right"}) {
    run.Key(key);
    walk += form.InData[CallBox].Text + " ";
  }
  EXPECT_EQ(walk, "K3ZZZ OH2BH K3ZZZ DL1ABC K3ZZZ OH2BH VE3EJ JA1XYZ DL1ABC OH2BH ");

  // The last character of a recall is typed, so the match lists follow it.
  run.Put(CallBox, "");
  run.Type("K3ZZ");
  run.Key("Alt+M");
  run.Key("Alt+Left");
  EXPECT_EQ(run.Boxes(), "K3ZZ_|");
  EXPECT_EQ(form.CallMatchLabel1.Caption, "This band: K3ZZA ");
  EXPECT_TRUE(form.CallMatchLabel1.Visible);
  EXPECT_EQ(ctx.Log.QSOCount, 2);
}

TEST_F(EntryKeysTest, EnterAndApostropheLogAndAskForTheirMessages) {
  NewLog(Generic);
  station.LastMsgCallCorrect = true;
  ctx.Config.LogandSendF5Enabled = true;
  run.Enter("K3ZZZ", "5");
  EXPECT_EQ(station.TakeRequests(), Lines{"SendMessageKey 5"});
  run.Type("W1AW");
  form.SetFocus(ExchangeBox);
  run.Type("5'");  // without LogandSendF6Enabled the apostrophe does nothing
  EXPECT_EQ(run.Boxes(), "W1AW|5_");
  ctx.Config.LogandSendF6Enabled = true;
  run.Type("'");
  EXPECT_EQ(ctx.Log.QSOCount, 3);
  EXPECT_EQ(station.TakeRequests(), Lines{"SendMessageKey 6"});
  run.Enter("N5DX", "4");  // the apostrophe's flag does not outlive its key
  EXPECT_EQ(station.TakeRequests(), Lines{"SendMessageKey 5"});
  run.Key("Tab");
  EXPECT_EQ(run.Boxes(), "_|");
}

TEST_F(EntryKeysTest, InsertSendsTheCallWithTheRightExchangeMessage) {
  struct Row { const char* name; const char* call; const char* exchange; const char* key; const char* sent;
               const char* boxes; };
  const Row rows[] = {
      {"nothing typed", "", "", "Insert", "SendMessageRow 10", "_|"},
      {"exchange empty", "K3ZZZ", "", "Insert", "SendMessageRow 10", "K3ZZZ|_"},
      {"the form's blank", "K3ZZZ", " 5", "Insert", "SendMessageRow 10", "K3ZZZ| 5_"},
      {"the blank, Shift", "K3ZZZ", " 5", "Shift+Insert", "SendMessageRow 11", "K3ZZZ| 5_"},
      {"the blank, Alt", "K3ZZZ", " 5", "Alt+Insert", "SendMessageRow 11", "K3ZZZ| 5_"},
      {"the blank, Ctrl", "K3ZZZ", " 5", "Ctrl+Insert", "SendMessageRow 10", "K3ZZZ| 5_"},
      {"typed exchange", "K3ZZZ", "5", "Insert", "SendMessageRow 11", "K3ZZZ|5_"},
  };
  for (const Row& row : rows) {
    NewLog(Generic);
    run.Type(row.call);
    if (*row.exchange) {
      form.SetFocus(ExchangeBox);
      run.Type(row.exchange);
      form.SetFocus(CallBox);
    }
    run.Key(row.key);
    EXPECT_EQ(station.TakeRequests(), Lines{row.sent}) << row.name;
    EXPECT_EQ(run.Boxes(), row.boxes) << row.name;
  }
  EXPECT_TRUE(station.CallSendArmed);

  NewLog(Generic, true);  // phone: the voice keyer, without a portable mark
  ctx.Config.DVKSendCallEnabled = true;
  ctx.Config.DVKSendExchEnabled = true;
  ctx.Config.DVKCallExchMode = 1;
  form.ArrangeForMode();
  form.CheckThanks.Value = true;
  for (const char* call : {"K3ZZZ/P", "K3ZZZ/M", "K3ZZZ/7", "P"}) {
    form.InData_Change(CallBox, call, 0);
    run.Key("Insert");
  }
  EXPECT_EQ(station.TakeRequests(), (Lines{"SendCallAndExchange K3ZZZ Call Exchange Thanks (Normal)",
                                   "SendCallAndExchange K3ZZZ Call Exchange Thanks (Normal)",
                                   "SendCallAndExchange K3ZZZ/7 Call Exchange Thanks (Normal)",
                                   "SendCallAndExchange P Call Exchange Thanks (Normal)"}));
}

TEST_F(EntryKeysTest, KeysWithoutALogDoNothing) {
  ASSERT_TRUE(run.Started);
  form.SetFocus(CallBox);
  for (const char* key : {"F1", "Alt+M", "Ctrl+Down", "F9", "Insert", "Enter"}) run.Key(key);
  form.InData_KeyPress(CallBox, 'k');
  EXPECT_TRUE(station.Requests.empty());
  EXPECT_EQ(form.InData[CallBox].Text, "");
  EXPECT_EQ(ctx.Radio.ActiveRadio, 1);
}

}  // namespace
}  // namespace tarnix
