// SPDX-License-Identifier: MIT
#include "ztk/system/event_loop.h"

#include <sys/timerfd.h>
#include <unistd.h>

#include <csignal>
#include <cstdint>
#include <vector>

#include "notify/announced_settings.h"
#include "platform/common/file_descriptor.h"
#include "platform/linux/bus_connection.h"
#include "platform/linux/glib_library.h"
#include "platform/linux/sd_bus_library.h"
#include "platform/notification_center.h"
#include "platform/text.h"

namespace ztk::model {

namespace {

namespace center = platform::notification_center;

struct Loop {
  GMainLoop *loop = nullptr;
  LoopEnd end = LoopEnd::Stopped;
};
Loop theLoop;

gboolean OnSignal(gpointer /*data*/) {
  theLoop.end = LoopEnd::Interrupted;
  StopLoop();
  return G_SOURCE_CONTINUE;
}

gboolean OnBusGone(gint /*descriptor*/, GIOCondition /*condition*/,
                   gpointer /*data*/) {
  theLoop.end = LoopEnd::NoBus;
  StopLoop();
  return G_SOURCE_REMOVE;
}

void (*theTick)() = nullptr;

gboolean OnSecond(gint descriptor, GIOCondition /*condition*/,
                  gpointer /*data*/) {
  std::uint64_t times = 0;
  if (read(descriptor, &times, sizeof times) == sizeof times) theTick();
  return G_SOURCE_CONTINUE;
}

// A descriptor that can be read once in a second. Without one the loop only
// hears changes.
platform::FileDescriptor Seconds() {
  platform::FileDescriptor timer(
      timerfd_create(CLOCK_MONOTONIC, TFD_CLOEXEC | TFD_NONBLOCK));
  const itimerspec every{.it_interval = {.tv_sec = 1, .tv_nsec = 0},
                         .it_value = {.tv_sec = 1, .tv_nsec = 0}};
  timerfd_settime(timer.get(), 0, &every, nullptr);
  return timer;
}

struct OutputObserver {
  OutputListener listener;
  void *context;
};

void OnOutputAudio(void *observer, const center::UserInfo *userInfo) {
  const auto *self = static_cast<const OutputObserver *>(observer);
  self->listener(center::ReadNumber(userInfo, notify::kChannelKey),
                 center::ReadNumber(userInfo, notify::kIndexKey),
                 self->context);
}

}  // namespace

void ListenToOutputAudio(OutputListener listener, void *context) {
  // Observers exist as long as the process.
  static OutputObserver observer;
  observer = {.listener = listener, .context = context};
  const notify::AnnouncedSetting &setting = notify::kOutputAudio;
  const platform::text::OwnedText name(
      platform::text::Format(setting.nameFormat, setting.postedModel));
  center::AddObserver(
      &observer, {.selector = "outputAudioChanged:", .code = OnOutputAudio},
      name.get());
}

LoopEnd RunLoop(void (*ready)(bool hasBus), void (*everySecond)()) {
  if (center::GLib() == nullptr || center::SdBus() == nullptr) {
    return LoopEnd::NoLibrary;
  }
  // The registrations do not report a bus that is missing or ends; this
  // connection does.
  const center::OwnedBus bus =
      center::ConnectToSessionBus(center::WaitDeadline());

  theLoop = {.loop = center::g_main_loop_new(nullptr, FALSE),
             .end = LoopEnd::Stopped};
  theTick = everySecond;
  const platform::FileDescriptor seconds = Seconds();
  std::vector<guint> sources{
      center::g_unix_signal_add(SIGINT, OnSignal, nullptr),
      center::g_unix_signal_add(SIGTERM, OnSignal, nullptr),
      center::g_unix_fd_add(seconds.get(), G_IO_IN, OnSecond, nullptr)};
  if (bus != nullptr) {
    sources.push_back(center::g_unix_fd_add(center::sd_bus_get_fd(bus.get()),
                                            G_IO_HUP, OnBusGone, nullptr));
  }
  ready(bus != nullptr);
  center::g_main_loop_run(theLoop.loop);
  for (const guint source : sources) {
    // The source that ended the loop may have removed itself.
    if (center::g_main_context_find_source_by_id(nullptr, source) != nullptr) {
      center::g_source_remove(source);
    }
  }
  center::g_main_loop_unref(theLoop.loop);
  theLoop.loop = nullptr;
  return theLoop.end;
}

void StopLoop() {
  if (theLoop.loop != nullptr) center::g_main_loop_quit(theLoop.loop);
}

}  // namespace ztk::model
