#include "core/ChCoForm.h"

#include <algorithm>

namespace tarnix {
namespace {

// ContestIndex of each list position, in the list's sorted order.
constexpr std::array<int, ContestCount> kContestAt = {
    AllAsian, Ten, ArrlDx, Cqp, Cqww, CwOpen, Naqp, Neqp, Paqp, Sprint, Sweepstakes, Wpx, Generic};

void SetOption(OptionButton& b, const char* caption, bool value, bool enabled = true) {
  b.Caption = caption;
  b.Value = value;
  b.Enabled = enabled;
  b.Visible = true;
}

}  // namespace

int ChCoForm::ContestAtPosition(int position) { return kContestAt.at(static_cast<std::size_t>(position)); }

int ChCoForm::PositionOfContest(int contestIndex) {
  for (int p = 0; p < ContestCount; ++p)
    if (kContestAt[static_cast<std::size_t>(p)] == contestIndex) return p;
  return -1;
}

ChCoForm::ChCoForm(ContestState& state, bool& dialogCancelled)
    : State(state), DialogCancelled(dialogCancelled) {
  DialogCancelled = false;
  for (int contest : kContestAt) List1.Items.emplace_back(ContestTable(contest).ListText);
  ComboQTH.Items = {"AF", "AS", "EU", "NA", "OC", "SA"};
  ComboQTH.ListIndex = 3;
  List1_Click(3);
}

void ChCoForm::ShowModeFrame(bool phoneEnabled) {
  Frame1 = {"   Mode  ", true};
  SetOption(ButtonMode[0], "  Phone", false, phoneEnabled);
  SetOption(ButtonMode[1], "  CW", true);
}

void ChCoForm::List1_Click(int position) {
  List1.ListIndex = position;
  // Every selection starts from the same buttons, so nothing of an earlier
  // choice stays behind in a hidden group.
  ButtonMode = {};
  ButtonQTH = {};
  ButtonMode[1].Value = true;
  Frame1.Visible = false;
  Frame2.Visible = false;
  ComboQTH.Visible = false;

  switch (ContestAtPosition(position)) {
    case Ten:
    case Generic:
      break;
    case AllAsian:
    case Naqp:
    case Sprint:
    case Sweepstakes:
      ShowModeFrame(true);
      break;
    case ArrlDx:
      ShowModeFrame(true);
      Frame2 = {" QTH ", true};
      SetOption(ButtonQTH[0], " US/VE", true);
      SetOption(ButtonQTH[1], " DX", false);
      ButtonQTH[2].Visible = false;
      break;
    case Cqww:
    case Wpx:
      ShowModeFrame(true);
      Frame2 = {" QTH ", true};
      SetOption(ButtonQTH[0], " USA", true);
      SetOption(ButtonQTH[1], " VE", false);
      SetOption(ButtonQTH[2], "", false);
      ComboQTH.Visible = true;
      ComboQTH.Enabled = false;
      break;
    case Cqp:
      Frame1 = {"   Location   ", true};
      SetOption(ButtonMode[0], " In California", false);
      SetOption(ButtonMode[1], " Out of State", true);
      break;
    case Neqp:
      // The logger takes only the outside view of these two parties.
      Frame1 = {"   Location   ", true};
      SetOption(ButtonMode[0], " In N.E.", false, false);
      SetOption(ButtonMode[1], " Out of N.E.", true);
      break;
    case Paqp:
      Frame1 = {"   Location   ", true};
      SetOption(ButtonMode[0], " In PA", false, false);
      SetOption(ButtonMode[1], " Out of State", true);
      break;
    case CwOpen:
      ShowModeFrame(false);
      Frame2 = {" Contest Hours ", true};
      SetOption(ButtonQTH[0], " 1200-1559Z", false);
      SetOption(ButtonQTH[1], " 2000-2359Z", false);
      SetOption(ButtonQTH[2], " 0400-0759Z", true);
      break;
  }
}

void ChCoForm::ButtonMode_Click(int index) {
  if (!ButtonMode.at(static_cast<std::size_t>(index)).Enabled) return;
  for (std::size_t i = 0; i < ButtonMode.size(); ++i) ButtonMode[i].Value = static_cast<int>(i) == index;
}

void ChCoForm::ButtonQTH_Click(int index) {
  if (!ButtonQTH.at(static_cast<std::size_t>(index)).Enabled) return;
  for (std::size_t i = 0; i < ButtonQTH.size(); ++i) ButtonQTH[i].Value = static_cast<int>(i) == index;
  ComboQTH.Enabled = ButtonQTH[2].Value;
}

void ChCoForm::ComboQTH_Click(int index) {
  if (ComboQTH.Enabled) ComboQTH.ListIndex = index;
}

void ChCoForm::CmdOK_Click() {
  int contest = ContestAtPosition(List1.ListIndex);
  State.ContestIndex = static_cast<int16_t>(contest);
  if (contest == Cqp || contest == Paqp || contest == Ten || contest == Neqp) {
    State.InState = ButtonMode[0].Value;  // the log step sets both modes
  } else if (contest == CwOpen) {
    State.CWOStartHour = ButtonQTH[0].Value ? 1200 : ButtonQTH[1].Value ? 2000 : 400;
  } else {
    State.ModeEnabled[1] = ButtonMode[0].Value;
    State.ModeEnabled[2] = ButtonMode[1].Value;
  }
  if (contest == Cqww || contest == Wpx) {
    State.StationInUSA = ButtonQTH[0].Value;
    State.StationInCanada = ButtonQTH[1].Value;
    if (ButtonQTH[2].Value) State.StationContinent = ComboQTH.Items.at(static_cast<std::size_t>(ComboQTH.ListIndex));
  }
  if (contest == ArrlDx) State.IsUSVEStation = ButtonQTH[0].Value;
  Visible = false;
}

void ChCoForm::CmdCancel_Click() {
  DialogCancelled = true;
  Visible = false;
}

bool MakeChoice(ChCoForm& form, const ContestChoice& choice) {
  int position = ChCoForm::PositionOfContest(choice.ContestIndex);
  if (position < 0) return false;
  form.List1_Click(position);
  auto offered = [](const OptionButton& b, const Frame& frame) { return frame.Visible && b.Visible && b.Enabled; };
  for (auto [button, caption] : {std::pair{choice.ModeButton, "   Mode  "}, {choice.LocationButton, "   Location   "}}) {
    if (button < 0) continue;
    if (button > 1 || form.Frame1.Caption != caption ||
        !offered(form.ButtonMode[static_cast<std::size_t>(button)], form.Frame1))
      return false;
    form.ButtonMode_Click(button);
  }
  if (choice.QthButton >= 0) {
    if (choice.QthButton > 2 || !offered(form.ButtonQTH[static_cast<std::size_t>(choice.QthButton)], form.Frame2))
      return false;
    form.ButtonQTH_Click(choice.QthButton);
  }
  if (!choice.Continent.empty()) {
    const auto& items = form.ComboQTH.Items;
    auto at = std::find(items.begin(), items.end(), choice.Continent);
    if (at == items.end() || !form.ComboQTH.Visible || !form.ComboQTH.Enabled) return false;
    form.ComboQTH_Click(static_cast<int>(at - items.begin()));
  }
  form.CmdOK_Click();
  return true;
}

void QueueContestChoice(ScriptedFormHost& forms, const ContestChoice& choice) {
  forms.Actions["ChCoForm"].push_back([choice](FormModel& form) { MakeChoice(static_cast<ChCoForm&>(form), choice); });
}

void QueueContestChoice(ScriptedFormHost& forms, int contestIndex, bool phone) {
  forms.Actions["ChCoForm"].push_back([contestIndex, phone](FormModel& form) {
    auto& chooser = static_cast<ChCoForm&>(form);
    chooser.List1_Click(ChCoForm::PositionOfContest(contestIndex));
    if (chooser.Frame1.Visible && chooser.ButtonMode[0].Caption == "  Phone") chooser.ButtonMode_Click(phone ? 0 : 1);
    chooser.CmdOK_Click();
  });
}

}  // namespace tarnix
