// SPDX-License-Identifier: MIT
#include "ztk/system/event_loop.h"

#import <Foundation/Foundation.h>

#include <dispatch/dispatch.h>

#include <csignal>

#include "notify/announced_settings.h"
#include "platform/notification_center.h"
#include "platform/text.h"

namespace {

struct {
  ztk::model::OutputListener listener;
  void *context;
} theOutputListener;

}  // namespace

@interface ZTKOutputObserver : NSObject
- (void)outputAudioChanged:(NSNotification *)notification;
@end

@implementation ZTKOutputObserver

- (void)outputAudioChanged:(NSNotification *)notification {
  namespace center = ztk::platform::notification_center;
  const auto *info = (const center::UserInfo *)[notification userInfo];
  theOutputListener.listener(center::ReadNumber(info, ztk::notify::kChannelKey),
                             center::ReadNumber(info, ztk::notify::kIndexKey),
                             theOutputListener.context);
}

@end

namespace ztk::model {

namespace {

constexpr int kEndingSignals[] = {SIGINT, SIGTERM};

LoopEnd theEnd = LoopEnd::Stopped;

void OnSignal(void * /*context*/) {
  theEnd = LoopEnd::Interrupted;
  StopLoop();
}

// Handles a signal on the loop, where more functions may be called than in a
// signal handler.
dispatch_source_t WatchForSignal(int number) {
  std::signal(number, SIG_IGN);
  dispatch_source_t source = dispatch_source_create(
      DISPATCH_SOURCE_TYPE_SIGNAL, static_cast<std::uintptr_t>(number), 0,
      dispatch_get_main_queue());
  dispatch_source_set_event_handler_f(source, OnSignal);
  dispatch_resume(source);
  return source;
}

// The callback that is to be called once in a second.
void (*theTick)() = nullptr;

void OnSecond(void * /*context*/) { theTick(); }

dispatch_source_t EverySecond() {
  dispatch_source_t source = dispatch_source_create(
      DISPATCH_SOURCE_TYPE_TIMER, 0, 0, dispatch_get_main_queue());
  dispatch_source_set_timer(source,
                            dispatch_time(DISPATCH_TIME_NOW, NSEC_PER_SEC),
                            NSEC_PER_SEC, NSEC_PER_SEC / 10);
  dispatch_source_set_event_handler_f(source, OnSecond);
  dispatch_resume(source);
  return source;
}

}  // namespace

void ListenToOutputAudio(OutputListener listener, void *context) {
  theOutputListener = {.listener = listener, .context = context};
  const notify::AnnouncedSetting &setting = notify::kOutputAudio;
  const platform::text::OwnedText name(
      platform::text::Format(setting.nameFormat, setting.postedModel));
  // Observers exist as long as the process.
  platform::notification_center::AddObserver(
      [[ZTKOutputObserver alloc] init],
      {.selector = "outputAudioChanged:", .code = nullptr}, name.get());
}

// The notification center exists while the user is logged in, and its absence
// cannot be detected: LoopEnd::NoBus and LoopEnd::NoLibrary do not happen here.
LoopEnd RunLoop(void (*ready)(bool hasBus), void (*everySecond)()) {
  theEnd = LoopEnd::Stopped;
  theTick = everySecond;
  for (const int number : kEndingSignals) WatchForSignal(number);
  dispatch_source_t seconds = EverySecond();
  ready(true);
  CFRunLoopRun();
  dispatch_source_cancel(seconds);
  for (const int number : kEndingSignals) std::signal(number, SIG_DFL);
  return theEnd;
}

void StopLoop() { CFRunLoopStop(CFRunLoopGetMain()); }

}  // namespace ztk::model
