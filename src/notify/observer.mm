// SPDX-License-Identifier: MIT
//
// On macOS the observer is an object of an Objective-C class, because the
// notification center calls its methods by name.
#include "notify/observer.h"

#import <Foundation/Foundation.h>

// The library exports this class.
ZTK_EXPORT
@interface ZTKFunc : NSObject
- (void)inputAudioChanged:(NSNotification *)notification;
- (void)outputAudioChanged:(NSNotification *)notification;
- (void)boostLevelChanged:(NSNotification *)notification;
- (void)midiChannelChanged:(NSNotification *)notification;
- (void)midiKeyModeChanged:(NSNotification *)notification;
@end

namespace {

const ztk::notify::UserInfo *InfoOf(NSNotification *notification) {
  return (const ztk::notify::UserInfo *)[notification userInfo];
}

}  // namespace

@implementation ZTKFunc

- (void)inputAudioChanged:(NSNotification *)notification {
  ztk::notify::InputAudioChanged(InfoOf(notification));
}

- (void)outputAudioChanged:(NSNotification *)notification {
  ztk::notify::OutputAudioChanged(InfoOf(notification));
}

- (void)boostLevelChanged:(NSNotification *)notification {
  ztk::notify::BoostLevelChanged(InfoOf(notification));
}

- (void)midiChannelChanged:(NSNotification *)notification {
  ztk::notify::MidiChannelChanged(InfoOf(notification));
}

- (void)midiKeyModeChanged:(NSNotification *)notification {
  ztk::notify::MidiKeyModeChanged(InfoOf(notification));
}

@end

namespace ztk::notify {

// init is not called, because there is no state to prepare.
void *AllocateObserver() { return [ZTKFunc alloc]; }

const Method kInputAudioChanged{.selector = "inputAudioChanged:",
                                .code = nullptr};
const Method kOutputAudioChanged{.selector = "outputAudioChanged:",
                                 .code = nullptr};
const Method kBoostLevelChanged{.selector = "boostLevelChanged:",
                                .code = nullptr};
const Method kMidiChannelChanged{.selector = "midiChannelChanged:",
                                 .code = nullptr};
const Method kMidiKeyModeChanged{.selector = "midiKeyModeChanged:",
                                 .code = nullptr};

}  // namespace ztk::notify
