#pragma once
// The commands of tarnix-cli. Each reads its arguments, drives the same form
// models as the window with scripted desktop services, and prints to out.
// Returns the process exit code.

#include <iosfwd>
#include <string>
#include <vector>

namespace tarnix::cli {

int Demo(std::ostream& out);
int Enter(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err);
void Usage(std::ostream& out);

}  // namespace tarnix::cli
