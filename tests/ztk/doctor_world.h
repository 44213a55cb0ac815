// SPDX-License-Identifier: MIT
//
// The findings of ztk doctor, by part, with their texts.
#ifndef ZTK_TESTS_ZTK_DOCTOR_WORLD_H_
#define ZTK_TESTS_ZTK_DOCTOR_WORLD_H_

#include <unistd.h>

#include "cli_world.h"

namespace ztk::test {

// The exit status of a script when this system does not allow its preparations.
inline constexpr int kCannotSet = 97;

// The script runs as if the mixers were none of the sandbox.
inline constexpr char kAsOnARealSystem[] = "unset ZTK_VIRTUAL_MIXER_CONTROL;";

class DoctorWorld : public CliWorld {
 protected:
  // The findings of one part in the JSON on the last line.
  static std::vector<Json> FoundIn(const std::string &part,
                                   const Result &result) {
    std::vector<Json> found;
    const Json json = OneObject(LastLine(result.out) + "\n");
    for (const Json &one : json.value("findings", Json::array())) {
      if (one.value("part", "") == part) found.push_back(one);
    }
    return found;
  }
  // The only finding; else one whose id is the number of findings.
  static Json OnlyOneIn(const std::string &part, const Result &result) {
    const std::vector<Json> found = FoundIn(part, result);
    if (found.size() == 1) return found.front();
    return {{"id", std::to_string(found.size()) + " findings"}};
  }
  static std::string Word(const Json &finding, const char *name) {
    return finding.value(name, "");
  }
  // Whether the suggested command helps: after it, no problem is found.
  bool Helps(const Json &finding, const std::string &part,
             const std::vector<std::string> &options = {"-n", "0"}) {
    const Result after = Inside(
        options, Word(finding, "command") + " > /dev/null; ztk doctor --json");
    return FoundIn(part, after).empty();
  }
};

}  // namespace ztk::test

#endif  // ZTK_TESTS_ZTK_DOCTOR_WORLD_H_
