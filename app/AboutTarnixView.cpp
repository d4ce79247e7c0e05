#include "AboutTarnixView.h"

#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include "ViewBinding.h"
#include "platform/qt/QtConvert.h"

namespace tarnix {

AboutTarnixView::AboutTarnixView(AboutTarnix& model, QWidget* parent) : ModalFormView(model, parent), Model(model) {
  auto* layout = new QVBoxLayout(this);
  ProgramLabel = MakeLabel("ProgramLabel", this);
  QFont big = ProgramLabel->font();
  big.setPointSize(big.pointSize() * 2);
  big.setBold(true);
  ProgramLabel->setFont(big);
  VersionLabel = MakeLabel("VersionLabel", this);
  PurposeLabel = MakeLabel("PurposeLabel", this);
  Command1 = new QPushButton(this);
  Command1->setObjectName(QStringLiteral("Command1"));
  connect(Command1, &QPushButton::clicked, this, [this] { Forward([this] { Model.Command1_Click(); }); });
  for (QWidget* w : {static_cast<QWidget*>(ProgramLabel), static_cast<QWidget*>(VersionLabel),
                     static_cast<QWidget*>(PurposeLabel), static_cast<QWidget*>(Command1)})
    layout->addWidget(w, 0, Qt::AlignHCenter);
  Refresh();
}

void AboutTarnixView::Refresh() {
  QScopedValueRollback<bool> guard(Refreshing, true);
  setWindowTitle(ToQt(Model.Caption));
  Show(*ProgramLabel, Model.ProgramLabel);
  Show(*VersionLabel, Model.VersionLabel);
  Show(*PurposeLabel, Model.PurposeLabel);
  Show(*Command1, Model.Command1);
}

QWidget* AboutTarnixView::MakeModeless(FormModel& form, QWidget* parent) {
  auto* model = dynamic_cast<AboutTarnix*>(&form);
  return model ? new AboutTarnixView(*model, parent) : nullptr;
}

}  // namespace tarnix
