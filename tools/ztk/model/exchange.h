// SPDX-License-Identifier: MIT
//
// Writes all remembered settings as a text, and reads such a text.
#ifndef ZTK_TOOLS_ZTK_MODEL_EXCHANGE_H_
#define ZTK_TOOLS_ZTK_MODEL_EXCHANGE_H_

#include <cstddef>
#include <string>
#include <vector>

#include "ztk/model/change.h"
#include "ztk/model/resend.h"

namespace ztk::model {

struct ExportedSettings {
  std::string text;  // in JSON: by model, setting and channel
  // Remembered numbers that are not choices and so have no text: "USB input 2:
  // 77, which is not a choice".
  std::vector<std::string> leftOut;
  // Files that could not be read, with the reason: their settings are missing
  // in the text.
  std::vector<std::string> unreadable;
};
ExportedSettings ExportSettings();

// The largest text that can be a list of settings, in bytes.
inline constexpr std::size_t kLargestImport = std::size_t{1} << 20;

struct ImportedSettings {
  std::vector<Change> changes;  // empty when there are errors
  // The first errors, each with the place in the text: "settings.VRM-D6: ...".
  std::vector<std::string> errors;
  std::size_t errorCount = 0;  // of all errors
};

// Reads what ExportSettings() writes, and checks all of it. Sets nothing.
ImportedSettings ParseImport(const std::string &text);

// The remembered values that the changes do not replace. An import keeps them.
std::vector<StoredValue> ValuesBeside(const std::vector<Change> &changes);

// The change that forgets a remembered value: it sends the default and removes
// the value from the settings file.
Change Forgetting(const StoredValue &value);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_EXCHANGE_H_
