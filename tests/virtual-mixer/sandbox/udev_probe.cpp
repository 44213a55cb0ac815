// SPDX-License-Identifier: MIT
//
// A program that listens for USB devices through libudev and knows nothing of
// the virtual mixer: prints "ready", then one line for each event, and ends
// after the given number of events.
#include <libudev.h>
#include <poll.h>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int kLongest = 60000;  // milliseconds; then no event will come

const char *TextOf(const char *text) { return text == nullptr ? "-" : text; }

}  // namespace

int main(int argc, char **argv) {
  int events = argc > 1 ? std::atoi(argv[1]) : 1;
  udev *const context = udev_new();
  udev_monitor *const monitor = udev_monitor_new_from_netlink(context, "udev");
  if (monitor == nullptr) return 1;
  udev_monitor_filter_add_match_subsystem_devtype(monitor, "usb", "usb_device");
  if (udev_monitor_enable_receiving(monitor) < 0) return 1;
  std::puts("ready");
  std::fflush(stdout);
  for (; events > 0; --events) {
    pollfd watched{udev_monitor_get_fd(monitor), POLLIN, 0};
    if (poll(&watched, 1, kLongest) <= 0) {
      std::puts("nothing came");
      break;
    }
    udev_device *const device = udev_monitor_receive_device(monitor);
    if (device == nullptr) {
      std::puts("not an event");
      continue;
    }
    std::printf("%s %s %s %s\n", TextOf(udev_device_get_action(device)),
                TextOf(udev_device_get_syspath(device)),
                TextOf(udev_device_get_devnode(device)),
                TextOf(udev_device_get_property_value(device, "ID_MODEL_ID")));
    udev_device_unref(device);
  }
  udev_monitor_unref(monitor);
  udev_unref(context);
  return 0;
}
