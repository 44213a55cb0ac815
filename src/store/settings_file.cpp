// SPDX-License-Identifier: MIT
#include "store/settings_file.h"

#include <cerrno>

#include "platform/property_list.h"
#include "platform/text.h"
#include "store/file_outcome.h"
#include "store/settings_path.h"

namespace ztk::store {
namespace {

namespace plist = platform::property_list;
using platform::text::OwnedText;

ZTKTextRef MakeKey(ZTKTextRef keyFormat, std::uint32_t channel) {
  return platform::text::Format(keyFormat, static_cast<std::int32_t>(channel));
}

// Reads the file, sets the value and replaces the file. False when another
// process has replaced the file meanwhile, so that it has to be done again.
bool Merge(ZTKTextRef path, ZTKTextRef key, std::int32_t value) {
  plist::Dictionary *settings = plist::MakeDictionary();
  const plist::ReadResult read = plist::AddEntriesOfFile(settings, path);
  int error = 0;
  bool written = false;
  // A file that cannot be read now may hold settings: writing would lose them.
  if (plist::MayBeReplaced(read)) {
    plist::SetInteger(settings, key, value);
    written = plist::WriteAtomically(settings, path, &error);
  }
  plist::Release(settings);
  RecordStoring(read, written, error);
  return written || error != ESTALE;
}

}  // namespace

std::int32_t Read(ZTKTextRef model, ZTKTextRef key, std::int32_t fallback) {
  const OwnedText path(MakePath(model));
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
  const OwnedText key(MakeKey(keyFormat, channel));
  return Read(model, key.get(), fallback);
}

void Write(ZTKTextRef model, ZTKTextRef key, std::uint32_t value) {
  const OwnedText path(MakePath(model));
  if (path.get() == nullptr) {
    RecordStoringWithoutHome();
    return;
  }
  // BeginChange() may return without the lock: some file systems have none, and
  // the wait for it is limited. Then another process can replace the file
  // during Merge(), and the attempt is repeated. Each attempt waits for the
  // lock again, or else a process that changes the file all the time could
  // always be faster.
  constexpr int kAttempts = 20;
  bool done = false;
  for (int left = kAttempts; left > 0 && !done; --left) {
    plist::Change *change = plist::BeginChange(path.get());
    done = Merge(path.get(), key, static_cast<std::int32_t>(value));
    plist::EndChange(change);
  }
}

void WriteChannel(ZTKTextRef model, ZTKTextRef keyFormat, std::uint32_t channel,
                  std::uint32_t value) {
  const OwnedText key(MakeKey(keyFormat, channel));
  Write(model, key.get(), value);
}

}  // namespace ztk::store
