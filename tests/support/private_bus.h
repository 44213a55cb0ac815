// SPDX-License-Identifier: MIT
#ifndef ZTK_TESTS_SUPPORT_PRIVATE_BUS_H_
#define ZTK_TESTS_SUPPORT_PRIVATE_BUS_H_

#include <sys/types.h>

#include <optional>
#include <string>

namespace ztk::test {

// A message bus of the test's own. While it lives, the environment names it as
// the session bus of this process and of its children, started or not; its
// address stays the same over Stop() and Start().
class PrivateBus {
 public:
  PrivateBus();
  ~PrivateBus();
  PrivateBus(const PrivateBus &) = delete;
  PrivateBus &operator=(const PrivateBus &) = delete;

  // False when there is no dbus-daemon to run. Answers once the bus listens.
  bool Start();
  // Kills the bus and waits for its end.
  void Stop();
  // While frozen the bus still takes connections, but answers nothing.
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
