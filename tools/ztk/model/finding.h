// SPDX-License-Identifier: MIT
//
// What stands between a user and a working mixer.
#ifndef ZTK_TOOLS_ZTK_MODEL_FINDING_H_
#define ZTK_TOOLS_ZTK_MODEL_FINDING_H_

#include <string>
#include <vector>

namespace ztk::program {

struct Finding {
  std::string id;       // a word for programs, as in "rule-missing"
  std::string what;     // what does not work
  std::string cause;    // why
  std::string command;  // what to type; nothing else is needed
  // Worth knowing, but nothing fails because of it.
  bool isNote = false;
};

using Findings = std::vector<Finding>;

// Each looks at one part. *good is what to say when nothing was found.

// Asks every mixer that can be opened, which can take seconds.
Findings FindMixerTrouble(std::string *good);

// The parts of it that belong to the system: no mixer is attached; a mixer is,
// but cannot be opened.
Finding ExplainNoMixer();
Finding ExplainUnopened(int mixer, const std::string &place);
// A command that has the mixer start anew, as when it is plugged in again.
std::string RestartCommand(const std::string &place);

// Reads the settings files and writes beside them, nothing into them.
Findings FindSettingsTrouble(std::string *good);

// The parts of it that belong to the system: a command that gets a file out of
// the way of its name, and loses nothing; one that has a read-only file system
// take files; what is worth knowing about the folder of the settings.
std::string MoveAwayCommand(const std::string &path);
std::string MakeWritableCommand(const std::string &folder);
Findings FindOddLibrary(const std::string &library);

Findings FindBusTrouble(std::string *good);

Findings FindTextTrouble(std::string *good);
// The bundle of texts is missing, or was found without any.
Finding ExplainTexts(bool found);

// A word that a shell takes as it is.
std::string ShellQuoted(const std::string &word);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_MODEL_FINDING_H_
