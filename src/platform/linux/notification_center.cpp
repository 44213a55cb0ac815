// SPDX-License-Identifier: MIT
//
// Notifications are signals on the session bus. The library promises to start
// no threads, so it uses sd-bus: GLib's own D-Bus support would start threads.
#include "platform/notification_center.h"

#include <cerrno>
#include <memory>
#include <new>
#include <utility>

#include "platform/linux/bus_connection.h"
#include "platform/linux/bus_message.h"
#include "platform/linux/bus_source.h"
#include "platform/linux/glib_library.h"

namespace ztk::platform::notification_center {

namespace {

// A registration that is passed to the thread that owns the context.
struct Request {
  GMainContext *context;
  std::unique_ptr<Registration> registration;
};

gboolean RunRequest(gpointer data) try {
  auto *request = static_cast<Request *>(data);
  Register(request->context, std::move(request->registration));
  return G_SOURCE_REMOVE;
} catch (const std::bad_alloc &) {
  return G_SOURCE_REMOVE;
}

void DeleteRequest(gpointer data) { delete static_cast<Request *>(data); }

}  // namespace

UserInfo *MakeUserInfo(const Entry *entries, std::size_t count) try {
  auto userInfo = std::make_unique<UserInfo>();
  userInfo->numbers.reserve(count);
  for (std::size_t i = 0; i < count; ++i) {
    userInfo->numbers.push_back(
        {.key = entries[i].key, .value = entries[i].value});
  }
  return userInfo.release();
} catch (const std::bad_alloc &) {
  return nullptr;
}

void Release(UserInfo *userInfo) {
  if (userInfo != nullptr && --userInfo->holds == 0) delete userInfo;
}

std::int32_t ReadNumber(const UserInfo *userInfo, ZTKTextRef key) {
  if (userInfo == nullptr) return 0;
  for (const UserInfo::Number &number : userInfo->numbers) {
    if (number.key == key) return number.value;
  }
  return 0;
}

// The message gets a copy of the record, so this function needs no reference of
// its own.
PostResult Post(ZTKTextRef name, const UserInfo *userInfo, Delivery delivery) {
  if (name == nullptr) {
    return {.handover = Handover::Failed, .systemCode = ENOMEM};
  }
  const std::uint64_t deadline = WaitDeadline();
  // Each call of Post() uses a connection of its own. So it works after fork()
  // and in any thread, and does not process messages for the observers.
  int error = 0;
  const OwnedBus bus = ConnectToSessionBus(deadline, &error);
  if (bus == nullptr) {
    const bool timedOut = error == ETIMEDOUT;
    return {.handover = timedOut ? Handover::Failed : Handover::NoCenter,
            .systemCode = error};
  }
  sd_bus_message *message = MakeMessage(bus.get(), name, userInfo, delivery);
  if (message == nullptr) {
    return {.handover = Handover::Failed, .systemCode = ENOMEM};
  }
  error = SendAndDrain(bus.get(), message, deadline);
  sd_bus_message_unref(message);
  return {.handover = error == 0 ? Handover::Sent : Handover::Failed,
          .systemCode = error};
}

void AddObserver(void *observer, const Method &method, ZTKTextRef name) try {
  // The name is null if memory has run out.
  if (name == nullptr || GLib() == nullptr) return;
  GMainContext *context = g_main_context_get_thread_default();
  if (context == nullptr) context = g_main_context_default();
  auto *request = new Request{
      .context = context,
      .registration = std::make_unique<Registration>(Registration{
          .observer = observer, .code = method.code, .name = name})};
  // RunRequest() runs at once, unless another thread is running the context. In
  // that case the other thread runs it, because it owns the connection.
  g_main_context_invoke_full(context, G_PRIORITY_DEFAULT, RunRequest, request,
                             DeleteRequest);
} catch (const std::bad_alloc &) {
  // Nothing will be delivered, as without a bus.
}

}  // namespace ztk::platform::notification_center
