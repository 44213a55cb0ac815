// SPDX-License-Identifier: MIT
#include "ztk/commands/autoapply.h"

#include <unistd.h>

#include "build_config.h"
#include "ztk/system/facts.h"
#include "ztk/system/user_manager.h"

namespace ztk::program {

namespace {

// One for each mixer, so that two that come at the same time are both served.
constexpr char kUnit[] = "ztk-apply@.service";

constexpr char kNoRule[] =
    "nothing tells of a mixer that is plugged in: udev has no rule "
    "71-ztk-apply.rules; install ztk from its package, or put the rule of your "
    "build into /etc/udev/rules.d";

std::string UnitFile() {
  std::string file = build::kDataDir;
  file.append("/ztk/").append(kUnit);
  return file;
}

Report Describe(bool on) {
  Report report;
  const std::string rule = PlugInRule();
  Json fields;
  fields["on"] = on;
  fields["rule"] = rule.empty() ? Json() : Json(rule);
  report.fields["autoapply"] = fields;
  report.text = on ? "On: when a mixer is plugged in, what is remembered is "
                     "sent to it.\n"
                   : "Off: what is remembered is sent when you run 'ztk "
                     "apply'.\n";
  if (on && rule.empty()) {
    report.warnings.emplace_back(kNoRule);
  }
  return report;
}

Report TurnOn(const Arguments & /*arguments*/) {
  UserManager manager;
  const std::string file = UnitFile();
  if (access(file.c_str(), F_OK) != 0) {
    throw Failure(ExitCode::Failed,
                  "there is no " + file +
                      ", which starts 'ztk apply'; install ztk first");
  }
  manager.Link(file);
  return Describe(manager.Knows(kUnit));
}

Report TurnOff(const Arguments & /*arguments*/) {
  UserManager manager;
  manager.Unlink(kUnit);
  return Describe(manager.Knows(kUnit));
}

Report ShowState(const Arguments & /*arguments*/) {
  UserManager manager;
  return Describe(manager.Knows(kUnit));
}

Command MakeCommand(const char *verb, const char *summary,
                    Report (*run)(const Arguments &)) {
  const std::string path = std::string("autoapply ") + verb;
  return {.path = path,
          .summary = summary,
          .parameters = {},
          .note = AutoapplyFact(),
          .example = "ztk " + path,
          .run = run};
}

}  // namespace

Group AutoapplyGroup() {
  return {.name = "autoapply",
          .summary = "Send what is remembered when a mixer is plugged in",
          .note = AutoapplyFact(),
          .example = "ztk autoapply on"};
}

std::vector<Command> AutoapplyCommands() {
  return {MakeCommand("on", "Turn it on, for every mixer from now on", TurnOn),
          MakeCommand("off", "Turn it off", TurnOff),
          MakeCommand("status", "Show whether it is on", ShowState)};
}

}  // namespace ztk::program
