// SPDX-License-Identifier: MIT
#include "virtual-mixer/usbip/usbip_session.h"

#include <algorithm>
#include <utility>

namespace ztk::virtual_mixer::usbip {
namespace {

// A control transfer's length has 16 bits.
constexpr std::uint32_t kLongestTransfer = 0xFFFF;
// A kernel sends one request at a time to a pipe. A client with more than this
// many waiting requests is disconnected.
constexpr std::size_t kMostWaiting = 256;
// A request without isochronous packets has one of these numbers of packets,
// which depends on the version of the kernel.
constexpr std::uint32_t kPacketsZero = 0;
constexpr std::uint32_t kPacketsNotUsed = 0xFFFFFFFF;

std::int32_t StatusOf(TransferStatus status) {
  return status == TransferStatus::Ok ? 0 : kBrokenPipe;
}

}  // namespace

Session::~Session() {
  Break();
  if (lease_) devices_->GiveBack(*lease_);
}

void Session::Receive(const std::uint8_t *bytes, std::size_t count,
                      Clock::time_point now) {
  if (ended_) return;
  input_.insert(input_.end(), bytes, bytes + count);
  while (const std::size_t taken = TakeMessage(now)) {
    input_.erase(input_.begin(),
                 input_.begin() + static_cast<std::ptrdiff_t>(taken));
  }
}

std::size_t Session::TakeMessage(Clock::time_point now) {
  if (ended_) return 0;
  return lease_ ? TakeCommand(now) : TakeOperation();
}

std::size_t Session::TakeOperation() {
  if (input_.size() < kOperationSize) return 0;
  const Operation operation = ReadOperation(input_.data());
  if (operation.version != kVersion) {
    Break();
    return 0;
  }
  if (operation.code == kListRequest) {
    Send(ListReply(devices_->Free()));
    ended_ = true;
    return kOperationSize;
  }
  if (operation.code != kImportRequest) {
    Break();
    return 0;
  }
  if (input_.size() < kOperationSize + kBusIdSize) return 0;
  Lease lease;
  const ImportStatus status =
      devices_->Import(ReadBusId(input_.data() + kOperationSize), &lease);
  if (status == ImportStatus::Ok) {
    lease_ = lease;
    Send(ImportReply(status, devices_->Describe(lease.device)));
  } else {
    ended_ = true;
    Send(ImportReply(status, {}));
  }
  return kOperationSize + kBusIdSize;
}

std::size_t Session::TakeCommand(Clock::time_point now) {
  if (input_.size() < kUrbCommandSize) return 0;
  const UrbCommand command = ReadUrbCommand(input_.data());
  if (!IsValid(command)) {
    Break();
    return 0;
  }
  if (command.code == kUnlink) {
    Unlink(command);
    return kUrbCommandSize;
  }
  const std::size_t whole =
      kUrbCommandSize + (command.direction == kIn ? 0 : command.length);
  if (input_.size() < whole) return 0;
  const Bytes data(input_.begin() + kUrbCommandSize,
                   input_.begin() + static_cast<std::ptrdiff_t>(whole));
  Submit(command, data, now);
  return whole;
}

// Whether the message keeps the rules of the protocol. The length of one that
// does not is unknown, so the next message cannot be found.
bool Session::IsValid(const UrbCommand &command) const {
  const Export device = devices_->Describe(lease_->device);
  if (command.deviceId != DeviceId(device.address)) return false;
  if (command.code == kUnlink) return true;
  return command.code == kSubmit && command.direction <= kIn &&
         command.length <= kLongestTransfer &&
         (command.packets == kPacketsZero ||
          command.packets == kPacketsNotUsed);
}

void Session::Submit(const UrbCommand &command, const Bytes &data,
                     Clock::time_point now) {
  // The devices have the default pipe only.
  if (command.endpoint != 0) {
    Send(SubmitReply(command.sequence, kNoEntry, 0, {}));
    return;
  }
  // The direction of a request without data has no meaning.
  const bool reads = command.direction == kIn;
  if (command.setup.length != 0 && IsRead(command.setup) != reads) {
    Send(SubmitReply(command.sequence, kBrokenPipe, 0, {}));
    return;
  }
  Waiting one{.command = command,
              .answer = devices_->Handle(
                  *lease_, {.setup = command.setup, .data = data}),
              .due = std::nullopt};
  const bool silent = one.answer.status == TransferStatus::Silence;
  if (!silent && one.answer.delay.count() == 0) {
    Finish(command, one.answer);
    return;
  }
  if (!silent) one.due = now + one.answer.delay;
  waiting_.push_back(std::move(one));
  if (waiting_.size() > kMostWaiting) Break();
}

// Cancels a waiting request; the log shows it as one that the mixer did not
// answer. If the answer was sent already, only the cancellation is confirmed.
void Session::Unlink(const UrbCommand &command) {
  const auto found =
      std::find_if(waiting_.begin(), waiting_.end(), [&](const Waiting &one) {
        return one.command.sequence == command.unlinked;
      });
  if (found == waiting_.end()) {
    Send(UnlinkReply(command.sequence, 0));
    return;
  }
  devices_->Log(lease_->device, found->command.setup, TransferStatus::Silence,
                {});
  waiting_.erase(found);
  Send(UnlinkReply(command.sequence, kConnectionReset));
}

void Session::Continue(Clock::time_point now) {
  if (lease_ ? !devices_->Holds(*lease_) : now >= importDeadline_) Break();
  for (auto it = waiting_.begin(); it != waiting_.end();) {
    const auto next = std::next(it);
    if (it->due && *it->due <= now) {
      Finish(it->command, it->answer);
      if (broken_) return;
      waiting_.erase(it);
    }
    it = next;
  }
}

std::optional<Session::Clock::time_point> Session::NextDue() const {
  if (!lease_) return importDeadline_;
  std::optional<Clock::time_point> next;
  for (const Waiting &one : waiting_) {
    if (one.due && (!next || *one.due < *next)) next = one.due;
  }
  return next;
}

void Session::Sent(std::size_t count) {
  output_.erase(output_.begin(),
                output_.begin() + static_cast<std::ptrdiff_t>(count));
}

// Logs how the request ended and sends the reply.
void Session::Finish(const UrbCommand &command, const Answer &answer) {
  if (answer.status == TransferStatus::Gone) {
    devices_->Log(lease_->device, command.setup, TransferStatus::Gone, {});
    Break();
    return;
  }
  Bytes delivered;
  if (answer.status == TransferStatus::Ok && command.direction == kIn) {
    delivered = answer.data;
    if (delivered.size() > command.length) delivered.resize(command.length);
  }
  devices_->Log(lease_->device, command.setup, answer.status, delivered);
  std::uint32_t done = static_cast<std::uint32_t>(delivered.size());
  if (answer.status == TransferStatus::Ok && command.direction != kIn) {
    done = command.length;
  }
  Send(SubmitReply(command.sequence, StatusOf(answer.status), done, delivered));
}

void Session::Send(const Bytes &bytes) {
  output_.insert(output_.end(), bytes.begin(), bytes.end());
}

// Nothing more is sent, as after a real device was unplugged.
void Session::Break() {
  ended_ = broken_ = true;
  output_.clear();
  for (const Waiting &one : waiting_) {
    devices_->Log(lease_->device, one.command.setup, TransferStatus::Gone, {});
  }
  waiting_.clear();
}

}  // namespace ztk::virtual_mixer::usbip
