#pragma once
// What the program needs of the desktop, as small interfaces.
//
// The logic never reaches the desktop itself: message boxes, file dialogs,
// modal forms, the clock, timers and the event pump all come through here.
// The desktop program implements them with Qt (platform/qt); tests and the
// command-line front end use the scripted ones of Scripted.h.

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/FileStore.h"

namespace tarnix {

enum class MsgButtons { OK, OKCancel, YesNo, YesNoCancel, AbortRetryIgnore };
enum class MsgIcon { None, Critical, Question, Exclamation, Information };
enum class MsgAnswer { OK, Cancel, Yes, No, Abort, Retry, Ignore };

struct MessageBoxRequest {
  std::string Text;
  std::string Title;
  MsgButtons Buttons = MsgButtons::OK;
  MsgIcon Icon = MsgIcon::None;
  // The answer of the default button: what Enter gives, and what a script
  // that has no answer queued gets.
  MsgAnswer Default = MsgAnswer::OK;
};

class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;
  // Shows a modal box and returns the operator's answer.
  virtual MsgAnswer Show(const MessageBoxRequest& request) = 0;
};

struct FileDialogRequest {
  std::string Title;
  std::string Filter;            // "TNX logs (*.TNX)|*.TNX|All files (*.*)|*.*"
  std::string DefaultExtension;  // "TNX"
  std::string InitialDir;
  std::string FileName;          // "*.TNX"
  bool MustExist = false;
};

class FileDialogs {
 public:
  virtual ~FileDialogs() = default;
  // The chosen full path, or nothing when the operator cancels.
  virtual std::optional<std::string> OpenFile(const FileDialogRequest& request) = 0;
  virtual std::optional<std::string> SaveFile(const FileDialogRequest& request) = 0;
};

// A form model that can be shown modally. The modal loop runs until the
// model hides itself (Visible false).
class FormModel {
 public:
  virtual ~FormModel() = default;
  virtual std::string FormName() const = 0;
  // What closing the window by its frame does: the form's Cancel.
  virtual void CloseByFrame() = 0;
  // Hides the form on its own (a timer, say) and tells a modeless view.
  void Hide() {
    Visible = false;
    if (Hidden) Hidden();
  }
  bool Visible = false;
  std::function<void()> Hidden;  // set by a modeless view to close itself
};

class FormHost {
 public:
  virtual ~FormHost() = default;
  // Shows the form modally and returns when it has hidden itself.
  virtual void ShowModal(FormModel& form) = 0;
  // Shows the form and returns at once; the view closes when the model hides
  // itself. The form must outlive its view.
  virtual void ShowModeless(FormModel& form) = 0;
};

struct LocalDateTime {
  int Year = 2000, Month = 1, Day = 1;
  int Hour = 0, Minute = 0, Second = 0;
};

class Clock {
 public:
  virtual ~Clock() = default;
  // The computer's local date and time.
  virtual LocalDateTime Now() const = 0;
  // A monotonic millisecond count, for timing.
  virtual int64_t Milliseconds() const = 0;
};

class Timer {
 public:
  virtual ~Timer() = default;
  virtual void SetInterval(int milliseconds) = 0;
  virtual void SetEnabled(bool enabled) = 0;
  virtual bool Enabled() const = 0;
};

class TimerFactory {
 public:
  virtual ~TimerFactory() = default;
  // A stopped timer that calls onTick on the user-interface thread.
  virtual std::unique_ptr<Timer> CreateTimer(std::function<void()> onTick) = 0;
};

class EventPump {
 public:
  virtual ~EventPump() = default;
  // Serves pending events once; blocking procedures call it at fixed points.
  virtual void DoEvents() = 0;
};

// The set of desktop services a form model is given.
struct Platform {
  MessageBoxes& Boxes;
  FileDialogs& Files;
  FormHost& Forms;
  Clock& Time;
  TimerFactory& Timers;
  EventPump& Events;
  FileStore& Disk;
};

}  // namespace tarnix
