// SPDX-License-Identifier: MIT
//
// To show that a notification does not arrive, a test waits for a later one.
// The bus delivers messages in order.
#include "platform/notification_center.h"

#include <glib.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdint>
#include <functional>
#include <future>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

#include "linux/notification_probe.h"
#include "platform/linux/sd_bus_header.h"

namespace {

namespace center = ztk::platform::notification_center;
using testing::ElementsAre;
using ztk::test::kName;
using ztk::test::PostIndex;
using ztk::test::Probe;

constexpr char kPath[] = "/com/tarvix/DistributedNotificationCenter";
constexpr char kInterface[] = "com.tarvix.DistributedNotificationCenter";
constexpr char kMember[] = "Notification";

class AddObserver : public ztk::test::OnPrivateBus {};
class Post : public ztk::test::OnPrivateBus {};

// Sends a signal without using the library.
void EmitForeign(const std::function<int(sd_bus *)> &emit) {
  sd_bus *bus = nullptr;
  ASSERT_GE(sd_bus_open_user(&bus), 0);
  EXPECT_GE(emit(bus), 0);
  sd_bus_flush_close_unref(bus);
}

int RunProgram(std::vector<std::string> words) {
  std::vector<char *> arguments;
  arguments.reserve(words.size() + 1);
  for (std::string &word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  pid_t child = -1;
  if (posix_spawnp(&child, arguments[0], nullptr, nullptr, arguments.data(),
                   environ) != 0) {
    return -1;
  }
  int status = -1;
  waitpid(child, &status, 0);
  return status;
}

TEST(ReadNumber, FindsANumberByTheContentOfItsKey) {
  const center::Entry entries[] = {{.key = "ProductID", .value = 10},
                                   {.key = "Channel", .value = -1},
                                   {.key = "Index", .value = INT32_MIN}};
  center::UserInfo *userInfo =
      center::MakeUserInfo(entries, std::size(entries));
  const struct {
    std::string key;
    std::int32_t expected;
  } rows[] = {
      {"ProductID", 10}, {"Channel", -1}, {"Index", INT32_MIN},
      {"index", 0},      {"", 0},         {"Index2", 0},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.key);
    EXPECT_EQ(center::ReadNumber(userInfo, row.key.c_str()), row.expected);
  }
  center::Release(userInfo);
}

TEST(ReadNumber, IsZeroWithoutARecord) {
  EXPECT_EQ(center::ReadNumber(nullptr, "Index"), 0);
  center::UserInfo *empty = center::MakeUserInfo(nullptr, 0);
  EXPECT_EQ(center::ReadNumber(empty, "Index"), 0);
  center::Release(empty);
}

TEST(MakeUserInfo, CopiesTheKeys) {
  std::string key = "Index";
  const center::Entry entry = {.key = key.c_str(), .value = 3};
  center::UserInfo *userInfo = center::MakeUserInfo(&entry, 1);
  key = "Other";
  EXPECT_EQ(center::ReadNumber(userInfo, "Index"), 3);
  EXPECT_EQ(center::ReadNumber(userInfo, "Other"), 0);
  center::Release(userInfo);
}

TEST(Release, TakesNull) { center::Release(nullptr); }

TEST_F(Post, ReachesTheSameProcess) {
  Probe probe;
  std::vector<std::int32_t> others;
  probe.then = [&](const center::UserInfo *userInfo) {
    others = {center::ReadNumber(userInfo, "ProductID"),
              center::ReadNumber(userInfo, "Channel"),
              center::ReadNumber(userInfo, "Absent")};
  };
  probe.Observe(kName);
  PostIndex(kName, 5);
  EXPECT_TRUE(RunUntilReceived(probe, 1));
  EXPECT_THAT(probe.indexes(), ElementsAre(5));
  EXPECT_THAT(others, ElementsAre(10, 2, 0));
}

TEST_F(Post, ReachesAnotherProcessEvenIfTheSenderExitsAtOnce) {
  Probe probe;
  probe.Observe(kName);
  std::vector<std::int32_t> expected;
  for (std::int32_t i = 0; i < 100; ++i) {
    EXPECT_EQ(ztk::test::InChild([i] {
                PostIndex(kName, i);
                return 0;
              }),
              0);
    expected.push_back(i);
  }
  EXPECT_TRUE(RunUntilReceived(probe, 100));
  EXPECT_EQ(probe.indexes(), expected);
}

TEST_F(Post, SendsAnEmptyRecordForANullRecord) {
  Probe probe;
  probe.Observe(kName);
  center::Post(kName, nullptr, center::Delivery::Default);
  EXPECT_TRUE(RunUntilReceived(probe, 1));
  EXPECT_THAT(probe.indexes(), ElementsAre(0));
}

TEST_F(Post, SendsNothingIfATextIsNotUtf8) {
  Probe probe;
  probe.Observe(kName);
  PostIndex("\xff", 1);
  const center::Entry entry = {.key = "\xff", .value = 2};
  center::UserInfo *userInfo = center::MakeUserInfo(&entry, 1);
  center::Post(kName, userInfo, center::Delivery::Default);
  center::Release(userInfo);
  PostIndex(kName, 3);
  EXPECT_TRUE(RunUntilReceived(probe, 1));
  EXPECT_THAT(probe.indexes(), ElementsAre(3));
}

TEST_F(Post, SaysWhetherToDeliverImmediately) {
  struct Body {
    std::string signature;
    std::vector<int> immediately;
  } body;
  sd_bus *bus = nullptr;
  ASSERT_GE(sd_bus_open_user(&bus), 0);
  sd_bus_match_signal(
      bus, nullptr, nullptr, kPath, kInterface, kMember,
      [](sd_bus_message *message, void *userData, sd_bus_error *) {
        auto *seen = static_cast<Body *>(userData);
        seen->signature = sd_bus_message_get_signature(message, 1);
        int immediately = -1;
        sd_bus_message_skip(message, "sa{si}");
        sd_bus_message_read_basic(message, 'b', &immediately);
        seen->immediately.push_back(immediately);
        return 0;
      },
      &body);
  center::Post(kName, nullptr, center::Delivery::Default);
  center::Post(kName, nullptr, center::Delivery::Immediately);
  while (body.immediately.size() < 2) {
    if (sd_bus_process(bus, nullptr) == 0) sd_bus_wait(bus, UINT64_MAX);
  }
  EXPECT_EQ(body.signature, "sa{si}b");
  EXPECT_THAT(body.immediately, ElementsAre(0, 1));
  sd_bus_close(bus);
  sd_bus_unref(bus);
}

TEST_F(AddObserver, ReceivesASignalOfAProgramWithoutTheLibrary) {
  Probe probe;
  probe.Observe(kName);
  const int status = RunProgram(
      {"dbus-send", "--session", "--type=signal", kPath,
       std::string(kInterface) + "." + kMember, std::string("string:") + kName,
       "dict:string:int32:ProductID,10,Channel,1,Index,6", "boolean:true"});
  if (status != 0) GTEST_SKIP() << "dbus-send cannot be run";
  EXPECT_TRUE(RunUntilReceived(probe, 1));
  EXPECT_THAT(probe.indexes(), ElementsAre(6));
}

TEST_F(AddObserver, DeliversOncePerRegistration) {
  Probe first;
  Probe second;
  first.Observe(kName);
  first.Observe(kName);
  second.Observe(kName);
  PostIndex(kName, 4);
  PostIndex(kName, 5);
  EXPECT_TRUE(RunUntilReceived(first, 4));
  EXPECT_TRUE(RunUntilReceived(second, 2));
  EXPECT_THAT(first.indexes(), ElementsAre(4, 4, 5, 5));
  EXPECT_THAT(second.indexes(), ElementsAre(4, 5));
}

TEST_F(AddObserver, ReceivesOnlyItsOwnName) {
  // The last three names cannot be written into the match rule. The first of
  // them would add a condition to the rule.
  const std::string names[] = {"",        "VRM-K2 MidiChannel Change",
                               "a, b",    "a',arg0='b",
                               "it's so", "back\\slash"};
  for (const std::string &name : names) {
    SCOPED_TRACE(name);
    Probe probe;
    probe.Observe(name.c_str());
    for (const std::string &other : names) {
      if (other != name) PostIndex(other.c_str(), 1);
    }
    PostIndex((name + " ").c_str(), 2);
    PostIndex(name.c_str(), 3);
    EXPECT_TRUE(RunUntilReceived(probe, 1));
    EXPECT_THAT(probe.indexes(), ElementsAre(3));
    // Ending the context removes the observer.
    TearDown();
    context_ = g_main_context_new();
    g_main_context_push_thread_default(context_);
  }
}

TEST_F(AddObserver, IgnoresSignalsOfAnotherForm) {
  const struct {
    const char *name;
    const char *path;
    const char *interface;
    const char *member;
    std::function<int(sd_bus_message *)> fill;
  } rows[] = {
      {"empty", kPath, kInterface, kMember, [](auto *) { return 0; }},
      {"name only", kPath, kInterface, kMember,
       [](auto *m) { return sd_bus_message_append(m, "s", kName); }},
      {"no flag", kPath, kInterface, kMember,
       [](auto *m) {
         return sd_bus_message_append(m, "sa{si}", kName, 1, "Index", 1);
       }},
      {"texts", kPath, kInterface, kMember,
       [](auto *m) {
         return sd_bus_message_append(m, "sa{ss}b", kName, 1, "Index", "1", 1);
       }},
      {"variants", kPath, kInterface, kMember,
       [](auto *m) {
         return sd_bus_message_append(m, "sa{sv}b", kName, 1, "Index", "i", 1,
                                      1);
       }},
      {"unsigned", kPath, kInterface, kMember,
       [](auto *m) {
         return sd_bus_message_append(m, "sa{su}b", kName, 1, "Index", 1U, 1);
       }},
      {"one value more", kPath, kInterface, kMember,
       [](auto *m) {
         return sd_bus_message_append(m, "sa{si}bi", kName, 1, "Index", 1, 1,
                                      1);
       }},
      {"other path", "/com/tarvix/Other", kInterface, kMember,
       [](auto *m) {
         return sd_bus_message_append(m, "sa{si}b", kName, 1, "Index", 1, 1);
       }},
      {"other interface", kPath, "com.tarvix.Other", kMember,
       [](auto *m) {
         return sd_bus_message_append(m, "sa{si}b", kName, 1, "Index", 1, 1);
       }},
      {"other member", kPath, kInterface, "Other",
       [](auto *m) {
         return sd_bus_message_append(m, "sa{si}b", kName, 1, "Index", 1, 1);
       }},
  };
  Probe probe;
  probe.Observe(kName);
  std::vector<std::int32_t> expected;
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    EmitForeign([&row](sd_bus *bus) {
      sd_bus_message *message = nullptr;
      sd_bus_message_new_signal(bus, &message, row.path, row.interface,
                                row.member);
      int result = row.fill(message);
      if (result >= 0) result = sd_bus_send(bus, message, nullptr);
      sd_bus_message_unref(message);
      return result;
    });
    PostIndex(kName, 7);
    expected.push_back(7);
    EXPECT_TRUE(RunUntilReceived(probe, expected.size()));
    EXPECT_EQ(probe.indexes(), expected);
  }
}

