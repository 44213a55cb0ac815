// SPDX-License-Identifier: MIT
//
// The service manager of the user's session: "systemd --user" on Linux. It
// starts the unit that a udev rule names when a device is plugged in.
#ifndef ZTK_TOOLS_ZTK_SYSTEM_USER_MANAGER_H_
#define ZTK_TOOLS_ZTK_SYSTEM_USER_MANAGER_H_

#include <memory>
#include <stdexcept>
#include <string>

namespace ztk::model {

// The system has no such service, so no unit can be linked either.
class NoUserManager : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Each of these functions, also the constructor, throws std::runtime_error with
// the reason if the manager cannot be reached, or if it does not do what it is
// asked, and NoUserManager if the system has none.
class UserManager {
 public:
  UserManager();
  ~UserManager();
  UserManager(const UserManager &) = delete;
  UserManager &operator=(const UserManager &) = delete;

  // Whether a unit of this name was linked with Link().
  bool Knows(const std::string &unit);
  // Links the unit file, so that the manager can start the unit in this session
  // and in later ones.
  void Link(const std::string &file);
  // Removes the link of this unit.
  void Unlink(const std::string &unit);

 private:
  struct Connection;
  std::unique_ptr<Connection> connection_;
};

// The path of the udev rule that names the unit; empty when none is installed.
std::string PlugInRule();

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_SYSTEM_USER_MANAGER_H_
