#pragma once
// tarnix-cli dupe LOG.TNX CALL [--band B]: the dupe check on the command line.

#include <iosfwd>
#include <string>
#include <vector>

namespace tarnix::cli {

// Opens the log as File > Open does, puts the current band to B (BandIndex
// 1..24) when given, types CALL into the call box and moves to the exchange
// box, which runs the dupe check. Prints one tab-separated line a field:
// FoundInLog, FoundOnBand, IsDupe, PortableMatch (0 or 1), DupeQSO (a
// number), then DUPELINE and the dupe line (empty when there is none), then
// the message boxes the check showed as "MSGBOX title|text". Returns 0, 1
// when the log does not open, 2 on a usage error.
int Dupe(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

}  // namespace tarnix::cli
