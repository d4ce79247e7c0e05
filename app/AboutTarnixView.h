#pragma once
// The About box and the welcome screen: draws an AboutTarnix. The welcome
// screen is shown modeless and closes when its model's timer hides it.

#include "ModalFormView.h"
#include "operating/AboutTarnix.h"

class QLabel;
class QPushButton;

namespace tarnix {

class AboutTarnixView : public ModalFormView {
  Q_OBJECT

 public:
  AboutTarnixView(AboutTarnix& model, QWidget* parent = nullptr);
  void Refresh() override;

  // The welcome screen's window, for the form host.
  static QWidget* MakeModeless(FormModel& form, QWidget* parent);

 private:
  AboutTarnix& Model;
  QLabel* ProgramLabel = nullptr;
  QLabel* VersionLabel = nullptr;
  QLabel* PurposeLabel = nullptr;
  QPushButton* Command1 = nullptr;
};

}  // namespace tarnix
