// SPDX-License-Identifier: MIT
#include "platform/common/interned_text.h"

#include <new>
#include <string>
#include <unordered_set>

namespace ztk::platform::common {
namespace {

// The set does not move its texts when it grows. It is never destroyed, because
// a text must be valid even in the destructors that run when the process ends.
// Leak checkers accept this, because the pointer still refers to the set.
constinit std::unordered_set<std::string> *allTexts = nullptr;

}  // namespace

const char *Intern(std::string_view text) try {
  if (allTexts == nullptr) allTexts = new std::unordered_set<std::string>;
  return allTexts->emplace(text.substr(0, text.find('\0'))).first->c_str();
} catch (const std::bad_alloc &) {
  return nullptr;
}

}  // namespace ztk::platform::common
