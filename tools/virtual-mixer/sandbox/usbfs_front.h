// SPDX-License-Identifier: MIT
//
// Answers the ioctls of programs that have opened an emulated device node.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_SANDBOX_USBFS_FRONT_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_SANDBOX_USBFS_FRONT_H_

#include <chrono>
#include <condition_variable>
#include <functional>
#include <list>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

#include "virtual-mixer/mixer/device_bus.h"

// Types of umockdev, whose header need not be included.
struct _UMockdevIoctlBase;  // NOLINT(bugprone-reserved-identifier): fixed name
struct _UMockdevIoctlClient;  // NOLINT(bugprone-reserved-identifier): fixed
struct _UMockdevIoctlData;  // NOLINT(bugprone-reserved-identifier): fixed name

namespace ztk::virtual_mixer {

class UsbfsFront {
 public:
  // How the devices are reached. A connection belongs to an open node. The
  // functions are called on a thread of umockdev. `log` is also called on the
  // thread that sends late answers, always before the sender of the request
  // learns how it ended.
  struct Bus {
    std::function<Connection(const std::string &node)> connect;
    std::function<bool(const Connection &)> isValid;
    std::function<Answer(const Connection &, const ControlRequest &)> answer;
    std::function<void(std::size_t device, const SetupPacket &, TransferStatus,
                       const Bytes &delivered)>
        log;
  };

  explicit UsbfsFront(Bus bus);
  ~UsbfsFront();
  UsbfsFront(const UsbfsFront &) = delete;
  UsbfsFront &operator=(const UsbfsFront &) = delete;

  // Has to be attached to the nodes; owned by this object.
  _UMockdevIoctlBase *IoctlBase() const { return base_; }

  // The device has been unplugged: ends the requests that still wait.
  void Abandon(std::size_t device);

  // Ends all requests that still wait, as if the devices were unplugged, and
  // answers no more requests.
  void Stop();

 private:
  using Clock = std::chrono::steady_clock;
  struct Waiting {
    _UMockdevIoctlClient *client = nullptr;
    _UMockdevIoctlData *transfer = nullptr;
    _UMockdevIoctlData *buffer = nullptr;
    std::size_t device = 0;
    SetupPacket setup;
    Answer answer;
    // Time of the answer; none when the sender waits for ever.
    std::optional<Clock::time_point> due;
  };

  static void OnConnected(_UMockdevIoctlBase *, _UMockdevIoctlClient *client,
                          void *self);
  static int OnIoctl(_UMockdevIoctlBase *, _UMockdevIoctlClient *client,
                     void *self);
  bool Control(_UMockdevIoctlClient *client, const Connection &connection);
  void FinishInTime(Waiting waiting, std::chrono::milliseconds timeout);
  void Finish(Waiting *waiting);
  void RunTimer();
  std::list<Waiting> TakeDue(Clock::time_point now);

  const Bus bus_;
  _UMockdevIoctlBase *base_;
  unsigned logHandler_ = 0;

  std::mutex mutex_;
  std::condition_variable changed_;
  bool stopping_ = false;
  std::list<Waiting> waiting_;
  std::thread timer_;
};

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_SANDBOX_USBFS_FRONT_H_
