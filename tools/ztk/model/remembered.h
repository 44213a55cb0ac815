// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_ZTK_MODEL_REMEMBERED_H_
#define ZTK_TOOLS_ZTK_MODEL_REMEMBERED_H_

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "platform/property_list.h"
#include "ztk/model/settings.h"

namespace ztk::model {

// What is remembered, each file as it was when it was first asked for.
class SettingsSnapshot {
 public:
  // The integer in the settings file; none when it holds none. The library's
  // own getter would answer a default then.
  std::optional<std::uint32_t> Remembered(const Setting &setting,
                                          std::uint32_t channel);

 private:
  struct Releaser {
    void operator()(platform::property_list::Dictionary *dictionary) const {
      platform::property_list::Release(dictionary);
    }
  };
  using File = std::unique_ptr<platform::property_list::Dictionary, Releaser>;

  // Null when there is none.
  const platform::property_list::Dictionary *FileOf(const Setting &setting);

  std::map<std::string, File> files_;  // by model
};

// What is remembered now.
std::optional<std::uint32_t> Remembered(const Setting &setting,
                                        std::uint32_t channel);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_REMEMBERED_H_
