// SPDX-License-Identifier: MIT
//
// The shipped library: every request that it makes, as the mixer sees it.
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
