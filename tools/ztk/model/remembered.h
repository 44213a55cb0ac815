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

// The remembered values. Each file is read once, when it is first needed.
class SettingsSnapshot {
 public:
  // The integer in the settings file, or none when it is missing. (A getter of
  // the library would return a default then.)
  std::optional<std::uint32_t> Remembered(const Setting &setting,
                                          std::uint32_t channel);

  // The file of the setting and why it cannot be read, as a part of a sentence.
  // Empty when the file was read, and when there is none.
  const std::string &WhyUnreadable(const Setting &setting);

 private:
  struct Releaser {
    void operator()(platform::property_list::Dictionary *dictionary) const {
      platform::property_list::Release(dictionary);
    }
  };
  struct File {
    // Null for a file that was not read.
    std::unique_ptr<platform::property_list::Dictionary, Releaser> entries;
    std::string whyUnreadable;
  };

  const File &FileOf(const Setting &setting);

  std::map<std::string, File> files_;  // by model
};

// The value that is remembered now.
std::optional<std::uint32_t> Remembered(const Setting &setting,
                                        std::uint32_t channel);

// Why the settings file cannot be read now: see SettingsSnapshot.
std::string WhyUnreadable(const Setting &setting);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_REMEMBERED_H_
