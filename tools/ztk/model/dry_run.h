// SPDX-License-Identifier: MIT
//
// What a command would do, told without doing it. The library cannot be asked:
// this follows what its functions send, in their order, and a test holds it to
// what the mixers really get.
#ifndef ZTK_TOOLS_ZTK_MODEL_DRY_RUN_H_
#define ZTK_TOOLS_ZTK_MODEL_DRY_RUN_H_

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "ztk/model/change.h"
#include "ztk/model/settings.h"
#include "ztk/report.h"

namespace ztk::program {

// The fields of a request's setup packet; none of these sends data.
struct Setup {
  std::uint8_t type;
  std::uint8_t request;
  std::uint16_t value;
  std::uint16_t index;
  std::uint16_t length;  // of the reply
};

class Plan {
 public:
  // Looks at who is there, and asks nobody.
  Plan();

  // A setter: sends, remembers, announces, and reads the selectors.
  void AddChange(const Change &change);
  // Sends a value again.
  void AddSendingAgain(const Family &family, std::uint32_t channel,
                       std::uint32_t index);
  // Sends and announces the default of a USB output.
  void AddDefault(const Family &family, std::uint32_t channel);
  // Sends a raw value of a USB input.
  void AddRaw(std::uint32_t channel, std::uint32_t high, std::uint32_t source);
  // The question that this program asks every mixer at the end.
  void AddQuestion();

  // Adds all of it to the report.
  void Tell(Report *report) const;

 private:
  struct Request {
    int mixer;
    Setup setup;
  };
  struct Write {
    std::string file;
    std::string key;
    std::optional<std::uint32_t> before;
    Change change;
  };
  struct Notice {
    std::string name;
    std::vector<std::pair<std::string, std::uint32_t>> numbers;
  };

  void AddToEach(const Setup &setup);
  void AddWriteRequest(const Family &family, std::uint32_t channel,
                       std::uint32_t index);
  void AddNotice(const Change &change);
  // `stops` where the first mixer that was read ends it.
  void AddSelectors(const Family &family, bool stops);

  void TellRequests(Report *report) const;
  void TellWrites(Report *report) const;
  void TellNotices(Report *report) const;

  std::size_t found_ = 0;
  std::vector<int> mixers_;  // those that can be opened
  std::vector<Request> requests_;
  std::vector<Write> writes_;
  std::vector<Notice> notices_;
};

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_MODEL_DRY_RUN_H_
