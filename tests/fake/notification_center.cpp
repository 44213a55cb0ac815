// SPDX-License-Identifier: MIT
#include "platform/notification_center.h"

#include <deque>
#include <string>
#include <vector>

#include "fake/world.h"
#include "support/plain_text.h"

namespace ztk::platform::notification_center {

// These objects are not freed before the process ends, so leak checkers do not
// report one that the core does not release. The counter in `held` finds it.
struct UserInfo {
  int references;
  std::vector<std::pair<std::string, std::int32_t>> entries;
};

namespace {

using fake::CurrentWorld;
using fake::LogCall;
using fake::LogStep;
using test::Plain;

UserInfo *Keep(UserInfo userInfo) {
  static std::deque<UserInfo> kept;
  return &kept.emplace_back(std::move(userInfo));
}

std::string Describe(const UserInfo *userInfo) {
  std::string text = "{";
  const char *separator = "";
  for (const auto &[key, value] : userInfo->entries) {
    text += separator + key + "=" + std::to_string(value);
    separator = ", ";
  }
  return text + "}";
}

}  // namespace

UserInfo *MakeUserInfo(const Entry *entries, std::size_t count) {
  UserInfo userInfo{.references = 1, .entries = {}};
  for (std::size_t i = 0; i < count; ++i) {
    userInfo.entries.emplace_back(Plain(entries[i].key), entries[i].value);
  }
  LogCall("make info " + Describe(&userInfo));
  ++CurrentWorld().held.userInfos;
  return Keep(std::move(userInfo));
}

void Release(UserInfo *userInfo) {
  if (userInfo == nullptr) {
    LogCall("release no info");
    return;
  }
  LogCall("release info " + Describe(userInfo));
  if (userInfo->references <= 0) {
    CurrentWorld().misuse.push_back("released too often: info");
    return;
  }
  --userInfo->references;
  --CurrentWorld().held.userInfos;
}

std::int32_t ReadNumber(const UserInfo *userInfo, ZTKTextRef key) {
  if (userInfo == nullptr) return 0;
  for (const auto &[name, value] : userInfo->entries) {
    if (name == Plain(key)) return value;
  }
  return 0;
}

PostResult Post(ZTKTextRef name, const UserInfo *userInfo, Delivery delivery) {
  if (userInfo->references <= 0) {
    CurrentWorld().misuse.push_back("posted after release: info");
  }
  const char *when = delivery == Delivery::Immediately
                         ? " immediately"
                         : " with default delivery";
  LogCall(std::string("post ") + Plain(name));
  LogStep(std::string("post ") + Plain(name) + " " + Describe(userInfo) + when);
  return CurrentWorld().postResult;
}

void AddObserver(void *observer, const Method &method, ZTKTextRef name) {
  LogCall(std::string("observe ") + Plain(name) + " with " + method.selector);
  LogStep(std::string("observe ") + Plain(name) + " with " + method.selector);
  CurrentWorld().observations.push_back(
      {.name = Plain(name), .observer = observer, .method = method});
  if (CurrentWorld().onObserve) CurrentWorld().onObserve();
}

}  // namespace ztk::platform::notification_center

namespace ztk::fake {

void Deliver(const std::string &name,
             const std::vector<std::pair<std::string, std::int32_t>> &entries) {
  const platform::notification_center::UserInfo userInfo{.references = 1,
                                                         .entries = entries};
  // The loop uses a copy: an observer that a method adds gets only later
  // notifications, not this one.
  const std::vector<Observation> observations = CurrentWorld().observations;
  for (const Observation &observation : observations) {
    if (observation.name != name) continue;
    observation.method.code(observation.observer, &userInfo);
  }
}

}  // namespace ztk::fake
