// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "support/preload.h"

int main(int count, char **arguments) {
  ztk::test::PreloadSandbox(arguments);
  testing::InitGoogleTest(&count, arguments);
  return RUN_ALL_TESTS();
}
