// SPDX-License-Identifier: MIT
#include "ztk/system/user_manager.h"
#include "ztk/report.h"

namespace ztk::program {

// The service manager here starts nothing when a device is plugged in.
struct UserManager::Connection {};

UserManager::UserManager() {
  throw Failure(ExitCode::Failed,
                "nothing can be started here when a mixer is plugged in: that "
                "is systemd's work; run 'ztk apply' after plugging in");
}

UserManager::~UserManager() = default;

bool UserManager::Knows(const std::string & /*unit*/) { return false; }

void UserManager::Link(const std::string & /*file*/) {}

void UserManager::Unlink(const std::string & /*unit*/) {}

std::string PlugInRule() { return ""; }

}  // namespace ztk::program
