#pragma once
// The band chooser: draws a BandMode and forwards the operator's clicks. It
// closes when the model hides itself; the model's refusals are message boxes
// it shows through the platform.


#include <array>

#include "ModalFormView.h"
#include "core/BandMode.h"

class QCheckBox;
class QLabel;
class QPushButton;

namespace tarnix {

class BandModeView : public ModalFormView {
  Q_OBJECT

 public:
  explicit BandModeView(BandMode& model, QWidget* parent = nullptr);

  void Refresh() override;

 private:
  BandMode& Model;
  std::array<QCheckBox*, BandRowCount + 1> BandBox{};  // rows 1..12; 0 unused
  std::array<QLabel*, 9> NoteLines{};
  QPushButton* Command1 = nullptr;
  QPushButton* Command2 = nullptr;
};

}  // namespace tarnix
