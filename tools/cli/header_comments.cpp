// SPDX-License-Identifier: MIT
#include "cli/header_comments.h"

#include <sstream>
#include <stdexcept>

namespace ztk::cli {

namespace {

std::string Trimmed(const std::string &text) {
  const std::size_t begin = text.find_first_not_of(" \n");
  if (begin == std::string::npos) return "";
  return text.substr(begin, text.find_last_not_of(" \n") + 1 - begin);
}

// The first word of a text, which is taken away.
std::string TakeWord(std::string *text) {
  const std::size_t end = text->find(' ');
  std::string word = text->substr(0, end);
  *text = end == std::string::npos ? "" : Trimmed(text->substr(end));
  return word;
}

// Without "ZTK_EXPORT", attributes of definitions and line ends.
std::string OneLineDeclaration(const std::string &declaration) {
  std::string line;
  for (const char character : declaration) {
    const bool space = character == ' ' || character == '\n';
    if (!space) {
      line += character;
    } else if (!line.empty() && !line.ends_with(' ') && !line.ends_with('(')) {
      line += ' ';
    }
  }
  constexpr char kExport[] = "ZTK_EXPORT ";
  if (line.starts_with(kExport)) line.erase(0, sizeof kExport - 1);
  return line;
}

bool IsNameCharacter(char character) {
  return (character >= 'A' && character <= 'Z') ||
         (character >= 'a' && character <= 'z') ||
         (character >= '0' && character <= '9') || character == '_';
}

// What a declaration declares.
std::string DeclaredName(const std::string &line) {
  constexpr char kDefine[] = "#define ";
  if (line.starts_with(kDefine)) {
    std::string rest = line.substr(sizeof kDefine - 1);
    return rest.substr(0, rest.find_first_of(" ("));
  }
  std::size_t end = line.find("(*");
  if (end != std::string::npos) {
    const std::size_t begin = end + 2;
    return line.substr(begin, line.find(')', begin) - begin);
  }
  end = line.find_first_of("(;");
  if (end == std::string::npos) return "";
  std::size_t begin = end;
  while (begin > 0 && IsNameCharacter(line[begin - 1])) --begin;
  return line.substr(begin, end - begin);
}

// One comment, line by line, into the entry or group that it makes.
class Comment {
 public:
  explicit Comment(const std::vector<std::string> &lines) {
    target_ = &entry.text;
    for (const std::string &line : lines) Add(line);
  }

  Entry entry;
  std::string groupTitle;
  bool opensGroup = false;
  bool closesGroup = false;
  bool isFile = false;

 private:
  void Add(const std::string &line) {
    const std::string text = Trimmed(line);
    if (text == "@{") {
      opensGroup = true;
    } else if (text == "@}") {
      closesGroup = true;
    } else if (text.starts_with('@')) {
      Command(text);
    } else if (text.empty()) {
      target_ = &entry.text;
      *target_ += "\n";
    } else if (text.starts_with("- ")) {
      // Items are paragraphs of their own.
      *target_ += "\n" + text.substr(2) + "\n";
    } else {
      *target_ += text + "\n";
    }
  }

  void Command(std::string text) {
    const std::string command = TakeWord(&text);
    if (command == "@file") {
      isFile = true;
    } else if (command == "@defgroup") {
      TakeWord(&text);
      groupTitle = text;
    } else if (command == "@param" || command == "@param[out]") {
      Named named{.name = TakeWord(&text), .text = text + "\n"};
      entry.parameters.push_back(named);
      target_ = &entry.parameters.back().text;
    } else if (command == "@retval") {
      std::string name = TakeWord(&text);
      if (text.starts_with('(')) name += " " + TakeWord(&text);
      entry.results.push_back({.name = name, .text = text + "\n"});
      target_ = &entry.results.back().text;
    } else if (command == "@note") {
      entry.note = text + "\n";
      target_ = &entry.note;
    } else if (command != "@ingroup") {
      throw std::runtime_error("the header has a comment with " + command +
                               ", which the manual page does not know");
    }
  }

  std::string *target_ = nullptr;
};

// Reads the header line by line.
class HeaderReader {
 public:
  HeaderComments Read(const std::string &header) {
    std::istringstream stream(header);
    for (std::string line; std::getline(stream, line);) Take(line);
    return std::move(comments_);
  }

 private:
  void Take(const std::string &line) {
    const std::string text = Trimmed(line);
    if (inComment_) {
      TakeCommentLine(text);
    } else if (text.starts_with("/**")) {
      inComment_ = true;
      lines_.clear();
      TakeCommentLine(text.substr(2));
    } else if (!TakeCondition(text) && !skips_ && pending_) {
      declaration_ += text + "\n";
      const bool macro = declaration_.starts_with("#define");
      if (macro ? !text.ends_with('\\') : text.ends_with(';')) Declare();
    }
  }

  // Lines of systems other than Linux are left out.
  bool TakeCondition(const std::string &text) {
    if (text.starts_with("#if")) {
      skips_ = text.find("__APPLE__") != std::string::npos;
    } else if (text.starts_with("#else")) {
      skips_ = !skips_;
    } else if (text.starts_with("#endif")) {
      skips_ = false;
    } else {
      return false;
    }
    return true;
  }

  void TakeCommentLine(std::string text) {
    const std::size_t end = text.rfind("*/");
    const bool ends = end != std::string::npos && end + 2 == text.size();
    if (ends) text.erase(end);
    if (text.starts_with('*')) text.erase(0, 1);
    lines_.push_back(text);
    if (!ends) return;
    inComment_ = false;
    if (!skips_) TakeComment(Comment(lines_));
  }

  void TakeComment(const Comment &comment) {
    if (comment.isFile) {
      comments_.text = comment.entry.text;
    } else if (comment.opensGroup) {
      comments_.groups.push_back({.title = comment.groupTitle,
                                  .text = comment.entry.text,
                                  .entries = {}});
    } else if (!comment.closesGroup) {
      entry_ = comment.entry;
      declaration_.clear();
      pending_ = true;
    }
  }

  void Declare() {
    pending_ = false;
    if (comments_.groups.empty()) return;
    entry_.declaration = OneLineDeclaration(declaration_);
    entry_.name = DeclaredName(entry_.declaration);
    comments_.groups.back().entries.push_back(entry_);
  }

  HeaderComments comments_;
  std::vector<std::string> lines_;
  bool inComment_ = false;
  bool skips_ = false;
  // A comment waits for its declaration.
  bool pending_ = false;
  Entry entry_;
  std::string declaration_;
};

}  // namespace

HeaderComments ReadHeader(const std::string &header) {
  return HeaderReader().Read(header);
}

}  // namespace ztk::cli
