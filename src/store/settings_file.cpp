// SPDX-License-Identifier: MIT
#include "store/settings_file.h"

#include "platform/paths.h"
#include "platform/property_list.h"
#include "platform/text.h"
#include "store/file_outcome.h"

namespace ztk::store {
namespace {

namespace plist = platform::property_list;
using platform::text::Made;

// Fixed: no separator stands between the model and "autosetup".
const ZTKTextRef kPathFormat =
    ZTK_TEXT("%@/Preferences/com.tarvix.%@autosetup.plist");

ZTKTextRef MakeKey(ZTKTextRef keyFormat, std::uint32_t channel) {
  return platform::text::Format(keyFormat, static_cast<std::int32_t>(channel));
}

}  // namespace

ZTKTextRef MakePath(ZTKTextRef model) {
  const Made library(platform::paths::UserLibrary());
  if (library.get() == nullptr) return nullptr;
  return platform::text::Format(kPathFormat, library.get(), model);
}

std::int32_t Read(ZTKTextRef model, ZTKTextRef key, std::int32_t fallback) {
  const Made path(MakePath(model));
  if (path.get() == nullptr) {
    RecordReadingWithoutHome();
    return fallback;
  }
  plist::Dictionary *settings = nullptr;
  RecordReading(plist::Read(path.get(), &settings));
  if (settings == nullptr) return fallback;
  std::int32_t value = fallback;
  plist::IntegerValue(settings, key, &value);
  plist::Release(settings);
  return value;
}

std::int32_t ReadChannel(ZTKTextRef model, ZTKTextRef keyFormat,
                         std::uint32_t channel, std::int32_t fallback) {
  const Made key(MakeKey(keyFormat, channel));
  return Read(model, key.get(), fallback);
}

void Write(ZTKTextRef model, ZTKTextRef key, std::uint32_t value) {
  const Made path(MakePath(model));
  if (path.get() == nullptr) {
    RecordStoringWithoutHome();
    return;
  }
  plist::Change *change = plist::BeginChange(path.get());
  plist::Dictionary *settings = plist::MakeDictionary();
  const plist::ReadResult read = plist::AddEntriesOfFile(settings, path.get());
  // A file that cannot be read now may hold settings: writing would lose them.
  int error = 0;
  bool written = false;
  if (read.state != plist::ReadState::Unavailable) {
    plist::SetInteger(settings, key, static_cast<std::int32_t>(value));
    written = plist::WriteAtomically(settings, path.get(), &error);
  }
  RecordStoring(read, written, error);
  plist::Release(settings);
  plist::EndChange(change);
}

void WriteChannel(ZTKTextRef model, ZTKTextRef keyFormat, std::uint32_t channel,
                  std::uint32_t value) {
  const Made key(MakeKey(keyFormat, channel));
  Write(model, key.get(), value);
}

}  // namespace ztk::store
