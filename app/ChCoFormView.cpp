#include "ChCoFormView.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include "ViewBinding.h"
#include "platform/qt/QtConvert.h"

namespace tarnix {
namespace {

template <class Widget>
Widget* Named(const QString& name, QWidget* parent) {
  auto* widget = new Widget(parent);
  widget->setObjectName(name);
  return widget;
}

// The model keeps one option of a group set; Qt's own exclusivity would
// refuse the state where a group shows none set.
QRadioButton* Option(const QString& name, QWidget* parent) {
  auto* button = Named<QRadioButton>(name, parent);
  button->setAutoExclusive(false);
  return button;
}

}  // namespace

ChCoFormView::ChCoFormView(ChCoForm& model, QWidget* parent)
    : ModalFormView(model, parent), Model(model) {
  setWindowTitle(QStringLiteral("Choose Contest"));
  List1 = Named<QListWidget>(QStringLiteral("List1"), this);
  List1->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);  // whole names, no scrolling
  connect(List1, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0) Forward([&] { Model.List1_Click(row); });
  });

  Frame1 = Named<QGroupBox>(QStringLiteral("Frame1"), this);
  auto* modes = new QVBoxLayout(Frame1);
  for (std::size_t i = 0; i < ButtonMode.size(); ++i) {
    ButtonMode[i] = Option(QStringLiteral("ButtonMode%1").arg(i), Frame1);
    modes->addWidget(ButtonMode[i]);
    connect(ButtonMode[i], &QRadioButton::clicked, this,
            [this, i] { Forward([&] { Model.ButtonMode_Click(static_cast<int>(i)); }); });
  }

  // The third location option stands beside the continent list it enables.
  Frame2 = Named<QGroupBox>(QStringLiteral("Frame2"), this);
  auto* places = new QGridLayout(Frame2);
  for (std::size_t i = 0; i < ButtonQTH.size(); ++i) {
    ButtonQTH[i] = Option(QStringLiteral("ButtonQTH%1").arg(i), Frame2);
    places->addWidget(ButtonQTH[i], static_cast<int>(i), 0);
    connect(ButtonQTH[i], &QRadioButton::clicked, this,
            [this, i] { Forward([&] { Model.ButtonQTH_Click(static_cast<int>(i)); }); });
  }
  ComboQTH = Named<QComboBox>(QStringLiteral("ComboQTH"), Frame2);
  places->addWidget(ComboQTH, 2, 1);
  connect(ComboQTH, &QComboBox::activated, this, [this](int index) { Forward([&] { Model.ComboQTH_Click(index); }); });

  CmdOK = Named<QPushButton>(QStringLiteral("CmdOK"), this);
  CmdOK->setDefault(true);
  connect(CmdOK, &QPushButton::clicked, this, [this] { Forward([this] { Model.CmdOK_Click(); }); });
  CmdCancel = Named<QPushButton>(QStringLiteral("CmdCancel"), this);
  connect(CmdCancel, &QPushButton::clicked, this,
          [this] { Forward([this] { Model.CmdCancel_Click(); }, QDialog::Rejected); });

  auto* groups = new QVBoxLayout;
  groups->addWidget(Frame1);
  groups->addWidget(Frame2);
  groups->addStretch(1);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(CmdOK);
  buttons->addWidget(CmdCancel);
  auto* top = new QHBoxLayout;
  top->addWidget(List1);
  top->addLayout(groups);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(top);
  layout->addLayout(buttons);
  Refresh();
}

void ChCoFormView::Refresh() {
  QScopedValueRollback<bool> guard(Refreshing, true);
  QStringList items;
  for (const std::string& item : Model.List1.Items) items << ToQt(item);
  if (List1->count() != items.size()) {
    List1->clear();
    List1->addItems(items);
  }
  for (int row = 0; row < List1->count(); ++row) List1->item(row)->setText(items[row]);
  List1->setCurrentRow(Model.List1.ListIndex);
  List1->setVisible(Model.List1.Visible);
  List1->setEnabled(Model.List1.Enabled);

  Frame1->setTitle(ToQt(Model.Frame1.Caption));
  Frame1->setVisible(Model.Frame1.Visible);
  for (std::size_t i = 0; i < ButtonMode.size(); ++i) Show(*ButtonMode[i], Model.ButtonMode[i]);
  Frame2->setTitle(ToQt(Model.Frame2.Caption));
  Frame2->setVisible(Model.Frame2.Visible);
  for (std::size_t i = 0; i < ButtonQTH.size(); ++i) Show(*ButtonQTH[i], Model.ButtonQTH[i]);

  Show(*ComboQTH, Model.ComboQTH);

  Show(*CmdOK, Model.CmdOK);
  Show(*CmdCancel, Model.CmdCancel);
}

}  // namespace tarnix
