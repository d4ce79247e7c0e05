#include "platform/qt/QtPlatform.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>

#include "platform/qt/QtConvert.h"

namespace tarnix {
namespace {

QMessageBox::StandardButton ButtonOf(MsgAnswer answer) {
  switch (answer) {
    case MsgAnswer::OK: return QMessageBox::Ok;
    case MsgAnswer::Cancel: return QMessageBox::Cancel;
    case MsgAnswer::Yes: return QMessageBox::Yes;
    case MsgAnswer::No: return QMessageBox::No;
    case MsgAnswer::Abort: return QMessageBox::Abort;
    case MsgAnswer::Retry: return QMessageBox::Retry;
    case MsgAnswer::Ignore: return QMessageBox::Ignore;
  }
  return QMessageBox::NoButton;
}

QMessageBox::StandardButtons ButtonsOf(MsgButtons buttons) {
  switch (buttons) {
    case MsgButtons::OK: return QMessageBox::Ok;
    case MsgButtons::OKCancel: return QMessageBox::Ok | QMessageBox::Cancel;
    case MsgButtons::YesNo: return QMessageBox::Yes | QMessageBox::No;
    case MsgButtons::YesNoCancel: return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case MsgButtons::AbortRetryIgnore: return QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore;
  }
  return QMessageBox::Ok;
}

// What Escape answers: the button that changes nothing.
MsgAnswer EscapeAnswerOf(MsgButtons buttons) {
  switch (buttons) {
    case MsgButtons::OK: return MsgAnswer::OK;
    case MsgButtons::OKCancel:
    case MsgButtons::YesNoCancel: return MsgAnswer::Cancel;
    case MsgButtons::YesNo: return MsgAnswer::No;
    case MsgButtons::AbortRetryIgnore: return MsgAnswer::Abort;
  }
  return MsgAnswer::Cancel;
}

QMessageBox::Icon IconOf(MsgIcon icon) {
  switch (icon) {
    case MsgIcon::None: return QMessageBox::NoIcon;
    case MsgIcon::Critical: return QMessageBox::Critical;
    case MsgIcon::Question: return QMessageBox::Question;
    case MsgIcon::Exclamation: return QMessageBox::Warning;
    case MsgIcon::Information: return QMessageBox::Information;
  }
  return QMessageBox::NoIcon;
}

MsgAnswer AnswerOf(QMessageBox::StandardButton button, MsgAnswer fallback) {
  for (MsgAnswer a : {MsgAnswer::OK, MsgAnswer::Cancel, MsgAnswer::Yes, MsgAnswer::No, MsgAnswer::Abort,
                      MsgAnswer::Retry, MsgAnswer::Ignore})
    if (ButtonOf(a) == button) return a;
  return fallback;
}

// A timer that runs while it is enabled with a non-zero interval; an interval
// of 0 holds it, as the form timers expect.
class QtTimer : public Timer {
 public:
  explicit QtTimer(std::function<void()> onTick) : OnTick(std::move(onTick)) {
    QObject::connect(&Ticker, &QTimer::timeout, &Ticker, [this] { OnTick(); });
  }
  void SetInterval(int milliseconds) override {
    Interval = milliseconds;
    Ticker.stop();  // a new interval counts from now
    Apply();
  }
  void SetEnabled(bool enabled) override {
    if (enabled == IsOn) return;  // enabling a running timer does not restart it
    IsOn = enabled;
    Apply();
  }
  bool Enabled() const override { return IsOn; }

 private:
  void Apply() {
    if (!IsOn || Interval <= 0) Ticker.stop();
    else if (!Ticker.isActive()) Ticker.start(Interval);
  }
  std::function<void()> OnTick;
  QTimer Ticker;
  int Interval = 0;
  bool IsOn = false;
};

}  // namespace

MsgAnswer QtMessageBoxes::Show(const MessageBoxRequest& request) {
  QMessageBox box(IconOf(request.Icon), ToQt(request.Title), ToQt(request.Text), ButtonsOf(request.Buttons),
                  QApplication::activeWindow());
  if (box.button(ButtonOf(request.Default))) box.setDefaultButton(ButtonOf(request.Default));
  MsgAnswer escape = EscapeAnswerOf(request.Buttons);
  box.setEscapeButton(ButtonOf(escape));
  box.exec();
  return AnswerOf(box.standardButton(box.clickedButton()), escape);
}

std::optional<std::string> QtFileDialogs::OpenFile(const FileDialogRequest& request) { return Run(request, false); }
std::optional<std::string> QtFileDialogs::SaveFile(const FileDialogRequest& request) { return Run(request, true); }

std::optional<std::string> QtFileDialogs::Run(const FileDialogRequest& request, bool save) {
  QFileDialog dialog(QApplication::activeWindow(), ToQt(request.Title), ToQt(request.InitialDir));
  dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(request.MustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  QStringList filters = NameFiltersFromPipes(request.Filter);
  if (!filters.isEmpty()) dialog.setNameFilters(filters);
  if (!request.DefaultExtension.empty()) dialog.setDefaultSuffix(ToQt(request.DefaultExtension));
  // A wildcard name such as "*.TNX" is the filter again, not a file to select.
  if (!request.FileName.empty() && request.FileName.find_first_of("*?") == std::string::npos)
    dialog.selectFile(ToQt(request.FileName));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return FromQt(dialog.selectedFiles().first());
}

std::unique_ptr<Timer> QtTimers::CreateTimer(std::function<void()> onTick) {
  return std::make_unique<QtTimer>(std::move(onTick));
}

void QtEventPump::DoEvents() { QCoreApplication::processEvents(); }

void QtFormHost::Register(const std::string& formName, DialogRunner run) { Runners[formName] = std::move(run); }

void QtFormHost::ShowModal(FormModel& form) {
  form.Visible = true;
  if (auto found = Runners.find(form.FormName()); found != Runners.end())
    found->second(form, QApplication::activeWindow());
  // A form with no dialog, or one left showing, ends as its frame closes it:
  // by its Cancel.
  if (form.Visible) form.CloseByFrame();
  form.Visible = false;
}

void QtFormHost::RegisterModeless(const std::string& formName, WindowMaker make) {
  Makers[formName] = std::move(make);
}

void QtFormHost::ShowModeless(FormModel& form) {
  form.Visible = true;
  auto found = Makers.find(form.FormName());
  if (found == Makers.end()) return;
  QPointer<QWidget> window = found->second(form, QApplication::activeWindow());
  if (!window) return;
  window->setAttribute(Qt::WA_DeleteOnClose);
  form.Hidden = [window] {
    if (window) window->close();
  };
  window->show();
}

}  // namespace tarnix
