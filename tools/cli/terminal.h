// SPDX-License-Identifier: MIT
//
// Properties of the terminal, and layout of text for it.
#ifndef ZTK_TOOLS_CLI_TERMINAL_H_
#define ZTK_TOOLS_CLI_TERMINAL_H_

#include <cstddef>
#include <string>

namespace ztk::cli {

// These control characters begin and end emphasised text. No choice or model
// contains them, and OneLine() removes them from other text.
inline constexpr char kStrong = '\x0E';
inline constexpr char kPlain = '\x0F';
// Begins a line that is not wrapped, so that it can be copied as one line.
inline constexpr char kWhole = '\x10';

// Emphasises `text`.
std::string Strong(const std::string &text);

bool IsTerminal(int stream);

// The width of the terminal; 0 where there is none, or it is not known.
std::size_t Columns(int stream);

// A terminal that understands control sequences for the cursor.
bool HasCursor(int stream);

// Whether emphasis is shown: in a terminal, unless the user has turned it off
// by NO_COLOR, CLICOLOR=0 or TERM=dumb.
bool ShowsEmphasis(int stream);

struct Layout {
  std::size_t columns;  // 0: lines are not wrapped
  bool emphasis;        // else the marks are removed
};

// Wraps lines that are too long. A line with columns, which are at least two
// spaces apart, continues below its second column.
std::string LaidOut(const std::string &text, const Layout &layout);

// Joins lines into paragraphs and wraps them at the width, at most 80 columns;
// a width of 0 means 80. Indented lines, and lines marked kWhole, stay apart.
std::string Flowed(const std::string &text, std::size_t columns);

// A message for the error stream: "ztk: TEXT\n", wrapped to the terminal.
std::string MessageLine(const std::string &program, const std::string &text);

}  // namespace ztk::cli

#endif  // ZTK_TOOLS_CLI_TERMINAL_H_
