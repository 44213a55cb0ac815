// SPDX-License-Identifier: MIT
#include "platform/linux/bus_source.h"

#include <cstdint>

#include "platform/linux/bus_connection.h"
#include "platform/linux/bus_message.h"

namespace ztk::platform::notification_center {

namespace {

// The event source of a connection. GLib allocates it and requires that its
// first member is the GSource.
struct BusSource {
  GSource base;
  sd_bus *bus;
  gpointer polled;      // GLib's tag for the descriptor of the connection
  GIOCondition events;  // the events for which the descriptor is polled
};

BusSource *FromBase(GSource *source) {
  return reinterpret_cast<BusSource *>(source);
}

// Returns a number below 0 if the connection is broken.
int WantedEvents(sd_bus *bus, GIOCondition *events) {
  const int wanted = sd_bus_get_events(bus);
  // GIOCondition has the same bits as poll().
  if (wanted >= 0) *events = static_cast<GIOCondition>(wanted);
  return wanted;
}

// Returns the time in milliseconds until the connection has to be processed, or
// -1 for no limit. The time is 0 if poll() would not show that there is
// something to process, for example a message that arrived while a method call
// waited for its reply.
gint IdleMilliseconds(sd_bus *bus) {
  std::uint64_t due = 0;
  if (sd_bus_get_timeout(bus, &due) < 0) return 0;
  if (due == UINT64_MAX) return -1;
  const std::uint64_t now = Now();
  if (due <= now) return 0;
  // The time is rounded up. Otherwise the loop would run without a pause during
  // the last part of a millisecond.
  const std::uint64_t milliseconds = (due - now + 999) / 1000;
  return milliseconds < G_MAXINT ? static_cast<gint>(milliseconds) : G_MAXINT;
}

gboolean Prepare(GSource *base, gint *timeout) {
  BusSource *source = FromBase(base);
  GIOCondition events{};
  // A broken connection counts as ready, because Dispatch() then removes its
  // source.
  if (WantedEvents(source->bus, &events) < 0) return TRUE;
  // g_source_modify_unix_fd() wakes the context up, so it is called only if the
  // events have changed. Otherwise the context would never wait.
  if (events != source->events) {
    g_source_modify_unix_fd(base, source->polled, events);
    source->events = events;
  }
  *timeout = IdleMilliseconds(source->bus);
  return *timeout == 0;
}

// Processes one message, so that other sources of the program can run between
// many messages. If a callback itself runs the event loop, the next
// notification is delivered only after the callback has returned, because GLib
// does not dispatch a source while it is being dispatched.
gboolean Dispatch(GSource *base, GSourceFunc /*callback*/, gpointer /*data*/) {
  sd_bus *bus = FromBase(base)->bus;
  if (sd_bus_process(bus, nullptr) < 0) return G_SOURCE_REMOVE;
  // The source of a closed connection is removed at once, because sd-bus closes
  // the descriptor that GLib polls.
  return sd_bus_is_open(bus) > 0 ? G_SOURCE_CONTINUE : G_SOURCE_REMOVE;
}

void Finalize(GSource *base) { BusCloser()(FromBase(base)->bus); }

// GLib requires that this variable is not const. Its address identifies the
// sources of this library.
GSourceFuncs sourceFuncs = {.prepare = Prepare,
                            .check = nullptr,
                            .dispatch = Dispatch,
                            .finalize = Finalize,
                            .closure_callback = nullptr,
                            .closure_marshal = nullptr};

GSource *Find(GMainContext *context) {
  return g_main_context_find_source_by_funcs_user_data(context, &sourceFuncs,
                                                       &sourceFuncs);
}

// Connects to the session bus and adds the connection to the context, which
// owns the source. Returns null if there is no bus.
GSource *Attach(GMainContext *context) {
  OwnedBus bus = ConnectToSessionBus(WaitDeadline());
  if (bus == nullptr) return nullptr;
  const int descriptor = sd_bus_get_fd(bus.get());
  GIOCondition events{};
  if (descriptor < 0 || WantedEvents(bus.get(), &events) < 0) return nullptr;
  sd_bus_set_method_call_timeout(bus.get(), kMaxWait);

  GSource *base = g_source_new(&sourceFuncs, guint{sizeof(BusSource)});
  g_source_set_name(base, "ztk notifications");
  // Find() finds only sources that have callback data.
  g_source_set_callback(base, nullptr, &sourceFuncs, nullptr);
  BusSource *source = FromBase(base);
  source->bus = bus.release();
  source->events = events;
  source->polled = g_source_add_unix_fd(base, descriptor, events);
  g_source_attach(base, context);
  g_source_unref(base);
  return base;
}

int Receive(sd_bus_message *message, void *userData, sd_bus_error * /*error*/) {
  const auto *registration = static_cast<const Registration *>(userData);
  UserInfo *userInfo = ReadMessage(message, registration->name.c_str());
  if (userInfo != nullptr) {
    registration->code(registration->observer, userInfo);
    Release(userInfo);
  }
  // With a result other than 0, sd-bus would not call the other registrations.
  return 0;
}

void DeleteRegistration(void *userData) {
  delete static_cast<Registration *>(userData);
}

}  // namespace

bool AddRegistration(sd_bus *bus, std::unique_ptr<Registration> *registration) {
  const std::string rule = MatchRule((*registration)->name.c_str());
  sd_bus_slot *slot = nullptr;
  const int added =
      sd_bus_add_match(bus, &slot, rule.c_str(), Receive, registration->get());
  if (added < 0) return false;
  sd_bus_slot_set_destroy_callback(slot, DeleteRegistration);
  static_cast<void>(registration->release());  // the slot owns it now
  // The connection owns a floating slot until it is freed.
  sd_bus_slot_set_floating(slot, 1);
  sd_bus_slot_unref(slot);
  return true;
}

void Register(GMainContext *context,
              std::unique_ptr<Registration> registration) {
  // The existing connection may be closed, or may belong to the parent process,
  // without the context having noticed it. So there is a second try with a new
  // connection.
  for (int tries = 0; tries < 2; ++tries) {
    GSource *source = Find(context);
    if (source == nullptr) source = Attach(context);
    if (source == nullptr) return;
    sd_bus *bus = FromBase(source)->bus;
    if (AddRegistration(bus, &registration)) return;
    // The connection works, but the bus refused the match or did not answer.
    if (sd_bus_is_open(bus) > 0) return;
    g_source_destroy(source);
  }
}

}  // namespace ztk::platform::notification_center
