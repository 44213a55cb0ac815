// SPDX-License-Identifier: MIT
#include "fake_user_manager.h"

#include <cstdlib>

namespace ztk::test {

namespace {

namespace center = platform::notification_center;

constexpr std::uint64_t kLookUp = 20'000;  // microseconds

// "Method word... number..."
std::string Described(sd_bus_message *message, bool twoFlags) {
  std::string text = sd_bus_message_get_member(message);
  const char *word = nullptr;
  sd_bus_message_enter_container(message, 'a', "s");
  while (sd_bus_message_read(message, "s", &word) > 0) {
    text += std::string(" ") + word;
  }
  sd_bus_message_exit_container(message);
  for (int i = 0; i < (twoFlags ? 2 : 1); ++i) {
    int flag = -1;
    sd_bus_message_read(message, "b", &flag);
    text += " " + std::to_string(flag);
  }
  return text;
}

}  // namespace

FakeUserManager::FakeUserManager()
    : bus_(center::ConnectToSessionBus(center::WaitDeadline())) {
  if (bus_ == nullptr ||
      sd_bus_add_object(bus_.get(), nullptr, "/org/freedesktop/systemd1",
                        OnMessage, this) < 0 ||
      sd_bus_request_name(bus_.get(), "org.freedesktop.systemd1", 0) < 0) {
    std::abort();
  }
  thread_ = std::thread([this] { Serve(); });
}

FakeUserManager::~FakeUserManager() {
  ended_ = true;
  thread_.join();
}

void FakeUserManager::Serve() {
  while (!ended_) {
    if (sd_bus_process(bus_.get(), nullptr) == 0) {
      sd_bus_wait(bus_.get(), kLookUp);
    }
  }
}

int FakeUserManager::OnMessage(sd_bus_message *message, void *self,
                               sd_bus_error * /*error*/) {
  return static_cast<FakeUserManager *>(self)->Answer(message);
}

int FakeUserManager::Answer(sd_bus_message *message) {
  const auto calls = [message](const char *method) {
    return sd_bus_message_is_method_call(
               message, "org.freedesktop.systemd1.Manager", method) > 0;
  };
  if (!refusal_.empty()) {
    return sd_bus_reply_method_errorf(message,
                                      "org.freedesktop.DBus.Error.AccessDenied",
                                      "%s", refusal_.c_str());
  }
  if (calls("GetUnitFileState")) {
    return known_ ? sd_bus_reply_method_return(message, "s", "linked")
                  : sd_bus_reply_method_errorf(
                        message, "org.freedesktop.DBus.Error.FileNotFound",
                        "No such file or directory");
  }
  if (calls("LinkUnitFiles")) {
    calls_.push_back(Described(message, true));
    known_ = true;
    return sd_bus_reply_method_return(message, "a(sss)", 0);
  }
  if (calls("DisableUnitFiles")) {
    calls_.push_back(Described(message, false));
    known_ = false;
    return sd_bus_reply_method_return(message, "a(sss)", 0);
  }
  if (calls("Reload")) {
    calls_.emplace_back("Reload");
    return sd_bus_reply_method_return(message, "");
  }
  return 0;
}

}  // namespace ztk::test
