// The keyboard of the entry form, key by key as the operator presses them:
// the typed characters, the remapped keys, the function keys, the Ctrl and
// Alt commands, the call stack, the band ring, the change of mode, Space by
// contest, apostrophe and Insert. What a key asked of the senders and the
// radios is read from the form's Requests.

#include "operating/KeyboardFixture.h"

namespace tarnix {
namespace {

using KeyboardEntryTest = KeyboardFixture;

TEST(KeyByName, NamesAndModifiers) {
  struct Row { const char* name; int code, shift; };
  for (const Row& row : {Row{"Enter", 13, 0}, Row{"F9", 120, 0}, Row{"Ctrl+F9", 120, 2}, Row{"F12", 123, 0},
                         Row{"Alt+M", 77, 4}, Row{"Ctrl+Down", 40, 2}, Row{"Alt+Up", 38, 4},
                         Row{"shift+alt+insert", 45, 5}, Row{"Apostrophe", 222, 0}, Row{"CapsLock", 20, 0},
                         Row{"PageDown", 34, 0}, Row{"Ctrl+x", 88, 2}}) {
    std::optional<NamedKey> key = KeyByName(row.name);
    ASSERT_TRUE(key) << row.name;
    EXPECT_EQ(key->Code * 10 + key->Shift, row.code * 10 + row.shift) << row.name;
  }
  for (const char* bad : {"", "F13", "F0", "Hyper+A", "Ctrl+", "+", "PgUp", "Ctrl+F1x"})
    EXPECT_FALSE(KeyByName(bad)) << bad;
}

TEST_F(KeyboardEntryTest, TypedCharactersUpperCasedQuotesDroppedBracketsUnmapped) {
  NewLog(Cqww);
  Type("k3\"z'z]z\\");
  EXPECT_EQ(Boxes(), "K3ZZZ_|");
  // "]" and "\" reach key-down as code 39 without a modifier, which no
  // handler takes when nothing is mapped.
  EXPECT_TRUE(station.Requests.empty());
  EXPECT_FALSE(form.BracketPressed || form.BackslashPressed);
}

TEST_F(KeyboardEntryTest, BlankInTheCallBoxByContest) {
  struct Row { int contest; const char* boxes; };
  // A blank typed straight into the call box (as a paste of one character
  // would): dropped in the contests whose Space moves on, kept in the others.
  for (const Row& row : {Row{Cqp, "K3_|"}, Row{Cqww, "K3_|"}, Row{Sprint, "K3_|"}, Row{Sweepstakes, "K3_|"},
                         Row{Paqp, "K3_|"}, Row{Naqp, "K3_|"}, Row{Generic, "K3_|"}, Row{ArrlDx, "K3 _|"},
                         Row{Wpx, "K3 _|"}, Row{Ten, "K3 _|"}, Row{CwOpen, "K3 _|"}}) {
    NewLog(row.contest);
    Type("K3");
    form.InData_KeyPress(CallBox, ' ');
    EXPECT_EQ(Boxes(), row.boxes) << row.contest;
  }
}

TEST_F(KeyboardEntryTest, SpaceTogglesOrMovesOnByContest) {
  struct Row { int contest; const char* afterCall; const char* afterExchange; };
  for (const Row& row : {Row{ArrlDx, "K3ZZZ|_", "K3ZZZ_|PA"}, Row{Wpx, "K3ZZZ|_", "K3ZZZ_|5"},
                         Row{AllAsian, "K3ZZZ|_", "K3ZZZ_|5"}, Row{Ten, "K3ZZZ|_", "K3ZZZ_|5"},
                         Row{Neqp, "K3ZZZ|_", "K3ZZZ_|5"}, Row{Generic, "K3ZZZ|_", "K3ZZZ|5 _"},
                         Row{Sweepstakes, "K3ZZZ|_", "K3ZZZ|5 _"}, Row{CwOpen, "K3ZZZ|_", "K3ZZZ|5 _"}}) {
    NewLog(row.contest, false, row.contest == ArrlDx ? 1 : -1);
    Type("K3ZZZ ");
    EXPECT_EQ(Boxes(), row.afterCall) << row.contest;
    Type(row.contest == ArrlDx ? "PA " : "5 ");
    EXPECT_EQ(Boxes(), row.afterExchange) << row.contest;
  }
}

TEST_F(KeyboardEntryTest, RemappedKeysBecomeInsertOrF9) {
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
    (row.which == 1 ? ctx->Config.Key1IsMapped : ctx->Config.Key2IsMapped) = true;
    (row.which == 1 ? ctx->Config.Key1Mapping : ctx->Config.Key2Mapping) = row.mapping;
    Type("W1AW");
    if (std::string(row.key).size() == 1) Type(row.key);
    else Key(row.key);
    EXPECT_EQ(station.Requests, row.sent) << row.name;
    EXPECT_EQ(ctx->Radio.ActiveRadio, row.radio) << row.name;
    EXPECT_EQ(form.InData[CallBox].Text, "W1AW") << row.name;
  }

