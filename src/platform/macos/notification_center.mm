// SPDX-License-Identifier: MIT
//
// A UserInfo is an NSDictionary of numbers. The center calls the observer's
// methods by name, so Method::code is not used.
#include "platform/notification_center.h"

#include <span>
#include <vector>

#include "platform/macos/foundation.h"

namespace ztk::platform::notification_center {
namespace {

using macos::StringOf;

NSDictionary *DictionaryOf(const UserInfo *userInfo) {
  return (NSDictionary *)userInfo;
}

}  // namespace

UserInfo *MakeUserInfo(const Entry *entries, std::size_t count) {
  @autoreleasepool {
    std::vector<id> keys;
    std::vector<id> numbers;
    for (const Entry &entry : std::span(entries, count)) {
      keys.push_back(StringOf(entry.key));
      numbers.push_back([NSNumber numberWithInt:entry.value]);
    }
    return (UserInfo *)[[NSDictionary alloc] initWithObjects:numbers.data()
                                                     forKeys:keys.data()
                                                       count:count];
  }
}

void Release(UserInfo *userInfo) { [DictionaryOf(userInfo) release]; }

// The value may be of any kind, because another program may have posted it.
std::int32_t ReadNumber(const UserInfo *userInfo, ZTKTextRef key) {
  const id number = [DictionaryOf(userInfo) valueForKey:StringOf(key)];
  if (![number respondsToSelector:@selector(intValue)]) return 0;
  return [number intValue];
}

// The center does not report whether it accepted a notification.
PostResult Post(ZTKTextRef name, const UserInfo *userInfo, Delivery delivery) {
  @autoreleasepool {
    NSDistributedNotificationCenter *center =
        [NSDistributedNotificationCenter defaultCenter];
    if (delivery == Delivery::Immediately) {
      [center postNotificationName:StringOf(name)
                            object:nil
                          userInfo:DictionaryOf(userInfo)
                deliverImmediately:YES];
    } else {
      [center postNotificationName:StringOf(name)
                            object:nil
                          userInfo:DictionaryOf(userInfo)];
    }
  }
  return {};
}

void AddObserver(void *observer, const Method &method, ZTKTextRef name) {
  @autoreleasepool {
    [[NSDistributedNotificationCenter defaultCenter]
        addObserver:(id)observer
           selector:sel_registerName(method.selector)
               name:StringOf(name)
             object:nil];
  }
}

}  // namespace ztk::platform::notification_center
