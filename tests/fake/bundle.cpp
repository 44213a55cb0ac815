// SPDX-License-Identifier: MIT
#include "platform/bundle.h"

#include <string>

#include "fake/world.h"
#include "platform/text.h"
#include "support/plain_text.h"

namespace ztk::platform::bundle {

struct Bundle {
  fake::Bundle contents;
};

using fake::CurrentWorld;
using fake::LogCall;
using test::Plain;

Bundle *AtPath(ZTKTextRef path) {
  LogCall(std::string("bundle at ") + Plain(path));
  const auto bundle = CurrentWorld().bundles.find(Plain(path));
  if (bundle == CurrentWorld().bundles.end()) return nullptr;
  ++CurrentWorld().held.bundles;
  return new Bundle{.contents = bundle->second};
}

ZTKTextRef ResourcePath(const Bundle *bundle) {
  if (bundle == nullptr) return nullptr;
  return text::Format(ZTK_TEXT("%@"),
                      test::PermanentText(bundle->contents.resourcePath));
}

ZTKTextRef LocalizedText(const Bundle *bundle, ZTKTextRef key,
                         ZTKTextRef table) {
  LogCall(std::string("localized ") + Plain(key) + " of " + Plain(table));
  if (bundle == nullptr) return nullptr;
  const auto &tables = bundle->contents.preferredTexts;
  const auto texts = tables.find(Plain(table));
  if (texts != tables.end()) {
    const auto text = texts->second.find(Plain(key));
    if (text != texts->second.end()) {
      return test::PermanentText(text->second);
    }
  }
  return key;
}

void Release(Bundle *bundle) {
  if (bundle == nullptr) return;
  LogCall("release bundle");
  --CurrentWorld().held.bundles;
  delete bundle;
}

}  // namespace ztk::platform::bundle
