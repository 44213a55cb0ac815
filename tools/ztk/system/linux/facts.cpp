// SPDX-License-Identifier: MIT
#include "ztk/system/facts.h"

namespace ztk::model {

std::span<const VariableFact> VariableFacts() {
  static constexpr VariableFact kFacts[] = {
      {.names = "XDG_CONFIG_HOME, HOME",
       .meaning = "Where settings are remembered, see FILES."},
      {.names = "XDG_STATE_HOME",
       .meaning = "Where ztk undo finds what was changed, see FILES."},
      {.names = "DBUS_SESSION_BUS_ADDRESS",
       .meaning = "The message bus on which changes are announced."},
      {.names = "LANGUAGE, LC_ALL, LC_MESSAGES, LANG",
       .meaning = "The language of the warning texts."}};
  return kFacts;
}

const char *FilesFact() {
  return "Settings are below XDG_CONFIG_HOME, or ~/.config without it; "
         "what ztk undo needs is\n"
         "below XDG_STATE_HOME, or ~/.local/state without it. In a home that "
         "is shared with\nmacOS and has no such folder, settings are in "
         "~/Library/Preferences, under the\nsame names.";
}

const char *SettingsFolderFact() { return "tarvix/Preferences/"; }

const char *AutoapplyFact() {
  return "It is off until you turn it on, and applies to your user only. It\n"
         "also sends when you log in while a mixer is attached. For a mixer\n"
         "that is attached now, run ztk apply --all. Your journal shows what\n"
         "was sent, and when:\n"
         "  journalctl --user -t ztk-apply";
}

// The port finds the bundle wherever it is installed.
std::string WhyInstalledIsNotFound() { return ""; }

}  // namespace ztk::model
