// SPDX-License-Identifier: MIT
#include "platform/linux/bus_source.h"

#include <cstdint>

#include "platform/linux/bus_connection.h"
#include "platform/linux/bus_message.h"

namespace ztk::platform::notification_center {

namespace {

// GLib allocates it; its first member is the GSource.
struct BusSource {
  GSource base;
  sd_bus *bus;
  gpointer polled;      // the connection's descriptor in the context's poll
  GIOCondition events;  // what it is polled for
};

BusSource *FromBase(GSource *source) {
  return reinterpret_cast<BusSource *>(source);
}

// Below 0 once the connection is broken.
int WantedEvents(sd_bus *bus, GIOCondition *events) {
  const int wanted = sd_bus_get_events(bus);
  // GLib's bits are those of poll().
  if (wanted >= 0) *events = static_cast<GIOCondition>(wanted);
  return wanted;
}

// The time in milliseconds until the connection has to be processed: -1 for no
// limit; 0 when it has work that its descriptor does not show, for example
// messages that arrived while a call waited for its answer.
gint IdleMilliseconds(sd_bus *bus) {
  std::uint64_t due = 0;
  if (sd_bus_get_timeout(bus, &due) < 0) return 0;
  if (due == UINT64_MAX) return -1;
  const std::uint64_t now = Now();
  if (due <= now) return 0;
  // Rounded up, so that the loop does not spin during the last part of a
  // millisecond.
  const std::uint64_t milliseconds = (due - now + 999) / 1000;
  return milliseconds < G_MAXINT ? static_cast<gint>(milliseconds) : G_MAXINT;
}

gboolean Prepare(GSource *base, gint *timeout) {
  BusSource *source = FromBase(base);
  GIOCondition events{};
  // A broken connection is ready: dispatching it removes it.
  if (WantedEvents(source->bus, &events) < 0) return TRUE;
  // A modification wakes the context up. If it were made each time, the context
  // would never wait.
  if (events != source->events) {
    g_source_modify_unix_fd(base, source->polled, events);
    source->events = events;
  }
  *timeout = IdleMilliseconds(source->bus);
  return *timeout == 0;
}

// One message at a time, so that the program's other sources run between the
// messages of a burst. A callback that runs the loop gets the next notification
// when it has returned: GLib does not dispatch a source from within itself.
gboolean Dispatch(GSource *base, GSourceFunc /*callback*/, gpointer /*data*/) {
  sd_bus *bus = FromBase(base)->bus;
  if (sd_bus_process(bus, nullptr) < 0) return G_SOURCE_REMOVE;
  // Removed now and not in the next iteration, because sd-bus is about to close
  // the polled descriptor.
  return sd_bus_is_open(bus) > 0 ? G_SOURCE_CONTINUE : G_SOURCE_REMOVE;
}

void Finalize(GSource *base) { BusCloser()(FromBase(base)->bus); }

// Not const, because GLib requires that. Its address identifies the sources of
// this library.
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

// The context owns the source. Null when there is no bus.
GSource *Attach(GMainContext *context) {
  OwnedBus bus = ConnectToSessionBus(PatienceEnds());
  if (bus == nullptr) return nullptr;
  const int descriptor = sd_bus_get_fd(bus.get());
  GIOCondition events{};
  if (descriptor < 0 || WantedEvents(bus.get(), &events) < 0) return nullptr;
  sd_bus_set_method_call_timeout(bus.get(), kPatience);

  GSource *base = g_source_new(&sourceFuncs, guint{sizeof(BusSource)});
  g_source_set_name(base, "ztk notifications");
  // GLib finds only sources that have callback data.
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
  // Another result than 0 would prevent the delivery to the other
  // registrations.
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
  // The connection may have ended, or may come from the parent process, and its
  // context has not run since. So a second try is made with a new connection.
  for (int tries = 0; tries < 2; ++tries) {
    GSource *source = Find(context);
    if (source == nullptr) source = Attach(context);
    if (source == nullptr) return;
    sd_bus *bus = FromBase(source)->bus;
    if (AddRegistration(bus, &registration)) return;
    if (sd_bus_is_open(bus) > 0) return;  // the bus refuses or does not answer
    g_source_destroy(source);
  }
}

}  // namespace ztk::platform::notification_center
