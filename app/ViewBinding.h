#pragma once
// Setters that copy a control's model state into its widget. Every view's
// Refresh() is made of these, so a widget shows its model member and nothing
// else.

#include <QPalette>

#include "platform/Controls.h"

class QAbstractButton;
class QAction;
class QComboBox;
class QLabel;
class QWidget;

namespace tarnix {

// Sets one colour role of a widget's palette from a model colour.
void SetColour(QWidget& widget, QPalette::ColorRole role, int32_t bgr);

void Show(QLabel& widget, const Label& label);
void Show(QAbstractButton& widget, const Button& button);
void Show(QAbstractButton& widget, const OptionButton& option);
void Show(QAbstractButton& widget, const CheckBox& check);
void Show(QAction& action, const MenuItem& item);
// A drop list: its items, the selected one, shown and enabled.
void Show(QComboBox& widget, const ListBox& list);

// A plain-text label named after its model member, keeping its place in the
// layout while hidden so the form does not jump as labels come and go.
QLabel* MakeLabel(const char* name, QWidget* parent);

}  // namespace tarnix
