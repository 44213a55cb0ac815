// SPDX-License-Identifier: MIT
//
// What integer a text of a property list is read as. Both ports are tested with
// this one table; the answers are those of Apple's Foundation.
#ifndef ZTK_TESTS_SUPPORT_NUMBER_ROWS_H_
#define ZTK_TESTS_SUPPORT_NUMBER_ROWS_H_

#include <cstdint>

namespace ztk::test {

struct NumberRow {
  const char *text;
  std::int32_t expected;
  // GNUstep's Foundation answers something else.
  bool onAppleOnly = false;
};

inline constexpr NumberRow kNumberRows[] = {
    {"5", 5},
    {"5x", 5},
    {"  \t\n 12 apples", 12},
    {"-7", -7},
    {"+8", 8},
    {"- 7", -7, true},
    {" - 5", -5, true},
    {"--7", 0},
    {"007", 7},
    {"0x10", 0},
    {"3.9", 3},
    {"1,5", 1},
    {"", 0},
    {"   ", 0},
    {"-", 0},
    {"apples", 0},
    {"\u00A05", 5, true},
    {"\u30005", 5, true},
    {"\u200B5", 5, true},
    {"\u200C5", 0},
    {"\u20285", 0},
    {"2147483647", 2147483647},
    {"2147483648", 2147483647, true},
    {"-2147483648", -2147483647 - 1},
    {"-2147483649", -2147483647 - 1, true},
    {"99999999999999999999999999", 2147483647, true},
    {"-99999999999999999999999999", -2147483647 - 1, true},
};

}  // namespace ztk::test

#endif  // ZTK_TESTS_SUPPORT_NUMBER_ROWS_H_
