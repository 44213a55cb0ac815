// SPDX-License-Identifier: MIT
//
// For the tests of the notification center: a private bus and main context, an
// observer that stores the notifications, and counters of the resources of the
// process.
#ifndef ZTK_TESTS_LINUX_NOTIFICATION_PROBE_H_
#define ZTK_TESTS_LINUX_NOTIFICATION_PROBE_H_

#include <glib.h>
#include <gtest/gtest.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <iterator>
#include <thread>
#include <vector>

#include "platform/notification_center.h"
#include "support/private_bus.h"

namespace ztk::test {

namespace center = ztk::platform::notification_center;

inline constexpr char kName[] = "VRM-D6 InputAudio Change";

// An observer that stores the value of "Index" in each notification.
class Probe {
 public:
  void Observe(const char *name) {
    center::AddObserver(this, {.selector = "taken:", .code = Take}, name);
  }
  const std::vector<std::int32_t> &indexes() const { return indexes_; }
  std::thread::id thread() const { return thread_; }
  // Called with every record, after it was stored.
  std::function<void(const center::UserInfo *)> then;

 private:
  static void Take(void *observer, const center::UserInfo *userInfo) {
    auto *probe = static_cast<Probe *>(observer);
    probe->indexes_.push_back(center::ReadNumber(userInfo, "Index"));
    probe->thread_ = std::this_thread::get_id();
    if (probe->then) probe->then(userInfo);
  }

  std::vector<std::int32_t> indexes_;
  std::thread::id thread_;
};

inline void PostIndex(const char *name, std::int32_t index) {
  const center::Entry entries[] = {{.key = "ProductID", .value = 10},
                                   {.key = "Channel", .value = 2},
                                   {.key = "Index", .value = index}};
  center::UserInfo *userInfo =
      center::MakeUserInfo(entries, std::size(entries));
  center::Post(name, userInfo, center::Delivery::Immediately);
  center::Release(userInfo);
}

// A flag that is set after a time, if the context runs.
class Timer {
 public:
  Timer(GMainContext *context, unsigned milliseconds)
      : source_(g_timeout_source_new(milliseconds)) {
    g_source_set_callback(source_, Raise, this, nullptr);
    g_source_attach(source_, context);
  }
  ~Timer() {
    g_source_destroy(source_);
    g_source_unref(source_);
  }
  Timer(const Timer &) = delete;
  Timer &operator=(const Timer &) = delete;
  bool raised() const { return raised_; }

 private:
  static gboolean Raise(gpointer timer) {
    static_cast<Timer *>(timer)->raised_ = true;
    return G_SOURCE_CONTINUE;
  }
  GSource *source_;
  bool raised_ = false;
};

// Runs the context until the condition is true. Returns false after 10 seconds.
inline bool RunUntil(GMainContext *context,
                     const std::function<bool()> &condition) {
  const Timer limit(context, 10'000);
  while (!condition() && !limit.raised()) g_main_context_iteration(context, 1);
  return condition();
}

// Returns how often the context wakes up in a fifth of a second.
inline int TurnsOfAnIdleLoop(GMainContext *context) {
  const Timer end(context, 200);
  int turns = 0;
  for (; !end.raised(); ++turns) g_main_context_iteration(context, 1);
  return turns;
}

// Runs the function in a child process, which then exits without clean-up.
// Returns the status of the child as waitpid() does.
inline int InChild(const std::function<int()> &function) {
  const pid_t child = fork();
  if (child == 0) _exit(function());
  int status = -1;
  waitpid(child, &status, 0);
  return status;
}

inline std::ptrdiff_t CountEntries(const char *folder) {
  return std::distance(std::filesystem::directory_iterator(folder), {});
}
inline std::ptrdiff_t OpenDescriptors() {
  return CountEntries("/proc/self/fd");
}
inline std::ptrdiff_t Threads() { return CountEntries("/proc/self/task"); }

class OnPrivateBus : public testing::Test {
 protected:
  void SetUp() override {
    alarm(20);  // ends the test if a call does not return
    if (!bus_.Start()) GTEST_SKIP() << "dbus-daemon cannot be run";
    context_ = g_main_context_new();
    g_main_context_push_thread_default(context_);
  }
  void TearDown() override {
    if (context_ != nullptr) {
      g_main_context_pop_thread_default(context_);
      g_main_context_unref(context_);
    }
    alarm(0);
  }
  bool RunUntilReceived(const Probe &probe, std::size_t count) {
    return RunUntil(context_, [&] { return probe.indexes().size() >= count; });
  }

  PrivateBus bus_;
  GMainContext *context_ = nullptr;
};

}  // namespace ztk::test

#endif  // ZTK_TESTS_LINUX_NOTIFICATION_PROBE_H_
