// SPDX-License-Identifier: MIT
#include "ztk/system/user_manager.h"

namespace ztk::model {

// launchd can start a program when a device is plugged in, but the program then
// has to consume the event. ztk does not support this.
struct UserManager::Connection {};

UserManager::UserManager() {
  throw NoUserManager(
      "ztk autoapply is not built for macOS: nothing is started here "
      "when a mixer is plugged in; run 'ztk apply' after plugging "
      "in");
}

UserManager::~UserManager() = default;

bool UserManager::Knows(const std::string & /*unit*/) { return false; }

void UserManager::Link(const std::string & /*file*/) {}

void UserManager::Unlink(const std::string & /*unit*/) {}

std::string PlugInRule() { return ""; }

}  // namespace ztk::model
