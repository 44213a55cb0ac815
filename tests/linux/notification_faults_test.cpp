// SPDX-License-Identifier: MIT
//
// Tests the notification center without a bus, with a bus that does not answer
// and with a bus that ends. If a call does not return, the alarm of the fixture
// ends the test.
#include <glib.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <functional>
#include <iostream>
#include <string>

#include "linux/notification_probe.h"

namespace {

using testing::ElementsAre;
using ztk::test::kName;
using ztk::test::OpenDescriptors;
using ztk::test::PostIndex;
using ztk::test::Probe;
using ztk::test::Threads;
using ztk::test::TurnsOfAnIdleLoop;

// A loop that waits wakes up only for its timer. A loop that does not wait
// wakes up more than ten thousand times.
constexpr int kFewTurns = 50;

// The bus of the fixture is stopped, so nothing listens at its address.
class WithoutBus : public ztk::test::OnPrivateBus {
 protected:
  void SetUp() override {
    OnPrivateBus::SetUp();
    bus_.Stop();
  }
  // Listens at the address of the bus. Clients can connect, but get no answer.
  int Listen() {
    const int listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un place{};
    place.sun_family = AF_UNIX;
    const std::string path = bus_.folder() + "/bus";
    std::strncpy(place.sun_path, path.c_str(), sizeof(place.sun_path) - 1);
    EXPECT_EQ(bind(listener, reinterpret_cast<const sockaddr *>(&place),
                   sizeof(place)),
              0);
    EXPECT_EQ(listen(listener, 8), 0);
    return listener;
  }
};
class OnEndingBus : public ztk::test::OnPrivateBus {};
class OnBus : public ztk::test::OnPrivateBus {};

// Prints the duration. No test depends on it.
void Report(const char *what, const std::function<void()> &function) {
  const auto start = std::chrono::steady_clock::now();
  function();
  const std::chrono::duration<double, std::milli> taken =
      std::chrono::steady_clock::now() - start;
  std::cout << what << ": " << taken.count() << " ms\n";
}

TEST_F(WithoutBus, CallsReturnWithoutAnEffect) {
  const struct {
    const char *name;
    const char *address;  // null: not set
    const char *runtimeFolder;
  } rows[] = {
      {"nobody listens", bus_.address().c_str(), nullptr},
      {"empty", "", nullptr},
      {"not an address", "nonsense", nullptr},
      {"unknown kind", "carrier:pigeon=1", nullptr},
      {"not set", nullptr, nullptr},
      {"not set, empty runtime folder", nullptr, bus_.folder().c_str()},
  };
  const auto descriptors = OpenDescriptors();
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    unsetenv("DBUS_SESSION_BUS_ADDRESS");
    unsetenv("XDG_RUNTIME_DIR");
    if (row.address != nullptr) {
      setenv("DBUS_SESSION_BUS_ADDRESS", row.address, 1);
    }
    if (row.runtimeFolder != nullptr) {
      setenv("XDG_RUNTIME_DIR", row.runtimeFolder, 1);
    }
    Probe probe;
    Report(row.name, [&probe] {
      probe.Observe(kName);
      PostIndex(kName, 1);
    });
    EXPECT_EQ(OpenDescriptors(), descriptors);
  }
  unsetenv("XDG_RUNTIME_DIR");
}

TEST_F(WithoutBus, FindsTheBusInTheRuntimeFolderWhenNoAddressIsSet) {
  ASSERT_TRUE(bus_.Start());
  unsetenv("DBUS_SESSION_BUS_ADDRESS");
  setenv("XDG_RUNTIME_DIR", bus_.folder().c_str(), 1);
  Probe probe;
  probe.Observe(kName);
  PostIndex(kName, 1);
  EXPECT_TRUE(RunUntilReceived(probe, 1));
  unsetenv("XDG_RUNTIME_DIR");
}

TEST_F(WithoutBus, CallsReturnIfTheServerDoesNotAnswer) {
  const int listener = Listen();
  const auto descriptors = OpenDescriptors();
  Probe probe;
  const std::clock_t timeBefore = std::clock();
  Report("post", [] { PostIndex(kName, 1); });
  Report("observe", [&probe] { probe.Observe(kName); });
  // This is processor time: a call that waits must not use it.
  EXPECT_LT(std::clock() - timeBefore, CLOCKS_PER_SEC / 2);
  EXPECT_EQ(OpenDescriptors(), descriptors);
  close(listener);
}

TEST_F(WithoutBus, CallsReturnIfTheServerClosesTheConnection) {
  const int listener = Listen();
  const pid_t server = fork();
  if (server == 0) {
    for (;;) close(accept(listener, nullptr, nullptr));
  }
  const auto descriptors = OpenDescriptors();
  Probe probe;
  for (int i = 0; i < 100; ++i) {
    PostIndex(kName, i);
    probe.Observe(kName);
  }
  EXPECT_EQ(OpenDescriptors(), descriptors);
  kill(server, SIGKILL);
  waitpid(server, nullptr, 0);
  close(listener);
}

TEST_F(OnEndingBus, ClosesTheConnectionAndDoesNotKeepTheLoopBusy) {
  const auto descriptors = OpenDescriptors();
  Probe probe;
  probe.Observe(kName);
  // Later versions of libsystemd also hold a descriptor of the bus's process.
  EXPECT_GT(OpenDescriptors(), descriptors);
  bus_.Stop();
  EXPECT_LT(TurnsOfAnIdleLoop(context_), kFewTurns);
  EXPECT_EQ(OpenDescriptors(), descriptors);
}

