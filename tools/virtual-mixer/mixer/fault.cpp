// SPDX-License-Identifier: MIT
#include "virtual-mixer/mixer/fault.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>

#include "cli/strings.h"
#include "cli/suggest.h"

namespace ztk::virtual_mixer {
namespace {

const std::vector<std::string> kAccepted{
    "stall", "silence", "delay:MS", "short:N", "bytes:HEX", "unplug", "none"};
constexpr std::string_view kForm =
    "; @REGISTER and, except for unplug, *TIMES may follow, as in stall@8002*3";

struct KindName {
  Fault::Kind kind;
  std::string_view name;
};
constexpr std::array<KindName, 6> kKinds{{
    {Fault::Kind::Stall, "stall"},
    {Fault::Kind::Silence, "silence"},
    {Fault::Kind::Delay, "delay"},
    {Fault::Kind::Short, "short"},
    {Fault::Kind::WrongBytes, "bytes"},
    {Fault::Kind::Unplug, "unplug"},
}};

std::optional<Fault> Refuse(std::string_view what, std::string_view part,
                            std::string *error) {
  *error = std::string(what) + " " + cli::Quoted(std::string(part)) +
           "; accepted: " + cli::Listed(kAccepted) + std::string(kForm);
  return std::nullopt;
}

std::optional<Fault> RefuseKind(std::string_view name, std::string *error) {
  const std::string word(name);
  *error = "unknown fault " + cli::Quoted(word) +
           cli::NearestAndAccepted(word, kAccepted) + std::string(kForm);
  return std::nullopt;
}

// Removes `mark` and the text after it from *text. Returns the text after it.
std::optional<std::string_view> CutTail(std::string_view *text, char mark) {
  const std::size_t at = text->find(mark);
  if (at == std::string_view::npos) return std::nullopt;
  const std::string_view tail = text->substr(at + 1);
  *text = text->substr(0, at);
  return tail;
}

bool ReadKind(std::string_view name, Fault *fault) {
  const auto *const found =
      std::find_if(kKinds.begin(), kKinds.end(),
                   [&](const KindName &kind) { return kind.name == name; });
  if (found == kKinds.end()) return false;
  fault->kind = found->kind;
  return true;
}

// Reads the part after the colon, which some kinds have.
bool ReadArgument(std::optional<std::string_view> text, Fault *fault) {
  switch (fault->kind) {
    case Fault::Kind::Delay:
    case Fault::Kind::Short: {
      const bool delay = fault->kind == Fault::Kind::Delay;
      const auto amount =
          text ? cli::ParseNumber(std::string(*text), delay ? 1 : 0,
                                  delay ? 60000 : 63)
               : std::nullopt;
      fault->amount = amount.value_or(0);
      return amount.has_value();
    }
    case Fault::Kind::WrongBytes: {
      const auto bytes = text ? ParseBytes(*text) : std::nullopt;
      if (bytes) fault->bytes = *bytes;
      return bytes.has_value();
    }
    case Fault::Kind::Stall:
    case Fault::Kind::Silence:
    case Fault::Kind::Unplug:
      break;
  }
  return !text.has_value();
}

bool ReadScope(std::string_view text, Fault *fault) {
  if (!text.empty() && (text[0] == 'r' || text[0] == 'w')) {
    fault->direction =
        text[0] == 'r' ? Fault::Direction::Read : Fault::Direction::Write;
    text.remove_prefix(1);
  }
  fault->registerNumber = ParseRegister(text);
  return fault->registerNumber.has_value();
}

}  // namespace

bool Fault::Fits(const SetupPacket &setup) const {
  const bool read = IsRead(setup);
  if (!read && (kind == Kind::Short || kind == Kind::WrongBytes)) return false;
  if (direction == Direction::Read && !read) return false;
  if (direction == Direction::Write && read) return false;
  return !registerNumber || *registerNumber == setup.index;
}

bool Fault::HasSameScope(const Fault &other) const {
  return registerNumber == other.registerNumber && direction == other.direction;
}

std::optional<Fault> ParseFault(std::string_view text, std::string *error) {
  const std::string_view whole = text;
  Fault fault;
  if (const auto times = CutTail(&text, '*')) {
    fault.timesLeft = cli::ParseNumber(std::string(*times), 1, 1000000);
    if (!fault.timesLeft) return Refuse("bad number of times", *times, error);
  }
  if (const auto scope = CutTail(&text, '@')) {
    if (!ReadScope(*scope, &fault)) {
      return Refuse("bad register", *scope, error);
    }
  }
  const auto argument = CutTail(&text, ':');
  if (!ReadKind(text, &fault)) return RefuseKind(text, error);
  if (!ReadArgument(argument, &fault)) {
    return Refuse("bad or missing amount in fault", whole, error);
  }
  if (fault.kind == Fault::Kind::Unplug && fault.timesLeft) {
    return Refuse("unplug takes no *TIMES, as it happens once:", whole, error);
  }
  return fault;
}

std::string FormatFault(const Fault &fault) {
  std::string text;
  for (const KindName &kind : kKinds) {
    if (kind.kind == fault.kind) text = kind.name;
  }
  if (fault.kind == Fault::Kind::Delay || fault.kind == Fault::Kind::Short) {
    text += ":" + std::to_string(fault.amount);
  }
  if (fault.kind == Fault::Kind::WrongBytes) {
    std::string hex = HexBytes(fault.bytes.data(), fault.bytes.size());
    std::erase(hex, ' ');
    text += ":" + hex;
  }
  if (fault.registerNumber) {
    text += '@';
    if (fault.direction == Fault::Direction::Read) text += 'r';
    if (fault.direction == Fault::Direction::Write) text += 'w';
    std::array<char, 5> digits{};
    std::snprintf(digits.data(), digits.size(), "%04x",
                  static_cast<unsigned>(*fault.registerNumber));
    text += digits.data();
  }
  if (fault.timesLeft) text += "*" + std::to_string(*fault.timesLeft);
  return text;
}

std::optional<std::uint16_t> ParseRegister(std::string_view text) {
  std::uint16_t number = 0;
  const char *const end = text.data() + text.size();
  const auto [stop, failure] = std::from_chars(text.data(), end, number, 16);
  if (text.size() != 4 || failure != std::errc() || stop != end) {
    return std::nullopt;
  }
  return number;
}

std::optional<std::vector<std::uint8_t>> ParseBytes(std::string_view text) {
  if (text.empty()) return std::nullopt;
  return ParseBytes(text, 64);
}

std::optional<std::vector<std::uint8_t>> ParseBytes(std::string_view text,
                                                    std::size_t most) {
  if (text.size() % 2 != 0 || text.size() / 2 > most) return std::nullopt;
  std::vector<std::uint8_t> bytes;
  for (std::size_t i = 0; i < text.size(); i += 2) {
    std::uint8_t byte = 0;
    const char *const end = text.data() + i + 2;
    const auto [stop, failure] =
        std::from_chars(text.data() + i, end, byte, 16);
    if (failure != std::errc() || stop != end) return std::nullopt;
    bytes.push_back(byte);
  }
  return bytes;
}

}  // namespace ztk::virtual_mixer
