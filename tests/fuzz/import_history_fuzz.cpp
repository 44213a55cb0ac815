// SPDX-License-Identifier: MIT
//
// Reads the input as a file to import and as an undo history.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "ztk/model/exchange.h"
#include "ztk/model/history/history.h"

namespace {

using namespace ztk::model;

void Require(bool condition) {
  if (!condition) std::abort();
}

void CheckImport(const std::string &text) {
  const ImportedSettings import = ParseImport(text);
  Require(import.errors.size() <= 20);
  Require(import.errors.size() <= import.errorCount);
  Require(import.errors.empty() == (import.errorCount == 0));
  Require(import.changes.empty() == (import.errorCount != 0));
  for (const Change &change : import.changes) {
    Require(CanBeSet(*change.setting, change.channel, change.index));
  }
}

// A history that was read and written must be the same when it is read again.
void CheckHistory(const std::string &text) {
  const ParsedHistory parsed = ParseHistory(text);
  const std::string written = HistoryText(parsed.steps);
  const ParsedHistory again = ParseHistory(written);
  Require(!again.damaged);
  Require(HistoryText(again.steps) == written);
}

}  // namespace

// NOLINTNEXTLINE(readability-identifier-naming): fixed name
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data,
                                      std::size_t size) {
  const std::string text(reinterpret_cast<const char *>(data), size);
  CheckImport(text);
  CheckHistory(text);
  return 0;
}
