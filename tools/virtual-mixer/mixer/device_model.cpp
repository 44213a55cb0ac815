// SPDX-License-Identifier: MIT
#include "virtual-mixer/mixer/device_model.h"

#include <algorithm>
#include <utility>

namespace ztk::virtual_mixer {
namespace {

// The types and the numbers of the vendor requests that the mixer accepts.
constexpr std::uint8_t kReadType = 0xC0;
constexpr std::uint8_t kWriteType = 0x40;
constexpr std::uint8_t kReadRequest = 0;
constexpr std::uint8_t kWriteRequest = 3;

Answer Failure(TransferStatus status) {
  return {.status = status, .data = {}, .delay = {}};
}

void CutTo(std::size_t most, Bytes *data) {
  if (data->size() > most) data->resize(most);
}

}  // namespace

MixerModel::MixerModel()
    : replies_{{kReadFirmware, {0x36, 0x04}},
               // The first byte has no meaning. A position per channel follows.
               {kReadSelectors, {0, 4, 4, 4, 4}},
               {kReadSerato, {0, 0}},
               {kReadPort, {0, 0}},
               {kReadCertifyLevel, {0, 0, 0, 1}}},
      written_{{kWriteInputRouting, std::nullopt},
               {kWriteBoostLevel, std::nullopt},
               {kWriteMidiChannel, std::nullopt},
               {kWriteMidiKeyMode, std::nullopt},
               {kWriteOutputRouting, std::nullopt}} {}

bool MixerModel::TurnSelector(int channel, std::uint8_t position) {
  if (channel < 0 || channel >= kSelectors) return false;
  Bytes &reply = replies_[kReadSelectors];
  // A reply that was set by hand may be too short to hold the position.
  const auto at = static_cast<std::size_t>(channel) + 1;
  if (reply.size() <= at) reply.resize(at + 1);
  reply[at] = position;
  return true;
}

std::uint8_t MixerModel::SelectorPosition(int channel) const {
  const Bytes &reply = replies_.at(kReadSelectors);
  const auto at = static_cast<std::size_t>(channel) + 1;
  return at < reply.size() ? reply[at] : std::uint8_t{0};
}

bool MixerModel::SetReply(std::uint16_t registerNumber, Bytes reply) {
  const auto found = replies_.find(registerNumber);
  if (found == replies_.end()) return false;
  found->second = std::move(reply);
  return true;
}

void MixerModel::AddFault(const Fault &fault) {
  std::erase_if(faults_,
                [&](const Fault &old) { return old.HasSameScope(fault); });
  faults_.push_back(fault);
}

// Finds the fault that applies to a request, and counts its remaining times
// down.
std::optional<Fault> MixerModel::TakeFault(const SetupPacket &setup) {
  const auto found =
      std::find_if(faults_.rbegin(), faults_.rend(),
                   [&](const Fault &fault) { return fault.Fits(setup); });
  if (found == faults_.rend()) return std::nullopt;
  const Fault taken = *found;
  if (found->timesLeft && --*found->timesLeft == 0) {
    faults_.erase(std::next(found).base());
  }
  return taken;
}

Answer MixerModel::Handle(const SetupPacket &setup) {
  const std::optional<Fault> fault = TakeFault(setup);
  if (!fault) return HandleWithoutFault(setup);
  switch (fault->kind) {
    case Fault::Kind::Stall:
      return Failure(TransferStatus::Stall);
    case Fault::Kind::Silence:
      return Failure(TransferStatus::Silence);
    case Fault::Kind::Unplug:
      ClearFaults();
      return Failure(TransferStatus::Gone);
    case Fault::Kind::Delay:
    case Fault::Kind::Short:
    case Fault::Kind::WrongBytes:
      break;
  }
  Answer answer = HandleWithoutFault(setup);
  if (answer.status != TransferStatus::Ok) return answer;
  if (fault->kind == Fault::Kind::Delay) {
    answer.delay = std::chrono::milliseconds(fault->amount);
  }
  if (fault->kind == Fault::Kind::Short) CutTo(fault->amount, &answer.data);
  if (fault->kind == Fault::Kind::WrongBytes) {
    answer.data = fault->bytes;
    CutTo(setup.length, &answer.data);
  }
  return answer;
}

Answer MixerModel::HandleWithoutFault(const SetupPacket &setup) {
  if (setup.requestType == kReadType && setup.request == kReadRequest &&
      setup.value == 0) {
    const auto reply = replies_.find(setup.index);
    if (reply == replies_.end()) return Failure(TransferStatus::Stall);
    Answer answer;
    answer.data = reply->second;
    CutTo(setup.length, &answer.data);
    return answer;
  }
  if (setup.requestType == kWriteType && setup.request == kWriteRequest &&
      setup.length == 0) {
    const auto last = written_.find(setup.index);
    if (last == written_.end()) return Failure(TransferStatus::Stall);
    last->second = setup.value;
    return {};
  }
  return Failure(TransferStatus::Stall);
}

}  // namespace ztk::virtual_mixer
