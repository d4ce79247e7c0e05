#pragma once
// The shared part of a modal dialog over a form model: every operator action
// runs on the model, the dialog redraws from it, and it closes once the model
// has hidden itself. Escape and the frame's close do what the form does on a
// frame close.

#include <QDialog>

#include <utility>

#include "platform/Platform.h"

namespace tarnix {

class ModalFormView : public QDialog {
 public:
  ModalFormView(FormModel& form, QWidget* parent) : QDialog(parent), Form(form) {}

  // Copies every member the dialog shows from the model.
  virtual void Refresh() = 0;
  void reject() override { Forward([this] { Form.CloseByFrame(); }, QDialog::Rejected); }

  // Runs a View over its Model modally, for the form host.
  template <class View, class Model>
  static void RunModal(FormModel& form, QWidget* parent) {
    auto* model = dynamic_cast<Model*>(&form);
    if (!model) return;
    View view(*model, parent);
    view.exec();
  }

 protected:
  template <class Action>
  void Forward(Action&& action, int result = QDialog::Accepted) {
    if (Refreshing) return;
    std::forward<Action>(action)();
    Refresh();
    if (!Form.Visible) done(result);
  }

  FormModel& Form;
  bool Refreshing = false;
};

}  // namespace tarnix
