// SPDX-License-Identifier: MIT
#include <unistd.h>

#include "build_config.h"
#include "ztk/commands/other_commands.h"
#include "ztk/system/facts.h"
#include "ztk/system/user_manager.h"

namespace ztk::program {

namespace {

// One unit for each mixer, so that two mixers plugged in at the same time are
// both served.
constexpr char kUnit[] = "ztk-apply@.service";

constexpr char kNoRule[] =
    "the udev rule 71-ztk-apply.rules is missing, so nothing starts when a "
    "mixer is plugged in; install ztk from its package, or copy the rule of "
    "your build to /etc/udev/rules.d";

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
  report.text = on ? "On: the remembered settings are sent to each mixer that "
                     "is plugged in.\n"
                   : "Off: the remembered settings are sent when you run "
                     "'ztk apply'.\n";
  if (on && rule.empty()) {
    report.warnings.emplace_back(kNoRule);
  }
  return report;
}

}  // namespace

Report TurnAutoapplyOn(const Arguments & /*arguments*/) {
  UserManager manager;
  const std::string file = UnitFile();
  if (access(file.c_str(), F_OK) != 0) {
    throw Failure(ExitCode::Failed,
                  "the file " + file +
                      ", which starts 'ztk apply', is missing; install ztk "
                      "first");
  }
  manager.Link(file);
  return Describe(manager.Knows(kUnit));
}

Report TurnAutoapplyOff(const Arguments & /*arguments*/) {
  UserManager manager;
  manager.Unlink(kUnit);
  return Describe(manager.Knows(kUnit));
}

Report ShowAutoapply(const Arguments & /*arguments*/) {
  UserManager manager;
  return Describe(manager.Knows(kUnit));
}

}  // namespace ztk::program
