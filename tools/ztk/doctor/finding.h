// SPDX-License-Identifier: MIT
//
// A problem, its cause, and the command that repairs it.
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
  // A note: worth knowing, but nothing fails because of it.
  bool isNote = false;
  int mixer = 0;  // the number of the mixer that it is about; 0 for none
};

using Findings = std::vector<Finding>;

// Each of these checks one part of the system. *good receives the sentence that
// is shown when no problem was found.

// Reads the settings files of these models. To test the folder, makes and
// removes another file in it; does not change the settings files.
Findings CheckSettingsFiles(const std::vector<std::string> &models,
                            std::string *good);
// Whether announcements of changes reach other programs.
Findings CheckBus(std::string *good);
// Whether ztk undo can read and write its history. Makes no file.
Findings CheckHistory(std::string *good);
// Whether the translated warning texts are installed.
Findings CheckTexts(std::string *good);

// These depend on the system.

// Explains why no mixer is attached.
Finding ExplainNoMixer();
// Explains why an attached mixer cannot be opened.
Finding ExplainUnopened(int mixer, const std::string &place);
// A command that has the same effect as unplugging the mixer and plugging it
// in. `mixer` is its number.
std::string RestartCommand(int mixer, const std::string &place);
// The folder that contains the path, which is absolute.
std::string ParentFolder(const std::string &path);
// A file that is in the way of the folder: the last part of its path that
// exists, if that is no folder. Empty if there is none.
std::string FileInTheWay(std::string folder);
// A command that renames this file if it is an ordinary one. It only shows
// anything else, such as a device.
std::string ClearTheWayCommand(const std::string &path);
// A command that renames the file, so that its name can be used again.
std::string MoveAwayCommand(const std::string &path);
// A command that makes a read-only file system writable.
std::string MakeWritableCommand(const std::string &folder);
// Notes about the folder of the settings.
Findings FindUserFolderNotes(const std::string &library);
// Follows a cause whose command is "sudo cmake --install build".
inline constexpr char kInSourceFolder[] =
    "; run the command in the source folder, in which you have built ztk";
// Explains that the bundle of texts is missing, or was found but has no text.
Finding ExplainTexts(bool found);

// Quotes the word for a shell.
std::string ShellQuoted(const std::string &word);
// A command that grants the user the right to use a file that belongs to the
// user, or that makes the user its owner.
std::string TakeOverCommand(const std::string &path, const char *mode);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_DOCTOR_FINDING_H_
