#pragma once
// Scripted desktop services for tests and the command-line front end.
//
// Message boxes take answers from a queue and fall back to each box's default
// answer; every box shown is recorded. File dialogs take names from a queue
// (an empty queue is a cancel). Modal forms are driven by queued actions. The
// clock is set by hand, and advancing it fires the fake timers in time order.

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/Platform.h"

namespace tarnix {

class ScriptedMessageBoxes : public MessageBoxes {
 public:
  MsgAnswer Show(const MessageBoxRequest& request) override;

  std::deque<MsgAnswer> Answers;
  std::vector<MessageBoxRequest> Shown;
  std::function<void(const MessageBoxRequest&)> OnShow;  // e.g. print it
};

class ScriptedFileDialogs : public FileDialogs {
 public:
  std::optional<std::string> OpenFile(const FileDialogRequest& request) override;
  std::optional<std::string> SaveFile(const FileDialogRequest& request) override;

  std::deque<std::optional<std::string>> Names;
  std::vector<FileDialogRequest> Shown;

 private:
  std::optional<std::string> Next(const FileDialogRequest& request);
};

class ScriptedFormHost : public FormHost {
 public:
  using Action = std::function<void(FormModel&)>;
  // Runs the next action queued for the form's name; a form with no action, or
  // one still visible after it, is closed by its frame.
  void ShowModal(FormModel& form) override;
  // Records the form and marks it shown; nothing more happens until the
  // model hides itself.
  void ShowModeless(FormModel& form) override;

  std::map<std::string, std::deque<Action>> Actions;
  std::vector<std::string> Shown;
};

class FakeTimer;

class FakeClock : public Clock, public TimerFactory {
 public:
  FakeClock();
  ~FakeClock() override;
  LocalDateTime Now() const override;
  int64_t Milliseconds() const override { return Elapsed; }
  std::unique_ptr<Timer> CreateTimer(std::function<void()> onTick) override;

  void Set(const LocalDateTime& now);
  // Moves time on, firing every enabled timer whose moment comes.
  void Advance(int64_t milliseconds);

 private:
  friend class FakeTimer;
  LocalDateTime Start;
  int64_t Elapsed = 0;     // ms since Start
  int64_t StartMs = 0;     // Elapsed when Start was set
  std::vector<FakeTimer*> Timers;
};

class ScriptedEventPump : public EventPump {
 public:
  void DoEvents() override;
  int Passes = 0;
  std::function<void()> OnPass;  // work to do inside a pass, e.g. a key
};

// The disk, with faults on demand: a write can be made to fail once, from
// the Nth write on, or always, as a full or read-only disk does; a failing
// write can leave the first half of its bytes behind, as a disk that fills
// in the middle of a write does.
class FaultFileStore : public DiskFileStore {
 public:
  FileError WriteAt(const std::string& path, uint64_t offset, std::span<const char> bytes) override;
  FileError Replace(const std::string& path, std::span<const char> bytes) override;

  int Writes = 0;          // WriteAt and Replace calls so far
  int FailFromWrite = 0;   // 1-based: this write and all later ones fail; 0 never
  int FailOnlyWrite = 0;   // 1-based: only this write fails; 0 never
  bool TearFailedWrites = false;
  std::string FailText = "Can't write: No space left on device";

 private:
  bool NextWriteFails();
};

// All scripted services together, with the Platform view of them.
struct ScriptedPlatform {
  ScriptedPlatform() = default;
  ScriptedPlatform(const ScriptedPlatform&) = delete;
  ScriptedPlatform& operator=(const ScriptedPlatform&) = delete;

  ScriptedMessageBoxes Boxes;
  ScriptedFileDialogs Files;
  ScriptedFormHost Forms;
  FakeClock Time;
  ScriptedEventPump Events;
  FaultFileStore Disk;
  Platform View{Boxes, Files, Forms, Time, Time, Events, Disk};
};

}  // namespace tarnix
