// SPDX-License-Identifier: MIT
//
// Tests the observer, and the notifications that it receives from other
// processes.
#include <objc/runtime.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "foundation_test.h"
#include "notify/callback_registry.h"

namespace ztk::test {
namespace {

using Lines = std::vector<std::string>;

class MacObserver : public FoundationTest {
 protected:
  MacObserver() {
    @autoreleasepool {
      ZTK_RegisterInputAudioChangedCallback(10, TakeChannel, Name("input"));
      ZTK_RegisterOutputAudioChangedCallback(10, TakeChannel, Name("output"));
      ZTK_RegisterBoostLevelChangedCallback(10, Take, Name("boost"));
      ZTK_RegisterMidiChannelChangedCallback(1, Take, Name("midi"));
    }
    Taken().clear();
  }
  ~MacObserver() override {
    ZTK_UnregisterInputAudioChangedCallback(10, nullptr);
    ZTK_UnregisterOutputAudioChangedCallback(10, nullptr);
    ZTK_UnregisterBoostLevelChangedCallback(10, nullptr);
    ZTK_UnregisterMidiChannelChangedCallback(1, nullptr);
  }

  static void *Name(const char *name) { return const_cast<char *>(name); }

  static Lines &Taken() {
    static Lines taken;
    return taken;
  }
  static void TakeChannel(std::int32_t channel, std::int32_t index,
                          void *context) {
    Taken().push_back(std::string(static_cast<const char *>(context)) + " " +
                      std::to_string(channel) + " " + std::to_string(index));
  }
  static void Take(std::int32_t index, void *context) {
    Taken().push_back(std::string(static_cast<const char *>(context)) + " " +
                      std::to_string(index));
  }

