#include "DupeCommand.h"

#include <filesystem>
#include <ostream>

#include "Session.h"

namespace tarnix::cli {
namespace {

// "--band B" with B a whole number 1..24; 0 when malformed.
int BandArgument(const std::string& text) {
  if (text.empty() || text.size() > 2 || text.find_first_not_of("0123456789") != std::string::npos) return 0;
  int band = std::stoi(text);
  return band >= 1 && band <= BandIndexCount ? band : 0;
}

}  // namespace

int Dupe(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
  std::vector<std::string> positional;
  int band = 0;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    if (a == "--band") {
      band = i + 1 < args.size() ? BandArgument(args[++i]) : 0;
      if (band == 0) {
        err << "tarnix-cli: --band wants a BandIndex 1 to 24\n";
        return 2;
      }
    } else if (a.rfind("--", 0) == 0) {
      err << "tarnix-cli: bad option " << a << "\n";
      return 2;
    } else {
      positional.push_back(a);
    }
  }
  if (positional.size() != 2) {
    err << "tarnix-cli: dupe wants LOG.TNX and CALL\n";
    return 2;
  }

  Session session(out);
  if (!session.Started ||
      !session.Open(std::filesystem::absolute(positional[0]).lexically_normal().string()))
    return 1;
  Context& ctx = session.Ctx;
  LogForm& form = session.Form;
  if (band != 0) {
    // As a change of band on the keyboard: the active radio keeps it too.
    ctx.Contest.BandIndex = static_cast<int16_t>(band);
    (ctx.Radio.ActiveRadio == 2 ? ctx.Radio.RadioBand2 : ctx.Radio.RadioBand1) = static_cast<int16_t>(band);
    form.RedrawQSONrLabel();
  }

  // The boxes of the check print after the result lines.
  std::vector<MessageBoxRequest> boxes;
  session.Desk.Boxes.OnShow = [&boxes](const MessageBoxRequest& box) { boxes.push_back(box); };
  const DupeResult& r = session.CheckCall(positional[1]);
  out << "FoundInLog\t" << r.FoundInLog << "\nFoundOnBand\t" << r.FoundOnBand << "\nIsDupe\t" << r.IsDupe
      << "\nDupeQSO\t" << r.DupeQSO << "\nPortableMatch\t" << r.PortableMatch << "\nDUPELINE\t"
      << (form.lblDupe.Visible ? form.lblDupe.Caption : std::string()) << '\n';
  for (const MessageBoxRequest& box : boxes) {
    std::string text;
    for (char c : box.Text) text += c == '\n' ? std::string("\\n") : std::string(1, c);
    out << "MSGBOX " << box.Title << '|' << text << '\n';
  }
  return 0;
}

}  // namespace tarnix::cli
