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

bool IsMark(char character) {
  return character == kStrong || character == kPlain || character == kWhole;
}

// The first byte of a character in UTF-8. Each character counts as one column;
// where it is wider, in warning texts of some languages, the terminal wraps.
bool StartsCharacter(char character) {
  return !IsMark(character) &&
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
    } else if (!IsMark(character)) {
      break;
    }
  }
  return spaces;
}

// The indentation of the rest of a wrapped line: that of its second column,
// unless too little room is left. A line that is indented deeply is itself the
// second column of the line above.
std::size_t HangingIndentation(std::string_view line, std::size_t columns) {
  constexpr std::size_t kDeep = 12;
  const std::size_t first = Indentation(line);
  if (first >= kDeep) return first <= columns / 2 ? first : 0;
  const std::size_t gap = line.find("  ", line.find_first_not_of(" \x0E\x0F"));
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
std::size_t Fitting(std::string_view line, std::size_t columns) {
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

std::string Wrapped(std::string_view line, std::size_t columns,
                    std::size_t hanging) {
  if (line.starts_with(kWhole)) return std::string(line);
  std::string wrapped;
  std::string rest(line);
  while (true) {
    const std::size_t fitting = Fitting(rest, columns);
    wrapped += rest.substr(0, fitting);
    const std::size_t next = rest.find_first_not_of(' ', fitting);
    if (next == std::string::npos) return wrapped;
    wrapped += '\n';
    rest = std::string(hanging, ' ') + rest.substr(next);
  }
}

// Puts a line that is not wrapped, and too long, below its title ("Example:").
std::string WholeBelowTitle(const std::string &line, std::size_t columns) {
  const std::size_t title = line.find(": ");
  if (WidthOf(line) <= columns || title == std::string::npos) return line;
  return line.substr(0, title + 1) + "\n" + kWhole + " " +
         line.substr(title + 1);
}

std::string Marked(const std::string &text, bool emphasis) {
  std::string marked;
  for (const char character : text) {
    if (!IsMark(character)) {
      marked += character;
    } else if (emphasis && character != kWhole) {
      marked += character == kStrong ? kBold : kNormal;
    }
  }
  return marked;
}

}  // namespace

std::string Strong(const std::string &text) { return kStrong + text + kPlain; }

bool IsTerminal(int stream) { return isatty(stream) == 1; }

std::size_t Columns(int stream) {
  winsize size{};
  if (!IsTerminal(stream) || ioctl(stream, TIOCGWINSZ, &size) != 0) return 0;
  return size.ws_col;
}

bool HasCursor(int stream) {
  const std::string kind = Variable("TERM");
  return IsTerminal(stream) && !kind.empty() && kind != "dumb";
}

bool ShowsEmphasis(int stream) {
  return HasCursor(stream) && Variable("NO_COLOR").empty() &&
         Variable("CLICOLOR") != "0";
}

std::string LaidOut(const std::string &text, const Layout &layout) {
  if (layout.columns == 0) return Marked(text, layout.emphasis);
  std::string wrapped;
  std::size_t begin = 0;
  while (begin < text.size()) {
    const std::size_t end = text.find('\n', begin);
    const std::string_view all(text);
    const std::string_view line = all.substr(begin, end - begin);
    wrapped +=
        Wrapped(line, layout.columns, HangingIndentation(line, layout.columns));
    if (end == std::string::npos) break;
    wrapped += '\n';
    begin = end + 1;
  }
  return Marked(wrapped, layout.emphasis);
}

std::string Flowed(const std::string &text, std::size_t columns) {
  constexpr std::size_t kWidest = 80;
  const std::size_t width =
      columns == 0 || columns > kWidest ? kWidest : columns;
  std::vector<std::string> lines;
  bool goesOn = false;
  for (const std::string &line : LinesOf(text)) {
    const bool isSentence =
        !line.empty() && line.front() != ' ' && line.front() != kWhole;
    if (isSentence && goesOn) {
      lines.back() += " " + line;
    } else {
      lines.push_back(line);
    }
    goesOn = isSentence;
  }
  std::string flowed;
  for (std::string &line : lines) {
    if (line.starts_with(kWhole)) line = WholeBelowTitle(line, width);
    const std::size_t hanging =
        line.starts_with(' ') ? HangingIndentation(line, width) : 0;
    flowed += Wrapped(line, width, hanging) + "\n";
  }
  return flowed;
}

std::string MessageLine(const std::string &program, const std::string &text) {
  return LaidOut(program + ": " + OneLine(text) + "\n",
                 {.columns = Columns(STDERR_FILENO), .emphasis = false});
}

}  // namespace ztk::cli
