#pragma once
// The commands of tarnix-cli. Each reads its arguments, drives the same form
// models as the window with scripted desktop services, and prints to out.
// Returns the process exit code: 0 done, 1 the command failed (the reason is
// in a MSGBOX line or on err), 2 a usage error.

#include <iosfwd>
#include <string>
#include <vector>

namespace tarnix::cli {

using Args = std::vector<std::string>;

int Demo(std::ostream& out);
int New(const Args& args, std::ostream& out, std::ostream& err);
int Enter(const Args& args, std::istream& in, std::ostream& out, std::ostream& err);
int Dump(const Args& args, std::ostream& out, std::ostream& err);
void Usage(std::ostream& out);

}  // namespace tarnix::cli
