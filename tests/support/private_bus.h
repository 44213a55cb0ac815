// SPDX-License-Identifier: MIT
#ifndef ZTK_TESTS_SUPPORT_PRIVATE_BUS_H_
#define ZTK_TESTS_SUPPORT_PRIVATE_BUS_H_

#include <sys/types.h>

#include <optional>
#include <string>

namespace ztk::test {

// A private message bus. While this object exists, it is the session bus of
// this process and of its children: the environment contains its address, which
// does not change, even if the bus is stopped.
class PrivateBus {
 public:
  PrivateBus();
  ~PrivateBus();
  PrivateBus(const PrivateBus &) = delete;
  PrivateBus &operator=(const PrivateBus &) = delete;

  // Starts the bus and waits until it accepts connections. Returns false if
  // dbus-daemon is not installed.
  bool Start();
  // Kills the bus and waits until it has ended.
  void Stop();
  // Stops the daemon with SIGSTOP: clients can still connect, but get no
  // answer.
  void Suspend();
  void Resume();

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
