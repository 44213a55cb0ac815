// SPDX-License-Identifier: MIT
#ifndef ZTK_TESTS_SUPPORT_PRIVATE_BUS_H_
#define ZTK_TESTS_SUPPORT_PRIVATE_BUS_H_

#include <sys/types.h>

#include <optional>
#include <string>

namespace ztk::test {

// A private message bus. While this object exists, the environment names it as
// the session bus of this process and its children, even while it is stopped;
// its address does not change.
class PrivateBus {
 public:
  PrivateBus();
  ~PrivateBus();
  PrivateBus(const PrivateBus &) = delete;
  PrivateBus &operator=(const PrivateBus &) = delete;

  // Returns when the bus listens; false when there is no dbus-daemon.
  bool Start();
  // Kills the bus and waits for its end.
  void Stop();
  // A frozen bus still accepts connections, but does not answer.
  void Freeze();
  void Thaw();

  const std::string &folder() const { return folder_; }
  const std::string &address() const { return address_; }

 private:
  std::string folder_;
  std::string address_;
  std::optional<std::string> formerAddress_;
  pid_t daemon_ = -1;
};

}  // namespace ztk::test

#endif  // ZTK_TESTS_SUPPORT_PRIVATE_BUS_H_