TEST_F(AddObserver, DeliversABurstInOrder) {
  Probe probe;
  probe.Observe(kName);
  std::vector<std::int32_t> expected;
  for (std::int32_t i = 0; i < 1000; ++i) {
    PostIndex(kName, i);
    expected.push_back(i);
  }
  EXPECT_TRUE(RunUntilReceived(probe, 1000));
  EXPECT_EQ(probe.indexes(), expected);
}

TEST_F(AddObserver, DeliversASignalThatArrivesWhileAnotherObserverIsAdded) {
  Probe probe;
  probe.Observe(kName);
  PostIndex(kName, 1);
  Probe other;
  other.Observe("Other");
  EXPECT_TRUE(RunUntilReceived(probe, 1));
  EXPECT_THAT(probe.indexes(), ElementsAre(1));
}

TEST_F(AddObserver, CallsOnTheThreadWhoseContextWasPushed) {
  Probe probe;
  std::promise<void> observing;
  bool received = false;
  std::thread worker([&] {
    GMainContext *own = g_main_context_new();
    g_main_context_push_thread_default(own);
    probe.Observe(kName);
    observing.set_value();
    received =
        ztk::test::RunUntil(own, [&probe] { return !probe.indexes().empty(); });
    g_main_context_pop_thread_default(own);
    g_main_context_unref(own);
  });
  const std::thread::id workerId = worker.get_id();
  observing.get_future().wait();
  Probe here;
  here.Observe(kName);
  PostIndex(kName, 8);
  EXPECT_TRUE(RunUntilReceived(here, 1));
  worker.join();
  EXPECT_TRUE(received);
  EXPECT_EQ(probe.thread(), workerId);
  EXPECT_EQ(here.thread(), std::this_thread::get_id());
}

