#include "platform/Scripted.h"

#include <algorithm>
#include <ctime>

namespace tarnix {

MsgAnswer ScriptedMessageBoxes::Show(const MessageBoxRequest& request) {
  Shown.push_back(request);
  if (OnShow) OnShow(request);
  if (Answers.empty()) return request.Default;
  MsgAnswer answer = Answers.front();
  Answers.pop_front();
  return answer;
}

std::optional<std::string> ScriptedFileDialogs::Next(const FileDialogRequest& request) {
  Shown.push_back(request);
  if (Names.empty()) return std::nullopt;
  auto name = Names.front();
  Names.pop_front();
  return name;
}

std::optional<std::string> ScriptedFileDialogs::OpenFile(const FileDialogRequest& r) { return Next(r); }
std::optional<std::string> ScriptedFileDialogs::SaveFile(const FileDialogRequest& r) { return Next(r); }

void ScriptedFormHost::ShowModal(FormModel& form) {
  std::string name = form.FormName();
  Shown.push_back(name);
  form.Visible = true;
  auto& queue = Actions[name];
  if (!queue.empty()) {
    Action action = std::move(queue.front());
    queue.pop_front();
    action(form);
  }
  if (form.Visible) form.CloseByFrame();
  form.Visible = false;
}

void ScriptedFormHost::ShowModeless(FormModel& form) {
  Shown.push_back(form.FormName());
  form.Visible = true;
}

class FakeTimer : public Timer {
 public:
  FakeTimer(FakeClock& clock, std::function<void()> onTick) : Owner(clock), OnTick(std::move(onTick)) {
    Owner.Timers.push_back(this);
  }
  ~FakeTimer() override {
    auto& list = Owner.Timers;
    list.erase(std::remove(list.begin(), list.end(), this), list.end());
  }
  void SetInterval(int ms) override {
    Interval = ms;
    Due = Owner.Elapsed + ms;
  }
  void SetEnabled(bool on) override {
    if (on && !IsOn) Due = Owner.Elapsed + Interval;
    IsOn = on;
  }
  bool Enabled() const override { return IsOn; }

  FakeClock& Owner;
  std::function<void()> OnTick;
  int Interval = 0;
  bool IsOn = false;
  int64_t Due = 0;
};

FakeClock::FakeClock() = default;
FakeClock::~FakeClock() = default;

std::unique_ptr<Timer> FakeClock::CreateTimer(std::function<void()> onTick) {
  return std::make_unique<FakeTimer>(*this, std::move(onTick));
}

void FakeClock::Set(const LocalDateTime& now) {
  Start = now;
  StartMs = Elapsed;
}

LocalDateTime FakeClock::Now() const {
  std::tm tm{};
  tm.tm_year = Start.Year - 1900;
  tm.tm_mon = Start.Month - 1;
  tm.tm_mday = Start.Day;
  tm.tm_hour = Start.Hour;
  tm.tm_min = Start.Minute;
  tm.tm_sec = Start.Second + static_cast<int>((Elapsed - StartMs) / 1000);
  // timegm normalises the fields in UTC, so no local zone or DST shifts them.
  std::time_t t = timegm(&tm);
  gmtime_r(&t, &tm);
  return {tm.tm_year + 1900, tm.tm_mon + 1, tm.tm_mday, tm.tm_hour, tm.tm_min, tm.tm_sec};
}

void FakeClock::Advance(int64_t milliseconds) {
  int64_t end = Elapsed + milliseconds;
  for (;;) {
    FakeTimer* next = nullptr;
    for (FakeTimer* t : Timers)
      if (t->IsOn && t->Interval > 0 && t->Due <= end && (!next || t->Due < next->Due)) next = t;
    if (!next) break;
    Elapsed = next->Due;
    next->Due += next->Interval;
    next->OnTick();
  }
  Elapsed = end;
}

void ScriptedEventPump::DoEvents() {
  ++Passes;
  if (OnPass) OnPass();
}

bool FaultFileStore::NextWriteFails() {
  ++Writes;
  return (FailFromWrite > 0 && Writes >= FailFromWrite) || Writes == FailOnlyWrite;
}

FileError FaultFileStore::WriteAt(const std::string& path, uint64_t offset, std::span<const char> bytes) {
  if (!NextWriteFails()) return DiskFileStore::WriteAt(path, offset, bytes);
  if (TearFailedWrites) DiskFileStore::WriteAt(path, offset, bytes.first(bytes.size() / 2));
  return FailText;
}

FileError FaultFileStore::Replace(const std::string& path, std::span<const char> bytes) {
  if (!NextWriteFails()) return DiskFileStore::Replace(path, bytes);
  if (TearFailedWrites) DiskFileStore::Replace(path, bytes.first(bytes.size() / 2));
  return FailText;
}

}  // namespace tarnix
