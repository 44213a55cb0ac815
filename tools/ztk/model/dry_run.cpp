// SPDX-License-Identifier: MIT
#include "ztk/model/dry_run.h"

#include "api/input_audio.h"
#include "platform/text.h"
#include "store/settings_path.h"
#include "usb/USB.h"
#include "ztk/model/remembered.h"
#include "ztk/system/library_text.h"
#include "ztk/system/places.h"

namespace ztk::model {

namespace {

using platform::text::OwnedText;

constexpr std::uint8_t kRead = 0xC0;
constexpr std::uint8_t kReadRequest = 0;
constexpr std::uint8_t kWrite = 0x40;
constexpr std::uint8_t kWriteRequest = 3;

Setup Reading(std::uint16_t index, std::uint16_t length) {
  return {.type = kRead,
          .request = kReadRequest,
          .value = 0,
          .index = index,
          .length = length};
}

Setup Writing(std::uint16_t index, std::uint16_t value) {
  return {.type = kWrite,
          .request = kWriteRequest,
          .value = value,
          .index = index,
          .length = 0};
}

std::string KeyOf(const Setting &setting, std::uint32_t channel) {
  if (setting.channels == 0) return Utf8(setting.key);
  const OwnedText key(
      platform::text::Format(setting.key, static_cast<std::int32_t>(channel)));
  return Utf8(key.get());
}

}  // namespace

Plan::Plan() {
  int number = 0;
  for (const std::string &place : MixerPlaces()) {
    ++number;
    ++found_;
    if (MayBeOpened(place)) mixers_.push_back(number);
  }
}

void Plan::AddToEach(const Setup &setup, const std::string &meaning) {
  for (const int mixer : mixers_) {
    requests_.push_back({.mixer = mixer, .setup = setup, .meaning = meaning});
  }
}

void Plan::AddWriteRequest(const Setting &setting, std::uint32_t channel,
                           std::uint32_t index) {
  AddToEach(Writing(setting.writeRegister, setting.deviceValue(channel, index)),
            NamedValue(setting, channel, index));
}

// The last channel has no selector: where a choice needs one, the library stops
// after the first mixer that it has asked.
void Plan::AddSelectors(const Setting &setting, bool stops) {
  if (setting.selectorLength == 0) return;
  const Setup setup =
      Reading(usb::kInputSelectorRegister, setting.selectorLength);
  constexpr char kMeaning[] = "asked for the positions of its input selectors";
  if (!stops) return AddToEach(setup, kMeaning);
  if (mixers_.empty()) return;
  requests_.push_back(
      {.mixer = mixers_.front(), .setup = setup, .meaning = kMeaning});
}

void Plan::AddAnnouncement(const Change &change) {
  const notify::AnnouncedSetting &notice = *change.setting->notice;
  const OwnedText name(
      platform::text::Format(notice.nameFormat, notice.postedModel));
  PlannedAnnouncement planned{
      .name = Utf8(name.get()),
      .numbers = {},
      .meaning = NamedValue(*change.setting, change.channel, change.index)};
  planned.numbers.emplace_back(Utf8(notify::kProductKey), change.product);
  if (change.setting->channels != 0) {
    planned.numbers.emplace_back(Utf8(notify::kChannelKey), change.channel);
  }
  planned.numbers.emplace_back(Utf8(notify::kIndexKey), change.index);
  announcements_.push_back(std::move(planned));
}

void Plan::AddWrite(const Setting &setting, std::uint32_t channel,
                    std::optional<std::uint32_t> after) {
  const OwnedText file(store::MakePath(setting.model));
  writes_.push_back({.file = Utf8(file.get()),
                     .key = KeyOf(setting, channel),
                     .setting = &setting,
                     .channel = channel,
                     .before = Remembered(setting, channel),
                     .after = after});
}

void Plan::AddChange(const Change &change) {
  const Setting &setting = *change.setting;
  AddWriteRequest(setting, change.channel, change.index);
  AddWrite(setting, change.channel,
           change.forgets ? std::nullopt : std::optional(change.index));
  AddAnnouncement(change);
  AddSelectors(setting,
               &setting == &kInput &&
                   change.channel == input_audio::kLastChannel &&
                   change.index < input_audio::kIndexWarnsBelow.withMixer);
}

void Plan::AddForgetting(const Setting &setting, std::uint32_t channel) {
  AddWrite(setting, channel, std::nullopt);
}

void Plan::AddSendingAgain(const Setting &setting, std::uint32_t channel,
                           std::uint32_t index) {
  AddWriteRequest(setting, channel, index);
}

void Plan::AddDefault(const Setting &setting, std::uint32_t channel) {
  AddWriteRequest(setting, channel, channel);
  AddAnnouncement({.setting = &setting,
                   .product = setting.product,
                   .channel = channel,
                   .index = channel});
  AddSelectors(setting, false);
}

void Plan::AddRaw(std::uint32_t channel, std::uint32_t high,
                  std::uint32_t source) {
  AddToEach(Writing(kInput.writeRegister,
                    input_audio::DirectValue(channel, high, source)),
            PlaceName(kInput, channel) + ": a raw value");
  AddSelectors(kInput, channel == input_audio::kLastChannel &&
                           source < input_audio::kSourceWarnsBelow.withMixer);
}

}  // namespace ztk::model