  // Mapped or not, Alt-Up walks the call stack.
  NewLog(Cqww);
  ctx->Config.Key1IsMapped = true;
  ctx->Config.Key1Mapping = "uparrow";
  Type("DL1ABC");
  Key("Alt+M");
  Key("Alt+Up");
  EXPECT_EQ(Boxes(), "DL1ABC_|");
  EXPECT_TRUE(station.Requests.empty());
}

TEST_F(KeyboardEntryTest, PlusMinusAndPageKeysChangeTheCWSpeed) {
  NewLog(Cqww);
  EXPECT_EQ(form.lblCWPC.Caption + form.lblSpeedCW.Caption, "CW-PC:28");
  Type("+");
  EXPECT_EQ(form.lblSpeedCW.Caption, "30");
  Type("-!-");
  EXPECT_EQ(form.lblSpeedCW.Caption, "24");
  Key("PageUp");
  Key("PageUp");
  EXPECT_EQ(form.lblSpeedCW.Caption, "28");
  Key("PageDown");
  EXPECT_EQ(ctx->Keying.CWSpeed, 26);
  EXPECT_EQ(Boxes(), "_|");  // no key put anything in the box

  // The range is 18 to 50 WPM; a step that reaches a limit stops on it.
  ctx->Config.CWSpeedIncrement = "3";
  for (int i = 0; i < 8; ++i) Type("+");
  EXPECT_EQ(ctx->Keying.CWSpeed, 50);
  for (int i = 0; i < 11; ++i) Key("PageDown");
  EXPECT_EQ(ctx->Keying.CWSpeed, 18);

  // A message going out keeps its speed; without CW the page keys do nothing.
  station.SendingCW = true;
  Type("+");
  Key("PageUp");
  EXPECT_EQ(ctx->Keying.CWSpeed, 18);
  station.SendingCW = false;
  ctx->Config.CWActivated = false;
  Key("PageUp");
  EXPECT_EQ(ctx->Keying.CWSpeed, 18);
  Type("+");
  EXPECT_EQ(ctx->Keying.CWSpeed, 21);
  EXPECT_EQ(Boxes(), "_|");
}

TEST_F(KeyboardEntryTest, PlusMinusOnPhoneStepTheVoiceKeyersMode) {
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
    Settings& s = ctx->Config;
    s.DVKFastModeEnabled = row.fast;
    s.DVKNormalModeEnabled = row.normal;
    s.DVKMixedModeEnabled = row.mixed;
    s.DVKCallExchMode = static_cast<int16_t>(row.from);
    std::string seen;
    for (const char* key : {"+", "-", "!"}) {
      Type(key);
      seen += form.DVKSpeedLabel.Caption + " ";
    }
    EXPECT_EQ(seen, row.steps) << row.name;
    EXPECT_EQ(ctx->Keying.CWSpeed, 28) << row.name;
  }
  EXPECT_EQ(form.lblCWPC.Caption, "DVK:");
  EXPECT_TRUE(form.DVKSpeedLabel.Visible && form.CheckCall.Visible && !form.lblSpeedCW.Visible);
}

