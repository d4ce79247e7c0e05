// tarnix-cli: the headless front end of the logger.

#include <iostream>
#include <string>
#include <vector>

#include "Commands.h"
#include "DupeCommand.h"
#include "LookupCommand.h"
#include "ScriptCommand.h"

int main(int argc, char** argv) {
  tarnix::cli::Args args(argv + 1, argv + argc);
  if (args.empty() || args[0] == "help" || args[0] == "--help" || args[0] == "-h") {
    tarnix::cli::Usage(args.empty() ? std::cerr : std::cout);
    return args.empty() ? 2 : 0;
  }
  std::string command = args[0];
  args.erase(args.begin());
  if (command == "demo") return tarnix::cli::Demo(std::cout);
  if (command == "new") return tarnix::cli::New(args, std::cout, std::cerr);
  if (command == "enter") return tarnix::cli::Enter(args, std::cin, std::cout, std::cerr);
  if (command == "dump") return tarnix::cli::Dump(args, std::cout, std::cerr);
  if (command == "dupe") return tarnix::cli::Dupe(args, std::cout, std::cerr);
  if (command == "script") return tarnix::cli::Script(args, std::cout, std::cerr);
  if (command == "lookup") return tarnix::cli::Lookup(args, std::cout, std::cerr);
  std::cerr << "tarnix-cli: unknown command '" << command << "'\n";
  tarnix::cli::Usage(std::cerr);
  return 2;
}
