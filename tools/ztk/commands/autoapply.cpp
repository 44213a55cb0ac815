// SPDX-License-Identifier: MIT
#include "ztk/model/autoapply.h"
#include "ztk/commands/other_commands.h"
#include "ztk/system/facts.h"
#include "ztk/system/user_manager.h"

namespace ztk::program {

namespace {

constexpr char kNoRule[] =
    "the udev rule 71-ztk-apply.rules is missing, so nothing starts when a "
    "mixer is plugged in; install ztk from its package, or copy the rule of "
    "your build to /etc/udev/rules.d";

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
  SetAutoapply(true);
  return Describe(IsAutoapplyOn());
}

Report TurnAutoapplyOff(const Arguments & /*arguments*/) {
  try {
    SetAutoapply(false);
    return Describe(IsAutoapplyOn());
  } catch (const NoUserManager &) {
    return Describe(false);
  }
}

Report ShowAutoapply(const Arguments & /*arguments*/) {
  Report report;
  try {
    report = Describe(IsAutoapplyOn());
  } catch (const NoUserManager &reason) {
    report = Describe(false);
    report.warnings.emplace_back(reason.what());
  }
  report.isAnswer = true;
  return report;
}

}  // namespace ztk::program
