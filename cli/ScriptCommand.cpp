#include "ScriptCommand.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <memory>
#include <ostream>

#include "Options.h"
#include "Session.h"
#include "core/Text.h"

namespace tarnix::cli {
namespace {

// A box as the show action prints it: the caret as "|", a selection in
// brackets.
std::string BoxText(const TextBox& box) {
  const std::string& t = box.Text;
  auto start = static_cast<std::size_t>(std::clamp(box.SelStart, 0, static_cast<int>(t.size())));
  auto length = std::min(static_cast<std::size_t>(std::max(box.SelLength, 0)), t.size() - start);
  if (length == 0) return t.substr(0, start) + "|" + t.substr(start);
  return t.substr(0, start) + "[" + t.substr(start, length) + "]" + t.substr(start + length);
}

// Line breaks in a caption print as "\n", so that each label is one line.
std::string OneLine(const std::string& text) {
  std::string line;
  for (char c : text) line += c == '\n' ? std::string("\\n") : std::string(1, c);
  return line;
}

void Show(LogForm& form, const Context& ctx, std::ostream& out) {
  auto focus = [&form](int box) { return form.FocusedBox == box ? "*" : ""; };
  out << "InData(0)" << focus(CallBox) << '\t' << BoxText(form.InData[CallBox]) << '\n'
      << "InData(1)" << focus(ExchangeBox) << '\t' << BoxText(form.InData[ExchangeBox]) << '\n';
  if (form.KeyboardCWText.Visible)
    out << "KeyboardCWText" << focus(KeyboardCWFocus) << '\t' << BoxText(form.KeyboardCWText) << '\n';
  const std::pair<const char*, const Label*> labels[] = {
      {"LastQSOLabel", &form.LastQSOLabel},   {"QSONrLabel", &form.QSONrLabel},
      {"ScoreLabel", &form.ScoreLabel},       {"MultsLabel", &form.MultsLabel},
      {"lblCallsign", &form.lblCallsign},     {"lblExchange", &form.lblExchange},
      {"lblDupe", &form.lblDupe},             {"Modelabel", &form.Modelabel},
      {"PrevQSO(1)", &form.PrevQSO[1]},       {"PrevQSO(2)", &form.PrevQSO[2]},
      {"PrevQSO(3)", &form.PrevQSO[3]},       {"PrevQSO(4)", &form.PrevQSO[4]},
      {"PrevQSO(5)", &form.PrevQSO[5]},       {"PrevQSO(6)", &form.PrevQSO[6]},
      {"PrevQSO(7)", &form.PrevQSO[7]},       {"PrevQSO(8)", &form.PrevQSO[8]},
      {"LabelNeededOn", &form.LabelNeededOn}, {"NeedPfxLabel", &form.NeedPfxLabel},
      {"LblWpxCountry", &form.LblWpxCountry}, {"CallMatchLabel1", &form.CallMatchLabel1},
      {"CallMatchLabel2", &form.CallMatchLabel2}, {"OldCallMatchLabel", &form.OldCallMatchLabel},
      {"ActiveRadioLabel", &form.ActiveRadioLabel}, {"lblCWPC", &form.lblCWPC},
      {"lblSpeedCW", &form.lblSpeedCW},       {"lblCWWK", &form.lblCWWK},
      {"lblSpeedWK", &form.lblSpeedWK},       {"DVKSpeedLabel", &form.DVKSpeedLabel},
      {"KeyboardCWLabel", &form.KeyboardCWLabel}};
  for (const auto& [name, label] : labels)
    if (label->Visible) out << name << '\t' << OneLine(label->Caption) << '\n';
  out << "BandIndex\t" << ctx.Contest.BandIndex << "\nActiveRadio\t" << ctx.Radio.ActiveRadio << '\n';
}

// Runs one script line; returns what is wrong with a line that is no action,
// else nothing.
std::string RunLine(Session& session, const std::string& line, std::ostream& out) {
  static const std::map<std::string, MsgAnswer> kAnswers = {
      {"Yes", MsgAnswer::Yes},     {"No", MsgAnswer::No},       {"Cancel", MsgAnswer::Cancel},
      {"OK", MsgAnswer::OK},       {"Abort", MsgAnswer::Abort}, {"Retry", MsgAnswer::Retry},
      {"Ignore", MsgAnswer::Ignore}};
  LogForm& form = session.Form;
  std::size_t blank = line.find(' ');
  std::string action = line.substr(0, blank);
  std::string rest = blank == std::string::npos ? std::string() : line.substr(blank + 1);
  if (action == "type" && !rest.empty()) {
    session.Type(rest);
  } else if (action == "key") {
    if (!session.Key(Trim(rest))) return "no key named '" + Trim(rest) + "'";
  } else if (action == "answer" && kAnswers.count(Trim(rest))) {
    session.Desk.Boxes.Answers.push_back(kAnswers.at(Trim(rest)));
  } else if (action == "clock") {
    LocalDateTime now = session.Desk.Time.Now();
    if (!ParseClock(Trim(rest), now) || Trim(rest).size() < 16) return "bad clock '" + rest + "'";
    session.Desk.Time.Set(now);
  } else if (action == "show" && Trim(rest).empty()) {
    Show(form, session.Ctx, out);
  } else {
    return "bad action '" + line + "'";
  }
  for (const std::string& request : session.Station.TakeRequests()) out << "REQUEST " << request << '\n';
  return {};
}

}  // namespace

int Script(const Args& args, std::ostream& out, std::ostream& err) {
  NewOptions options;
  Args positional;
  std::string logName;
  Args rest;
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (args[i] == "--log" && i + 1 < args.size()) logName = args[++i];
    else rest.push_back(args[i]);
  }
  if (!ReadOptions(rest, options, positional, err)) return 2;
  if (positional.size() != 1 || (!logName.empty() && options.HasContest)) {
    err << "tarnix-cli: script wants FILE, and either --log LOG.TNX or --contest N\n";
    return 2;
  }
  if (!options.HasContest) options.Choice.ContestIndex = Generic;
  if (logName.empty() && !ChoiceOffered(options.Choice, err)) return 2;
  std::ifstream file(positional[0], std::ios::binary);
  if (!file) {
    err << "tarnix-cli: cannot read " << positional[0] << "\n";
    return 2;
  }

  // The throw-away log lives in a program folder of its own.
  std::unique_ptr<TempFolder> scratch;
  if (logName.empty()) scratch = std::make_unique<TempFolder>();
  Session session(out, scratch ? scratch->Path : std::string());
  if (!session.Started) return 1;
  session.Desk.Time.Set(options.Clock);
  if (logName.empty()) {
    session.NewLog(options.Choice);
  } else if (!session.Open(Absolute(logName))) {
    return 1;
  }
  session.Station.Requests.clear();

  std::string line;
  for (int number = 1; std::getline(file, line); ++number) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (Trim(line).empty() || line[0] == '#') continue;
    if (std::string error = RunLine(session, line, out); !error.empty()) {
      err << "tarnix-cli: " << positional[0] << ":" << number << ": " << error << "\n";
      return 2;
    }
  }
  return 0;
}

}  // namespace tarnix::cli
