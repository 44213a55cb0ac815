// SPDX-License-Identifier: MIT
#include "virtual-mixer/sandbox/usbfs_front.h"

#include <linux/usbdevice_fs.h>
#include <sys/ioctl.h>
#include <umockdev.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <memory>
#include <utility>

namespace ztk::virtual_mixer {
namespace {

// The kernel takes at most one page in a control transfer.
constexpr std::uint16_t kLongestTransfer = 4096;
constexpr char kConnection[] = "ztk-connection";
constexpr auto kComplaints =
    static_cast<GLogLevelFlags>(static_cast<unsigned>(G_LOG_LEVEL_CRITICAL) |
                                static_cast<unsigned>(G_LOG_LEVEL_WARNING));

// umockdev passes ioctl numbers as long, perhaps with an extended sign.
bool IsControl(gulong request) {
  return static_cast<std::uint32_t>(request) ==
         static_cast<std::uint32_t>(USBDEVFS_CONTROL);
}

// The error number that the kernel returns.
int ErrorNumber(TransferStatus status) {
  switch (status) {
    case TransferStatus::Ok:
      return 0;
    case TransferStatus::Stall:
      return EPIPE;
    case TransferStatus::Silence:
      return ETIMEDOUT;
    case TransferStatus::Gone:
      return ENODEV;
  }
  return EIO;
}

SetupPacket ReadSetup(const UMockdevIoctlData *transfer,
                      std::uint32_t *timeout) {
  usbdevfs_ctrltransfer raw{};
  std::memcpy(&raw, transfer->data, sizeof raw);
  *timeout = raw.timeout;
  return {.requestType = raw.bRequestType,
          .request = raw.bRequest,
          .value = raw.wValue,
          .index = raw.wIndex,
          .length = raw.wLength};
}

Bytes BytesOf(const UMockdevIoctlData *data) {
  if (data == nullptr) return {};
  return {data->data, data->data + data->data_len};
}

// Drops the messages of umockdev about a program that was killed during a
// request, which is no error.
void DropVanishedClient(const gchar *domain, GLogLevelFlags level,
                        const gchar *message, gpointer /*unused*/) {
  if (std::strstr(message, "IoctlClient with open stream") != nullptr) return;
  if (std::strstr(message, "Error resolving IOCtl data") != nullptr) return;
  g_log_default_handler(domain, level, message, nullptr);
}

}  // namespace

UsbfsFront::UsbfsFront(Bus bus)
    : bus_(std::move(bus)), base_(umockdev_ioctl_base_new()) {
  g_signal_connect(base_, "client-connected",
                   reinterpret_cast<GCallback>(OnConnected), this);
  g_signal_connect(base_, "handle-ioctl", reinterpret_cast<GCallback>(OnIoctl),
                   this);
  logHandler_ =
      g_log_set_handler(nullptr, kComplaints, DropVanishedClient, nullptr);
  timer_ = std::thread([this] { RunTimer(); });
}

UsbfsFront::~UsbfsFront() {
  Stop();
  g_object_unref(base_);
  g_log_remove_handler(nullptr, logHandler_);
}

void UsbfsFront::Stop() {
  if (!timer_.joinable()) return;
  g_signal_handlers_disconnect_by_data(base_, this);
  {
    const std::lock_guard lock(mutex_);
    stopping_ = true;
  }
  changed_.notify_all();
  timer_.join();
  for (Waiting &one : waiting_) {
    one.answer = {.status = TransferStatus::Gone, .data = {}, .delay = {}};
    Finish(&one);
  }
  waiting_.clear();
}

void UsbfsFront::Abandon(std::size_t device) {
  std::list<Waiting> ended;
  {
    const std::lock_guard lock(mutex_);
    for (auto it = waiting_.begin(); it != waiting_.end();) {
      const auto next = std::next(it);
      if (it->device == device) ended.splice(ended.end(), waiting_, it);
      it = next;
    }
  }
  for (Waiting &one : ended) {
    one.answer = {.status = TransferStatus::Gone, .data = {}, .delay = {}};
    Finish(&one);
  }
}

// A program that opens a node is connected to the device that is there now.
void UsbfsFront::OnConnected(_UMockdevIoctlBase * /*base*/,
                             _UMockdevIoctlClient *client, void *self) {
  const auto *const front = static_cast<UsbfsFront *>(self);
  auto connection = std::make_unique<Connection>(
      front->bus_.connect(umockdev_ioctl_client_get_devnode(client)));
  g_object_set_data_full(
      G_OBJECT(client), kConnection, connection.release(),
      [](gpointer data) { delete static_cast<Connection *>(data); });
}

int UsbfsFront::OnIoctl(_UMockdevIoctlBase * /*base*/,
                        _UMockdevIoctlClient *client, void *self) {
  auto *const front = static_cast<UsbfsFront *>(self);
  const auto &connection = *static_cast<const Connection *>(
      g_object_get_data(G_OBJECT(client), kConnection));
  if (IsControl(umockdev_ioctl_client_get_request(client))) {
    return front->Control(client, connection) ? TRUE : FALSE;
  }
  // umockdev answers the other requests.
  if (front->bus_.isValid(connection)) return FALSE;
  umockdev_ioctl_client_complete(client, -1, ENODEV);
  return TRUE;
}

bool UsbfsFront::Control(_UMockdevIoctlClient *client,
                         const Connection &connection) {
  UMockdevIoctlData *const transfer =
      umockdev_ioctl_data_resolve(umockdev_ioctl_client_get_arg(client), 0,
                                  sizeof(usbdevfs_ctrltransfer), nullptr);
  if (transfer == nullptr) return false;
  std::uint32_t timeout = 0;
  const SetupPacket setup = ReadSetup(transfer, &timeout);
  if (setup.length > kLongestTransfer) {
    umockdev_ioctl_client_complete(client, -1, EINVAL);
    g_object_unref(transfer);
    return true;
  }
  UMockdevIoctlData *const buffer =
      setup.length == 0 ? nullptr
                        : umockdev_ioctl_data_resolve(
                              transfer, offsetof(usbdevfs_ctrltransfer, data),
                              setup.length, nullptr);
  Waiting waiting;
  waiting.client = static_cast<UMockdevIoctlClient *>(g_object_ref(client));
  waiting.transfer = transfer;
  waiting.buffer = buffer;
  waiting.device = connection.device;
  waiting.setup = setup;
  const Bytes sent = IsRead(setup) ? Bytes{} : BytesOf(buffer);
  waiting.answer = bus_.answer(connection, {.setup = setup, .data = sent});
  FinishInTime(std::move(waiting), std::chrono::milliseconds(timeout));
  return true;
}

// Sends the answer at once, or leaves it to the thread that sends it later. As
// in the kernel, a request with a time-out of 0 has no time limit.
void UsbfsFront::FinishInTime(Waiting waiting,
                              std::chrono::milliseconds timeout) {
  const bool limited = timeout.count() != 0;
  const bool silent = waiting.answer.status == TransferStatus::Silence;
  std::chrono::milliseconds wait = silent ? timeout : waiting.answer.delay;
  if (!silent && wait.count() == 0) {
    Finish(&waiting);
    return;
  }
  if (!silent && limited && wait >= timeout) {
    waiting.answer = {
        .status = TransferStatus::Silence, .data = {}, .delay = {}};
    wait = timeout;
  }
  if (!silent || limited) waiting.due = Clock::now() + wait;
  {
    const std::lock_guard lock(mutex_);
    waiting_.push_back(std::move(waiting));
  }
  changed_.notify_all();
}

// Sends the answer and releases everything that `waiting` owns.
void UsbfsFront::Finish(Waiting *waiting) {
  const Answer &answer = waiting->answer;
  std::size_t count = 0;
  if (answer.status == TransferStatus::Ok && IsRead(waiting->setup) &&
      waiting->buffer != nullptr) {
    count = std::min(answer.data.size(),
                     static_cast<std::size_t>(waiting->buffer->data_len));
    if (count > 0) {
      std::memcpy(waiting->buffer->data, answer.data.data(), count);
    }
  }
  const Bytes delivered(
      answer.data.begin(),
      answer.data.begin() +
          static_cast<std::ptrdiff_t>(std::min(count, answer.data.size())));
  bus_.log(waiting->device, waiting->setup, answer.status, delivered);
  const int failure = ErrorNumber(answer.status);
  const glong result = failure != 0             ? -1
                       : IsRead(waiting->setup) ? static_cast<glong>(count)
                                                : waiting->setup.length;
  umockdev_ioctl_client_complete(waiting->client, result, failure);
  if (waiting->buffer != nullptr) g_object_unref(waiting->buffer);
  g_object_unref(waiting->transfer);
  g_object_unref(waiting->client);
}

void UsbfsFront::RunTimer() {
  std::unique_lock lock(mutex_);
  while (!stopping_) {
    std::optional<Clock::time_point> next;
    for (const Waiting &one : waiting_) {
      if (one.due && (!next || *one.due < *next)) next = one.due;
    }
    if (!next) {
      changed_.wait(lock);
      continue;
    }
    changed_.wait_until(lock, *next);
    std::list<Waiting> due = TakeDue(Clock::now());
    lock.unlock();
    for (Waiting &one : due) Finish(&one);
    lock.lock();
  }
}

std::list<UsbfsFront::Waiting> UsbfsFront::TakeDue(Clock::time_point now) {
  std::list<Waiting> due;
  for (auto it = waiting_.begin(); it != waiting_.end();) {
    const auto next = std::next(it);
    if (it->due && *it->due <= now) due.splice(due.end(), waiting_, it);
    it = next;
  }
  return due;
}

}  // namespace ztk::virtual_mixer
