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

// The library searches below /Library only if the second number of the system's
// version is above 10, as in 10.15. Since macOS 11 it is small again (11.0), so
// the library searches a folder that only the system itself may use.
std::string WhyInstalledIsNotFound() {
  if (IsInstalledInLibrary()) return "";
  return "because of the version number of this macOS, the library looks only "
         "below /System/Library, where nothing can be installed; what is in "
         "/Library is not found";
}

}  // namespace ztk::model
