// SPDX-License-Identifier: MIT
//
// Replaces the systemd of a user's session on a message bus, and records the
// requested changes.
#ifndef ZTK_TESTS_ZTK_FAKE_USER_MANAGER_H_
#define ZTK_TESTS_ZTK_FAKE_USER_MANAGER_H_

#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include "platform/linux/bus_connection.h"

namespace ztk::test {

class FakeUserManager {
 public:
  // On the session bus of this process.
  FakeUserManager();
  ~FakeUserManager();
  FakeUserManager(const FakeUserManager &) = delete;
  FakeUserManager &operator=(const FakeUserManager &) = delete;

  // Call this only while no request is pending.
  void KnowUnit(bool known) { known_ = known; }
  void RefuseWith(const std::string &reason) { refusal_ = reason; }
  const std::vector<std::string> &calls() const { return calls_; }

 private:
  static int OnMessage(sd_bus_message *message, void *self, sd_bus_error *);
  int Answer(sd_bus_message *message);
  void Serve();

  platform::notification_center::OwnedBus bus_;
  std::vector<std::string> calls_;
  std::string refusal_;
  bool known_ = false;
  std::atomic<bool> ended_ = false;
  std::thread thread_;
};

}  // namespace ztk::test

#endif  // ZTK_TESTS_ZTK_FAKE_USER_MANAGER_H_
