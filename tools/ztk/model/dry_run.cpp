// SPDX-License-Identifier: MIT
#include "ztk/model/dry_run.h"

#include <array>
#include <cstdio>

#include "platform/text.h"
#include "store/settings_file.h"
#include "usb/USB.h"
#include "ztk/model/settings_snapshot.h"
#include "ztk/system/places.h"
#include "ztk/system/text.h"

namespace ztk::program {

namespace {

using platform::text::Made;

constexpr std::uint8_t kRead = 0xC0;
constexpr std::uint8_t kReadRequest = 0;
constexpr std::uint8_t kWrite = 0x40;
constexpr std::uint8_t kWriteRequest = 3;
constexpr std::uint16_t kQuestionLength = 2;  // bytes

// The last USB input has no selector: what it asks for is never found.
constexpr std::uint32_t kInputWithoutSelector = 4;
constexpr std::uint32_t kChoicesThatNeedIt = 2;

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

std::string Told(const Setup &setup) {
  std::array<char, 80> text{};
  std::snprintf(
      text.data(), text.size(),
      "type 0x%02X  request %u  value 0x%04X  index 0x%04X  length "
      "%u",
      static_cast<unsigned>(setup.type), static_cast<unsigned>(setup.request),
      static_cast<unsigned>(setup.value), static_cast<unsigned>(setup.index),
      static_cast<unsigned>(setup.length));
  return text.data();
}

std::string KeyOf(const Family &family, std::uint32_t channel) {
  if (family.channels == 0) return Utf8(family.key);
  const Made key(
      platform::text::Format(family.key, static_cast<std::int32_t>(channel)));
  return Utf8(key.get());
}

Json Number(const std::optional<std::uint32_t> &value) {
  return value ? Json(static_cast<std::int32_t>(*value)) : Json();
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

void Plan::AddToEach(const Setup &setup) {
  for (const int mixer : mixers_) {
    requests_.push_back({.mixer = mixer, .setup = setup});
  }
}

void Plan::AddWriteRequest(const Family &family, std::uint32_t channel,
                           std::uint32_t index) {
  AddToEach(Writing(family.writeRegister, family.deviceValue(channel, index)));
}

void Plan::AddSelectors(const Family &family, bool stops) {
  if (family.selectorLength == 0) return;
  const Setup setup =
      Reading(usb::kInputSelectorRegister, family.selectorLength);
  if (!stops) return AddToEach(setup);
  if (mixers_.empty()) return;
  requests_.push_back({.mixer = mixers_.front(), .setup = setup});
}

void Plan::AddNotice(const Change &change) {
  const notify::AnnouncedSetting &notice = *change.family->notice;
  const Made name(
      platform::text::Format(notice.nameFormat, notice.postedModel));
  Notice planned{.name = Utf8(name.get()), .numbers = {}};
  planned.numbers.emplace_back(Utf8(notify::kProductKey), change.product);
  if (change.family->channels != 0) {
    planned.numbers.emplace_back(Utf8(notify::kChannelKey), change.channel);
  }
  planned.numbers.emplace_back(Utf8(notify::kIndexKey), change.index);
  notices_.push_back(std::move(planned));
}

void Plan::AddChange(const Change &change) {
  const Family &family = *change.family;
  AddWriteRequest(family, change.channel, change.index);
  const Made file(store::MakePath(family.model));
  writes_.push_back({.file = Utf8(file.get()),
                     .key = KeyOf(family, change.channel),
                     .before = Remembered(family, change.channel),
                     .change = change});
  AddNotice(change);
  AddSelectors(family, &family == &kInput &&
                           change.channel == kInputWithoutSelector &&
                           change.index < kChoicesThatNeedIt);
}

void Plan::AddSendingAgain(const Family &family, std::uint32_t channel,
                           std::uint32_t index) {
  AddWriteRequest(family, channel, index);
}

void Plan::AddDefault(const Family &family, std::uint32_t channel) {
  AddWriteRequest(family, channel, channel);
  AddNotice({.family = &family,
             .product = family.product,
             .channel = channel,
             .index = channel});
  AddSelectors(family, false);
}

void Plan::AddRaw(std::uint32_t channel, std::uint32_t high,
                  std::uint32_t source) {
  constexpr std::uint32_t kSourcesThatNeedSelector = 4;
  AddToEach(
      Writing(kInput.writeRegister,
              static_cast<std::uint16_t>(((high + 1) & 0xF) << 12 |
                                         ((channel + 1) & 0xF) << 8 | source)));
  AddSelectors(kInput, channel == kInputWithoutSelector &&
                           source < kSourcesThatNeedSelector);
}

void Plan::AddQuestion() {
  AddToEach(Reading(usb::kFirmwareVersionRegister, kQuestionLength));
}

void Plan::TellRequests(Report *report) const {
  Json list = Json::array();
  if (requests_.empty()) {
    report->text += found_ == 0 ? "  no request, as no mixer is attached\n"
                                : "  no request, as no mixer can be opened\n";
  }
  for (const Request &request : requests_) {
    const Setup &setup = request.setup;
    report->text +=
        "  mixer " + std::to_string(request.mixer) + "  " + Told(setup) + "\n";
    list.push_back({{"mixer", request.mixer},
                    {"requestType", setup.type},
                    {"request", setup.request},
                    {"value", setup.value},
                    {"index", setup.index},
                    {"length", setup.length}});
  }
  report->fields["requests"] = std::move(list);
}

void Plan::TellWrites(Report *report) const {
  Json list = Json::array();
  for (const Write &write : writes_) {
    const Change &change = write.change;
    const std::string before =
        write.before ? std::to_string(static_cast<std::int32_t>(*write.before))
                     : "nothing";
    const std::string after =
        std::to_string(static_cast<std::int32_t>(change.index));
    report->text +=
        "  file  " + write.file + "\n        " + write.key + ": " +
        (before == after ? after + ", unchanged" : before + " -> " + after) +
        " (" + DescribedValue(*change.family, change.channel, change.index) +
        ")\n";
    list.push_back({{"file", write.file},
                    {"key", write.key},
                    {"before", Number(write.before)},
                    {"after", Number(change.index)}});
  }
  report->fields["writes"] = std::move(list);
}

void Plan::TellNotices(Report *report) const {
  Json list = Json::array();
  for (const Notice &notice : notices_) {
    report->text += "  bus   \"" + notice.name + "\"";
    Json numbers = Json::object();
    for (const auto &[key, value] : notice.numbers) {
      report->text += "  " + key + " " + std::to_string(value);
      numbers[key] = value;
    }
    report->text += "\n";
    list.push_back({{"name", notice.name}, {"userInfo", std::move(numbers)}});
  }
  report->fields["announcements"] = std::move(list);
}

void Plan::Tell(Report *report) const {
  report->fields["dryRun"] = true;
  report->fields["mixers"] = {{"found", found_},
                              {"canBeOpened", mixers_.size()}};
  report->text += "Nothing is done. It would be:\n";
  TellRequests(report);
  TellWrites(report);
  TellNotices(report);
}

}  // namespace ztk::program
