// SPDX-License-Identifier: MIT
#include "platform/bundle.h"

#include <sys/stat.h>

#include <new>
#include <string>
#include <vector>

#include "build_config.h"
#include "platform/common/interned_text.h"
#include "platform/linux/bundle_search.h"
#include "platform/linux/languages.h"
#include "platform/property_list.h"
#include "platform/text.h"

namespace ztk::platform::bundle {

struct Bundle {
  std::string path;
};

namespace {

constexpr char kMakersFolder[] = "/tarvix/";

bool IsFolder(const std::string &path) {
  struct stat status = {};
  return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

std::string ResourceFolder(const Bundle &bundle) {
  for (const char *inside : {"/Resources", "/Versions/A/Resources"}) {
    std::string folder = bundle.path + inside;
    if (IsFolder(folder)) return folder;
  }
  return bundle.path;
}

}  // namespace

std::string FindBundle(std::string_view path, std::string_view dataFolder) {
  std::string asked(path);
  if (IsFolder(asked)) return asked;
  while (!asked.empty() && asked.back() == '/') asked.pop_back();
  const std::string name = asked.substr(asked.rfind('/') + 1);
  if (name.empty() || name == "." || name == "..") return "";
  const std::string own = std::string(dataFolder) + kMakersFolder + name;
  return IsFolder(own) ? own : "";
}

Bundle *AtPath(ZTKTextRef path) try {
  if (path == nullptr) return nullptr;
  std::string found = FindBundle(path, build::kDataDir);
  if (found.empty()) return nullptr;
  return new Bundle{.path = std::move(found)};
} catch (const std::bad_alloc &) {
  return nullptr;
}

ZTKTextRef ResourcePath(const Bundle *bundle) try {
  if (bundle == nullptr) return nullptr;
  return text::Format("%@", ResourceFolder(*bundle).c_str());
} catch (const std::bad_alloc &) {
  return nullptr;
}

ZTKTextRef LocalizedText(const Bundle *bundle, ZTKTextRef key,
                         ZTKTextRef table) try {
  if (bundle == nullptr || key == nullptr) return nullptr;
  const std::string resources = ResourceFolder(*bundle);
  const std::string file = table == nullptr ? "" : table;

  std::vector<std::string> locales = PreferredLocales();
  locales.emplace_back("en");
  for (const std::string &locale : locales) {
    for (const std::string &name : FolderNames(locale)) {
      std::string path = resources;
      path.append("/").append(name).append(".lproj/");
      path.append(file).append(".strings");
      property_list::Dictionary *texts = property_list::ReadFile(path.c_str());
      if (texts == nullptr) continue;
      const ZTKTextRef text = property_list::TextValue(texts, key);
      property_list::Release(texts);
      // Only the first language that has the table is used. If this table does
      // not contain the key, the result is the key.
      return text != nullptr ? text : common::Intern(key);
    }
  }
  return common::Intern(key);
} catch (const std::bad_alloc &) {
  return nullptr;
}

void Release(Bundle *bundle) { delete bundle; }

}  // namespace ztk::platform::bundle
