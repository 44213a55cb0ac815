// SPDX-License-Identifier: MIT
#include "cli/terminal.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <string_view>
#include <vector>

#include "cli/strings.h"

namespace ztk::cli {

namespace {

constexpr char kBold[] = "\033[1m";
constexpr char kNormal[] = "\033[0m";

bool IsLayoutMark(char character) {
  return character == kEmphasisStart || character == kEmphasisEnd ||
         character == kUnwrapped;
}

// True for the first byte of each character in UTF-8. Every character counts as
// one column. Some languages of the warning texts have characters that take two
// columns: such a line can be wider than the terminal, which then divides it.
bool StartsCharacter(char character) {
  return !IsLayoutMark(character) &&
         (static_cast<unsigned char>(character) & 0xC0) != 0x80;
}

std::size_t WidthOf(std::string_view text) {
  std::size_t width = 0;
  for (const char character : text) width += StartsCharacter(character) ? 1 : 0;
  return width;
}

std::size_t Indentation(std::string_view line) {
  std::size_t spaces = 0;
  for (const char character : line) {
    if (character == ' ') {
      ++spaces;
    } else if (!IsLayoutMark(character)) {
      break;
    }
  }
  return spaces;
}

// The indentation of the rest of a wrapped line. The rest is aligned with the
// second field of a table, unless this leaves too little room. A line that is
// indented deeply continues the second field of the line above, so the rest has
// the same indentation.
std::size_t HangingIndentation(std::string_view line, std::size_t columns) {
  constexpr std::size_t kDeep = 12;
  const std::size_t first = Indentation(line);
  if (first >= kDeep) return first <= columns / 2 ? first : 0;
  constexpr char kBeforeText[] = {' ', kEmphasisStart, kEmphasisEnd, '\0'};
  const std::size_t gap = line.find("  ", line.find_first_not_of(kBeforeText));
  if (gap != std::string_view::npos) {
    const std::size_t second = line.find_first_not_of(' ', gap);
    if (second != std::string_view::npos) {
      const std::size_t width = WidthOf(line.substr(0, second));
      if (width <= columns / 2) return width;
    }
  }
  return first + 2 <= columns / 2 ? first + 2 : 0;
}

// The length in bytes of the first words that fit into the columns. A first
// word that is longer than the columns is not divided.
std::size_t FittingLength(std::string_view line, std::size_t columns) {
  const std::size_t start = line.find_first_not_of(' ');
  std::size_t width = 0;
  std::size_t lastSpace = 0;
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (line[i] == ' ' && i > start) lastSpace = i;
    width += StartsCharacter(line[i]) ? 1 : 0;
    if (width <= columns) continue;
    if (lastSpace > 0) return line.find_last_not_of(' ', lastSpace) + 1;
    return std::min(line.find(' ', std::max(i, start)), line.size());
  }
  return line.size();
}

std::string WrapLine(std::string_view line, std::size_t columns,
                     std::size_t hanging) {
  if (line.starts_with(kUnwrapped)) return std::string(line);
  std::string wrapped;
  std::string rest(line);
  while (true) {
    const std::size_t fitting = FittingLength(rest, columns);
    wrapped += rest.substr(0, fitting);
    const std::size_t next = rest.find_first_not_of(' ', fitting);
    if (next == std::string::npos) return wrapped;
    wrapped += '\n';
    rest = std::string(hanging, ' ') + rest.substr(next);
  }
}

// Divides a line that begins with kUnwrapped after its title ("Example: "), if
// the line is wider than the columns. The part after the title becomes a line
// of its own, so that it can still be copied as one line.
std::string DivideAfterTitle(const std::string &line, std::size_t columns) {
  const std::size_t colon = line.find(": ");
  if (WidthOf(line) <= columns || colon == std::string::npos) return line;
  return line.substr(0, colon + 1) + "\n" + kUnwrapped + " " +
         line.substr(colon + 1);
}

// Replaces the marks of emphasised text by control sequences for the terminal,
// or removes them without `emphasis`. Removes kUnwrapped.
std::string ReplaceMarks(const std::string &text, bool emphasis) {
  std::string replaced;
  for (const char character : text) {
    if (!IsLayoutMark(character)) {
      replaced += character;
    } else if (emphasis && character != kUnwrapped) {
      replaced += character == kEmphasisStart ? kBold : kNormal;
    }
  }
  return replaced;
}

}  // namespace

std::string Strong(const std::string &text) {
  return kEmphasisStart + text + kEmphasisEnd;
}

bool IsTerminal(int stream) { return isatty(stream) == 1; }

std::size_t Columns(int stream) {
  winsize size{};
  if (!IsTerminal(stream) || ioctl(stream, TIOCGWINSZ, &size) != 0) return 0;
  return size.ws_col;
}

bool SupportsCursorControl(int stream) {
  const std::string kind = Variable("TERM");
  return IsTerminal(stream) && !kind.empty() && kind != "dumb";
}

bool ShowsEmphasis(int stream) {
  return SupportsCursorControl(stream) && Variable("NO_COLOR").empty() &&
         Variable("CLICOLOR") != "0";
}

std::string WrapLines(const std::string &text, const Layout &layout) {
  if (layout.columns == 0) return ReplaceMarks(text, layout.emphasis);
  std::string wrapped;
  std::size_t begin = 0;
  while (begin < text.size()) {
    const std::size_t end = text.find('\n', begin);
    const std::string_view all(text);
    const std::string_view line = all.substr(begin, end - begin);
    wrapped += WrapLine(line, layout.columns,
                        HangingIndentation(line, layout.columns));
    if (end == std::string::npos) break;
    wrapped += '\n';
    begin = end + 1;
  }
  return ReplaceMarks(wrapped, layout.emphasis);
}

std::string FillParagraphs(const std::string &text, std::size_t columns) {
  constexpr std::size_t kWidest = 80;
  const std::size_t width =
      columns == 0 || columns > kWidest ? kWidest : columns;
  std::vector<std::string> lines;
  bool goesOn = false;
  for (const std::string &line : LinesOf(text)) {
    const bool isSentence =
        !line.empty() && line.front() != ' ' && line.front() != kUnwrapped;
    if (isSentence && goesOn) {
      lines.back() += " " + line;
    } else {
      lines.push_back(line);
    }
    goesOn = isSentence;
  }
  std::string filled;
  for (std::string &line : lines) {
    if (line.starts_with(kUnwrapped)) line = DivideAfterTitle(line, width);
    const std::size_t hanging =
        line.starts_with(' ') ? HangingIndentation(line, width) : 0;
    filled += WrapLine(line, width, hanging) + "\n";
  }
  return filled;
}

std::string MessageLine(const std::string &program, const std::string &text) {
  return WrapLines(program + ": " + OneLine(text) + "\n",
                   {.columns = Columns(STDERR_FILENO), .emphasis = false});
}

}  // namespace ztk::cli
