#pragma once
// The band chooser: draws a BandMode and forwards the operator's clicks. It
// closes when the model hides itself; the model's refusals are message boxes
// it shows through the platform.

#include <QDialog>

#include <array>
#include <utility>

#include "core/BandMode.h"

class QCheckBox;
class QLabel;
class QPushButton;

namespace tarnix {

class BandModeView : public QDialog {
  Q_OBJECT

 public:
  explicit BandModeView(BandMode& model, QWidget* parent = nullptr);

  // Copies every member the dialog shows from the model.
  void Refresh();
  // Escape and the frame's close: the form's own answer to a frame close.
  void reject() override;

  // Runs the dialog modally over a BandMode, for the form host.
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

  BandMode& Model;
  bool Refreshing = false;
  std::array<QCheckBox*, BandRowCount + 1> BandBox{};  // rows 1..12; 0 unused
  std::array<QLabel*, 9> NoteLines{};
  QPushButton* Command1 = nullptr;
  QPushButton* Command2 = nullptr;
};

}  // namespace tarnix
