// SPDX-License-Identifier: MIT
//
// The message bus through which changes of other programs are heard, watched
// only for its end: the library's registrations are silent about that.
#ifndef ZTK_TOOLS_ZTK_SYSTEM_BUS_WATCH_H_
#define ZTK_TOOLS_ZTK_SYSTEM_BUS_WATCH_H_

#include <memory>

namespace ztk::model {

class BusWatch {
 public:
  // Connects to the bus of the session; waits at most a second.
  BusWatch();
  ~BusWatch();
  BusWatch(const BusWatch &) = delete;
  BusWatch &operator=(const BusWatch &) = delete;

  // Whether the bus is there. To be asked when the descriptor can be read.
  bool IsAlive();
  // Below 0 where there is nothing to wait for.
  int descriptor() const;

 private:
  struct Connection;
  std::unique_ptr<Connection> connection_;
};

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_SYSTEM_BUS_WATCH_H_
