// SPDX-License-Identifier: MIT
//
// Watches the message bus that delivers the changes of other programs, to
// detect its end: the registrations of the library do not report it.
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

  // Whether the bus still exists. Call this when the descriptor can be read.
  bool IsAlive();
  // Below 0 when there is nothing to wait for.
  int descriptor() const;

 private:
  struct Connection;
  std::unique_ptr<Connection> connection_;
};

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_SYSTEM_BUS_WATCH_H_
