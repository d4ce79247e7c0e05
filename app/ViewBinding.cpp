#include "ViewBinding.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QLabel>

#include "platform/qt/QtConvert.h"

namespace tarnix {

void SetColour(QWidget& widget, QPalette::ColorRole role, int32_t bgr) {
  QColor colour = ColourFromBgr(bgr);
  if (widget.palette().color(role) == colour) return;
  QPalette palette = widget.palette();
  palette.setColor(role, colour);
  widget.setPalette(palette);
}

void Show(QLabel& widget, const Label& label) {
  widget.setText(ToQt(label.Caption));
  widget.setVisible(label.Visible);
  widget.setEnabled(label.Enabled);
  SetColour(widget, QPalette::WindowText, label.ForeColor);
}

void Show(QAbstractButton& widget, const Button& button) {
  widget.setText(ToQt(button.Caption));
  widget.setVisible(button.Visible);
  widget.setEnabled(button.Enabled);
}

void Show(QAbstractButton& widget, const OptionButton& option) {
  widget.setText(ToQt(option.Caption));
  widget.setVisible(option.Visible);
  widget.setEnabled(option.Enabled);
  widget.setChecked(option.Value);
}

void Show(QAbstractButton& widget, const CheckBox& check) {
  widget.setText(ToQt(check.Caption));
  widget.setVisible(check.Visible);
  widget.setEnabled(check.Enabled);
  widget.setChecked(check.Value);
}

void Show(QAction& action, const MenuItem& item) {
  // Captions mark their access key with '&' exactly as Qt does.
  action.setText(ToQt(item.Caption));
  action.setVisible(item.Visible);
  action.setEnabled(item.Enabled);
  action.setCheckable(item.Checked);
  action.setChecked(item.Checked);
}

void Show(QComboBox& widget, const ListBox& list) {
  QStringList items;
  for (const std::string& item : list.Items) items << ToQt(item);
  if (widget.count() != items.size()) {
    widget.clear();
    widget.addItems(items);
  }
  for (int i = 0; i < widget.count(); ++i) widget.setItemText(i, items[i]);
  widget.setCurrentIndex(list.ListIndex);
  widget.setVisible(list.Visible);
  widget.setEnabled(list.Enabled);
}

QLabel* MakeLabel(const char* name, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(QString::fromLatin1(name));
  label->setTextFormat(Qt::PlainText);
  QSizePolicy policy = label->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  label->setSizePolicy(policy);
  return label;
}

}  // namespace tarnix
