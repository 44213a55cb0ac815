// SPDX-License-Identifier: MIT
//
// The socket of the message bus takes nothing for a moment: sd-bus then keeps
// the message in its queue, and closing the connection would lose it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>

#include "linux/notification_probe.h"

namespace {

// How many attempts to send an announcement find the socket full.
int refusals = 0;

bool HasAnnouncement(const msghdr &message) {
  for (std::size_t i = 0; i < message.msg_iovlen; ++i) {
    const iovec &part = message.msg_iov[i];
    const std::string_view bytes(static_cast<const char *>(part.iov_base),
                                 part.iov_len);
    if (bytes.find(ztk::test::kName) != std::string_view::npos) return true;
  }
  return false;
}

}  // namespace

// What sd-bus calls in place of the C library's.
extern "C" __attribute__((visibility("default"))) ssize_t sendmsg(
    int socket, const msghdr *message, int flags) {
  if (refusals > 0 && HasAnnouncement(*message)) {
    --refusals;
    errno = EAGAIN;
    return -1;
  }
  return syscall(SYS_sendmsg, socket, message, flags);
}

namespace {

class FullSocket : public ztk::test::OnPrivateBus {};

TEST_F(FullSocket, StillGetsTheAnnouncementBeforeTheConnectionIsClosed) {
  ztk::test::Probe probe;
  probe.Observe(ztk::test::kName);
  refusals = 3;
  ztk::test::PostIndex(ztk::test::kName, 7);
  EXPECT_EQ(refusals, 0);
  EXPECT_TRUE(RunUntilReceived(probe, 1));
  EXPECT_THAT(probe.indexes(), testing::ElementsAre(7));
}

}  // namespace
