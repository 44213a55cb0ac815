// SPDX-License-Identifier: MIT
#include "ztk/model/remembered.h"

#include <cstring>

#include "platform/text.h"
#include "store/settings_path.h"
#include "ztk/system/library_text.h"

namespace ztk::model {

namespace plist = platform::property_list;
using platform::text::OwnedText;

namespace {

std::string Reason(const plist::ReadResult &result) {
  switch (result.state) {
    case plist::ReadState::Read:
    case plist::ReadState::Absent:
      break;
    case plist::ReadState::Damaged:
      return "it is damaged, or no settings file";
    case plist::ReadState::Unavailable:
      return result.error == 0 ? "it cannot be read"
                               : std::strerror(result.error);
  }
  return "";
}

}  // namespace

const SettingsSnapshot::File &SettingsSnapshot::FileOf(const Setting &setting) {
  const auto [entry, isNew] = files_.try_emplace(ModelName(setting));
  File &file = entry->second;
  const OwnedText path(isNew ? store::MakePath(setting.model) : nullptr);
  if (path.get() == nullptr) return file;
  plist::Dictionary *entries = nullptr;
  const std::string reason = Reason(plist::Read(path.get(), &entries));
  file.entries.reset(entries);
  if (!reason.empty()) file.whyUnreadable = Utf8(path.get()) + ": " + reason;
  return file;
}

const std::string &SettingsSnapshot::WhyUnreadable(const Setting &setting) {
  return FileOf(setting).whyUnreadable;
}

std::optional<std::uint32_t> SettingsSnapshot::Remembered(
    const Setting &setting, std::uint32_t channel) {
  const plist::Dictionary *file = FileOf(setting).entries.get();
  if (file == nullptr) return std::nullopt;
  std::int32_t value = 0;
  // The key of a setting without channels has no place for the number: Format()
  // does not change it.
  const OwnedText key(
      platform::text::Format(setting.key, static_cast<std::int32_t>(channel)));
  if (!plist::IntegerValue(file, key.get(), &value)) return std::nullopt;
  return static_cast<std::uint32_t>(value);
}

std::optional<std::uint32_t> Remembered(const Setting &setting,
                                        std::uint32_t channel) {
  return SettingsSnapshot().Remembered(setting, channel);
}

std::string WhyUnreadable(const Setting &setting) {
  return SettingsSnapshot().WhyUnreadable(setting);
}

}  // namespace ztk::model