TEST_F(KeyboardEntryTest, FunctionKeysSendTheirMessages) {
  NewLog(Cqww, true);  // phone: always
  for (const char* key : {"F1", "F2", "Shift+F3", "F4", "F5", "F6", "F7", "F11", "Shift+F12", "F10"}) Key(key);
  EXPECT_EQ(TakeRequests(), (Lines{"SendMessageKey 1", "SendMessageKey 2", "SendMessageKey 3 dual",
                                   "SendMessageKey 4", "SendMessageKey 5", "SendMessageKey 6", "SendMessageKey 7",
                                   "SendMessageKey 8", "SendMessageKey 9 dual"}));
  Type("K3ZZZ");
  Key("F8");
  Key("CapsLock");
  EXPECT_TRUE(station.Requests.empty());  // F8 and Caps Lock are CW's
  EXPECT_EQ(form.FocusedBox, CallBox);

  NewLog(Cqww);  // CW: with CWActivated, and F5 and F6 restart the TU rotation
  form.TUCount = 3;
  Key("F5");
  EXPECT_EQ(form.TUCount, 1);
  form.TUCount = 2;
  Key("Shift+F6");
  EXPECT_EQ(form.TUCount, 1);
  form.TUCount = 2;
  Key("F4");
  EXPECT_EQ(form.TUCount, 2);
  Type("k3z.z");
  Key("F8");
  EXPECT_EQ(TakeRequests(), (Lines{"SendMessageKey 5", "SendMessageKey 6 dual", "SendMessageKey 4", "SendCW K3Z.Z"}));
  ctx->Keying.WinkeyOpening = true;
  Key("F1");
  ctx->Keying.WinkeyOpening = false;
  ctx->Config.CWActivated = false;
  Key("F2");
  EXPECT_TRUE(station.Requests.empty());
  EXPECT_EQ(Boxes(), "K3Z.Z_|");
}

TEST_F(KeyboardEntryTest, F9SwapsRadiosAndCtrlF9TheirFrequencies) {
  NewLog(Cqww);
  ctx->Config.F9Activated = true;
  Key("Ctrl+Down");  // radio 1 to 40m
  Type("K3ZZZ");
  Key("F9");
  EXPECT_EQ(ctx->Radio.ActiveRadio, 2);
  EXPECT_EQ(ctx->Contest.BandIndex, 3);  // radio 2 is still where the log started
  EXPECT_EQ(ctx->Radio.RadioBand1, 4);
  EXPECT_EQ(form.ActiveRadioLabel.Caption, "Radio2");
  EXPECT_EQ(form.ActiveRadioLabel.ForeColor, ColourRed);
  EXPECT_EQ(form.QSONrLabel.ForeColor, ColourRed);
  EXPECT_EQ(form.QSONrLabel.Caption, "QSO Nr  1    (20m CW)");
  EXPECT_EQ(Boxes(), "K3ZZZ_|");  // a swap keeps the boxes
  Key("Ctrl+Down");
  Key("F9");
  EXPECT_EQ(ctx->Radio.ActiveRadio, 1);
  EXPECT_EQ(ctx->Radio.RadioBand2, 4);
  EXPECT_EQ(form.QSONrLabel.Caption + "|" + form.ActiveRadioLabel.Caption, "QSO Nr  1    (40m CW)|Radio1");
  EXPECT_EQ(form.ActiveRadioLabel.ForeColor, ColourBlue);

  // The QSO is logged on the radio and band of the moment.
  Key("F9");
  form.SetFocus(ExchangeBox);
  Key("Enter");
  EXPECT_EQ(ctx->Log.LogRecords.At(1).QRadio.Trimmed() + " " + std::to_string(ctx->Log.LogRecords.At(1).QBand), "2 4");

  Key("Ctrl+F9");  // only with both radios polled
  ctx->Radio.RadioRunning = {false, true, true};
  Key("Alt+F9");
  EXPECT_EQ(ctx->Radio.ActiveRadio, 2);
  EXPECT_EQ(TakeRequests(), (Lines{"SetF9Line on", "SetF9Line off", "SetF9Line on", "SwapRadioFrequencies"}));
}