TEST_F(OnEndingBus, DeliversSignalsThatTheBusSentBefore) {
  Probe probe;
  probe.Observe(kName);
  PostIndex(kName, 1);
  PostIndex(kName, 2);
  // The bus answers this registration after it has delivered the two
  // notifications.
  probe.Observe("Other");
  bus_.Stop();
  EXPECT_TRUE(RunUntilReceived(probe, 2));
  EXPECT_THAT(probe.indexes(), ElementsAre(1, 2));
}

TEST_F(OnEndingBus, ConnectsAgainForTheNextObserver) {
  for (const bool loopHasSeenIt : {true, false}) {
    SCOPED_TRACE(loopHasSeenIt);
    Probe probe;
    probe.Observe(kName);
    bus_.Stop();
    if (loopHasSeenIt) TurnsOfAnIdleLoop(context_);
    ASSERT_TRUE(bus_.Start());
    Probe later;
    later.Observe(kName);
    PostIndex(kName, 3);
    EXPECT_TRUE(RunUntilReceived(later, 1));
    EXPECT_THAT(later.indexes(), ElementsAre(3));
    EXPECT_THAT(probe.indexes(), ElementsAre());
  }
}

TEST_F(OnEndingBus, WorksAfterTheBusEndedInACallback) {
  Probe later;
  Probe probe;
  probe.then = [&](const auto *) {
    bus_.Stop();
    ASSERT_TRUE(bus_.Start());
    later.Observe(kName);
    PostIndex(kName, 2);
  };
  probe.Observe(kName);
  PostIndex(kName, 1);
  EXPECT_TRUE(RunUntilReceived(later, 1));
  EXPECT_THAT(probe.indexes(), ElementsAre(1));
  EXPECT_THAT(later.indexes(), ElementsAre(2));
}

TEST_F(OnEndingBus, WorksAfterASuspendedBusResumes) {
  Probe probe;
  probe.Observe(kName);
  bus_.Suspend();
  Probe refused;
  Report("post", [] { PostIndex(kName, 1); });
  Report("observe", [&refused] { refused.Observe("Other"); });
  EXPECT_LT(TurnsOfAnIdleLoop(context_), kFewTurns);
  bus_.Resume();
  PostIndex(kName, 2);
  EXPECT_TRUE(RunUntilReceived(probe, 1));
  EXPECT_THAT(probe.indexes(), ElementsAre(2));
}

TEST_F(OnBus, DoesNotKeepTheLoopBusyAfterADelivery) {
  Probe probe;
  probe.Observe(kName);
  PostIndex(kName, 1);
  EXPECT_TRUE(RunUntilReceived(probe, 1));
  EXPECT_LT(TurnsOfAnIdleLoop(context_), kFewTurns);
}

TEST_F(OnBus, PostsKeepNoDescriptorAndNoThread) {
  Probe probe;
  probe.Observe(kName);
  PostIndex(kName, 1);
  const auto descriptors = OpenDescriptors();
  const auto threads = Threads();
  Report("1000 posts", [] {
    for (int i = 0; i < 1000; ++i) PostIndex(kName, i);
  });
  EXPECT_EQ(OpenDescriptors(), descriptors);
  EXPECT_EQ(threads, 1);
  EXPECT_EQ(Threads(), 1);
}

TEST_F(OnBus, UsesOneConnectionForAllObserversOfAContext) {
  Probe probe;
  probe.Observe(kName);
  const auto descriptors = OpenDescriptors();
  for (int i = 0; i < 20; ++i) probe.Observe("Other");
  EXPECT_EQ(OpenDescriptors(), descriptors);
}

TEST_F(OnBus, ClosesTheConnectionWithItsContext) {
  const auto before = OpenDescriptors();
  GMainContext *passing = g_main_context_new();
  g_main_context_push_thread_default(passing);
  Probe probe;
  probe.Observe(kName);
  PostIndex(kName, 1);
  EXPECT_GT(OpenDescriptors(), before);
  g_main_context_pop_thread_default(passing);
  g_main_context_unref(passing);
  EXPECT_EQ(OpenDescriptors(), before);

  Probe next;
  next.Observe(kName);
  PostIndex(kName, 2);
  EXPECT_TRUE(RunUntilReceived(next, 1));
  EXPECT_THAT(next.indexes(), ElementsAre(2));
  EXPECT_THAT(probe.indexes(), ElementsAre());
}

TEST_F(OnBus, WorksInAForkedChildAndThenInTheParent) {
  Probe probe;
  probe.Observe(kName);
  const int status = ztk::test::InChild([this] {
    Probe own;
    own.Observe(kName);
    PostIndex(kName, 1);
    return RunUntilReceived(own, 1) && own.indexes().size() == 1 ? 0 : 1;
  });
  EXPECT_EQ(status, 0);
  PostIndex(kName, 2);
  EXPECT_TRUE(RunUntilReceived(probe, 2));
  EXPECT_THAT(probe.indexes(), ElementsAre(1, 2));
}

TEST_F(OnBus, DoesNotKeepTheInheritedLoopBusyInAForkedChild) {
  Probe probe;
  probe.Observe(kName);
  PostIndex(kName, 1);
  EXPECT_EQ(ztk::test::InChild([this] {
              return TurnsOfAnIdleLoop(context_) < kFewTurns ? 0 : 1;
            }),
            0);
  EXPECT_TRUE(RunUntilReceived(probe, 1));
}

}  // namespace
