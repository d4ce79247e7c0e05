#pragma once
// ScriptedLogger: the logger run without a window, as tarnix-cli, the tests,
// the fuzz harnesses and the benchmarks drive it. It holds the scripted
// desktop, a recording station, the program state and the main form, and
// offers the operator's steps on them: a new log chosen in the contest form,
// text and keys as the keyboard gives them, a call checked, a QSO entered,
// and what the boxes and the last dupe scan show.

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/ChCoForm.h"
#include "operating/LogForm.h"
#include "operating/RecordingStation.h"
#include "platform/Scripted.h"

namespace tarnix {

class ScriptedLogger {
 public:
  // Fresh: the program state of the folder, nothing read. Program: the
  // program started on the folder as the window starts it (StartProgram).
  enum class Start { Fresh, Program };
  // How a call gets into the call box: typed key by key (upper-cased, quotes
  // dropped, a blank only where the contest keeps one), or pasted whole as
  // the view's own editing leaves it.
  enum class Input { Typed, Pasted };

  // onBox sees every message box, from the start's own on.
  ScriptedLogger(const std::string& appPath, Start start,
                 std::function<void(const MessageBoxRequest&)> onBox = {});
  // On a program state kept by the caller.
  explicit ScriptedLogger(Context& ctx);
  ScriptedLogger(const ScriptedLogger&) = delete;
  ScriptedLogger& operator=(const ScriptedLogger&) = delete;

  // File > New Log, with the choice made in the contest form.
  void NewLog(const ContestChoice& choice);
  void NewLog(int contest, bool phone = false);
  // File > Open and Save As with the dialog answered by path. Open is true
  // when the log is open and the program goes on.
  bool Open(const std::string& path);
  void SaveAs(const std::string& path);

  // Each character as the keyboard gives it to the focused box.
  void Type(std::string_view text);
  // A key by name ("Enter", "Ctrl+Down"), then the box's own editing of a
  // key the form left to it. False for a name no key has.
  bool Key(std::string_view name);
  // A box's text as the view's editing leaves it, the caret at its end.
  void Put(int box, const std::string& text);

  // Both boxes emptied, the call put in the call box and the box left: the
  // focus steps check the call (dupe line, grid, CQWW's zone...).
  const DupeResult& CheckCall(std::string_view call, Input how = Input::Typed);
  // A QSO: the call checked, the exchange put over what the focus step left
  // in its box (none: the box as it stands), and Enter there.
  void Enter(std::string_view call, const std::optional<std::string>& exchange, Input how = Input::Typed);

  // The last scan of the log for a call.
  const DupeResult& Dupes() const { return Form.DupeScan(); }
  // Both boxes, "|" between them, the caret of the focused one as "_".
  std::string Boxes() const;

  ScriptedPlatform Desk;
  RecordingStation Station;

 private:
  std::unique_ptr<Context> Owned;

 public:
  bool Started = false;  // the start went through (Start::Program)
  Context& Ctx;
  LogForm Form;
};

}  // namespace tarnix
