#include "Session.h"

#include "config/AppPath.h"

namespace tarnix::cli {

Session::Session(std::ostream& out, const std::string& appPath)
    : ScriptedLogger(appPath.empty() ? ResolveAppPath() : appPath, Start::Program,
                     [&out](const MessageBoxRequest& box) {
                       // A message box as one line: line breaks in its text are written as "\n".
                       std::string text;
                       for (char c : box.Text) text += c == '\n' ? std::string("\\n") : std::string(1, c);
                       out << "MSGBOX " << box.Title << '|' << text << '\n';
                     }) {}

}  // namespace tarnix::cli
