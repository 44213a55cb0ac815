// SPDX-License-Identifier: MIT
#include <dlfcn.h>

#include <cstdlib>
#include <memory>

#include "build_config.h"
#include "cli/strings.h"
#include "ztk/commands/other_commands.h"
#include "ztk/model/products.h"
#include "ztk/system/facts.h"
#include "ztk/system/library_text.h"

namespace ztk::program {

namespace {

struct Piece {
  const char *name;
  const char *title;
  ZTKResult (*version)(std::uint32_t product, ZTKTextRef *outText);
};

constexpr Piece kPieces[] = {
    {.name = "package", .title = "Package", .version = ZTK_GetPkgVersionText},
    {.name = "driver", .title = "Driver", .version = ZTK_GetDriverVersionText},
    {.name = "utility",
     .title = "Utility",
     .version = ZTK_GetUtilityVersionText},
    {.name = "library",
     .title = "Library",
     .version = ZTK_GetLibraryVersionText}};

constexpr std::size_t kTitleColumn = 9;

// The package and its parts are installed on macOS only.
constexpr char kNotInstalled[] = "not installed (part of the macOS package)";

// The file of the library that ztk has loaded; on Linux its name ends with the
// version. Empty when the name is not known.
std::string LoadedLibrary() {
  Dl_info info{};
  const auto *const function =
      reinterpret_cast<const void *>(&ZTK_GetProductId);
  if (dladdr(function, &info) == 0 || info.dli_fname == nullptr) return "";
  const std::unique_ptr<char, decltype(&std::free)> path(
      realpath(info.dli_fname, nullptr), &std::free);
  return path == nullptr ? info.dli_fname : path.get();
}

}  // namespace

Report ShowVersions(const Arguments & /*arguments*/) {
  Report report;
  report.isAnswer = true;
  Json versions;
  for (const Piece &piece : kPieces) {
    ZTKTextRef text = nullptr;
    const bool found = piece.version(kOwnProduct, &text) == ZTK_SUCCESS;
    versions[piece.name] = found ? Json(Utf8(text)) : Json();
    report.text += cli::Padded(piece.title, kTitleColumn) +
                   (found ? cli::OneLine(Utf8(text)) : kNotInstalled) + "\n";
  }
  const std::string why = WhyInstalledIsNotFound();
  if (!why.empty()) report.warnings.push_back(why);
  const std::string loaded = LoadedLibrary();
  versions["loadedLibrary"] = loaded.empty() ? Json() : Json(loaded);
  report.text +=
      cli::Padded("Loaded", kTitleColumn) +
      (loaded.empty() ? "unknown"
                      : cli::OneLine(loaded.substr(loaded.rfind('/') + 1))) +
      "\n";
  versions["ztk"] = build::kVersion;
  report.text += cli::Padded("ztk", kTitleColumn) + build::kVersion + "\n";
  report.fields["versions"] = versions;
  return report;
}

}  // namespace ztk::program
