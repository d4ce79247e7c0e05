#pragma once
// The desktop services of Platform.h for the Qt program.
//
// Dialogs are parented to the window active when they open, so a message box
// raised from a modal form sits over that form.

#include <QWidget>

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "platform/Platform.h"
#include "platform/SystemClock.h"

namespace tarnix {

class QtMessageBoxes : public MessageBoxes {
 public:
  // A QMessageBox with the request's buttons and icon. Enter gives the
  // default answer; Escape and the frame's close give Cancel, or No, or OK
  // when that is the only button, or Abort for Abort/Retry/Ignore.
  MsgAnswer Show(const MessageBoxRequest& request) override;
};

class QtFileDialogs : public FileDialogs {
 public:
  std::optional<std::string> OpenFile(const FileDialogRequest& request) override;
  std::optional<std::string> SaveFile(const FileDialogRequest& request) override;

 private:
  std::optional<std::string> Run(const FileDialogRequest& request, bool save);
};

class QtTimers : public TimerFactory {
 public:
  std::unique_ptr<Timer> CreateTimer(std::function<void()> onTick) override;
};

class QtEventPump : public EventPump {
 public:
  void DoEvents() override;
};

// Shows a form model through the window registered for its name. The
// dialogs live in the program, not here, so the program registers them.
class QtFormHost : public FormHost {
 public:
  // Runs the dialog over the model and returns when the dialog has closed.
  using DialogRunner = std::function<void(FormModel& form, QWidget* parent)>;

  // Makes the window of a modeless form; the host shows it and closes it
  // when the model hides itself.
  using WindowMaker = std::function<QWidget*(FormModel& form, QWidget* parent)>;

  void Register(const std::string& formName, DialogRunner run);
  void RegisterModeless(const std::string& formName, WindowMaker make);
  bool Has(const std::string& formName) const { return Runners.count(formName) != 0; }
  void ShowModal(FormModel& form) override;
  void ShowModeless(FormModel& form) override;

 private:
  std::map<std::string, DialogRunner> Runners;
  std::map<std::string, WindowMaker> Makers;
};

// All Qt services together, with the Platform view of them.
struct QtPlatform {
  QtPlatform() = default;
  QtPlatform(const QtPlatform&) = delete;
  QtPlatform& operator=(const QtPlatform&) = delete;

  QtMessageBoxes Boxes;
  QtFileDialogs Files;
  QtFormHost Forms;
  SystemClock Time;
  QtTimers Timers;
  QtEventPump Events;
  DiskFileStore Disk;
  Platform View{Boxes, Files, Forms, Time, Timers, Events, Disk};
};

}  // namespace tarnix
