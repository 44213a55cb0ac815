// SPDX-License-Identifier: MIT
//
// The result of a command, independent of its form: text or JSON.
#ifndef ZTK_TOOLS_ZTK_REPORT_H_
#define ZTK_TOOLS_ZTK_REPORT_H_

#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace ztk::model {}

namespace ztk::program {

// The commands speak of settings, mixers and changes, which the model defines.
using namespace model;

// Keeps its members in the order in which they were added.
using Json = nlohmann::ordered_json;

// Raised whenever a field is removed or changes its meaning.
inline constexpr int kJsonSchema = 1;

enum class ExitCode : std::uint8_t {
  Done = 0,
  Found = 1,
  Usage = 2,
  NoMixer = 3,
  Rejected = 4,
  Failed = 5,
  SomeMixers = 6,
  NotRemembered = 7,
  Interrupted = 130
};

// What an exit status means.
struct ExitMeaning {
  ExitCode exit;
  const char *word;  // for programs; empty where it is no error
  const char *text;  // for people
};
std::span<const ExitMeaning> ExitMeanings();

// Why a command did not do everything. The message is one line, for people.
struct Problem {
  ExitCode exit;
  std::string message;
};

// Thrown when a command has nothing to report but a problem.
class Failure : public std::runtime_error {
 public:
  Failure(ExitCode exit, const std::string &message)
      : std::runtime_error(message), exit_(exit) {}
  Problem problem() const { return {.exit = exit_, .message = what()}; }

 private:
  ExitCode exit_;
};

struct Report {
  std::string text;              // for people: whole lines
  Json fields = Json::object();  // for programs
  std::vector<std::string> warnings;
  // Several errors, which the problem summarises.
  std::vector<std::string> errors;
  std::optional<Problem> problem;
  // Reports the problem; an earlier one becomes a warning.
  void SetProblem(Problem worse) {
    if (problem) warnings.push_back(problem->message);
    problem = std::move(worse);
  }
  // The text is what the user asked for, so --quiet shows it too. Otherwise it
  // says what the command has done.
  bool isAnswer = false;
  // The command has written its output already; only a problem is still to be
  // reported.
  bool written = false;
};

// The JSON object for programs, as one line without a line end.
std::string JsonLine(const std::string &command, const Report &report);

// The word for the exit code in a JSON error.
const char *ErrorWord(ExitCode exit);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_REPORT_H_
