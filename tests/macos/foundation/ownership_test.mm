// SPDX-License-Identifier: MIT
//
// Tests the references to the record of a family's last post and to the
// observer.
#include <vector>

#include "foundation_test.h"
#include "notify/callback_registry.h"

namespace ztk::test {
namespace {

void Ignore(std::int32_t /*index*/, void * /*context*/) {}

class MacOwnership : public FoundationTest {
 protected:
  MacOwnership() { boostLevelInfo = nullptr; }
  ~MacOwnership() override { boostLevelInfo = nullptr; }

  // Posts, and releases the objects that the center needed for it.
  static NSDictionary *Post(std::uint32_t index) {
    @autoreleasepool {
      EXPECT_EQ(ZTK_SetBoostLevelIndex(10, index), 100u);
    }
    return (NSDictionary *)boostLevelInfo;
  }
};

TEST_F(MacOwnership, OfARecordBelongsOnlyToTheFamily) {
  NSDictionary *record = Post(2);
  ASSERT_NE(record, nil);
  EXPECT_EQ([record retainCount], 1u);
  EXPECT_EQ([record count], 2u);
  EXPECT_EQ([[record objectForKey:@"ProductID"] intValue], 10);
  EXPECT_EQ([[record objectForKey:@"Index"] intValue], 2);
}

TEST_F(MacOwnership, OfARecordEndsWithTheNextPost) {
  NSDictionary *first = [Post(1) retain];
  EXPECT_EQ([first retainCount], 2u);
  NSDictionary *second = Post(2);
  EXPECT_NE(first, second);
  EXPECT_EQ([first retainCount], 1u);
  EXPECT_EQ([second retainCount], 1u);
  [first release];
}

// Deliberate: a registration clears the pointer to the record without releasing
// the record.
TEST_F(MacOwnership, OfARecordIsLostInARegistration) {
  NSDictionary *record = [Post(1) retain];
  EXPECT_EQ([record retainCount], 2u);
  @autoreleasepool {
    EXPECT_EQ(ZTK_RegisterBoostLevelChangedCallback(10, Ignore, nullptr), 100u);
  }
  EXPECT_EQ(boostLevelInfo, nullptr);
  EXPECT_EQ([record retainCount], 2u);
  Post(2);
  EXPECT_EQ([record retainCount], 2u);
  [record release];
}

TEST_F(MacOwnership, OfARecordIsSeparateForEachFamily) {
  NSDictionary *boost = Post(1);
  @autoreleasepool {
    ZTK_SetUSBInputAudio(10, 2, 5);
  }
  NSDictionary *input = (NSDictionary *)inputAudioInfo;
  ASSERT_NE(input, nil);
  EXPECT_EQ([input count], 3u);
  EXPECT_EQ([[input objectForKey:@"Channel"] intValue], 2);
  EXPECT_EQ([[input objectForKey:@"Index"] intValue], 5);
  EXPECT_EQ([boost retainCount], 1u);
  EXPECT_EQ(midiKeyModeInfo, nullptr);
}

TEST_F(MacOwnership, OfTheObserverBelongsToTheProcess) {
  @autoreleasepool {
    ZTK_RegisterBoostLevelChangedCallback(10, Ignore, nullptr);
  }
  const id observer = (id)_ZTKFunc;
  ASSERT_NE(observer, nil);
  EXPECT_TRUE([observer isMemberOfClass:NSClassFromString(@"ZTKFunc")]);
  @autoreleasepool {
    ZTK_RegisterMidiChannelChangedCallback(1, Ignore, nullptr);
  }
  EXPECT_EQ((id)_ZTKFunc, observer);
  EXPECT_EQ([observer retainCount], 1u);
}

TEST_F(MacOwnership, OfTheObserverDoesNotChangeInARefusedCall) {
  void *before = _ZTKFunc;
  _ZTKFunc = nullptr;
  EXPECT_EQ(ZTK_RegisterBoostLevelChangedCallback(8, Ignore, nullptr), 102u);
  EXPECT_EQ(ZTK_RegisterMidiKeyModeChangedCallback(10, Ignore, nullptr), 102u);
  EXPECT_EQ(_ZTKFunc, nullptr);
  _ZTKFunc = before;
}

}  // namespace
}  // namespace ztk::test
