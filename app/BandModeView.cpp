#include "BandModeView.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include "ViewBinding.h"
#include "platform/qt/QtConvert.h"

namespace tarnix {

BandModeView::BandModeView(BandMode& model, QWidget* parent)
    : ModalFormView(model, parent), Model(model) {
  setWindowTitle(QStringLiteral("Select Bands"));
  auto* boxes = new QVBoxLayout;
  for (int row = 1; row <= BandRowCount; ++row) {
    auto* box = new QCheckBox(this);
    box->setObjectName(QStringLiteral("BandBox%1").arg(row));
    boxes->addWidget(box);
    connect(box, &QCheckBox::clicked, this, [this, row] { Forward([&] { Model.BandBox_Click(row); }); });
    BandBox[static_cast<std::size_t>(row)] = box;
  }
  boxes->addStretch(1);

  auto* notes = new QVBoxLayout;
  for (std::size_t i = 0; i < NoteLines.size(); ++i) {
    NoteLines[i] = MakeLabel(QStringLiteral("NoteLine%1").arg(i).toLatin1().constData(), this);
    notes->addWidget(NoteLines[i]);
  }
  notes->addStretch(1);

  Command1 = new QPushButton(this);
  Command1->setObjectName(QStringLiteral("Command1"));
  Command1->setDefault(true);
  connect(Command1, &QPushButton::clicked, this, [this] { Forward([this] { Model.Command1_Click(); }); });
  Command2 = new QPushButton(this);
  Command2->setObjectName(QStringLiteral("Command2"));
  connect(Command2, &QPushButton::clicked, this,
          [this] { Forward([this] { Model.Command2_Click(); }, QDialog::Rejected); });

  auto* columns = new QHBoxLayout;
  columns->addLayout(boxes);
  columns->addSpacing(16);
  columns->addLayout(notes);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(Command1);
  buttons->addWidget(Command2);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(columns);
  layout->addLayout(buttons);
  Refresh();
}

void BandModeView::Refresh() {
  QScopedValueRollback<bool> guard(Refreshing, true);
  for (int row = 1; row <= BandRowCount; ++row)
    Show(*BandBox[static_cast<std::size_t>(row)], Model.BandBox[static_cast<std::size_t>(row)]);
  for (std::size_t i = 0; i < NoteLines.size(); ++i) NoteLines[i]->setText(ToQt(Model.NoteLines[i]));
  Show(*Command1, Model.Command1);
  Show(*Command2, Model.Command2);
}

}  // namespace tarnix
