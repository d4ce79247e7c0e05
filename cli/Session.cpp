#include "Session.h"

#include "config/AppPath.h"
#include "operating/Startup.h"

namespace tarnix::cli {
namespace {

// A message box as one line: line breaks in its text are written as "\n".
void PrintMessageBox(std::ostream& out, const MessageBoxRequest& box) {
  std::string text;
  for (char c : box.Text) text += c == '\n' ? std::string("\\n") : std::string(1, c);
  out << "MSGBOX " << box.Title << '|' << text << '\n';
}

}  // namespace

// The start-up of the program on the program folder; its messages print.
std::unique_ptr<Context> Session::Begin(std::ostream& out, const std::string& appPath) {
  Desk.Boxes.OnShow = [&out](const MessageBoxRequest& box) { PrintMessageBox(out, box); };
  auto ctx = MakeContext(appPath.empty() ? ResolveAppPath() : appPath);
  Started = StartProgram(*ctx, Desk.View);
  return ctx;
}

Session::Session(std::ostream& out, const std::string& appPath) : Ctx(Begin(out, appPath)), Form(*Ctx, Desk.View, Station.View) {}

bool Session::Open(const std::string& path) {
  Desk.Files.Names.push_back(path);
  Form.mnuFileOpenLog_Click();
  return Ctx->Log.LogState == LogStateKind::Named && !Form.EndRequested;
}

}  // namespace tarnix::cli
