// SPDX-License-Identifier: MIT
//
// The virtual mixer itself: its registers, what it answers to vendor requests,
// and the faults that it can be given.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_MIXER_DEVICE_MODEL_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_MIXER_DEVICE_MODEL_H_

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <vector>

#include "virtual-mixer/mixer/descriptors.h"
#include "virtual-mixer/mixer/fault.h"
#include "virtual-mixer/mixer/request_line.h"

namespace ztk::virtual_mixer {

struct Answer {
  TransferStatus status = TransferStatus::Ok;
  // Reply of a read, never longer than was asked for.
  Bytes data;
  // How late the answer comes. A write takes effect at once.
  std::chrono::milliseconds delay{0};
};

// Registers. Two numbers are read and written with different meanings.
inline constexpr std::uint16_t kReadFirmware = 0x8001;
inline constexpr std::uint16_t kReadSelectors = 0x8002;
inline constexpr std::uint16_t kReadSerato = 0x8004;
inline constexpr std::uint16_t kReadPort = 0x8006;
inline constexpr std::uint16_t kReadCertifyLevel = 0x8007;
inline constexpr std::uint16_t kWriteInputRouting = 0x8002;
inline constexpr std::uint16_t kWriteBoostLevel = 0x8003;
inline constexpr std::uint16_t kWriteMidiChannel = 0x8004;
inline constexpr std::uint16_t kWriteMidiKeyMode = 0x8005;
inline constexpr std::uint16_t kWriteOutputRouting = 0x8016;

// Channels that have an input selector; counted from 0 here.
inline constexpr int kSelectors = 4;

// Not thread-safe: the bus calls it from one thread at a time.
class MixerModel {
 public:
  // It starts with every selector at position 4, firmware reply 36 04, Serato
  // inactive, port information 00 00 and certification level 00 00 00 01.
  MixerModel();

  // Answers a vendor request as the mixer would, faults included. A request
  // that no mixer knows is stalled. Gone when an Unplug fault takes the mixer
  // off the bus, which ends all its faults.
  Answer Handle(const SetupPacket &setup);

  // Turns the selector of channel 0 to 3. False when there is no such channel.
  bool TurnSelector(int channel, std::uint8_t position);
  std::uint8_t SelectorPosition(int channel) const;

  // Replaces the reply of a register that can be read; false for others.
  bool SetReply(std::uint16_t registerNumber, Bytes reply);
  const std::map<std::uint16_t, Bytes> &Replies() const { return replies_; }

  // The registers that can be written, each with the last value.
  const std::map<std::uint16_t, std::optional<std::uint16_t>> &LastWritten()
      const {
    return written_;
  }

  // A new fault replaces one with the same register and direction. If several
  // faults fit a request, the newest is used.
  void AddFault(const Fault &fault);
  void ClearFaults() { faults_.clear(); }
  // Oldest first, with the remaining number of times.
  const std::vector<Fault> &Faults() const { return faults_; }

 private:
  std::optional<Fault> TakeFault(const SetupPacket &setup);
  Answer HandleWithoutFault(const SetupPacket &setup);

  std::map<std::uint16_t, Bytes> replies_;
  std::map<std::uint16_t, std::optional<std::uint16_t>> written_;
  std::vector<Fault> faults_;
};

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_MIXER_DEVICE_MODEL_H_
