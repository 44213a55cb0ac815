// SPDX-License-Identifier: MIT
//
// Suggests the accepted word that is closest to a mistyped one.
#ifndef ZTK_TOOLS_CLI_SUGGEST_H_
#define ZTK_TOOLS_CLI_SUGGEST_H_

#include <cstdint>
#include <string>
#include <vector>

namespace ztk::cli {

// The accepted word that is closest to `word`: a part of it, or the same with a
// few letters missing, added, replaced or swapped. Upper and lower case do not
// differ. Empty when each accepted word differs too much.
std::string Nearest(const std::string &word,
                    const std::vector<std::string> &accepted);

// Beside the nearest word, a list of more words than these would hide it.
inline constexpr std::size_t kMostListed = 8;

// "; nearest: input; accepted: status, input". The nearest word is left out
// when it is empty, and a long list when there is a nearest word. `how` follows
// "accepted". Empty when nothing is accepted.
std::string Suggestion(const std::string &nearest,
                       const std::vector<std::string> &accepted,
                       const std::string &how = "");

// The suggestion for a mistyped word.
std::string NearestAndAccepted(const std::string &word,
                               const std::vector<std::string> &accepted);

// "; nearest: 5; accepted: 1 to 5", for a word that has to be a number.
std::string NearestAndAccepted(const std::string &word, std::uint32_t least,
                               std::uint32_t most);

}  // namespace ztk::cli

#endif  // ZTK_TOOLS_CLI_SUGGEST_H_
