// Band and mode from the keyboard, the swap of the two radios, and the
// sending controls that follow the band's mode.

#include <array>

#include "core/Bands.h"
#include "core/Text.h"
#include "operating/LogForm.h"

namespace tarnix {
namespace {

// The band rows from the highest band to the lowest: 2m, 6m, 10m, 12m, 15m,
// 17m, 20m, 30m, 40m, 80m, 160m. Ctrl-Down walks it forward, Ctrl-Up back,
// round from 160m to 2m.
constexpr std::array<int, 11> kBandRing = {8, 7, 1, 9, 2, 10, 3, 11, 4, 5, 6};

int RingPlace(int row) {
  for (std::size_t i = 0; i < kBandRing.size(); ++i)
    if (kBandRing[i] == row) return static_cast<int>(i);
  return -1;
}

bool ValidBand(int bandIndex) { return bandIndex >= 1 && bandIndex <= BandIndexCount; }

}  // namespace

// The next enabled band in the ring, same mode. With no other band enabled
// the walk comes back to the band it started on.
void LogForm::ChangeBand(int step) {
  ContestState& s = Ctx.Contest;
  if (!ValidBand(s.BandIndex)) return;
  int place = RingPlace(BandRow(s.BandIndex));
  if (place < 0) return;
  const int count = static_cast<int>(kBandRing.size());
  for (int i = 0; i < count; ++i) {
    place = (place + step + count) % count;
    if (s.BandEnabled[static_cast<std::size_t>(kBandRing[static_cast<std::size_t>(place)])]) break;
  }
  int row = kBandRing[static_cast<std::size_t>(place)];
  s.BandIndex = static_cast<int16_t>(IsCWBand(s.BandIndex) ? BandIndexCW(row) : BandIndexSSB(row));
  TakeBandOnActiveRadio();
  RedrawQSONrLabel();
  const RadioState& radio = Ctx.Radio;
  int active = radio.ActiveRadio;
  if (active >= 1 && active <= 2 && radio.RadioRunning[static_cast<std::size_t>(active)])
    Radios.SetRadioFrequency(active, false,
                      radio.LastFreqByBand[static_cast<std::size_t>(active)][static_cast<std::size_t>(s.BandIndex)]);
  if (Traits().MultsFollowBand) RedrawMultipliers();
}

// CW to phone and back on the same band row, in logs with both modes. The
// radio's last frequency on the band goes with it.
void LogForm::ChangeMode() {
  ContestState& s = Ctx.Contest;
  if (!s.ModeEnabled[1] || !s.ModeEnabled[2] || !ValidBand(s.BandIndex)) return;
  int from = s.BandIndex;
  int to = from;
  if (from >= 9 && from <= 16) to = from - 8;
  else if (from >= 17 && from <= 20) to = from + 4;
  else if (from >= 1 && from <= 8) to = from + 8;
  else to = from - 4;
  RadioState& radio = Ctx.Radio;
  int active = radio.ActiveRadio;
  if (active >= 1 && active <= 2) {
    auto& freqs = radio.LastFreqByBand[static_cast<std::size_t>(active)];
    freqs[static_cast<std::size_t>(to)] = freqs[static_cast<std::size_t>(from)];
  }
  s.BandIndex = static_cast<int16_t>(to);
  TakeBandOnActiveRadio();
  ArrangeForMode();
  if (active >= 1 && active <= 2 && radio.RadioRunning[static_cast<std::size_t>(active)]) Radios.SetRadioMode(active, to);
  RedrawQSONrLabel();
}

// A band chosen on the keyboard is the active radio's band; the call in the
// box is checked again for it when the exchange box is entered.
void LogForm::TakeBandOnActiveRadio() {
  RadioState& radio = Ctx.Radio;
  (radio.ActiveRadio == 2 ? radio.RadioBand2 : radio.RadioBand1) = Ctx.Contest.BandIndex;
  ScannedCall.reset();
}

void LogForm::SwapActiveRadio(int target) {
  RadioState& radio = Ctx.Radio;
  ContestState& s = Ctx.Contest;
  int to = target != 0 ? target : radio.ActiveRadio == 2 ? 1 : 2;
  if (to != radio.ActiveRadio) {
    if (Ctx.Config.F9Activated) Radios.SetF9Line(to == 2);
    (to == 2 ? radio.RadioBand1 : radio.RadioBand2) = s.BandIndex;
    int16_t kept = to == 2 ? radio.RadioBand2 : radio.RadioBand1;
    if (ValidBand(kept) && s.BandEnabled[static_cast<std::size_t>(BandRow(kept))]) s.BandIndex = kept;
    radio.ActiveRadio = static_cast<int16_t>(to);
    ScannedCall.reset();
  }
  ActiveRadioLabel.Caption = to == 2 ? "Radio2" : "Radio1";
  ActiveRadioLabel.ForeColor = QSONrLabel.ForeColor = to == 2 ? ColourRed : ColourBlue;
  RedrawQSONrLabel();
  ArrangeForMode();
  if (Traits().StatsFollowRadio) UpdateStats();
}

// CW: the PC's speed (and the Winkeyer's, when it is open). Phone: the voice
// keyer's call-and-exchange mode and the four boxes of what Insert speaks.
void LogForm::ArrangeForMode() {
  int band = Ctx.Contest.BandIndex;
  bool cw = ValidBand(band) && IsCWBand(band);
  bool winkey = cw && Ctx.Keying.WinkeyOpen;
  lblCWPC.Caption = cw ? "CW-PC:" : "DVK:";
  lblSpeedCW.Caption = std::to_string(Ctx.Keying.CWSpeed);
  lblSpeedCW.Visible = cw;
  lblCWWK.Visible = lblSpeedWK.Visible = winkey;
  if (winkey) ColourSpeedLabels();
  DVKSpeedLabel.Visible = !cw;
  DVKSpeedLabel.Caption = DvkCallExchModeName(Ctx.Config.DVKCallExchMode);
  for (CheckBox* box : {&CheckCall, &CheckExchange, &CheckGreeting, &CheckThanks}) box->Visible = !cw;
  CheckCall.Value = Ctx.Config.DVKSendCallEnabled;
  CheckExchange.Value = Ctx.Config.DVKSendExchEnabled;
}

// Red marks the speed that rules: the PC's (source 1), the Winkeyer's pot
// (2), or both (3).
void LogForm::ColourSpeedLabels() {
  int mode = Ctx.Keying.WinkeySpeedMode;
  lblCWPC.ForeColor = lblSpeedCW.ForeColor = mode == 2 ? ColourBlack : ColourRed;
  lblCWWK.ForeColor = lblSpeedWK.ForeColor = mode == 1 ? ColourBlack : ColourRed;
}

}  // namespace tarnix
