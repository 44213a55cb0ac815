// SPDX-License-Identifier: MIT
#include "ztk/model/products.h"

#include <gtest/gtest.h>

#include "cli/strings.h"

namespace ztk::model {
namespace {

TEST(ProductName, NamesEveryModel) {
  EXPECT_EQ(ProductName(0), "VRM-Q8X");
  EXPECT_EQ(ProductName(1), "VRM-K2");
  EXPECT_EQ(ProductName(8), "VRM-B5");
  EXPECT_EQ(ProductName(10), "VRM-D6");
}

}  // namespace
}  // namespace ztk::model
