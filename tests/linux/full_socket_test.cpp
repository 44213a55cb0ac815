// SPDX-License-Identifier: MIT
//
// The socket of the message bus is full for a moment. Then sd-bus keeps the
// message in its queue, and the message would be lost if the connection were
// closed.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>

#include "linux/notification_probe.h"

namespace {

// The number of attempts to send an announcement that still have to fail.
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

// sd-bus calls this function instead of the one of the C library.
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

TEST_F(FullSocket, ReceivesTheAnnouncementBeforeTheConnectionIsClosed) {
  ztk::test::Probe probe;
  probe.Observe(ztk::test::kName);
  refusals = 3;
  ztk::test::PostIndex(ztk::test::kName, 7);
  EXPECT_EQ(refusals, 0);
  EXPECT_TRUE(RunUntilReceived(probe, 1));
  EXPECT_THAT(probe.indexes(), testing::ElementsAre(7));
}

}  // namespace
