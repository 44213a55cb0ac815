// SPDX-License-Identifier: MIT
#include "platform/linux/bus_message.h"

#include <gtest/gtest.h>

#include "linux/notification_probe.h"
#include "platform/linux/bus_connection.h"

namespace ztk::platform::notification_center {
namespace {

class Message : public test::OnPrivateBus {
 protected:
  // Returns whether a message with this name and key can be made.
  bool IsMade(ZTKTextRef name, ZTKTextRef key) {
    const OwnedBus bus = ConnectToSessionBus(WaitDeadline());
    if (bus == nullptr) return false;
    const Entry entry = {.key = key, .value = 1};
    UserInfo *userInfo = MakeUserInfo(&entry, 1);
    sd_bus_message *message =
        MakeMessage(bus.get(), name, userInfo, Delivery::Default);
    Release(userInfo);
    if (message == nullptr) return false;
    SdBus()->sd_bus_message_unref(message);
    return true;
  }
};

// A message without the text would reach other programs in another form.
TEST_F(Message, IsNotMadeIfATextIsNotUtf8) {
  EXPECT_TRUE(IsMade("Name", "Index"));
  EXPECT_FALSE(IsMade("\xff", "Index"));
  EXPECT_FALSE(IsMade("Name", "\xff"));
}

}  // namespace
}  // namespace ztk::platform::notification_center
