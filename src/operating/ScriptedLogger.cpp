#include "operating/ScriptedLogger.h"

#include <algorithm>

#include "operating/BoxEditing.h"
#include "operating/Keys.h"
#include "operating/Startup.h"

namespace tarnix {
namespace {

// The program state of the folder; the boxes shown from here on go to onBox
// as well as into the record of boxes shown.
std::unique_ptr<Context> Prepare(ScriptedPlatform& desk, const std::string& appPath,
                                 std::function<void(const MessageBoxRequest&)> onBox) {
  desk.Boxes.OnShow = std::move(onBox);
  return MakeContext(appPath);
}

}  // namespace

ScriptedLogger::ScriptedLogger(const std::string& appPath, Start start,
                               std::function<void(const MessageBoxRequest&)> onBox)
    : Owned(Prepare(Desk, appPath, std::move(onBox))),
      Started(start == Start::Program && StartProgram(*Owned, Desk.View)),
      Ctx(*Owned),
      Form(Ctx, Desk.View, Station.View) {}

ScriptedLogger::ScriptedLogger(Context& ctx) : Ctx(ctx), Form(Ctx, Desk.View, Station.View) {}

void ScriptedLogger::NewLog(const ContestChoice& choice) {
  QueueContestChoice(Desk.Forms, choice);
  Form.mnuFileNewLog_Click();
}

void ScriptedLogger::NewLog(int contest, bool phone) {
  QueueContestChoice(Desk.Forms, contest, phone);
  Form.mnuFileNewLog_Click();
}

bool ScriptedLogger::Open(const std::string& path) {
  Desk.Files.Names.push_back(path);
  Form.mnuFileOpenLog_Click();
  return Ctx.Log.LogState == LogStateKind::Named && !Form.EndRequested;
}

void ScriptedLogger::SaveAs(const std::string& path) {
  Desk.Files.Names.push_back(path);
  Form.mnuFileSave_Click();
}

void ScriptedLogger::Type(std::string_view text) {
  for (char ch : text) Form.TypeCharacter(ch);
}

bool ScriptedLogger::Key(std::string_view name) {
  std::optional<NamedKey> key = KeyByName(name);
  if (!key) return false;
  if (!Form.PressKey(key->Code, key->Shift)) EditFocusedBox(Form, key->Code);
  return true;
}

void ScriptedLogger::Put(int box, const std::string& text) {
  Form.InData_Change(box, text, static_cast<int>(text.size()));
}

const DupeResult& ScriptedLogger::CheckCall(std::string_view call, Input how) {
  Form.SetFocus(CallBox);
  Form.InData_Change(CallBox, "", 0);
  Form.InData_Change(ExchangeBox, "", 0);
  if (how == Input::Pasted) {
    Put(CallBox, std::string(call));
  } else {
    for (char c : call) Form.InData_KeyPress(CallBox, c);
  }
  Form.SetFocus(ExchangeBox);
  return Dupes();
}

void ScriptedLogger::Enter(std::string_view call, const std::optional<std::string>& exchange, Input how) {
  CheckCall(call, how);
  if (exchange) Put(ExchangeBox, *exchange);
  Form.InData_KeyDown(ExchangeBox, KeyEnter, 0);
}

std::string ScriptedLogger::Boxes() const {
  std::string text;
  for (int box : {CallBox, ExchangeBox}) {
    const TextBox& b = Form.InData[static_cast<std::size_t>(box)];
    std::string t = b.Text;
    if (Form.FocusedBox == box) {
      std::size_t caret = std::min(static_cast<std::size_t>(std::max(b.SelStart, 0)), t.size());
      t = t.substr(0, caret) + '_' + t.substr(caret);
    }
    if (box == ExchangeBox) text += '|';
    text += t;
  }
  return text;
}

}  // namespace tarnix
