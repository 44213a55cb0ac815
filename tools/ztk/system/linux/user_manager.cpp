// SPDX-License-Identifier: MIT
#include "ztk/system/user_manager.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "cli/strings.h"
#include "platform/linux/bus_connection.h"
#include "ztk/system/linux/udev_rules.h"

namespace ztk::model {

namespace {

namespace center = platform::notification_center;

// Time limit for all calls of a command together, in microseconds: with a bus
// that does not answer, the whole command ends within 5 s.
constexpr std::uint64_t kTimeLimit = 4'400'000;

constexpr char kService[] = "org.freedesktop.systemd1";
constexpr char kObject[] = "/org/freedesktop/systemd1";
constexpr char kInterface[] = "org.freedesktop.systemd1.Manager";

constexpr char kInstead[] =
    "; run 'ztk apply' each time you have plugged a mixer in";

constexpr char kRule[] = "71-ztk-apply.rules";

// The answer to a call, or why there is none.
class Answer {
 public:
  Answer() = default;
  ~Answer() {
    center::sd_bus_error_free(&error_);
    center::sd_bus_message_unref(message_);
  }
  Answer(const Answer &) = delete;
  Answer &operator=(const Answer &) = delete;

  sd_bus_error *error() { return &error_; }
  sd_bus_message **message() { return &message_; }
  std::string Reason(int result) const {
    return error_.message != nullptr ? error_.message : std::strerror(-result);
  }

 private:
  sd_bus_error error_{};
  sd_bus_message *message_ = nullptr;
};

// systemd makes this folder when it starts the system.
bool SystemdRuns() { return access("/run/systemd/system", F_OK) == 0; }

[[noreturn]] void Fail(const std::string &reason) {
  if (!SystemdRuns()) {
    throw NoUserManager(
        "autoapply is off and cannot be turned on, because this system does "
        "not run systemd" +
        std::string(kInstead));
  }
  throw std::runtime_error(
      "autoapply needs the systemd of your session, which cannot be used (" +
      cli::OneLine(reason) + ")" + kInstead);
}

}  // namespace

struct UserManager::Connection {
  const std::uint64_t deadline = center::Now() + kTimeLimit;
  center::OwnedBus bus = center::ConnectToSessionBus(deadline);

  template <typename... Arguments>
  int Call(const char *method, Answer *answer, const char *types,
           Arguments... arguments) const {
    const std::uint64_t now = center::Now();
    if (now >= deadline) return -ETIMEDOUT;
    center::sd_bus_set_method_call_timeout(bus.get(), deadline - now);
    return center::sd_bus_call_method(bus.get(), kService, kObject, kInterface,
                                      method, answer->error(),
                                      answer->message(), types, arguments...);
  }

  template <typename... Arguments>
  void Do(const char *method, const char *types, Arguments... arguments) const {
    Answer answer;
    const int result = Call(method, &answer, types, arguments...);
    if (result < 0) Fail(answer.Reason(result));
  }
};

UserManager::UserManager() : connection_(std::make_unique<Connection>()) {
  if (connection_->bus == nullptr) Fail("there is no session message bus");
}

UserManager::~UserManager() = default;

bool UserManager::Knows(const std::string &unit) {
  Answer answer;
  const int result =
      connection_->Call("GetUnitFileState", &answer, "s", unit.c_str());
  if (result == -ENOENT) return false;
  if (result < 0) Fail(answer.Reason(result));
  const char *state = nullptr;
  center::sd_bus_message_read(*answer.message(), "s", &state);
  return state != nullptr && std::strncmp(state, "linked", 6) == 0;
}

void UserManager::Link(const std::string &file) {
  // The link is permanent, and replaces a link to another file.
  connection_->Do("LinkUnitFiles", "asbb", 1, file.c_str(), 0, 1);
  connection_->Do("Reload", "");
}

void UserManager::Unlink(const std::string &unit) {
  connection_->Do("DisableUnitFiles", "asb", 1, unit.c_str(), 0);
  connection_->Do("Reload", "");
}

std::string PlugInRule() { return FindUdevRules(kRule); }

}  // namespace ztk::model
