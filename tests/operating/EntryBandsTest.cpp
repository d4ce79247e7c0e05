// Bands, modes and radios from the keyboard: the band ring, the change of
// mode in mixed logs, and the swap of the active radio.

#include "operating/LoggerTest.h"

namespace tarnix {
namespace {

using EntryBandsTest = KeyboardTest;

TEST_F(EntryBandsTest, F9SwapsRadiosAndCtrlF9TheirFrequencies) {
  NewLog(Cqww);
  ctx.Config.F9Activated = true;
  run.Key("Ctrl+Down");  // radio 1 to 40m
  run.Type("K3ZZZ");
  run.Key("F9");
  EXPECT_EQ(ctx.Radio.ActiveRadio, 2);
  EXPECT_EQ(ctx.Contest.BandIndex, 3);  // radio 2 is still where the log started
  EXPECT_EQ(ctx.Radio.RadioBand1, 4);
  EXPECT_EQ(form.ActiveRadioLabel.Caption, "Radio2");
  EXPECT_EQ(form.ActiveRadioLabel.ForeColor, ColourRed);
  EXPECT_EQ(form.QSONrLabel.ForeColor, ColourRed);
  EXPECT_EQ(form.QSONrLabel.Caption, "QSO Nr  1    (20m CW)");
  EXPECT_EQ(run.Boxes(), "K3ZZZ_|");  // a swap keeps the boxes
  run.Key("Ctrl+Down");
  run.Key("F9");
  EXPECT_EQ(ctx.Radio.ActiveRadio, 1);
  EXPECT_EQ(ctx.Radio.RadioBand2, 4);
  EXPECT_EQ(form.QSONrLabel.Caption + "|" + form.ActiveRadioLabel.Caption, "QSO Nr  1    (40m CW)|Radio1");
  EXPECT_EQ(form.ActiveRadioLabel.ForeColor, ColourBlue);

  // The QSO is logged on the radio and band of the moment.
  run.Key("F9");
  form.SetFocus(ExchangeBox);
  run.Key("Enter");
  EXPECT_EQ(ctx.Log.LogRecords.At(1).QRadio.Trimmed() + " " + std::to_string(ctx.Log.LogRecords.At(1).QBand), "2 4");

  run.Key("Ctrl+F9");  // only with both radios polled
  ctx.Radio.RadioRunning = {false, true, true};
  run.Key("Alt+F9");
  EXPECT_EQ(ctx.Radio.ActiveRadio, 2);
  EXPECT_EQ(station.TakeRequests(), (Lines{"SetF9Line on", "SetF9Line off", "SetF9Line on", "SwapRadioFrequencies"}));
}

TEST_F(EntryBandsTest, BandRingSkipsDisabledBandsAndKeepsTheMode) {
  auto walk = [this](const char* key, int presses) {
    std::string bands;
    for (int i = 0; i < presses; ++i) {
      run.Key(key);
      bands += form.QSONrLabel.Caption.substr(13) + " ";
    }
    return bands;
  };
  NewLog(Generic);  // every band row, WARC, 6m and 2m
  EXPECT_EQ(walk("Ctrl+Down", 11),
            "(30m CW) (40m CW) (80m CW) (160 CW) (2m  CW) (6m  CW) (10m CW) (12m CW) (15m CW) (17m CW) (20m CW) ");
  EXPECT_EQ(walk("Ctrl+Up", 2), "(17m CW) (15m CW) ");
  EXPECT_EQ(ctx.Contest.BandIndex, 2);
  EXPECT_EQ(ctx.Radio.RadioBand1, 2);
  ctx.Contest.BandIndex = 11;  // phone stays phone
  EXPECT_EQ(walk("Ctrl+Down", 3), "(30m SSB) (40m SSB) (80m SSB) ");
  EXPECT_EQ(ctx.Contest.BandIndex, 13);

  NewLog(Cqww);  // no WARC, no VHF
  EXPECT_EQ(walk("Ctrl+Down", 6), "(40m CW) (80m CW) (160 CW) (10m CW) (15m CW) (20m CW) ");
  EXPECT_EQ(walk("Ctrl+Up", 2), "(15m CW) (10m CW) ");

  for (int row = 1; row <= 12; ++row) ctx.Contest.BandEnabled[static_cast<std::size_t>(row)] = row == 3;
  ctx.Contest.BandIndex = 3;
  EXPECT_EQ(walk("Ctrl+Down", 1) + walk("Ctrl+Up", 1), "(20m CW) (20m CW) ");

  NewLog(Ten);  // one band: nowhere to go
  EXPECT_EQ(walk("Ctrl+Down", 1) + walk("Ctrl+Up", 1), "(10m CW) (10m CW) ");

  // A polled radio is sent its last frequency on the new band.
  NewLog(Cqww);
  ctx.Radio.RadioRunning[1] = true;
  ctx.Radio.LastFreqByBand[1][4] = 7012.5f;
  run.Key("Ctrl+Down");
  EXPECT_EQ(station.TakeRequests(), Lines{"SetRadioFrequency 1 7012.5"});
}

TEST_F(EntryBandsTest, CtrlLeftAndRightChangeTheModeInMixedLogs) {
  NewLog(Generic);
  ctx.Radio.LastFreqByBand[1][3] = 14025;
  std::string seen;
  for (int band : {3, 11, 9, 21, 17, 6, 24}) {
    ctx.Contest.BandIndex = static_cast<int16_t>(band);
    run.Key(band % 2 ? "Ctrl+Left" : "Ctrl+Right");
    seen += std::to_string(band) + ">" + std::to_string(ctx.Contest.BandIndex) + " ";
  }
  EXPECT_EQ(seen, "3>11 11>3 9>1 21>17 17>21 6>14 24>20 ");
  EXPECT_EQ(ctx.Radio.LastFreqByBand[1][11], 14025.0f);
  EXPECT_EQ(form.QSONrLabel.Caption, "QSO Nr  1    (    SSB)");
  EXPECT_EQ(form.lblCWPC.Caption, "DVK:");
  run.Key("Ctrl+Right");
  EXPECT_EQ(form.QSONrLabel.Caption + " " + form.lblCWPC.Caption, "QSO Nr  1    (    CW) CW-PC:");
  EXPECT_TRUE(form.lblSpeedCW.Visible && !form.DVKSpeedLabel.Visible && !form.CheckThanks.Visible);

  NewLog(Cqww);  // one mode
  run.Key("Ctrl+Left");
  EXPECT_EQ(ctx.Contest.BandIndex, 3);
}

}  // namespace
}  // namespace tarnix
