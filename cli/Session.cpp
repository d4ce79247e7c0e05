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

std::unique_ptr<Context> StartContext(const std::string& appPath, std::string& error) {
  auto ctx = MakeContext(appPath.empty() ? ResolveAppPath() : appPath);
  error = LoadProgramFolder(*ctx);
  return ctx;
}

}  // namespace

Session::Session(std::ostream& out, const std::string& appPath)
    : Ctx(StartContext(appPath, StartError)), Form(*Ctx, Desk.View) {
  Desk.Boxes.OnShow = [&out](const MessageBoxRequest& box) { PrintMessageBox(out, box); };
}

bool Session::Start(std::ostream& err) const {
  if (StartError.empty()) return true;
  err << "tarnix-cli: " << StartError << "\n";
  return false;
}

bool Session::Open(const std::string& path) {
  Desk.Files.Names.push_back(path);
  Form.mnuFileOpenLog_Click();
  return Ctx->Log.LogState == LogStateKind::Named && !Form.EndRequested;
}

}  // namespace tarnix::cli
