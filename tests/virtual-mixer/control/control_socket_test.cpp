// SPDX-License-Identifier: MIT
//
// The control socket: its mode, and clients that delay others.
#include "virtual-mixer/control/control_socket.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <thread>

namespace ztk::virtual_mixer {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

// Much longer than a server needs, so that only a server that hangs exceeds it.
constexpr seconds kLongest{30};
// How long the servers here wait for a client.
constexpr milliseconds kPatience{200};

class ControlSocket : public testing::Test {
 protected:
  ControlSocket() {
    std::string made = "/tmp/controlXXXXXX";
    if (mkdtemp(made.data()) == nullptr) std::abort();
    folder_ = made;
  }
  ~ControlSocket() override { std::filesystem::remove_all(folder_); }

  std::string Path() const { return folder_ + "/control"; }
  platform::FileDescriptor Connect() const {
    platform::FileDescriptor made(
        socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, Path().c_str(), sizeof address.sun_path - 1);
    EXPECT_EQ(connect(made.get(), reinterpret_cast<const sockaddr *>(&address),
                      sizeof address),
              0);
    return made;
  }
  // The mode of the socket of a server that starts under this umask.
  unsigned ModeUnder(mode_t mask) const {
    const mode_t before = umask(mask);
    const ControlServer server(Path(), [](auto) { return ""; });
    umask(before);
    struct stat status {};
    EXPECT_EQ(stat(Path().c_str(), &status), 0);
    std::filesystem::remove(Path());
    return status.st_mode & 07777U;
  }

 private:
  std::string folder_;
};

TEST_F(ControlSocket, BelongsToItsUserAloneWhateverTheUmask) {
  EXPECT_EQ(ModeUnder(0), 0600u);
  EXPECT_EQ(ModeUnder(022), 0600u);
  EXPECT_EQ(ModeUnder(0777), 0600u);
}

TEST_F(ControlSocket, SaysThatANameIsTaken) {
  const ControlServer first(Path(), [](auto) { return ""; });
  try {
    const ControlServer second(Path(), [](auto) { return ""; });
    ADD_FAILURE() << "it listens";
  } catch (const std::exception &refusal) {
    EXPECT_EQ(refusal.what(),
              "cannot listen at " + Path() + ": Address already in use");
  }
}

TEST_F(ControlSocket, ServesOthersWhileAClientSendsByteAfterByte) {
  const ControlServer server(
      Path(), [](std::string_view line) { return std::string(line); },
      kPatience);
  const platform::FileDescriptor slow = Connect();
  std::atomic<bool> asked = false;
  std::thread dripping([&] {
    while (!asked && send(slow.get(), "x", 1, MSG_NOSIGNAL) == 1) {
      std::this_thread::sleep_for(milliseconds(10));
    }
  });
  std::string answer;
  try {
    answer = AskControl(Path(), "hello", kLongest);
  } catch (const std::exception &error) {
    answer = error.what();
  }
  asked = true;
  dripping.join();
  EXPECT_EQ(answer, "hello");
}

TEST_F(ControlSocket, StopsSendingToAClientThatReadsTooSlowly) {
  // Much more than a socket accepts at once.
  const std::string large(20 << 20, 'x');
  const ControlServer server(
      Path(), [&](auto) { return large; }, kPatience);
  const platform::FileDescriptor slow = Connect();
  ASSERT_EQ(send(slow.get(), "show\n", 5, MSG_NOSIGNAL), 5);
  std::size_t received = 0;
  std::array<char, 4096> part{};
  while (true) {
    const ssize_t got = recv(slow.get(), part.data(), part.size(), 0);
    if (got <= 0) break;
    received += static_cast<std::size_t>(got);
    std::this_thread::sleep_for(milliseconds(5));
  }
  EXPECT_LT(received, large.size());
}

TEST_F(ControlSocket, AClientDoesNotWaitForEverForItsAnswer) {
  // Nobody accepts.
  const platform::FileDescriptor listener(
      socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  std::strncpy(address.sun_path, Path().c_str(), sizeof address.sun_path - 1);
  ASSERT_EQ(bind(listener.get(), reinterpret_cast<const sockaddr *>(&address),
                 sizeof address),
            0);
  ASSERT_EQ(listen(listener.get(), 1), 0);
  EXPECT_THROW(AskControl(Path(), "show", milliseconds(50)),
               std::runtime_error);
}

}  // namespace
}  // namespace ztk::virtual_mixer