gboolean Fulfil(gpointer promise) {
  static_cast<std::promise<void> *>(promise)->set_value();
  return G_SOURCE_REMOVE;
}

// A thread without its own context adds an observer while another thread runs
// the default context. Only one of them may use the connection.
TEST_F(AddObserver, RegistersOnTheThreadThatRunsTheContext) {
  g_main_context_pop_thread_default(context_);
  GMainLoop *loop = g_main_loop_new(nullptr, 0);
  std::promise<void> running;
  std::thread runner([&] {
    g_idle_add(Fulfil, &running);
    g_main_loop_run(loop);
  });
  const std::thread::id runnerId = runner.get_id();
  running.get_future().wait();
  Probe probe;
  probe.then = [loop](const center::UserInfo *) { g_main_loop_quit(loop); };
  probe.Observe(kName);
  // This runs after the request that AddObserver() passed to the other thread.
  std::promise<void> registered;
  g_main_context_invoke(nullptr, Fulfil, &registered);
  registered.get_future().wait();
  PostIndex(kName, 9);
  runner.join();
  g_main_loop_unref(loop);
  EXPECT_THAT(probe.indexes(), ElementsAre(9));
  EXPECT_EQ(probe.thread(), runnerId);
  g_main_context_push_thread_default(context_);
}

TEST_F(AddObserver, AllowsACallbackToObservePostAndRunTheLoop) {
  Probe outer;
  Probe inner;
  bool added = false;
  outer.then = [&](const center::UserInfo *) {
    if (!added) inner.Observe("Inner");
    added = true;
    PostIndex("Inner", 1);
    for (int i = 0; i < 20; ++i) g_main_context_iteration(context_, 0);
  };
  outer.Observe(kName);
  PostIndex(kName, 1);
  PostIndex(kName, 2);
  EXPECT_TRUE(RunUntilReceived(inner, 2));
  EXPECT_THAT(outer.indexes(), ElementsAre(1, 2));
  EXPECT_THAT(inner.indexes(), ElementsAre(1, 1));
}

}  // namespace
