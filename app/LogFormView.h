#pragma once
// The main window: draws a LogForm and forwards the operator's actions to it.
//
// Every widget is named after the model member it shows (InData0, QSONrLabel,
// mnuFileNewLog...). The window keeps no state of the log: Refresh() copies
// the model into the widgets after every forwarded action.

#include <QMainWindow>

#include <array>
#include <utility>
#include <vector>

#include "operating/LogForm.h"

class QAction;
class QCheckBox;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;

namespace tarnix {

class LogFormView : public QMainWindow {
  Q_OBJECT

 public:
  explicit LogFormView(LogForm& model, QWidget* parent = nullptr);
  ~LogFormView() override;

  // Copies every member the window shows from the model.
  void Refresh();

 protected:
  // The entry boxes' keys and focus go to the model before the boxes see them.
  bool eventFilter(QObject* watched, QEvent* event) override;
  // The frame's close is File > Exit: it closes only when the model agrees.
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildMenus();
  void BuildForm();
  QAction* AddAction(QMenu* menu, const char* name, const MenuItem& item, void (LogForm::*click)());
  bool KeyPressed(int box, const QKeyEvent& key);
  void KeyboardCWKeyPressed(const QKeyEvent& key);
  void RefreshBox(QLineEdit& edit, const TextBox& model);
  void Exit();

  // Runs an operator action on the model, then redraws. Actions raised by the
  // widgets' own signals while Refresh() sets them are not the operator's and
  // are dropped.
  template <class Action>
  void Forward(Action&& action) {
    if (Refreshing) return;
    std::forward<Action>(action)();
    Refresh();
    if (Model.EndRequested) EndProgram();
  }
  // The model found a log it cannot read and the program ends.
  void EndProgram();

  LogForm& Model;
  bool Refreshing = false;
  bool ExitAgreed = false;

  QWidget* Form = nullptr;
  std::array<QLineEdit*, 2> InData{};
  QLineEdit* KeyboardCWText = nullptr;
  QPushButton* AddButton = nullptr;
  QPushButton* CancelButton = nullptr;
  std::vector<std::pair<QLabel*, const Label*>> Labels;
  std::vector<std::pair<QAction*, const MenuItem*>> Menus;
  std::vector<std::pair<QCheckBox*, const CheckBox*>> Checks;
};

}  // namespace tarnix
