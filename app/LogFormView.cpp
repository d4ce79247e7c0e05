#include "LogFormView.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QFocusEvent>
#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QScopedValueRollback>

#include "KeyMap.h"
#include "ViewBinding.h"
#include "operating/Keys.h"
#include "platform/qt/QtConvert.h"

namespace tarnix {
LogFormView::LogFormView(LogForm& model, QWidget* parent) : QMainWindow(parent), Model(model) {
  setWindowTitle(QStringLiteral("TARNIX"));
  BuildMenus();
  BuildForm();
  Model.Changed = [this] { Refresh(); };
  Refresh();
}

LogFormView::~LogFormView() { Model.Changed = nullptr; }

QAction* LogFormView::AddAction(QMenu* menu, const char* name, const MenuItem& item, void (LogForm::*click)()) {
  QAction* action = menu->addAction(QString());
  action->setObjectName(QString::fromLatin1(name));
  Menus.emplace_back(action, &item);
  if (click) connect(action, &QAction::triggered, this, [this, click] { Forward([&] { (Model.*click)(); }); });
  return action;
}

void LogFormView::BuildMenus() {
  auto addMenu = [this](const char* name, const MenuItem& item) {
    QMenu* menu = menuBar()->addMenu(QString());
    menu->setObjectName(QString::fromLatin1(name));
    Menus.emplace_back(menu->menuAction(), &item);
    return menu;
  };
  QMenu* file = addMenu("mnuFile", Model.mnuFile);
  AddAction(file, "mnuFileNewLog", Model.mnuFileNewLog, &LogForm::mnuFileNewLog_Click);
  AddAction(file, "mnuFileOpenLog", Model.mnuFileOpenLog, &LogForm::mnuFileOpenLog_Click);
  AddAction(file, "mnuFileSave", Model.mnuFileSave, &LogForm::mnuFileSave_Click);
  AddAction(file, "mnuFileUserInfo", Model.mnuFileUserInfo, &LogForm::mnuFileUserInfo_Click);
  AddAction(file, "mnuFileBackup", Model.mnuFileBackup, &LogForm::mnuFileBackup_Click);
  file->addSeparator();
  for (int i = 1; i <= 4; ++i) {
    QByteArray name = QStringLiteral("mnuFileArray%1").arg(i).toLatin1();
    QAction* recent = AddAction(file, name.constData(), Model.mnuFileArray[static_cast<std::size_t>(i)], nullptr);
    connect(recent, &QAction::triggered, this, [this, i] { Forward([&] { Model.mnuFileArray_Click(i); }); });
  }
  file->addSeparator();
  QAction* exit = AddAction(file, "mnuFileExit", Model.mnuFileExit, nullptr);
  connect(exit, &QAction::triggered, this, [this] { Exit(); });

  QMenu* edit = addMenu("mnuEdit", Model.mnuEdit);
  AddAction(edit, "mnuEditLastEntry", Model.mnuEditLastEntry, &LogForm::mnuEditLastEntry_Click);
  AddAction(edit, "mnuEditKillLastEntry", Model.mnuEditKillLastEntry, &LogForm::mnuEditKillLastEntry_Click);
  AddAction(edit, "mnuEditKillALLEntries", Model.mnuEditKillALLEntries, &LogForm::mnuEditKillALLEntries_Click);
  edit->addSeparator();
  AddAction(edit, "mnuEditSelectBands", Model.mnuEditSelectBands, &LogForm::mnuEditSelectBands_Click);

  // The View windows are not written yet: their items show the model's state
  // and do nothing.
  QMenu* view = addMenu("mnuView", Model.mnuView);
  AddAction(view, "mnuViewMults", Model.mnuViewMults, nullptr);
  AddAction(view, "mnuViewCACounties", Model.mnuViewCACounties, nullptr);
  AddAction(view, "mnuViewARRLUSVEMults", Model.mnuViewARRLUSVEMults, nullptr);
  AddAction(view, "mnuViewZnCty", Model.mnuViewZnCty, nullptr);
  AddAction(view, "mnuViewCW", Model.mnuViewCW, nullptr);
  AddAction(view, "mnuViewDvK", Model.mnuViewDvK, nullptr);

  QMenu* help = addMenu("mnuHelp", Model.mnuHelp);
  AddAction(help, "mnuHelpAbout", Model.mnuHelpAbout, &LogForm::mnuHelpAbout_Click);
}

void LogFormView::BuildForm() {
  Form = new QWidget(this);
  Form->setObjectName(QStringLiteral("Form"));
  Form->setAutoFillBackground(true);  // so BackColor fills the window
  setCentralWidget(Form);
  auto* grid = new QGridLayout(Form);

  auto label = [this](const char* name, const Label& model) {
    QLabel* widget = MakeLabel(name, Form);
    Labels.emplace_back(widget, &model);
    return widget;
  };
  grid->addWidget(label("FileIDLabel", Model.FileIDLabel), 0, 0, 1, 6);
  // The keyboard CW box of Caps Lock takes the title line's place.
  grid->addWidget(label("KeyboardCWLabel", Model.KeyboardCWLabel), 0, 0);
  KeyboardCWText = new QLineEdit(Form);
  KeyboardCWText->setObjectName(QStringLiteral("KeyboardCWText"));
  KeyboardCWText->installEventFilter(this);
  KeyboardCWText->setContextMenuPolicy(Qt::NoContextMenu);  // it is only typed into
  grid->addWidget(KeyboardCWText, 0, 1, 1, 5);
  QLabel* last = label("LastQSOLabel", Model.LastQSOLabel);
  QFont bold = last->font();
  bold.setBold(true);
  last->setFont(bold);
  grid->addWidget(last, 1, 0, 1, 6);

  grid->addWidget(label("lblCallsign", Model.lblCallsign), 2, 0, 1, 2);
  grid->addWidget(label("lblExchange", Model.lblExchange), 2, 2, 1, 3);
  QFont entryFont = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  entryFont.setPointSize(14);
  for (int box : {CallBox, ExchangeBox}) {
    auto* edit = new QLineEdit(Form);
    edit->setObjectName(QStringLiteral("InData%1").arg(box));
    edit->setFont(entryFont);
    edit->installEventFilter(this);
    // Edits the box makes itself (Backspace, Delete, paste) and caret moves
    // reach the model; the model's own changes come back through Refresh().
    connect(edit, &QLineEdit::textEdited, this,
            [this, box, edit] { Forward([&] { Model.InData_Change(box, FromQt(edit->text()), edit->cursorPosition()); }); });
    auto caretMoved = [this, box, edit] {
      int start = edit->hasSelectedText() ? edit->selectionStart() : edit->cursorPosition();
      Forward([&] { Model.InData_SelChange(box, start, edit->selectionLength()); });
    };
    connect(edit, &QLineEdit::cursorPositionChanged, this, caretMoved);
    connect(edit, &QLineEdit::selectionChanged, this, caretMoved);
    InData[static_cast<std::size_t>(box)] = edit;
  }
  grid->addWidget(InData[CallBox], 3, 0, 1, 2);
  grid->addWidget(InData[ExchangeBox], 3, 2, 1, 3);

  // The buttons take no focus: the caret stays in the entry box the model chose.
  auto* buttons = new QHBoxLayout;
  AddButton = new QPushButton(Form);
  AddButton->setObjectName(QStringLiteral("AddButton"));
  CancelButton = new QPushButton(Form);
  CancelButton->setObjectName(QStringLiteral("CancelButton"));
  for (QPushButton* b : {AddButton, CancelButton}) {
    b->setFocusPolicy(Qt::NoFocus);
    buttons->addWidget(b);
  }
  connect(AddButton, &QPushButton::clicked, this, [this] { Forward([this] { Model.AddButton_Click(); }); });
  connect(CancelButton, &QPushButton::clicked, this, [this] { Forward([this] { Model.CancelButton_Click(); }); });
  grid->addLayout(buttons, 3, 5);

  grid->addWidget(label("lblDupe", Model.lblDupe), 4, 0, 1, 2);
  grid->addWidget(label("Modelabel", Model.Modelabel), 4, 2, 1, 2);
  grid->addWidget(label("ActiveRadioLabel", Model.ActiveRadioLabel), 4, 4);
  auto* radios = new QHBoxLayout;
  radios->addWidget(label("LabelR1Freq", Model.LabelR1Freq));
  radios->addWidget(label("LabelR2Freq", Model.LabelR2Freq));
  grid->addLayout(radios, 4, 5);

  grid->addWidget(label("QSONrLabel", Model.QSONrLabel), 5, 0, 1, 2);
  grid->addWidget(label("ScoreLabel", Model.ScoreLabel), 5, 2, 1, 2);
  grid->addWidget(label("MultsLabel", Model.MultsLabel), 5, 4, 1, 2);

  // The eight cells of the prior-QSO lines, four to a row.
  auto* cells = new QGridLayout;
  for (int i = 1; i <= 8; ++i) {
    QByteArray name = QStringLiteral("PrevQSO%1").arg(i).toLatin1();
    cells->addWidget(label(name.constData(), Model.PrevQSO[static_cast<std::size_t>(i)]), (i - 1) / 4, (i - 1) % 4);
  }
  grid->addLayout(cells, 6, 0, 2, 6);

  grid->addWidget(label("LabelNeededOn", Model.LabelNeededOn), 8, 0, 1, 2);
  grid->addWidget(label("NeedPfxLabel", Model.NeedPfxLabel), 8, 2, 1, 2);
  grid->addWidget(label("LblWpxCountry", Model.LblWpxCountry), 8, 4, 1, 2);
  grid->addWidget(label("TimeGMTLabel", Model.TimeGMTLabel), 10, 0, 1, 2);
  grid->addWidget(label("TimeLocalLabel", Model.TimeLocalLabel), 10, 2, 1, 2);
  grid->addWidget(label("CallMatchLabel1", Model.CallMatchLabel1), 9, 0, 1, 2);
  grid->addWidget(label("CallMatchLabel2", Model.CallMatchLabel2), 9, 2, 1, 2);
  grid->addWidget(label("OldCallMatchLabel", Model.OldCallMatchLabel), 9, 4, 1, 2);
  // The sending controls: the CW speeds, or the voice keyer's mode and what
  // Insert speaks.
  auto* speeds = new QHBoxLayout;
  for (auto [name, model] : {std::pair{"lblCWPC", &Model.lblCWPC}, std::pair{"lblSpeedCW", &Model.lblSpeedCW},
                             std::pair{"lblCWWK", &Model.lblCWWK}, std::pair{"lblSpeedWK", &Model.lblSpeedWK},
                             std::pair{"DVKSpeedLabel", &Model.DVKSpeedLabel}})
    speeds->addWidget(label(name, *model));
  grid->addLayout(speeds, 10, 4, 1, 2);
  auto* voice = new QHBoxLayout;
  for (auto [name, model] : {std::pair{"CheckCall", &Model.CheckCall},
                             std::pair{"CheckExchange", &Model.CheckExchange},
                             std::pair{"CheckGreeting", &Model.CheckGreeting},
                             std::pair{"CheckThanks", &Model.CheckThanks}}) {
    auto* box = new QCheckBox(Form);
    box->setObjectName(QString::fromLatin1(name));
    box->setFocusPolicy(Qt::NoFocus);
    CheckBox* check = model;
    connect(box, &QCheckBox::toggled, this, [this, check](bool on) { Forward([&] { check->Value = on; }); });
    Checks.emplace_back(box, model);
    voice->addWidget(box);
  }
  grid->addLayout(voice, 11, 0, 1, 6);
  grid->setRowStretch(12, 1);
  resize(720, 330);
}

void LogFormView::Refresh() {
  QScopedValueRollback<bool> guard(Refreshing, true);
  SetColour(*Form, QPalette::Window, Model.BackColor);
  for (auto& [widget, label] : Labels) Show(*widget, *label);
  for (auto& [action, item] : Menus) Show(*action, *item);
  for (auto& [widget, check] : Checks) Show(*widget, *check);
  Show(*AddButton, Model.AddButton);
  Show(*CancelButton, Model.CancelButton);
  RefreshBox(*InData[CallBox], Model.InData[CallBox]);
  RefreshBox(*InData[ExchangeBox], Model.InData[ExchangeBox]);
  RefreshBox(*KeyboardCWText, Model.KeyboardCWText);
  if (Model.FocusedBox == KeyboardCWFocus) KeyboardCWText->setFocus(Qt::OtherFocusReason);
  else if (Model.FocusedBox != NoBox)
    InData[static_cast<std::size_t>(Model.FocusedBox)]->setFocus(Qt::OtherFocusReason);
}

void LogFormView::RefreshBox(QLineEdit& edit, const TextBox& model) {
  edit.setVisible(model.Visible);
  edit.setEnabled(model.Enabled);
  SetColour(edit, QPalette::Text, model.ForeColor);
  QString text = ToQt(model.Text);
  if (edit.text() != text) edit.setText(text);
  // Left alone when it already matches, so a selection keeps its anchor end.
  int start = edit.hasSelectedText() ? edit.selectionStart() : edit.cursorPosition();
  if (start == model.SelStart && edit.selectionLength() == model.SelLength) return;
  if (model.SelLength > 0) edit.setSelection(model.SelStart, model.SelLength);
  else edit.setCursorPosition(model.SelStart);
}

bool LogFormView::eventFilter(QObject* watched, QEvent* event) {
  if (watched == KeyboardCWText && event->type() == QEvent::KeyPress) {
    KeyboardCWKeyPressed(static_cast<const QKeyEvent&>(*event));
    return true;
  }
  for (int box : {CallBox, ExchangeBox}) {
    if (watched != InData[static_cast<std::size_t>(box)]) continue;
    if (event->type() == QEvent::KeyPress) return KeyPressed(box, static_cast<const QKeyEvent&>(*event));
    if (event->type() == QEvent::FocusIn) {
      // The operator moved into the box; focus the window gives back on
      // activation, or Refresh() sets, is already the model's.
      Qt::FocusReason reason = static_cast<const QFocusEvent&>(*event).reason();
      if (reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason)
        Forward([&] { Model.SetFocus(box); });
    }
  }
  return QMainWindow::eventFilter(watched, event);
}

// A key in an entry box: first the model's key-down, then a printable
// character as the model's key-press. Editing keys and shortcuts the model
// leaves go on to the box, whose changes come back through its signals.
//
// A key can arrive while the model is inside a handler that pumps events (a
// message going out, a message box): the model's handlers allow that, and
// each forwarded key redraws on its own.
bool LogFormView::KeyPressed(int box, const QKeyEvent& key) {
  if (std::optional<NamedKey> named = FormKeyOf(key.key(), key.modifiers())) {
    bool used = false;
    Forward([&] { used = Model.InData_KeyDown(box, named->Code, named->Shift); });
    if (used) return true;
  }
  QString text = key.text();
  bool shortcut = key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  if (text.size() != 1 || shortcut || !text[0].isPrint()) return false;
  // The log's fields are ASCII, one byte per key: other characters are dropped.
  char16_t ch = text[0].unicode();
  if (ch < 0x80) Forward([&] { Model.InData_KeyPress(box, static_cast<char>(ch)); });
  return true;
}

// Every key of the keyboard CW box goes to the model: Caps Lock closes the
// box, a character is sent at once, and nothing is edited in it.
void LogFormView::KeyboardCWKeyPressed(const QKeyEvent& key) {
  std::optional<NamedKey> named = FormKeyOf(key.key(), key.modifiers());
  bool used = false;
  if (named) Forward([&] { used = Model.KeyboardCWText_KeyDown(named->Code); });
  QString text = key.text();
  if (used || text.size() != 1 || !text[0].isPrint() || text[0].unicode() >= 0x80) return;
  Forward([&] { Model.KeyboardCWText_KeyPress(static_cast<char>(text[0].unicode())); });
}

void LogFormView::EndProgram() {
  ExitAgreed = true;
  close();
}

void LogFormView::Exit() {
  Forward([this] { ExitAgreed = Model.mnuFileExit_Click(); });
  if (ExitAgreed) close();
}

void LogFormView::closeEvent(QCloseEvent* event) {
  if (!ExitAgreed) Forward([this] { ExitAgreed = Model.mnuFileExit_Click(); });
  if (ExitAgreed) event->accept();
  else event->ignore();
}

}  // namespace tarnix
