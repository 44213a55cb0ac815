// SPDX-License-Identifier: MIT
#include <array>
#include <span>

#include "platform/bundle.h"
#include "platform/text.h"
#include "ztk/doctor/finding.h"
#include "ztk/system/facts.h"
#include "ztk/system/library_text.h"

namespace ztk::model {

namespace {

// True when the bundle has the sentences too.
bool HasTexts(const platform::bundle::Bundle *bundle) {
  const ZTKTextRef key = ZTK_TEXT("WARNING1");
  const ZTKTextRef text =
      platform::bundle::LocalizedText(bundle, key, ZTK_TEXT("Localizable"));
  // The look-up returns the key when there is no sentence.
  return text != nullptr && Utf8(text) != Utf8(key);
}

}  // namespace

Findings CheckTexts(std::string *good) {
  *good = "the warning texts are installed";
  const std::array paths{
      ZTK_TEXT("/System/Library/Frameworks/VRM-D6Setup.framework"),
      ZTK_TEXT("/Library/Frameworks/VRM-D6Setup.framework")};
  bool found = false;
  const bool onlyFirst = !WhyInstalledIsNotFound().empty();
  for (const ZTKTextRef path : std::span(paths).first(onlyFirst ? 1 : 2)) {
    platform::bundle::Bundle *bundle = platform::bundle::AtPath(path);
    const bool complete = bundle != nullptr && HasTexts(bundle);
    found = found || bundle != nullptr;
    platform::bundle::Release(bundle);
    if (complete) return {};
  }
  return {ExplainTexts(found)};
}

}  // namespace ztk::model
