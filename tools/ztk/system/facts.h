// SPDX-License-Identifier: MIT
//
// What the user is told differently on each system.
#ifndef ZTK_TOOLS_ZTK_SYSTEM_FACTS_H_
#define ZTK_TOOLS_ZTK_SYSTEM_FACTS_H_

#include <span>
#include <string>

namespace ztk::model {

// Variables of the environment, and what they decide.
struct VariableFact {
  const char *names;
  const char *meaning;
};
std::span<const VariableFact> VariableFacts();

// Where settings and the history of changes are, in lines for the manual.
const char *FilesFact();
// The folder of the settings files as the manual names it, with its slash.
const char *SettingsFolderFact();

// What the commands "autoapply" say about themselves.
const char *AutoapplyFact();

// Why the library does not find texts and versions that are installed; empty
// when nothing hinders it.
std::string WhyInstalledIsNotFound();

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_SYSTEM_FACTS_H_
