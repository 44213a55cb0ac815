// SPDX-License-Identifier: MIT
#include "ztk/model/resend.h"

#include "ztk/model/history/sendings.h"
#include "ztk/model/remembered.h"

namespace ztk::model {

namespace {

// The library has one table of values for all channels: a remembered number
// beyond the choices of a channel would send a value of another channel.
bool BelongsToItsChannel(const StoredValue &value) {
  return CanBeSet(*value.setting, value.channel, value.index);
}

}  // namespace

std::vector<StoredValue> StoredValues(
    const Setting &setting, const std::vector<std::uint32_t> &channels) {
  std::vector<StoredValue> values;
  SettingsSnapshot remembered;
  for (const std::uint32_t channel : channels) {
    const auto index = remembered.Remembered(setting, channel);
    if (!index) continue;
    values.push_back(
        {.setting = &setting, .channel = channel, .index = *index});
  }
  return values;
}

std::vector<StoredValue> AllStoredValues() {
  std::vector<StoredValue> values;
  for (const Setting *setting : AllSettings()) {
    for (const StoredValue &value :
         StoredValues(*setting, AllChannels(*setting))) {
      values.push_back(value);
    }
  }
  return values;
}

bool WouldBeRefused(const StoredValue &value) {
  return !BelongsToItsChannel(value) ||
         !IsSentAgain(*value.setting, value.index);
}

Reach SendAgain(std::vector<StoredValue> *values) {
  RecordedCalls calls;
  for (StoredValue &value : *values) {
    const Setting &setting = *value.setting;
    value.refused = !BelongsToItsChannel(value) || calls.Call([&] {
      return setting.sendAgain(setting.product, value.channel);
    }) != ZTK_SUCCESS;
    if (!value.refused) value.accepted = calls.acceptedLast();
  }
  std::vector<LastSending> sendings;
  for (const StoredValue &value : *values) {
    if (value.refused) continue;
    sendings.push_back(
        {.setting = value.setting,
         .channel = value.channel,
         .index = value.index,
         .sending = SendingTo(value.accepted, calls.reach().found())});
  }
  RecordSending(sendings, calls.reach().started, nullptr);
  return calls.reach();
}

}  // namespace ztk::model
