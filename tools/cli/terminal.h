// SPDX-License-Identifier: MIT
//
// What the standard streams are connected to, and how text is shown there.
#ifndef ZTK_TOOLS_CLI_TERMINAL_H_
#define ZTK_TOOLS_CLI_TERMINAL_H_

#include <cstddef>
#include <string>

namespace ztk::cli {

// Around what stands out in a report's text. They are no characters of any
// choice or model, and OneLine() lets none of them in from outside.
inline constexpr char kStrong = '\x0E';
inline constexpr char kPlain = '\x0F';
// Before a line that is not to be broken, because it is to be copied: where the
// terminal breaks it, it is still one line.
inline constexpr char kWhole = '\x10';

// `text` between the two marks.
std::string Strong(const std::string &text);

bool IsTerminal(int stream);

// The width of the terminal; 0 where there is none, or it does not tell.
std::size_t Columns(int stream);

// A terminal that moves its cursor as it is told.
bool HasCursor(int stream);

// Whether text may stand out there: a terminal whose user has not said no, by
// NO_COLOR, CLICOLOR=0 or TERM=dumb.
bool MayStandOut(int stream);

struct Layout {
  std::size_t columns;  // 0: lines are left as they are
  bool standsOut;       // else the marks are taken out
};

// Text as it is shown. A line that is too long goes on below its second column,
// where it has columns, which are at least two spaces apart.
std::string LaidOut(const std::string &text, const Layout &layout);

// Sentences filled up to the width, at most 80 columns, which is also that of
// 0. A line that is indented or whole stays by itself.
std::string Flowed(const std::string &text, std::size_t columns);

}  // namespace ztk::cli

#endif  // ZTK_TOOLS_CLI_TERMINAL_H_
