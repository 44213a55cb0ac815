// SPDX-License-Identifier: MIT
#include "ztk/model/history/forget.h"

#include <cerrno>
#include <cstring>

#include "platform/property_list.h"
#include "platform/text.h"
#include "store/settings_path.h"
#include "ztk/model/history/sendings.h"

namespace ztk::model {

namespace plist = platform::property_list;
using platform::text::OwnedText;

namespace {

// One try. Returns an error number; 0 when the key is not in the file any more.
int TryToRemove(ZTKTextRef path, ZTKTextRef key) {
  plist::Dictionary *settings = plist::MakeDictionary();
  const plist::ReadResult read = plist::AddEntriesOfFile(settings, path);
  int error = 0;
  std::int32_t value = 0;
  if (read.state == plist::ReadState::Unavailable) {
    error = read.error == 0 ? EIO : read.error;
  } else if (plist::IntegerValue(settings, key, &value)) {
    plist::RemoveEntry(settings, key);
    if (!plist::WriteAtomically(settings, path, &error) && error == 0) {
      error = EIO;
    }
  }
  plist::Release(settings);
  return error;
}

// After a reset the mixers still have what was forgotten, which may be the
// default.
Sending SendingAfterReset(const StoredValue &value,
                          const RecordedSending &sent) {
  const Setting &setting = *value.setting;
  if (value.index != setting.defaultIndex(value.channel)) return Sending::Reset;
  const Sending before = sent.Of(setting, value.channel, value.index);
  return before == Sending::Complete || before == Sending::Earlier
             ? Sending::DefaultSent
             : Sending::DefaultNotSent;
}

}  // namespace

std::string RemoveRemembered(const Setting &setting, std::uint32_t channel) {
  const OwnedText path(store::MakePath(setting.model));
  if (path.get() == nullptr) return "you have no home folder";
  // The key of a setting without channels has no place for the number: Format()
  // does not change it.
  const OwnedText key(
      platform::text::Format(setting.key, static_cast<std::int32_t>(channel)));
  plist::Change *change = plist::BeginChange(path.get());
  // Without the lock, another program may replace the file between reading and
  // writing. Then WriteAtomically() writes nothing and reports ESTALE.
  constexpr int kAttempts = 20;
  int error = ESTALE;
  for (int left = kAttempts; left > 0 && error == ESTALE; --left) {
    error = TryToRemove(path.get(), key.get());
  }
  plist::EndChange(change);
  return error == 0 ? "" : std::strerror(error);
}

ForgottenStep ForgetValues(const std::string &command,
                           const std::vector<StoredValue> &values,
                           History *history) {
  ForgottenStep result;
  Step step{.command = command, .changes = {}};
  for (const StoredValue &value : values) {
    step.changes.push_back({.setting = value.setting,
                            .channel = value.channel,
                            .before = value.index,
                            .after = std::nullopt});
  }
  const RecordedStep recorded(std::move(step), history);
  result.notRecorded = recorded.notRecorded();
  std::vector<LastSending> forgotten;
  const RecordedSending sent;
  for (const StoredValue &value : values) {
    result.values.push_back(
        {.value = value,
         .notForgotten = RemoveRemembered(*value.setting, value.channel)});
    if (!result.values.back().notForgotten.empty()) continue;
    forgotten.push_back({.setting = value.setting,
                         .channel = value.channel,
                         .index = value.index,
                         .sending = SendingAfterReset(value, sent)});
  }
  RecordSending(forgotten, std::chrono::system_clock::now(), history);
  if (forgotten.empty()) recorded.TakeBack();
  return result;
}

}  // namespace ztk::model
