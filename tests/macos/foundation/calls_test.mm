// SPDX-License-Identifier: MIT
//
// Tests the library's calls of Foundation and their arguments. Methods and
// functions of Foundation are replaced by functions that record the calls.
#include <dlfcn.h>
#include <objc/runtime.h>

#include "foundation_test.h"
#include "platform/macos/dictionary.h"
#include "platform/notification_center.h"
#include "platform/paths.h"
#include "platform/property_list.h"
#include "platform/text.h"

namespace {

std::vector<std::string> theCalls;
NSDictionary *theRecord;  // the record of the last post, retained
NSString *theName;        // the name of the last post, retained

void Keep(NSString *name, id object, NSDictionary *record,
          const std::string &how) {
  theCalls.push_back(std::string([name UTF8String]) +
                     (object == nil ? "" : " from a sender") + how);
  [name retain];
  [theName release];
  theName = name;
  [record retain];
  [theRecord release];
  theRecord = record;
}

}  // namespace

// Replaces the distributed notification center.
@interface ZTKRecordingCenter : NSObject
@end

@implementation ZTKRecordingCenter

- (void)postNotificationName:(NSString *)name
                      object:(id)object
                    userInfo:(NSDictionary *)record {
  Keep(name, object, record, " by default");
}

- (void)postNotificationName:(NSString *)name
                      object:(id)object
                    userInfo:(NSDictionary *)record
          deliverImmediately:(BOOL)immediately {
  Keep(name, object, record, immediately ? " immediately" : " not immediately");
}

@end

// Its two methods for reading an integer return different numbers.
@interface ZTKTwoIntegers : NSObject
@end

@implementation ZTKTwoIntegers
- (int)intValue {
  return 5;
}
- (NSInteger)integerValue {
  return 6;
}
@end

namespace {

id RecordingCenter(id /*of*/, SEL /*name*/) {
  static ZTKRecordingCenter *center = [[ZTKRecordingCenter alloc] init];
  return center;
}

BOOL RecordWrite(id /*dictionary*/, SEL /*name*/, NSString * /*path*/,
                 BOOL atomically) {
  theCalls.push_back(atomically ? "write atomically" : "write");
  return YES;
}

}  // namespace

// Foundations declare the kind of the elements or leave it out.
using Folders = decltype(NSSearchPathForDirectoriesInDomains(
    NSLibraryDirectory, NSUserDomainMask, YES));

// Replaces the function of Foundation. Records the call and calls that
// function.
extern "C" Folders NSSearchPathForDirectoriesInDomains(
    NSSearchPathDirectory folder, NSSearchPathDomainMask domain, BOOL expand) {
  theCalls.push_back("search " + std::to_string(folder) + " " +
                     std::to_string(domain) +
                     (expand ? " with the home folder" : " with a tilde"));
  using Function =
      Folders (*)(NSSearchPathDirectory, NSSearchPathDomainMask, BOOL);
  const auto next = reinterpret_cast<Function>(
      dlsym(RTLD_NEXT, "NSSearchPathForDirectoriesInDomains"));
  return next(folder, domain, expand);
}

namespace ztk::test {
namespace {

namespace center = platform::notification_center;
namespace plist = platform::property_list;

// Replaces a method as long as this object exists.
class Replaced {
 public:
  Replaced(Method method, IMP code)
      : method_(method), before_(method_setImplementation(method, code)) {}
  ~Replaced() { method_setImplementation(method_, before_); }
  Replaced(const Replaced &) = delete;
  Replaced &operator=(const Replaced &) = delete;

 private:
  Method method_;
  IMP before_;
};

class MacPost : public FoundationTest {
 protected:
  MacPost()
      : center_(class_getClassMethod([NSDistributedNotificationCenter class],
                                     @selector(defaultCenter)),
                (IMP)RecordingCenter) {
    theCalls.clear();
  }

 private:
  Replaced center_;
};

TEST_F(MacPost, HasTheDeliveryOfItsFamilyAndNoSenderObject) {
  ZTK_SetUSBInputAudio(10, 0, 1);
  ZTK_SetUSBOutputAudio(8, 0, 1);
  ZTK_SetBoostLevelIndex(10, 1);
  ZTK_SetMidiChannelIndex(1, 1);
  std::vector<std::string> posts;
  for (const std::string &call : theCalls) {
    if (!call.starts_with("search ")) posts.push_back(call);
  }
  EXPECT_THAT(posts, ElementsAre("VRM-D6 InputAudio Change immediately",
                                 "VRM-B5 OutputAudio Change immediately",
                                 "VRM-D6 BoostLevel Change by default",
                                 "VRM-K2 MidiChannel Change by default"));
}

TEST_F(MacPost, HasARecordThatCannotBeChanged) {
  ZTK_SetBoostLevelIndex(10, 1);
  EXPECT_FALSE([theRecord isKindOfClass:[NSMutableDictionary class]]);
}

// After the next post, only the test owns the objects of the last post.
TEST_F(MacPost, ReleasesTheObjectsOfTheLastPost) {
  @autoreleasepool {
    ZTK_SetBoostLevelIndex(10, 1);
  }
  NSDictionary *record = [theRecord retain];
  NSString *name = [theName retain];
  @autoreleasepool {
    ZTK_SetBoostLevelIndex(10, 2);
  }
  EXPECT_EQ([record retainCount], 1u);
  EXPECT_EQ([name retainCount], 1u);
  [record release];
  [name release];
}

class MacCallsOfFoundation : public FoundationTest {};

TEST_F(MacCallsOfFoundation, WriteAFileAtomically) {
  plist::Dictionary *list = plist::MakeDictionary();
  theCalls.clear();
  {
    const Replaced write(class_getInstanceMethod([NSDictionary class], @selector
                                                 (writeToFile:atomically:)),
                         (IMP)(void (*)(void))RecordWrite);
    EXPECT_TRUE(plist::WriteAtomically(list, TextOf(SettingsFile("VRM-D6"))));
  }
  EXPECT_THAT(theCalls, ElementsAre("write atomically"));
  plist::Release(list);
}

TEST_F(MacCallsOfFoundation, ReadAnIntegerByItsIntValue) {
  NSMutableDictionary *list = [NSMutableDictionary dictionary];
  [list setObject:[[[ZTKTwoIntegers alloc] init] autorelease] forKey:@"key"];
  const plist::Dictionary dictionary{.entries = list};
  std::int32_t value = 0;
  EXPECT_TRUE(plist::IntegerValue(&dictionary, ZTK_TEXT("key"), &value));
  EXPECT_EQ(value, 5);
  EXPECT_EQ(center::ReadNumber((center::UserInfo *)list, ZTK_TEXT("key")), 5);
}

TEST_F(MacCallsOfFoundation, UseTheSearchPathForTheLibraryFolder) {
  theCalls.clear();
  const platform::text::OwnedText folder(platform::paths::UserLibrary());
  // NSLibraryDirectory is 5, NSUserDomainMask is 1.
  ASSERT_FALSE(theCalls.empty());
  EXPECT_EQ(theCalls.front(), "search 5 1 with the home folder");
}

}  // namespace
}  // namespace ztk::test
