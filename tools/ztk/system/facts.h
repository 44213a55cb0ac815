// SPDX-License-Identifier: MIT
//
// Texts that differ between the systems.
#ifndef ZTK_TOOLS_ZTK_SYSTEM_FACTS_H_
#define ZTK_TOOLS_ZTK_SYSTEM_FACTS_H_

#include <span>
#include <string>

namespace ztk::model {

// The environment variables that ztk reads, and their effects.
struct VariableFact {
  const char *names;
  const char *meaning;
};
std::span<const VariableFact> VariableFacts();

// The folders of the settings and of the history, as lines of the manual page.
const char *FilesFact();
// The folder of the settings files as the manual names it, with its slash.
const char *SettingsFolderFact();

// The note in the help of the commands "autoapply".
const char *AutoapplyFact();

// Why the library does not find installed texts and versions; empty when it can
// find them.
std::string WhyInstalledIsNotFound();

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_SYSTEM_FACTS_H_
