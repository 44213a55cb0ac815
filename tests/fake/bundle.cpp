// SPDX-License-Identifier: MIT
#include "platform/bundle.h"

#include <string>

#include "fake/world.h"
#include "platform/common/interned_text.h"
#include "platform/text.h"

namespace ztk::platform::bundle {

struct Bundle {
  fake::Bundle contents;
};

using fake::LogCall;
using fake::TheWorld;

Bundle *AtPath(ZTKTextRef path) {
  LogCall(std::string("bundle at ") + path);
  const auto bundle = TheWorld().bundles.find(path);
  if (bundle == TheWorld().bundles.end()) return nullptr;
  ++TheWorld().held.bundles;
  return new Bundle{.contents = bundle->second};
}

ZTKTextRef ResourcePath(const Bundle *bundle) {
  if (bundle == nullptr) return nullptr;
  return text::Format("%@", bundle->contents.resourcePath.c_str());
}

ZTKTextRef LocalizedText(const Bundle *bundle, ZTKTextRef key,
                         ZTKTextRef table) {
  LogCall(std::string("localized ") + key + " of " + table);
  if (bundle == nullptr) return nullptr;
  const auto &tables = bundle->contents.preferredTexts;
  const auto texts = tables.find(table);
  if (texts != tables.end()) {
    const auto text = texts->second.find(key);
    if (text != texts->second.end()) {
      return common::Intern(text->second);
    }
  }
  return common::Intern(key);
}

void Release(Bundle *bundle) {
  if (bundle == nullptr) return;
  LogCall("release bundle");
  --TheWorld().held.bundles;
  delete bundle;
}

}  // namespace ztk::platform::bundle
