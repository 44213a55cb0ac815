// SPDX-License-Identifier: MIT
//
// What does not work for a user, why, and the command that mends it.
#ifndef ZTK_TOOLS_ZTK_DOCTOR_FINDING_H_
#define ZTK_TOOLS_ZTK_DOCTOR_FINDING_H_

#include <string>
#include <vector>

namespace ztk::model {

struct Finding {
  std::string id;       // a word for programs, as in "rule-missing"
  std::string what;     // what does not work
  std::string cause;    // why
  std::string command;  // what to type; nothing else is needed
  // Worth knowing, but nothing fails because of it.
  bool isNote = false;
};

using Findings = std::vector<Finding>;

// Each of these checks one part of the system. *good is the sentence for the
// case that nothing was found.

// Reads the settings files of these models and writes beside them, nothing into
// them.
Findings CheckSettingsFiles(const std::vector<std::string> &models,
                            std::string *good);
// Whether other programs hear of changes.
Findings CheckBus(std::string *good);
// Whether the translated warning texts are installed.
Findings CheckTexts(std::string *good);

// What depends on the system:

// No mixer is attached.
Finding ExplainNoMixer();
// A mixer is attached but cannot be opened.
Finding ExplainUnopened(int mixer, const std::string &place);
// A command that restarts the mixer, as unplugging it and plugging it in does.
std::string RestartCommand(const std::string &place);
// A command that gives the file another name, so that its own name is free.
std::string MoveAwayCommand(const std::string &path);
// A command that makes a read-only file system writable.
std::string MakeWritableCommand(const std::string &folder);
// What is worth knowing about the folder of the settings.
Findings FindOddLibrary(const std::string &library);
// The bundle of texts is missing, or was found without any.
Finding ExplainTexts(bool found);

// The word in a form that a shell passes on unchanged.
std::string ShellQuoted(const std::string &word);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_DOCTOR_FINDING_H_