TEST_F(KeyboardEntryTest, CapsLockOpensTheKeyboardCWBox) {
  NewLog(Generic);
  Type("K3ZZZ");
  form.InData_SelChange(CallBox, 2, 0);
  Key("CapsLock");
  EXPECT_EQ(form.FocusedBox, KeyboardCWFocus);
  EXPECT_TRUE(form.KeyboardCWLabel.Visible && form.KeyboardCWText.Visible && !form.FileIDLabel.Visible);
  EXPECT_EQ(form.ActiveRadioLabel.ForeColor, 192);
  Type("tu+5nn-");
  EXPECT_EQ(form.KeyboardCWText.Text, "TU5NN");
  EXPECT_EQ(ctx->Keying.CWSpeed, 28);  // +2 and -2
  EXPECT_EQ(TakeRequests(), (Lines{"SendCW T", "SendCW U", "SendCW 5", "SendCW N", "SendCW N"}));
  Type("+");
  EXPECT_EQ(form.lblSpeedCW.Caption, "30");
  Key("Enter");  // only Caps Lock leaves the box
  EXPECT_EQ(form.FocusedBox, KeyboardCWFocus);
  Key("CapsLock");
  EXPECT_FALSE(form.KeyboardCWLabel.Visible || form.KeyboardCWText.Visible);
  EXPECT_TRUE(form.FileIDLabel.Visible);
  EXPECT_EQ(form.ActiveRadioLabel.ForeColor, ColourBlue);
  EXPECT_EQ(Boxes(), "K3_ZZZ|");
  Type("4");
  EXPECT_EQ(Boxes(), "K34_ZZZ|");
  EXPECT_EQ(ctx->Log.QSOCount, 1);
}

TEST_F(KeyboardEntryTest, WipeKeysClearTheEntry) {
  for (const char* key : {"Ctrl+X", "Ctrl+Z", "Alt+X", "Alt+Z"}) {
    NewLog(Cqww);
    Log("K3ZZZ", "5");
    Type("K3ZZZ");
    form.SetFocus(ExchangeBox);  // the dupe shows
    ASSERT_TRUE(form.lblDupe.Visible && !form.lblCallsign.Visible) << key;
    Type("4");
    Key(key);
    EXPECT_EQ(Boxes(), "_|") << key;
    EXPECT_TRUE(!form.lblDupe.Visible && form.lblCallsign.Visible && form.lblExchange.Visible) << key;
    EXPECT_FALSE(form.CallMatchLabel1.Visible || form.Modelabel.Visible) << key;
    EXPECT_EQ(form.InData[CallBox].ForeColor, ColourBlack) << key;
    EXPECT_EQ(ctx->Log.QSOCount, 2) << key;
  }
}

TEST_F(KeyboardEntryTest, CtrlWStepsTheWinkeyerSpeedSourceCtrlRTheRitSwitch) {
  NewLog(Cqww);
  Key("Ctrl+W");  // the Winkeyer is closed
  EXPECT_EQ(ctx->Keying.WinkeySpeedMode, 1);
  ctx->Keying.WinkeyOpen = true;
  std::string colours;
  for (const char* key : {"Ctrl+W", "Alt+W", "Ctrl+W"}) {
    Key(key);
    colours += std::to_string(form.lblSpeedCW.ForeColor) + "/" + std::to_string(form.lblSpeedWK.ForeColor) + " ";
  }
  EXPECT_EQ(colours, "0/255 255/255 255/0 ");
  EXPECT_EQ(TakeRequests(), (Lines{"SetWinkeySpeedSource 2", "SetWinkeySpeedSource 3", "SetWinkeySpeedSource 1"}));
  EXPECT_TRUE(form.lblCWWK.Visible && form.lblSpeedWK.Visible);
  EXPECT_EQ(form.lblCWWK.Caption, "WK Pot:");

  Key("Ctrl+R");
  EXPECT_TRUE(ctx->Keying.ClearRITEnabled);
  Key("Alt+R");
  Key("Ctrl+R");
  EXPECT_FALSE(ctx->Keying.ClearRITEnabled);
  EXPECT_EQ(Boxes(), "_|");
}

