// SPDX-License-Identifier: MIT
#include "ztk/system/facts.h"

#include "api/install_location.h"

namespace ztk::model {

std::span<const VariableFact> VariableFacts() {
  static constexpr VariableFact kFacts[] = {
      {.names = "XDG_STATE_HOME",
       .meaning = "Where ztk undo finds what was changed, see FILES."}};
  return kFacts;
}

const char *FilesFact() {
  return "What ztk undo needs is below XDG_STATE_HOME, or ~/.local/state "
         "without it.";
}

const char *SettingsFolderFact() { return "~/Library/Preferences/"; }

const char *AutoapplyFact() {
  return "Not built for macOS: nothing is started here when a mixer is plugged "
         "in.\n"
         "Run ztk apply after plugging in.";
}

// The second number of the system's version decides in which folder the library
// searches. Since macOS 11 this number is small again, so the library searches
// a folder that only the system itself may use.
std::string WhyInstalledIsNotFound() {
  if (IsInstalledInLibrary()) return "";
  return "by the version of this macOS the library looks below "
         "/System/Library, where nothing can be installed; what is in "
         "/Library is not found";
}

}  // namespace ztk::model
