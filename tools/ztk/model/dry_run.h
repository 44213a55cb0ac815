// SPDX-License-Identifier: MIT
//
// Dry run: what a change would send, store and announce, without doing it. The
// library has no function for this, so the order of its requests is repeated
// here; a test compares the plan with what virtual mixers receive.
#ifndef ZTK_TOOLS_ZTK_MODEL_DRY_RUN_H_
#define ZTK_TOOLS_ZTK_MODEL_DRY_RUN_H_

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ztk/model/change.h"
#include "ztk/model/settings.h"

namespace ztk::model {

// The fields of a request's setup packet. No planned request has data after
// this packet; only a reply can follow it.
struct Setup {
  std::uint8_t type;
  std::uint8_t request;
  std::uint16_t value;
  std::uint16_t index;
  std::uint16_t length;  // of the reply
};

struct PlannedRequest {
  int mixer;  // counts from 1
  Setup setup;
  std::string meaning;  // for the user: "USB input 2: Post CH2 Fader (3)"
};

struct PlannedWrite {
  std::string file;
  std::string key;
  const Setting *setting;
  std::uint32_t channel;
  std::optional<std::uint32_t> before;
  std::optional<std::uint32_t> after;  // none: the key is removed
};

struct PlannedAnnouncement {
  std::string name;
  std::vector<std::pair<std::string, std::uint32_t>> numbers;
  std::string meaning;  // for the user: "USB input 2: Post CH2 Fader (3)"
};

class Plan {
 public:
  // Finds the attached mixers, and sends nothing to them.
  Plan();

  // The following functions only add to the plan: nothing is sent or stored.
  //
  // Adds what a setter does: send, remember, announce, read the selectors.
  void AddChange(const Change &change);
  // Adds the removal of a value from its file.
  void AddForgetting(const Setting &setting, std::uint32_t channel);
  // Adds sending a value again.
  void AddSendingAgain(const Setting &setting, std::uint32_t channel,
                       std::uint32_t index);
  // Adds sending and announcing the default of a USB output.
  void AddDefault(const Setting &setting, std::uint32_t channel);
  // Adds sending a raw value of a USB input.
  void AddRaw(std::uint32_t channel, std::uint32_t high, std::uint32_t source);

  std::size_t mixersFound() const { return found_; }
  std::size_t mixersThatCanBeOpened() const { return mixers_.size(); }
  // In the order in which they would be made.
  const std::vector<PlannedRequest> &requests() const { return requests_; }
  const std::vector<PlannedWrite> &writes() const { return writes_; }
  const std::vector<PlannedAnnouncement> &announcements() const {
    return announcements_;
  }

 private:
  void AddToEach(const Setup &setup, const std::string &meaning);
  void AddWrite(const Setting &setting, std::uint32_t channel,
                std::optional<std::uint32_t> after);
  void AddWriteRequest(const Setting &setting, std::uint32_t channel,
                       std::uint32_t index);
  void AddAnnouncement(const Change &change);
  // `stops` is true when the library reads only the first mixer.
  void AddSelectors(const Setting &setting, bool stops);

  std::size_t found_ = 0;
  std::vector<int> mixers_;  // those that can be opened
  std::vector<PlannedRequest> requests_;
  std::vector<PlannedWrite> writes_;
  std::vector<PlannedAnnouncement> announcements_;
};

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_DRY_RUN_H_
