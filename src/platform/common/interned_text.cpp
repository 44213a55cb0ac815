// SPDX-License-Identifier: MIT
#include "platform/common/interned_text.h"

#include <mutex>
#include <string>
#include <unordered_set>

namespace ztk::platform::common {
namespace {

// A set of nodes: growing it moves no text.
struct Texts {
  std::mutex mutex;
  std::unordered_set<std::string> all;
};

// Never destroyed: a text must outlive even the destructors that run when the
// process ends. The pointer keeps it reachable, so it is no leak.
Texts &AllTexts() {
  static Texts *const texts = new Texts;
  return *texts;
}

}  // namespace

const char *Intern(std::string_view text) {
  Texts &texts = AllTexts();
  const std::lock_guard<std::mutex> lock(texts.mutex);
  return texts.all.emplace(text.substr(0, text.find('\0'))).first->c_str();
}

}  // namespace ztk::platform::common
