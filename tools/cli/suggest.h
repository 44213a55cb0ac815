// SPDX-License-Identifier: MIT
//
// Suggests the accepted word that is closest to a mistyped one.
#ifndef ZTK_TOOLS_CLI_SUGGEST_H_
#define ZTK_TOOLS_CLI_SUGGEST_H_

#include <cstdint>
#include <string>
#include <vector>

namespace ztk::cli {

// Returns the accepted word that contains more of the words in `word` than
// every other one. If there is none, returns the accepted word that is most
// similar to `word`. `word` may be similar to a part of it, or to the whole of
// it with a few letters missing, added, replaced or swapped. Upper and lower
// case, spaces and dashes are ignored. Returns an empty text if every accepted
// word differs too much, or if `word` has fewer than two letters.
std::string Nearest(const std::string &word,
                    const std::vector<std::string> &accepted);

// If there is a nearest word, a list of more accepted words than this is left
// out, because it would distract from the nearest word.
inline constexpr std::size_t kMaxListedWords = 8;

// "; nearest: input; accepted: status, input". Leaves out the nearest word if
// it is empty, and the accepted words if there is a nearest word and their list
// is long. The text `how` is inserted after "accepted". Returns an empty text
// if nothing is accepted.
std::string Suggestion(const std::string &nearest,
                       const std::vector<std::string> &accepted,
                       const std::string &how = "");

// The suggestion for a mistyped word.
std::string NearestAndAccepted(const std::string &word,
                               const std::vector<std::string> &accepted);

// "; nearest: 5; accepted: 1 to 5", for a word that has to be a number. There
// is no nearest number if the word is not a number.
std::string NearestAndAccepted(const std::string &word, std::uint32_t least,
                               std::uint32_t most);

}  // namespace ztk::cli

#endif  // ZTK_TOOLS_CLI_SUGGEST_H_
