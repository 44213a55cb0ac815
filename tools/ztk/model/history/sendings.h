// SPDX-License-Identifier: MIT
//
// What the mixers may have instead of what is remembered. A mixer cannot be
// asked for its choice, so this program records what it has sent, and when.
#ifndef ZTK_TOOLS_ZTK_MODEL_HISTORY_SENDINGS_H_
#define ZTK_TOOLS_ZTK_MODEL_HISTORY_SENDINGS_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "ztk/model/change.h"
#include "ztk/model/history/history.h"
#include "ztk/model/settings.h"

namespace ztk::model {

enum class Sending : std::uint8_t {
  Complete,    // each attached mixer has accepted the value, or none is known
               // that has not
  Earlier,     // as Complete, but a mixer was attached afterwards
  Incomplete,  // no mixer was attached, or one has not accepted the value
  Replaced,  // afterwards, a mixer has accepted a value that is not remembered
  // Nothing is remembered any longer, and
  Reset,           // nothing was sent
  DefaultNotSent,  // not each mixer has accepted the default
  DefaultSent      // each mixer has accepted it
};

// What this program sent last to a channel of a setting. `index` is the
// remembered value; if nothing is remembered, the default, or for Reset what
// was remembered before.
struct LastSending {
  const Setting *setting = nullptr;
  std::uint32_t channel = 0;
  std::uint32_t index = 0;
  Sending sending = Sending::Complete;
};

struct SendingRecord {
  LastSending last;
  std::int64_t milliseconds = 0;  // when it began, since 1970 in UTC
};

// When the first and the last mixer were attached, in milliseconds since 1970;
// 0 if that is not known.
struct AttachTimes {
  std::int64_t first = 0;
  std::int64_t last = 0;
};

// Complete when each of the mixers has accepted the value, and there is one.
Sending SendingTo(std::size_t accepted, std::size_t mixers);

// The sendings of the changes that were stored.
std::vector<LastSending> SendingsOf(const MadeChanges &made);

// Records the sendings, which began at `started`. `history` has the lock;
// without one, takes the lock, and does nothing when another program keeps it.
void RecordSending(const std::vector<LastSending> &sendings, SystemTime started,
                   const History *history);

// What is recorded. The file and the mixers are looked at when the first
// question is asked, so that nothing is read if nothing is remembered.
class RecordedSending {
 public:
  RecordedSending() = default;
  // For mixers whose places are known already.
  explicit RecordedSending(std::vector<std::string> places);

  // Complete when the value has changed since: another program has set it.
  // Without a remembered value: Reset, DefaultNotSent or Complete. Complete
  // also when each mixer was attached afterwards, because it has its defaults
  // then.
  Sending Of(const Setting &setting, std::uint32_t channel,
             std::optional<std::uint32_t> remembered) const;
  bool AnyAttached() const { return !Places().empty(); }

 private:
  const std::vector<std::string> &Places() const;
  const AttachTimes &WhenAttached() const;

  mutable std::optional<std::vector<std::string>> places_;
  mutable std::optional<std::vector<SendingRecord>> records_;
  mutable std::optional<AttachTimes> attached_;
};

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_HISTORY_SENDINGS_H_
