// SPDX-License-Identifier: MIT
//
// Tests with the complete library every request that a mixer receives.
#include "support/every_request.h"
#include "support/library_world.h"

namespace ztk::test {
namespace {

class LibraryRequests : public LibraryWorld {};

TEST_F(LibraryRequests, AreTheSameAsOnTheRecordingPort) {
  PlugMixers(1);
  ExpectEveryRequest([this] { return TakeLog(); });
}

}  // namespace
}  // namespace ztk::test