  // Calls a method of the observer as the notification center does.
  static void Send(NSString *selector, NSDictionary *userInfo) {
    [(id)_ZTKFunc
        performSelector:NSSelectorFromString(selector)
             withObject:[NSNotification notificationWithName:@"any"
                                                      object:nil
                                                    userInfo:userInfo]];
  }
  static NSDictionary *Record(id product, id channel, id index) {
    return [NSDictionary dictionaryWithObjectsAndKeys:product, @"ProductID",
                                                      channel, @"Channel",
                                                      index, @"Index", nil];
  }
};

NSNumber *Number(int value) { return [NSNumber numberWithInt:value]; }

TEST_F(MacObserver, HasOneMethodForEachFamily) {
  for (NSString *selector in @[
         @"inputAudioChanged:", @"outputAudioChanged:", @"boostLevelChanged:",
         @"midiChannelChanged:", @"midiKeyModeChanged:"
       ]) {
    EXPECT_TRUE(
        [(id)_ZTKFunc respondsToSelector:NSSelectorFromString(selector)])
        << [selector UTF8String];
  }
  const Class observer = NSClassFromString(@"ZTKFunc");
  EXPECT_EQ([observer superclass], [NSObject class]);
  EXPECT_EQ(class_getInstanceSize(observer),
            class_getInstanceSize([NSObject class]));
}

TEST_F(MacObserver, CallsTheCallbackOfTheFamily) {
  Send(@"inputAudioChanged:", Record(Number(10), Number(2), Number(5)));
  Send(@"outputAudioChanged:", Record(Number(10), Number(1), Number(0)));
  Send(@"boostLevelChanged:", Record(Number(10), Number(7), Number(3)));
  Send(@"midiChannelChanged:", Record(Number(1), Number(7), Number(15)));
  // The MIDI channel has a callback for this model.
  Send(@"midiKeyModeChanged:", Record(Number(1), Number(7), Number(1)));
  EXPECT_THAT(Taken(),
              ElementsAre("input 2 5", "output 1 0", "boost 3", "midi 15"));
}

TEST_F(MacObserver, IgnoresUnknownProducts) {
  for (const int product : {-1, 11, 0x7FFFFFFF, -2147483647 - 1, 8}) {
    Send(@"inputAudioChanged:", Record(Number(product), Number(2), Number(5)));
    Send(@"boostLevelChanged:", Record(Number(product), Number(2), Number(5)));
  }
  EXPECT_THAT(Taken(), IsEmpty());
}

TEST_F(MacObserver, AcceptsEveryValueWithAnIntValue) {
  Send(@"inputAudioChanged:",
       Record(@"10", @"2", [NSNumber numberWithDouble:5.9]));
  EXPECT_THAT(Taken(), ElementsAre("input 2 5"));
}

TEST_F(MacObserver, ReadsZeroFromOtherValues) {
  Send(@"inputAudioChanged:", Record(Number(10), @[], @{}));
  Send(@"boostLevelChanged:", @{@"ProductID" : Number(10)});
  // The product is then 0, for which no callback is registered.
  Send(@"boostLevelChanged:", @{});
  Send(@"boostLevelChanged:", nil);
  EXPECT_THAT(Taken(), ElementsAre("input 0 0", "boost 0"));
}

TEST_F(MacObserver, SkipsANullCallback) {
  @autoreleasepool {
    EXPECT_EQ(ZTK_RegisterBoostLevelChangedCallback(10, nullptr, nullptr),
              100u);
  }
  Send(@"boostLevelChanged:", Record(Number(10), Number(0), Number(3)));
  EXPECT_THAT(Taken(), IsEmpty());
}

// The center may deliver notifications with different names in any order.
class MacProcesses : public FoundationTest {
 protected:
  // Returns a client whose registrations have arrived at the center.
  static std::unique_ptr<Client> Listener(Lines words) {
    words.insert(words.begin(), "listen");
    auto listener = std::make_unique<Client>(words);
    EXPECT_EQ(listener->ReadLine(), "ready");
    return listener;
  }
  // Starts a client that posts. It keeps running so that the center receives
  // all notifications.
  static std::unique_ptr<Client> Poster(Lines words) {
    words.insert(words.begin(), "set");
    auto poster = std::make_unique<Client>(words);
    EXPECT_EQ(poster->ReadLine(), "set");
    return poster;
  }
  static Lines Read(Client &client, int count) {
    Lines lines;
    for (int i = 0; i < count; ++i) lines.push_back(client.ReadLine());
    return lines;
  }
};

TEST_F(MacProcesses, ReceiveAChangeOfAnotherProcess) {
  const auto listener = Listener({"input"});
  const auto poster = Poster({"input:2:5"});
  EXPECT_EQ(listener->ReadLine(), "input 2 5");
  EXPECT_EQ(poster->Finish(), 0);
  EXPECT_EQ(listener->Finish(), 0);
}

// Deliberate: changes of the output audio are announced with the name of
// another model than the observed one.
TEST_F(MacProcesses, ReceiveChangesOfEveryFamilyExceptOutputAudio) {
  const auto listener = Listener({"input", "output", "boost", "midi"});
  const auto poster = Poster({"output:1:2", "input:0:1", "boost:3", "midi:15"});
  EXPECT_THAT(Read(*listener, 3),
              UnorderedElementsAre("input 0 1", "boost 3", "midi 15"));
}

TEST_F(MacProcesses, ReceiveAChangeOnceForEachRegistration) {
  const auto listener = Listener({"input", "input", "boost"});
  const auto poster = Poster({"input:2:5", "boost:1"});
  EXPECT_THAT(Read(*listener, 3),
              UnorderedElementsAre("input 2 5", "input 2 5", "boost 1"));
}

TEST_F(MacProcesses, ReceiveNothingAfterUnregistering) {
  const auto listener = Listener({"input", "input", "-input", "boost"});
  const auto poster = Poster({"input:2:5", "boost:1"});
  EXPECT_EQ(listener->ReadLine(), "boost 1");
}

TEST_F(MacProcesses, AllReceiveAChange) {
  const auto first = Listener({"boost"});
  const auto second = Listener({"midi", "boost"});
  const auto poster = Poster({"boost:2", "midi:7"});
  EXPECT_EQ(first->ReadLine(), "boost 2");
  EXPECT_THAT(Read(*second, 2), UnorderedElementsAre("boost 2", "midi 7"));
}

TEST_F(MacProcesses, ReceiveAChangeThatWasNotStored) {
  const auto listener = Listener({"boost"});
  std::filesystem::remove_all(Preferences());
  const auto poster = Poster({"boost:0"});
  EXPECT_EQ(listener->ReadLine(), "boost 0");
}

}  // namespace
}  // namespace ztk::test
