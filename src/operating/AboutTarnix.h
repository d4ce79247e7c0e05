#pragma once
// AboutTarnix: the program's name and version, shown twice in a run's life:
// as the welcome screen at start-up, which closes itself after a second and
// cannot be dismissed, and from Help > About, which waits for OK.

#include <memory>
#include <string>

#include "platform/Controls.h"
#include "platform/Platform.h"

namespace tarnix {

class AboutTarnix : public FormModel {
 public:
  // welcome: the start-up screen; otherwise the About box.
  AboutTarnix(TimerFactory& timers, bool welcome);

  std::string FormName() const override { return "AboutTarnix"; }
  void CloseByFrame() override { Command1_Click(); }

  void Command1_Click();  // OK
  void Timer1_Timer();

  std::string Caption;
  Label ProgramLabel{"TARNIX"};
  Label VersionLabel{"Version 0.1"};
  Label PurposeLabel{"Logging for amateur-radio contests"};
  Button Command1{"OK"};
  std::unique_ptr<Timer> Timer1;
};

}  // namespace tarnix
