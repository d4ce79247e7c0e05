#pragma once
// The contest chooser: draws a ChCoForm and forwards the operator's clicks.
// It closes when the model hides itself.


#include <array>

#include "ModalFormView.h"
#include "core/ChCoForm.h"

class QComboBox;
class QGroupBox;
class QListWidget;
class QPushButton;
class QRadioButton;

namespace tarnix {

class ChCoFormView : public ModalFormView {
  Q_OBJECT

 public:
  explicit ChCoFormView(ChCoForm& model, QWidget* parent = nullptr);

  void Refresh() override;

 private:
  ChCoForm& Model;
  QListWidget* List1 = nullptr;
  QGroupBox* Frame1 = nullptr;
  QGroupBox* Frame2 = nullptr;
  std::array<QRadioButton*, 2> ButtonMode{};
  std::array<QRadioButton*, 3> ButtonQTH{};
  QComboBox* ComboQTH = nullptr;
  QPushButton* CmdOK = nullptr;
  QPushButton* CmdCancel = nullptr;
};

}  // namespace tarnix
