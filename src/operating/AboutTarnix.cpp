#include "operating/AboutTarnix.h"

namespace tarnix {

AboutTarnix::AboutTarnix(TimerFactory& timers, bool welcome)
    : Caption(welcome ? "WELCOME" : "About TARNIX"), Timer1(timers.CreateTimer([this] { Timer1_Timer(); })) {
  Command1.Enabled = !welcome;
  Timer1->SetInterval(1000);
  Timer1->SetEnabled(welcome);
}

void AboutTarnix::Command1_Click() {
  if (Command1.Enabled) Hide();
}

void AboutTarnix::Timer1_Timer() {
  Timer1->SetEnabled(false);
  Hide();
}

}  // namespace tarnix
