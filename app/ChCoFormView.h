#pragma once
// The contest chooser: draws a ChCoForm and forwards the operator's clicks.
// It closes when the model hides itself.

#include <QDialog>

#include <array>
#include <utility>

#include "core/ChCoForm.h"

class QComboBox;
class QGroupBox;
class QListWidget;
class QPushButton;
class QRadioButton;

namespace tarnix {

class ChCoFormView : public QDialog {
  Q_OBJECT

 public:
  explicit ChCoFormView(ChCoForm& model, QWidget* parent = nullptr);

  // Copies every member the dialog shows from the model.
  void Refresh();
  // Escape and the frame's close: the form's own answer to a frame close.
  void reject() override;

  // Runs the dialog modally over a ChCoForm, for the form host.
  static void RunModal(FormModel& form, QWidget* parent);

 private:
  // Runs an operator action on the model, redraws, and closes the dialog with
  // the given result once the model has hidden itself.
  template <class Action>
  void Forward(Action&& action, int result = QDialog::Accepted) {
    if (Refreshing) return;
    std::forward<Action>(action)();
    Refresh();
    if (!Model.Visible) done(result);
  }

  ChCoForm& Model;
  bool Refreshing = false;
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
