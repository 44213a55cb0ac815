// SPDX-License-Identifier: MIT
//
// Properties of the terminal, and layout of text for it.
#ifndef ZTK_TOOLS_CLI_TERMINAL_H_
#define ZTK_TOOLS_CLI_TERMINAL_H_

#include <cstddef>
#include <string>

namespace ztk::cli {

// Layout marks: control characters that tell the functions below how to show a
// text. They are not shown themselves. No choice or model contains them, and
// OneLine() removes them from other text.
inline constexpr char kEmphasisStart = '\x0E';
inline constexpr char kEmphasisEnd = '\x0F';
// Begins a line that is not wrapped, so that it can be copied as one line.
inline constexpr char kUnwrapped = '\x10';

// Emphasises `text`.
std::string Strong(const std::string &text);

bool IsTerminal(int stream);

// The width of the terminal; 0 where there is none, or it is not known.
std::size_t Columns(int stream);

// Whether the stream is a terminal that understands the control sequences for
// clearing a line and for moving the cursor.
bool SupportsCursorControl(int stream);

// Whether emphasis is shown: in a terminal, unless the user has turned it off
// by NO_COLOR, CLICOLOR=0 or TERM=dumb.
bool ShowsEmphasis(int stream);

struct Layout {
  std::size_t columns;  // 0: lines are not wrapped
  bool emphasis;        // false: emphasised text looks like other text
};

// Wraps each line that is wider than the terminal, and replaces the layout
// marks. In a table, whose fields are at least two spaces apart, the rest of a
// line is aligned with its second field.
std::string WrapLines(const std::string &text, const Layout &layout);

// Joins successive lines into paragraphs, and wraps the paragraphs at the
// width. A width of 0, or above 80, means 80 columns. Lines that are indented
// or begin with kUnwrapped are not joined. The layout marks stay in the text,
// for WrapLines().
std::string FillParagraphs(const std::string &text, std::size_t columns);

// A message for the error stream: "ztk: TEXT\n", wrapped to the terminal.
std::string MessageLine(const std::string &program, const std::string &text);

}  // namespace ztk::cli

#endif  // ZTK_TOOLS_CLI_TERMINAL_H_