TEST_F(KeyboardEntryTest, CallStackMemoriseAndRecall) {
  NewLog(Cqww);
  Log("K3ZZA", "5");
  Key("Alt+Up");  // nothing stored: the empty row 1 empties the call box
  EXPECT_EQ(Boxes(), "_|");
  EXPECT_EQ(form.CallStackPos, 1);
  Key("Alt+M");  // an empty call box stores nothing
  for (const char* call : {"W1AW", "K3ZZZ", "DL1ABC", "JA1XYZ", "VE3EJ", "OH2BH"}) {
    Type(call);
    form.SetFocus(ExchangeBox);
    Type("14");
    Key("Alt+M");
    EXPECT_EQ(Boxes(), "_|") << call;
  }
  EXPECT_EQ(form.CallStack, (std::array<std::string, 6>{"", "OH2BH", "VE3EJ", "JA1XYZ", "DL1ABC", "K3ZZZ"}));

  std::string walk;
  for (const char* key : {"Alt+Left", "Alt+Up", "Alt+Up", "Alt+Down", "Alt+Down", "Alt+Down", "Alt+Down",
                          "Alt+Down", "Alt+Right"}) {
    Key(key);
    walk += std::to_string(form.CallStackPos) + ":" + form.InData[CallBox].Text + " ";
  }
  EXPECT_EQ(walk, "1:OH2BH 5:K3ZZZ 4:DL1ABC 5:K3ZZZ 1:OH2BH 2:VE3EJ 3:JA1XYZ 4:DL1ABC 1:OH2BH ");

  // The last character of a recall is typed, so the match lists follow it.
  form.InData_Change(CallBox, "", 0);
  form.CallStack[1] = "K3ZZ";
  Key("Alt+Left");
  EXPECT_EQ(Boxes(), "K3ZZ_|");
  EXPECT_EQ(form.CallMatchLabel1.Caption, "This band: K3ZZA ");
  EXPECT_TRUE(form.CallMatchLabel1.Visible);
  EXPECT_EQ(ctx->Log.QSOCount, 2);
}

TEST_F(KeyboardEntryTest, BandRingSkipsDisabledBandsAndKeepsTheMode) {
  auto walk = [this](const char* key, int presses) {
    std::string bands;
    for (int i = 0; i < presses; ++i) {
      Key(key);
      bands += form.QSONrLabel.Caption.substr(13) + " ";
    }
    return bands;
  };
  NewLog(Generic);  // every band row, WARC, 6m and 2m
  EXPECT_EQ(walk("Ctrl+Down", 11),
            "(30m CW) (40m CW) (80m CW) (160 CW) (2m  CW) (6m  CW) (10m CW) (12m CW) (15m CW) (17m CW) (20m CW) ");
  EXPECT_EQ(walk("Ctrl+Up", 2), "(17m CW) (15m CW) ");
  EXPECT_EQ(ctx->Contest.BandIndex, 2);
  EXPECT_EQ(ctx->Radio.RadioBand1, 2);
  ctx->Contest.BandIndex = 11;  // phone stays phone
  EXPECT_EQ(walk("Ctrl+Down", 3), "(30m SSB) (40m SSB) (80m SSB) ");
  EXPECT_EQ(ctx->Contest.BandIndex, 13);

  NewLog(Cqww);  // no WARC, no VHF
  EXPECT_EQ(walk("Ctrl+Down", 6), "(40m CW) (80m CW) (160 CW) (10m CW) (15m CW) (20m CW) ");
  EXPECT_EQ(walk("Ctrl+Up", 2), "(15m CW) (10m CW) ");

  for (int row = 1; row <= 12; ++row) ctx->Contest.BandEnabled[static_cast<std::size_t>(row)] = row == 3;
  ctx->Contest.BandIndex = 3;
  EXPECT_EQ(walk("Ctrl+Down", 1) + walk("Ctrl+Up", 1), "(20m CW) (20m CW) ");

  NewLog(Ten);  // one band: nowhere to go
  EXPECT_EQ(walk("Ctrl+Down", 1) + walk("Ctrl+Up", 1), "(10m CW) (10m CW) ");

  // A polled radio is sent its last frequency on the new band.
  NewLog(Cqww);
  ctx->Radio.RadioRunning[1] = true;
  ctx->Radio.LastFreqByBand[1][4] = 7012.5f;
  Key("Ctrl+Down");
  EXPECT_EQ(TakeRequests(), Lines{"SetRadioFrequency 1 7012.5"});
}

