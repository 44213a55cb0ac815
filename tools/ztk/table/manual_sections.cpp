// SPDX-License-Identifier: MIT
//
// The sections of the manual page that are not made from the commands.
#include <algorithm>

#include "ztk/system/facts.h"
#include "ztk/table/table_parts.h"

namespace ztk::program {

namespace {

cli::Section JsonSection() {
  cli::Section section{
      .title = "JSON",
      .text =
          "With --json each command writes one object on one line, also when "
          "it fails;\nztk watch writes one object for each change.\n"
          "Each object has \"schema\", \"command\" and \"ok\". \"schema\" is "
          "a\n"
          "number that is raised whenever a field is removed or changes its\n"
          "meaning. When \"ok\" is false, \"error\" holds a \"code\" and a\n"
          "\"message\". All fields are described in ztk.schema.json, which is\n"
          "installed with the documentation.\n"
          "\n"
          "These are the codes:",
      .terms = {}};
  for (const ExitMeaning &meaning : ExitMeanings()) {
    if (meaning.exit == ExitCode::Done) continue;
    section.terms.push_back(
        {.name = meaning.word,
         .meaning =
             "exit status " + std::to_string(static_cast<int>(meaning.exit))});
  }
  return section;
}

cli::Section Environment() {
  cli::Section section{.title = "ENVIRONMENT", .text = "", .terms = {}};
  for (const VariableFact &fact : VariableFacts()) {
    section.terms.push_back({.name = fact.names, .meaning = fact.meaning});
  }
  section.terms.push_back(
      {.name = "NO_COLOR, CLICOLOR, TERM",
       .meaning = "Text is not emphasised if NO_COLOR is set and not empty, if "
                  "CLICOLOR\nis 0, or if TERM is dumb. Output to a file or a "
                  "pipe is never emphasised."});
  return section;
}

// Adds a settings file for each model. Settings of the same model are in the
// same file.
void AddSettingsFiles(cli::Section *files) {
  for (const Setting *setting : AllSettings()) {
    const std::string model = ModelName(*setting);
    const std::string name = std::string(SettingsFolderFact()) + "com.tarvix." +
                             model + "autosetup.plist";
    const auto known = std::find_if(
        files->terms.begin(), files->terms.end(),
        [&name](const cli::Term &term) { return term.name == name; });
    if (known == files->terms.end()) {
      files->terms.push_back({.name = name,
                              .meaning = "Remembered settings of the " + model +
                                         ": " + setting->name});
    } else {
      known->meaning += std::string(", ") + setting->name;
    }
  }
}

cli::Section Files() {
  cli::Section section{.title = "FILES", .text = FilesFact(), .terms = {}};
  AddSettingsFiles(&section);
  section.terms.push_back(
      {.name = "tarvix/ztk-history.jsonl",
       .meaning = "The changes that ztk has made, for ztk undo"});
  section.terms.push_back(
      {.name = "tarvix/ztk-sendings.txt",
       .meaning = "What ztk has sent last, when, and whether every mixer\n"
                  "accepted it"});
  section.terms.push_back(
      {.name = "tarvix/ztk.lock",
       .meaning = "Locked while ztk changes something; another ztk waits"});
  return section;
}

}  // namespace

std::vector<cli::Section> ManualIntroduction() {
  return {
      {.title = "TERMS",
       .text = "What has happened to a choice:",
       .terms = {
           {.name = "sent",
            .meaning = "A mixer has accepted it over USB. The same value is "
                       "sent to every attached mixer."},
           {.name = "remembered",
            .meaning = "Kept in a settings file, see FILES. ztk apply "
                       "sends it again, ztk reset forgets it. A mixer cannot "
                       "be asked which choice it has, so get, list and status "
                       "show the remembered one."},
           {.name = "announced",
            .meaning = "Reported on the message bus of your session, where "
                       "other programs and ztk watch\nreceive it."}}}};
}

std::vector<cli::Section> ManualSections() {
  return {JsonSection(), Environment(), Files()};
}

}  // namespace ztk::program
