// SPDX-License-Identifier: MIT
#include "ztk/model/settings_snapshot.h"

#include "platform/text.h"
#include "store/settings_file.h"

namespace ztk::program {

namespace plist = platform::property_list;
using platform::text::Made;

const plist::Dictionary *SettingsSnapshot::FileOf(const Family &family) {
  const auto [file, isNew] = files_.try_emplace(ModelName(family));
  if (isNew) {
    const Made path(store::MakePath(family.model));
    if (path.get() != nullptr) file->second.reset(plist::ReadFile(path.get()));
  }
  return file->second.get();
}

std::optional<std::uint32_t> SettingsSnapshot::Remembered(
    const Family &family, std::uint32_t channel) {
  const plist::Dictionary *file = FileOf(family);
  if (file == nullptr) return std::nullopt;
  std::int32_t value = 0;
  // A key without a channel has no place to put it in.
  const Made key(
      platform::text::Format(family.key, static_cast<std::int32_t>(channel)));
  if (!plist::IntegerValue(file, key.get(), &value)) return std::nullopt;
  return static_cast<std::uint32_t>(value);
}

std::optional<std::uint32_t> Remembered(const Family &family,
                                        std::uint32_t channel) {
  return SettingsSnapshot().Remembered(family, channel);
}

}  // namespace ztk::program