TEST_F(KeyboardEntryTest, CtrlLeftAndRightChangeTheModeInMixedLogs) {
  NewLog(Generic);
  ctx->Radio.LastFreqByBand[1][3] = 14025;
  std::string seen;
  for (int band : {3, 11, 9, 21, 17, 6, 24}) {
    ctx->Contest.BandIndex = static_cast<int16_t>(band);
    Key(band % 2 ? "Ctrl+Left" : "Ctrl+Right");
    seen += std::to_string(band) + ">" + std::to_string(ctx->Contest.BandIndex) + " ";
  }
  EXPECT_EQ(seen, "3>11 11>3 9>1 21>17 17>21 6>14 24>20 ");
  EXPECT_EQ(ctx->Radio.LastFreqByBand[1][11], 14025.0f);
  EXPECT_EQ(form.QSONrLabel.Caption, "QSO Nr  1    (    SSB)");
  EXPECT_EQ(form.lblCWPC.Caption, "DVK:");
  Key("Ctrl+Right");
  EXPECT_EQ(form.QSONrLabel.Caption + " " + form.lblCWPC.Caption, "QSO Nr  1    (    CW) CW-PC:");
  EXPECT_TRUE(form.lblSpeedCW.Visible && !form.DVKSpeedLabel.Visible && !form.CheckThanks.Visible);

  NewLog(Cqww);  // one mode
  Key("Ctrl+Left");
  EXPECT_EQ(ctx->Contest.BandIndex, 3);
}

TEST_F(KeyboardEntryTest, EnterAndApostropheLogAndAskForTheirMessages) {
  NewLog(Generic);
  station.LastMsgCallCorrect = true;
  ctx->Config.LogandSendF5Enabled = true;
  Log("K3ZZZ", "5");
  EXPECT_EQ(TakeRequests(), Lines{"SendMessageKey 5"});
  Type("W1AW");
  form.SetFocus(ExchangeBox);
  Type("5'");  // without LogandSendF6Enabled the apostrophe does nothing
  EXPECT_EQ(Boxes(), "W1AW|5_");
  ctx->Config.LogandSendF6Enabled = true;
  Type("'");
  EXPECT_EQ(ctx->Log.QSOCount, 3);
  EXPECT_EQ(TakeRequests(), Lines{"SendMessageKey 6"});
  Log("N5DX", "4");  // the apostrophe's flag does not outlive its key
  EXPECT_EQ(TakeRequests(), Lines{"SendMessageKey 5"});
  Key("Tab");
  EXPECT_EQ(Boxes(), "_|");
}

TEST_F(KeyboardEntryTest, InsertSendsTheCallWithTheRightExchangeMessage) {
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
    Type(row.call);
    if (*row.exchange) {
      form.SetFocus(ExchangeBox);
      Type(row.exchange);
      form.SetFocus(CallBox);
    }
    Key(row.key);
    EXPECT_EQ(TakeRequests(), Lines{row.sent}) << row.name;
    EXPECT_EQ(Boxes(), row.boxes) << row.name;
  }
  EXPECT_TRUE(station.CallSendArmed);

  NewLog(Generic, true);  // phone: the voice keyer, without a portable mark
  ctx->Config.DVKSendCallEnabled = true;
  ctx->Config.DVKSendExchEnabled = true;
  ctx->Config.DVKCallExchMode = 1;
  form.ArrangeForMode();
  form.CheckThanks.Value = true;
  for (const char* call : {"K3ZZZ/P", "K3ZZZ/M", "K3ZZZ/7", "P"}) {
    form.InData_Change(CallBox, call, 0);
    Key("Insert");
  }
  EXPECT_EQ(TakeRequests(), (Lines{"SendCallAndExchange K3ZZZ Call Exchange Thanks (Normal)",
                                   "SendCallAndExchange K3ZZZ Call Exchange Thanks (Normal)",
                                   "SendCallAndExchange K3ZZZ/7 Call Exchange Thanks (Normal)",
                                   "SendCallAndExchange P Call Exchange Thanks (Normal)"}));
}

TEST_F(KeyboardEntryTest, KeysWithoutALogDoNothing) {
  ASSERT_TRUE(started);
  form.SetFocus(CallBox);
  for (const char* key : {"F1", "Alt+M", "Ctrl+Down", "F9", "Insert", "Enter"}) Key(key);
  form.InData_KeyPress(CallBox, 'k');
  EXPECT_TRUE(station.Requests.empty());
  EXPECT_EQ(form.InData[CallBox].Text, "");
  EXPECT_EQ(ctx->Radio.ActiveRadio, 1);
}

}  // namespace
}  // namespace tarnix
