// SPDX-License-Identifier: MIT
#include "cli/suggest.h"

#include <algorithm>
#include <utility>

#include "cli/strings.h"

namespace ztk::cli {

namespace {

// Only this many bytes of a word are compared, because the comparison takes
// time and a mistyped word is not longer.
constexpr std::size_t kLongestWord = 100;  // bytes

// Removes spaces and dashes and folds case: "post ch2", "PostCH2" and
// "--post-ch2" are the same word.
std::string Folded(const std::string &text) {
  std::string folded;
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    if (byte > ' ' && character != '-' && byte != 0x7F) {
      folded += LowerCase(character);
    }
  }
  return folded;
}

// The edit distance (insertion, deletion, replacement, swap of neighbours)
// between `word` and `text`. If `ofPart` is true: between `word` and the part
// of `text` that is most similar to it.
std::size_t Differences(const std::string &word, const std::string &text,
                        bool ofPart) {
  using Row = std::vector<std::size_t>;
  Row before;
  Row last(text.size() + 1);
  Row row(text.size() + 1);
  for (std::size_t j = 0; j <= text.size(); ++j) last[j] = ofPart ? 0 : j;
  for (std::size_t i = 1; i <= word.size(); ++i) {
    row[0] = i;
    for (std::size_t j = 1; j <= text.size(); ++j) {
      const std::size_t replaced =
          last[j - 1] + (word[i - 1] == text[j - 1] ? 0 : 1);
      row[j] = std::min({replaced, last[j] + 1, row[j - 1] + 1});
      if (i > 1 && j > 1 && word[i - 1] == text[j - 2] &&
          word[i - 2] == text[j - 1]) {
        row[j] = std::min(row[j], before[j - 2] + 1);
      }
    }
    before = std::exchange(last, row);
  }
  return ofPart ? *std::min_element(last.begin(), last.end()) : last.back();
}

// The largest accepted distance. For the whole text it is 0 if the word has
// fewer than three bytes. Otherwise it is a third of the size of the word or of
// the text, whichever is shorter, but at least 1. For a part of the text it is
// (size of the word - 1) / 3, and 0 if the text is not longer than the word.
std::size_t MostDifferences(const std::string &word, const std::string &text,
                            bool ofPart) {
  if (ofPart) return text.size() > word.size() ? (word.size() - 1) / 3 : 0;
  if (word.size() < 3) return 0;
  return std::max<std::size_t>(std::min(word.size(), text.size()) / 3, 1);
}

// How many words of `words` occur in `text`. Words of fewer than three letters
// are not counted, because they occur in too many texts.
std::size_t WordsIn(const std::string &words, const std::string &text) {
  std::size_t count = 0;
  std::string word;
  for (const char character : words + ' ') {
    if (character != ' ') {
      word += LowerCase(character);
      continue;
    }
    if (word.size() >= 3 && text.find(word) != std::string::npos) ++count;
    word.clear();
  }
  return count;
}

// The text that contains more of the words than every other text. Empty if
// there is no such text.
std::string WithMostWords(const std::string &words,
                          const std::vector<std::string> &accepted) {
  std::string best;
  std::size_t most = 0;
  for (const std::string &text : accepted) {
    const std::size_t count = WordsIn(words, Folded(text));
    if (count == most) best.clear();
    if (count > most) best = text;
    most = std::max(count, most);
  }
  return best;
}

std::string NearestPart(const std::string &nearest) {
  return nearest.empty() ? "" : "; nearest: " + nearest;
}

}  // namespace

std::string Nearest(const std::string &word,
                    const std::vector<std::string> &accepted) {
  const std::string wanted = Folded(word.substr(0, kLongestWord));
  if (wanted.size() < 2) return "";
  std::string closest = WithMostWords(word.substr(0, kLongestWord), accepted);
  if (!closest.empty()) return closest;
  std::pair<std::size_t, std::size_t> least;
  for (const std::string &text : accepted) {
    const std::string folded = Folded(text);
    const std::size_t ofPart = Differences(wanted, folded, true);
    const std::size_t ofAll = Differences(wanted, folded, false);
    if (ofPart > MostDifferences(wanted, folded, true) &&
        ofAll > MostDifferences(wanted, folded, false)) {
      continue;
    }
    const std::pair<std::size_t, std::size_t> differences{ofPart, ofAll};
    if (!closest.empty() && differences >= least) continue;
    closest = text;
    least = differences;
  }
  return closest;
}

std::string Suggestion(const std::string &nearest,
                       const std::vector<std::string> &accepted,
                       const std::string &how) {
  if (accepted.empty()) return "";
  if (!nearest.empty() && accepted.size() > kMaxListedWords) {
    return NearestPart(nearest);
  }
  return NearestPart(nearest) + "; accepted" + how + ": " + Listed(accepted);
}

std::string NearestAndAccepted(const std::string &word,
                               const std::vector<std::string> &accepted) {
  return Suggestion(Nearest(word, accepted), accepted);
}

std::string NearestAndAccepted(const std::string &word, std::uint32_t least,
                               std::uint32_t most) {
  std::string nearest;
  // A number that does not fit into 32 bits is above the range.
  const bool number = !word.empty() &&
                      word.find_first_not_of("0123456789") == std::string::npos;
  if (number) {
    nearest = std::to_string(
        std::clamp(ParseNumber(word).value_or(most), least, most));
  }
  return NearestPart(nearest) + "; accepted: " + std::to_string(least) +
         " to " + std::to_string(most);
}

}  // namespace ztk::cli
