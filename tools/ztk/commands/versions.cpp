// SPDX-License-Identifier: MIT
#include "build_config.h"
#include "cli/strings.h"
#include "ztk/commands/other_commands.h"
#include "ztk/model/products.h"
#include "ztk/system/facts.h"
#include "ztk/system/text.h"

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

constexpr std::size_t kColumn = 9;

}  // namespace

Report ShowVersions(const Arguments & /*arguments*/) {
  Report report;
  Json versions;
  for (const Piece &piece : kPieces) {
    ZTKTextRef text = nullptr;
    const bool found = piece.version(kOwnProduct, &text) == ZTK_SUCCESS;
    versions[piece.name] = found ? Json(Utf8(text)) : Json();
    report.text += cli::Padded(piece.title, kColumn) +
                   (found ? cli::OneLine(Utf8(text)) : "not installed") + "\n";
  }
  const std::string why = WhyInstalledIsNotFound();
  if (!why.empty()) report.warnings.push_back(why);
  versions["ztk"] = build::kVersion;
  report.text += cli::Padded("ztk", kColumn) + build::kVersion + "\n";
  report.fields["versions"] = versions;
  return report;
}

}  // namespace ztk::program
