// SPDX-License-Identifier: MIT
#include "ztk/report.h"

namespace ztk::program {

namespace {

constexpr ExitMeaning kExitMeanings[] = {
    {.exit = ExitCode::Done,
     .word = "",
     .text =
         "done: every mixer has accepted what was sent, and every choice that\n"
         "was set is remembered. A command that sends no setting, such as\n"
         "status or reset, also ends with 0 when no mixer answers. There may\n"
         "be warnings"},
    {.exit = ExitCode::Found,
     .word = "found",
     .text = "ztk doctor has found a problem"},
    {.exit = ExitCode::Usage,
     .word = "usage",
     .text = "invalid command line or import file; nothing was sent"},
    {.exit = ExitCode::NoMixer,
     .word = "no-mixer",
     .text =
         "no mixer is attached, or none has accepted what was sent; set,\n"
         "import and undo have changed the settings file nevertheless; ztk\n"
         "input raw and ztk output default never change it"},
    {.exit = ExitCode::Rejected,
     .word = "rejected",
     .text =
         "rejected: the library does not accept the model or the value, a\n"
         "remembered value is not valid for its channel, or ztk undo did not\n"
         "change a setting because another program has changed it since"},
    {.exit = ExitCode::Failed,
     .word = "failed",
     .text =
         "another error; the message describes it (no message if the output\n"
         "is a pipe whose reader has ended, as with | head)"},
    {.exit = ExitCode::SomeMixers,
     .word = "some-mixers",
     .text =
         "some mixers accepted the change, others did not; set, import and\n"
         "undo have changed the settings file nevertheless"},
    {.exit = ExitCode::NotRemembered,
     .word = "not-remembered",
     .text =
         "sent, but not remembered: the settings file could not be changed"},
    {.exit = ExitCode::Interrupted,
     .word = "interrupted",
     .text = "interrupted by Ctrl-C. Exception: Ctrl-C ends ztk watch with 0,\n"
             "or with 5 if there was no message bus"}};

// Accepts text that is not UTF-8, because a user may type anything.
std::string Dump(const Json &json) {
  return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace

std::span<const ExitMeaning> ExitMeanings() { return kExitMeanings; }

const char *ErrorWord(ExitCode exit) {
  for (const ExitMeaning &meaning : kExitMeanings) {
    if (meaning.exit == exit) return meaning.word;
  }
  return "failed";
}

std::string JsonLine(const std::string &command, const Report &report) {
  Json json;
  json["schema"] = kJsonSchema;
  json["command"] = command;
  json["ok"] = !report.problem.has_value();
  json.update(report.fields);
  if (!report.warnings.empty()) json["warnings"] = report.warnings;
  if (report.problem) {
    json["error"] = {{"code", ErrorWord(report.problem->exit)},
                     {"message", report.problem->message}};
  }
  return Dump(json);
}

}  // namespace ztk::program
