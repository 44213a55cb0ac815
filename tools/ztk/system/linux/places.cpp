// SPDX-License-Identifier: MIT
#include "ztk/system/places.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "build_config.h"
#include "platform/linux/usb_snapshot.h"
#include "usb/USB.h"

namespace ztk::model {

namespace {

using platform::usb::DeviceFacts;

std::vector<DeviceFacts> Mixers() {
  std::vector<DeviceFacts> devices;
  platform::usb::ReadBus(
      {.vendor = build::kUsbVendorId, .product = usb::kMixerProductId},
      &devices);
  return devices;
}

std::string NodeOf(const DeviceFacts &facts) {
  const int number = platform::usb::ReadDeviceNumber(facts);
  if (number <= 0) return "";
  return platform::usb::NodeOf(facts, number);
}

// The name of the place is enough to find the node, so the bus is not read.
std::string NodeAt(const std::string &place) {
  return NodeOf(
      {.entry = place, .place = platform::usb::PlaceOf(place.c_str())});
}

Obstacle ObstacleOf(int error) {
  switch (error) {
    case EACCES:
      return Obstacle::NoRight;
    case EPERM:
      return Obstacle::Forbidden;
    case ENOENT:
    case ENOTDIR:
      return Obstacle::NoNode;
    case ENODEV:
    case ENXIO:
    case ESHUTDOWN:
      return Obstacle::Vanished;
    default:
      return Obstacle::Other;
  }
}

}  // namespace

std::vector<std::string> MixerPlaces() {
  std::vector<std::string> places;
  for (const DeviceFacts &facts : Mixers()) places.emplace_back(facts.entry);
  return places;
}

// The kernel makes a new node each time a device is attached.
std::optional<SystemTime> AttachedSince(const std::string &place) {
  struct statx facts {};
  if (statx(AT_FDCWD, NodeAt(place).c_str(), 0, STATX_BTIME, &facts) != 0 ||
      (facts.stx_mask & STATX_BTIME) == 0) {
    return std::nullopt;
  }
  return SystemTime(std::chrono::duration_cast<SystemTime::duration>(
      std::chrono::seconds(facts.stx_btime.tv_sec) +
      std::chrono::nanoseconds(facts.stx_btime.tv_nsec)));
}

bool MayBeOpened(const std::string &place) {
  return access(NodeAt(place).c_str(), R_OK | W_OK) == 0;
}

Access TryToOpen(const std::string &place) {
  const Access vanished{
      .obstacle = Obstacle::Vanished, .node = {}, .reason = "it is gone"};
  for (const DeviceFacts &facts : Mixers()) {
    if (place != facts.entry) continue;
    const std::string node = NodeOf(facts);
    if (node.empty()) return vanished;
    // In the sandbox of ztk-virtual-mixer, each open() that fails leaks a file
    // descriptor of this process, so access() is called first.
    if (access(node.c_str(), R_OK | W_OK) != 0) {
      return {.obstacle = ObstacleOf(errno),
              .node = node,
              .reason = std::strerror(errno)};
    }
    const int opened = open(node.c_str(), O_RDWR | O_CLOEXEC);
    if (opened >= 0) {
      close(opened);
      return {.obstacle = Obstacle::None, .node = node, .reason = {}};
    }
    return {.obstacle = ObstacleOf(errno),
            .node = node,
            .reason = std::strerror(errno)};
  }
  return vanished;
}

std::string Explained(const Access &access) {
  switch (access.obstacle) {
    case Obstacle::None:
      return "could not be opened, but can be now; try again";
    case Obstacle::Vanished:
      return "is gone: it was unplugged or switched off";
    case Obstacle::NoNode:
      return "is attached but cannot be opened: there is no " + access.node +
             " here; ztk doctor tells why";
    case Obstacle::NoRight:
      return "is attached but cannot be opened: you have no permission for " +
             access.node + "; ztk doctor tells why";
    case Obstacle::Forbidden:
      return "is attached but cannot be opened: " + access.node +
             " may not be used here; ztk doctor tells why";
    case Obstacle::Other:
      break;
  }
  return "is attached but cannot be opened: " + access.node + ": " +
         access.reason;
}

std::string SystemErrorText(std::int32_t code) { return std::strerror(code); }

}  // namespace ztk::model
