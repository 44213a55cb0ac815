// SPDX-License-Identifier: MIT
//
// Sends remembered values to the mixers again.
#ifndef ZTK_TOOLS_ZTK_MODEL_RESEND_H_
#define ZTK_TOOLS_ZTK_MODEL_RESEND_H_

#include <cstddef>
#include <cstdint>
#include <vector>

#include "ztk/model/mixers/reach.h"
#include "ztk/model/settings.h"

namespace ztk::model {

// A value in a settings file.
struct StoredValue {
  const Setting *setting;
  std::uint32_t channel;
  std::uint32_t index;
  bool refused = false;      // by the library, or because it is no choice
  std::size_t accepted = 0;  // mixers that have accepted the value
};

// The values that are remembered for these channels. A channel without a
// remembered value is left out: the library would send its default.
std::vector<StoredValue> StoredValues(
    const Setting &setting, const std::vector<std::uint32_t> &channels);

// Every value that is remembered, for all models.
std::vector<StoredValue> AllStoredValues();

// Whether the library would refuse to send the value. Sends nothing.
bool WouldBeRefused(const StoredValue &value);

// Sends each value, and sets its members `refused` and `accepted`. Records
// whether every mixer has accepted the value.
Reach SendAgain(std::vector<StoredValue> *values);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_RESEND_H_
