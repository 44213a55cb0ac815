// SPDX-License-Identifier: MIT
#include "ztk/model/autoapply.h"

#include <unistd.h>

#include <stdexcept>
#include <string>

#include "build_config.h"
#include "ztk/system/user_manager.h"

namespace ztk::model {

namespace {

// A template: systemd starts one instance of the unit for each mixer. If two
// mixers are plugged in at the same time, both receive their settings.
constexpr char kUnit[] = "ztk-apply@.service";

std::string UnitFile() {
  std::string file = build::kDataDir;
  file.append("/ztk/").append(kUnit);
  return file;
}

}  // namespace

bool IsAutoapplyOn() { return UserManager().Knows(kUnit); }

void SetAutoapply(bool on) {
  UserManager manager;
  if (!on) return manager.Unlink(kUnit);
  // Throws if systemd does not answer. That has to be reported first: without
  // systemd, the missing file would not matter.
  static_cast<void>(manager.Knows(kUnit));
  const std::string file = UnitFile();
  if (access(file.c_str(), F_OK) != 0) {
    throw std::runtime_error(
        "the file " + file +
        ", which starts 'ztk apply', is missing; install ztk first");
  }
  manager.Link(file);
}

}  // namespace ztk::model
