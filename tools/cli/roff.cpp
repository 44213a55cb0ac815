// SPDX-License-Identifier: MIT
#include "cli/roff.h"

#include <vector>

#include "cli/strings.h"

namespace ztk::cli {

namespace {

// Text as the quoted argument of a request.
std::string Argument(const std::string &text) {
  std::string argument;
  for (const char character : Escaped(text)) {
    argument += character == '"' ? "\\(dq" : std::string(1, character);
  }
  return '"' + argument + '"';
}

}  // namespace

std::string Escaped(const std::string &text) {
  std::string escaped;
  for (const char character : text) {
    const bool startsLine = escaped.empty() || escaped.ends_with('\n');
    switch (character) {
      case '\\':
        escaped += "\\e";
        break;
      case '-':
        // A plain dash is shown as a typographic hyphen, which cannot be
        // copied into a shell.
        escaped += "\\-";
        break;
      case '\'':
        escaped += "\\(aq";
        break;
      case '`':
        escaped += "\\(ga";
        break;
      case '^':
        escaped += "\\(ha";
        break;
      case '~':
        escaped += "\\(ti";
        break;
      case '.':
        escaped += startsLine ? "\\&." : ".";
        break;
      default:
        escaped += character;
    }
  }
  return escaped;
}

std::string Bold(const std::string &text) {
  return "\\fB" + Escaped(text) + "\\fR";
}

std::string Italic(const std::string &text) {
  return "\\fI" + Escaped(text) + "\\fR";
}

Page::Page(const std::string &title, int section, const std::string &date,
           const std::string &source) {
  // Programs read the date, so its dashes are not escaped.
  Request(".TH " + Argument(title) + " " + std::to_string(section) + " " +
          date + " " + Argument(source));
  // No hyphenation: readers search for names and copy them.
  Request(".nh");
  Request(".ad l");
}

void Page::Request(const std::string &request) { text_ += request + "\n"; }

void Page::Section(const std::string &title) {
  Request(".SH " + Argument(title));
  afterHeading_ = true;
}

void Page::Subsection(const std::string &title) {
  Request(".SS " + Argument(title));
  afterHeading_ = true;
}

void Page::Text(const std::string &text) {
  std::string verbatim;
  bool begins = !afterHeading_;
  const auto endVerbatim = [&] {
    if (!verbatim.empty()) Verbatim(verbatim);
    verbatim.clear();
  };
  for (const std::string &line : LinesOf(text)) {
    if (line.starts_with(' ')) {
      verbatim += line + "\n";
      continue;
    }
    begins = begins || !verbatim.empty();
    endVerbatim();
    if (line.empty()) {
      begins = true;
      continue;
    }
    if (begins && !afterHeading_) Request(".PP");
    begins = false;
    afterHeading_ = false;
    Request(Escaped(line));
  }
  endVerbatim();
}

void Page::Line(const std::string &markup) {
  if (!afterHeading_) Request(".PP");
  afterHeading_ = false;
  Request(markup);
}

void Page::Verbatim(const std::string &lines) {
  if (!afterHeading_) Request(".PP");
  afterHeading_ = false;
  Request(".RS 4");
  Request(".nf");
  for (const std::string &line : LinesOf(lines)) {
    const std::size_t first = line.find_first_not_of(' ');
    // An empty line is an error; a leading space would break the line.
    Request(first == std::string::npos ? "\\&" : "\\&" + Escaped(line));
  }
  Request(".fi");
  Request(".RE");
}

void Page::Term(const std::string &markup, const std::string &meaning) {
  afterHeading_ = false;
  Request(".TP");
  Request(markup);
  for (const std::string &line : LinesOf(meaning)) Request(Escaped(line));
}

}  // namespace ztk::cli
