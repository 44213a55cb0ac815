// SPDX-License-Identifier: MIT
#include "ztk/system/bus_watch.h"

namespace ztk::model {

// The system's notification center is always there.
struct BusWatch::Connection {};

BusWatch::BusWatch() = default;

BusWatch::~BusWatch() = default;

bool BusWatch::IsAlive() { return true; }

int BusWatch::descriptor() const { return -1; }

}  // namespace ztk::model
