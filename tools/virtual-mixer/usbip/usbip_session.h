// SPDX-License-Identifier: MIT
//
// The session of one USB/IP client: takes the bytes that the client sends,
// produces the bytes to be sent back, and keeps the requests that still wait
// for an answer. The caller owns the socket and the clock.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_USBIP_USBIP_SESSION_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_USBIP_USBIP_SESSION_H_

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <list>
#include <optional>

#include "virtual-mixer/usbip/usbip_devices.h"
#include "virtual-mixer/usbip/usbip_messages.h"

namespace ztk::virtual_mixer::usbip {

class Session {
 public:
  using Clock = std::chrono::steady_clock;

  // Time that a client has to list or import devices: an idle client must not
  // keep others away.
  static constexpr std::chrono::seconds kTimeToImport{10};

  // A client without a device, connected at this time.
  Session(Devices *devices, Clock::time_point now)
      : devices_(devices), importDeadline_(now + kTimeToImport) {}
  // A client that has its device already.
  Session(Devices *devices, const Lease &lease)
      : devices_(devices), lease_(lease) {}
  // Ends the requests that are still waiting as if the device had gone.
  ~Session();
  Session(const Session &) = delete;
  Session &operator=(const Session &) = delete;

  // Takes bytes that have arrived, in pieces of any size.
  void Receive(const std::uint8_t *bytes, std::size_t count,
               Clock::time_point now);
  // Gives the answers that are due; ends when the device has gone, or when a
  // client without a device has used up its time.
  void Continue(Clock::time_point now);
  // Time at which Continue has to be called next, if any.
  std::optional<Clock::time_point> NextDue() const;

  // The bytes to be sent. Call Sent() after some of them were sent.
  const Bytes &Output() const { return output_; }
  void Sent(std::size_t count);

  bool HasDevice() const { return lease_.has_value(); }

  // No more is taken; the connection closes once the output has been sent.
  bool Ended() const { return ended_; }
  // Ended, with nothing more to be sent: the client broke the protocol or has
  // too many waiting requests, its time is over, or its device has gone.
  bool Broken() const { return broken_; }
  // Nothing is read from a client that does not read its answers.
  bool WantsInput() const { return !ended_ && output_.size() < kMostOutput; }

 private:
  static constexpr std::size_t kMostOutput = 1 << 20;

  struct Waiting {
    UrbCommand command;
    Answer answer;
    // None when the mixer is silent.
    std::optional<Clock::time_point> due;
  };

  // Each handles one whole message at the start of the input and returns its
  // size; 0 when there is no whole message.
  std::size_t TakeMessage(Clock::time_point now);
  std::size_t TakeOperation();
  std::size_t TakeCommand(Clock::time_point now);
  bool IsValid(const UrbCommand &command) const;
  void Submit(const UrbCommand &command, const Bytes &data,
              Clock::time_point now);
  void Unlink(const UrbCommand &command);
  void Finish(const UrbCommand &command, const Answer &answer);
  void Send(const Bytes &bytes);
  void Break();

  Devices *const devices_;
  std::optional<Lease> lease_;
  Clock::time_point importDeadline_;
  Bytes input_;
  Bytes output_;
  std::list<Waiting> waiting_;
  bool ended_ = false;
  bool broken_ = false;
};

}  // namespace ztk::virtual_mixer::usbip

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_USBIP_USBIP_SESSION_H_
