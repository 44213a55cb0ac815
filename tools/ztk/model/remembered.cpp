// SPDX-License-Identifier: MIT
#include "ztk/model/remembered.h"

#include "platform/text.h"
#include "store/settings_path.h"

namespace ztk::model {

namespace plist = platform::property_list;
using platform::text::Made;

const plist::Dictionary *SettingsSnapshot::FileOf(const Setting &setting) {
  const auto [file, isNew] = files_.try_emplace(ModelName(setting));
  if (isNew) {
    const Made path(store::MakePath(setting.model));
    if (path.get() != nullptr) file->second.reset(plist::ReadFile(path.get()));
  }
  return file->second.get();
}

std::optional<std::uint32_t> SettingsSnapshot::Remembered(
    const Setting &setting, std::uint32_t channel) {
  const plist::Dictionary *file = FileOf(setting);
  if (file == nullptr) return std::nullopt;
  std::int32_t value = 0;
  // A key without a channel has no place to put it in.
  const Made key(
      platform::text::Format(setting.key, static_cast<std::int32_t>(channel)));
  if (!plist::IntegerValue(file, key.get(), &value)) return std::nullopt;
  return static_cast<std::uint32_t>(value);
}

std::optional<std::uint32_t> Remembered(const Setting &setting,
                                        std::uint32_t channel) {
  return SettingsSnapshot().Remembered(setting, channel);
}

}  // namespace ztk::model
