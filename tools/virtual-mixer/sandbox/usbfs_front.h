// SPDX-License-Identifier: MIT
//
// Answers the ioctls of programs that have opened an emulated device node.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_SANDBOX_USBFS_FRONT_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_SANDBOX_USBFS_FRONT_H_

#include <chrono>
#include <condition_variable>
#include <functional>
#include <list>
#include <map>
#include <mutex>
#include <string>
#include <thread>

#include "virtual-mixer/mixer/device_model.h"
#include "virtual-mixer/mixer/request_line.h"

// umockdev's types, kept out of those who include this.
struct _UMockdevIoctlBase;  // NOLINT(bugprone-reserved-identifier): fixed name
struct _UMockdevIoctlClient;  // NOLINT(bugprone-reserved-identifier): fixed
struct _UMockdevIoctlData;  // NOLINT(bugprone-reserved-identifier): fixed name

namespace ztk::virtual_mixer {

class UsbfsFront {
 public:
  // Asked for the answer of the device behind a node, one request at a time,
  // on umockdev's own thread.
  using Handler =
      std::function<Answer(const std::string &node, const ControlRequest &)>;
  // Told how each request ended, before its sender learns it; on that thread
  // or on the one that waits for late answers.
  using Observer =
      std::function<void(const std::string &node, const SetupPacket &, Outcome,
                         const Bytes &delivered)>;

  UsbfsFront(Handler handler, Observer observer);
  ~UsbfsFront();
  UsbfsFront(const UsbfsFront &) = delete;
  UsbfsFront &operator=(const UsbfsFront &) = delete;

  // To be attached to the nodes; belongs to this object.
  _UMockdevIoctlBase *IoctlBase() const { return base_; }

  // The device behind the node has gone: requests under way end, and whoever
  // has the node open reaches nothing any more, even if the device comes back.
  void Abandon(const std::string &node);

  // Ends every request that still waits, as if the devices had gone, and
  // answers no more.
  void Stop();

 private:
  using Clock = std::chrono::steady_clock;
  struct Waiting {
    _UMockdevIoctlClient *client = nullptr;
    _UMockdevIoctlData *transfer = nullptr;
    _UMockdevIoctlData *buffer = nullptr;
    std::string node;
    SetupPacket setup;
    Answer answer;
    // When the answer is given; at no time when the sender waits for ever.
    std::optional<Clock::time_point> due;
  };

  static void OnConnected(_UMockdevIoctlBase *, _UMockdevIoctlClient *client,
                          void *self);
  static int OnIoctl(_UMockdevIoctlBase *, _UMockdevIoctlClient *client,
                     void *self);
  bool IsStale(_UMockdevIoctlClient *client, const std::string &node);
  bool Control(_UMockdevIoctlClient *client, const std::string &node);
  void Finish(Waiting *waiting);
  void RunTimer();
  std::list<Waiting> TakeDue(Clock::time_point now);

  const Handler handler_;
  const Observer observer_;
  _UMockdevIoctlBase *base_;
  unsigned logHandler_ = 0;

  std::mutex mutex_;
  std::condition_variable changed_;
  bool stopping_ = false;
  std::list<Waiting> waiting_;
  // How often the device behind a node has gone.
  std::map<std::string, std::size_t> departures_;
  std::thread timer_;
};

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_SANDBOX_USBFS_FRONT_H_
