// SPDX-License-Identifier: MIT
//
// The integer as which each entry of a property list is read. Apple's
// CoreFoundation defines the expected values. Both ports are tested with these
// tables, and CoreFoundation too if it is installed.
#ifndef ZTK_TESTS_SUPPORT_NUMBER_ROWS_H_
#define ZTK_TESTS_SUPPORT_NUMBER_ROWS_H_

#include <cstdint>

namespace ztk::test {

struct NumberRow {
  const char *text;
  std::int32_t expected;
  // GNUstep's Foundation returns another value.
  bool onAppleOnly = false;
};

// The value of a text.
inline constexpr NumberRow kNumberRows[] = {
    {"5", 5},
    {"5x", 5},
    {"  \t\n 12 apples", 12},
    {"-7", -7},
    {"+8", 8},
    {"- 7", -7, true},
    {" - 5", -5, true},
    {"--7", 0},
    {"+-5", 0},
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
    {"\u06655", 0},
    {"2147483647", 2147483647},
    {"2147483648", 2147483647, true},
    {"-2147483648", -2147483647 - 1},
    {"-2147483649", -2147483647 - 1, true},
    {"99999999999999999999999999", 2147483647, true},
    {"-99999999999999999999999999", -2147483647 - 1, true},
};

// No row expects this value.
inline constexpr std::int32_t kUnreadable = 0x5EADF11E;

struct EntryRow {
  const char *element;
  // kUnreadable if the whole file is refused.
  std::int32_t expected;
  // Only an Intel processor converts the number to this value. On Apple silicon
  // the result is the nearest limit, and 0 for NaN.
  bool onIntel = false;
};

#if defined(__x86_64__)
inline constexpr bool kIsIntel = true;
#else
inline constexpr bool kIsIntel = false;
#endif

// The value of an element of an XML file.
inline constexpr EntryRow kEntryRows[] = {
    {"<integer>5</integer>", 5},
    {"<integer>-5</integer>", -5},
    {"<integer>+5</integer>", 5},
    {"<integer>- 5</integer>", -5},
    {"<integer>\n 5</integer>", 5},
    {"<integer a=\"1\">5</integer >", 5},
    {"<integer>007</integer>", 7},
    {"<integer>-0099</integer>", -99},
    {"<integer>00000000000000000000000005</integer>", 5},
    {"<integer>000</integer>", 0},
    {"<integer>0x10</integer>", 16},
    {"<integer>-0X1f</integer>", -31},
    // A larger number becomes its low 32 bits.
    {"<integer>2147483648</integer>", -2147483647 - 1},
    {"<integer>4294967301</integer>", 5},
    {"<integer>-9223372036854775808</integer>", 0},
    {"<integer>18446744073709551615</integer>", -1},
    // Texts that are not integers, or need more than 64 bits.
    {"<integer>18446744073709551616</integer>", kUnreadable},
    {"<integer>99999999999999999999</integer>", kUnreadable},
    {"<integer>-9223372036854775809</integer>", kUnreadable},
    {"<integer>0x10000000000000000</integer>", kUnreadable},
    {"<integer>5x</integer>", kUnreadable},
    {"<integer>5 </integer>", kUnreadable},
    {"<integer>5.5</integer>", kUnreadable},
    {"<integer>1e3</integer>", kUnreadable},
    {"<integer>0x</integer>", kUnreadable},
    {"<integer>abc</integer>", kUnreadable},
    {"<integer>--5</integer>", kUnreadable},
    {"<integer>-</integer>", kUnreadable},
    {"<integer></integer>", kUnreadable},
    {"<integer/>", kUnreadable},
    {"<integer>&#53;</integer>", kUnreadable},
    {"<integer>5<!-- a comment --></integer>", kUnreadable},
    {"<real>2.9</real>", 2},
    {"<real> -2.9</real>", -2},
    {"<real>.5</real>", 0},
    {"<real>5.</real>", 5},
    {"<real>1e3</real>", 1000},
    {"<real>2147483647.5</real>", 2147483647},
    // Every real out of range becomes the lowest integer.
    {"<real>2147483648</real>", -2147483647 - 1, true},
    {"<real>-2147483649</real>", -2147483647 - 1, true},
    {"<real>4294967301.0</real>", -2147483647 - 1, true},
    {"<real>1e300</real>", -2147483647 - 1, true},
    {"<real>1e999</real>", -2147483647 - 1, true},
    {"<real>-1e300</real>", -2147483647 - 1, true},
    {"<real>nan</real>", -2147483647 - 1, true},
    {"<real>+infinity</real>", -2147483647 - 1, true},
    {"<real>INF</real>", -2147483647 - 1, true},
    {"<real>5x</real>", kUnreadable},
    {"<real>5 </real>", kUnreadable},
    {"<real>1,5</real>", kUnreadable},
    {"<real>0x10</real>", kUnreadable},
    {"<real></real>", kUnreadable},
    {"<real/>", kUnreadable},
    {"<true/>", 1},
    {"<false/>", 0},
    {"<string>5x</string>", 5},
    {"<string><![CDATA[5]]></string>", 5},
    // If two entries have the same key, the later one counts.
    {"<integer>1</integer><key>a</key><integer>5</integer>", 5},
    {"<string>1</string><key>b</key><true/><key>a</key><integer>5</integer>",
     5},
};

}  // namespace ztk::test

#endif  // ZTK_TESTS_SUPPORT_NUMBER_ROWS_H_
