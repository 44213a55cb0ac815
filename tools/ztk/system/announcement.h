// SPDX-License-Identifier: MIT
//
// Whether a change was announced, which the library does not tell.
#ifndef ZTK_TOOLS_ZTK_SYSTEM_ANNOUNCEMENT_H_
#define ZTK_TOOLS_ZTK_SYSTEM_ANNOUNCEMENT_H_

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "notify/announced_settings.h"

namespace ztk::model {

struct Announcement {
  const notify::AnnouncedSetting *setting;
  std::uint32_t product;
  std::optional<std::uint32_t> channel;
  std::uint32_t index;
};

// True when there is a session bus that other programs could listen on.
bool SessionBusAnswers();

// The library by which a session bus is reached, where it cannot be loaded;
// else null.
const char *MissingBusLibrary();
// The same of the library whose loop delivers what comes over the bus.
const char *MissingLoopLibrary();

// Another listener of this session: what it has heard was announced.
class BusWitness {
 public:
  // Listens from now on. Where there is no bus, it hears nothing.
  explicit BusWitness(
      const std::vector<const notify::AnnouncedSetting *> &settings);
  ~BusWitness();
  BusWitness(const BusWitness &) = delete;
  BusWitness &operator=(const BusWitness &) = delete;

  // Waits a second at most; not at all where there is no bus.
  bool Heard(const Announcement &announcement);

 private:
  struct Ear;
  std::unique_ptr<Ear> ear_;
};

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_SYSTEM_ANNOUNCEMENT_H_
