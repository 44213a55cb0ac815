// SPDX-License-Identifier: MIT
//
// The service manager of the user's session, which starts the unit that a udev
// rule names when a device is plugged in.
#ifndef ZTK_TOOLS_ZTK_SYSTEM_USER_MANAGER_H_
#define ZTK_TOOLS_ZTK_SYSTEM_USER_MANAGER_H_

#include <memory>
#include <string>

namespace ztk::model {

// Each of these throws std::runtime_error with the reason when the manager
// refuses.
class UserManager {
 public:
  UserManager();
  ~UserManager();
  UserManager(const UserManager &) = delete;
  UserManager &operator=(const UserManager &) = delete;

  // Whether it knows a unit of this name.
  bool Knows(const std::string &unit);
  // Adds the unit in the file permanently, or removes it.
  void Link(const std::string &file);
  void Unlink(const std::string &unit);

 private:
  struct Connection;
  std::unique_ptr<Connection> connection_;
};

// The path of the udev rule that names the unit; empty when none is installed.
std::string PlugInRule();

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_SYSTEM_USER_MANAGER_H_
