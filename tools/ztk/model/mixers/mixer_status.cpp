// SPDX-License-Identifier: MIT
#include "ztk/model/mixers/mixer_status.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <optional>

#include "usb/mixers.h"
#include "ztk/model/mixers/in_parallel.h"
#include "ztk/system/usb_devices.h"

namespace ztk::model {

namespace {

// The reply is preset to this value, because a read does not report how many
// bytes arrived.
constexpr std::uint8_t kUntouched = 0xFF;

using Read = usb::Code (*)(usb::Connection device, std::uint8_t *buffer,
                           std::uint16_t length);

enum class Questions : std::uint8_t { All, Selectors };

// Asks one mixer. After a request without an answer no further request is sent,
// because each would take the full time-out.
class MixerReader {
 public:
  MixerReader(usb::Connection connection, MixerStatus *status)
      : connection_(connection), status_(status) {}

  // Makes the fact from the reply; `make` returns no value for bytes without a
  // meaning.
  template <typename Value, typename Make>
  void Ask(Read read, std::uint16_t length, MixerFact<Value> *fact, Make make) {
    if (!status_->answers()) return;
    usb::Reply reply;
    std::fill_n(reply.bytes, length, kUntouched);
    const usb::Code code = read(connection_, reply.bytes, length);
    if (code == platform::usb::kSuccess) {
      fact->value = make(reply.bytes);
      fact->why = fact->value ? "" : "unknown";
      return;
    }
    fact->why = Described(code);
    const Mixer failure = AfterRequest(status_->mixer.number, code);
    if (!status_->failure) status_->failure = failure;
    if (failure.state == MixerState::Silent ||
        failure.state == MixerState::Gone) {
      status_->mixer = failure;
    }
  }

 private:
  usb::Connection connection_;
  MixerStatus *status_;
};

std::optional<SelectorPositions> Positions(const std::uint8_t *bytes) {
  SelectorPositions positions;
  for (std::size_t channel = 0; channel < positions.size(); ++channel) {
    // The first byte has no meaning here.
    const std::uint8_t position = bytes[channel + 1];
    if (position < status::kSelectorPositions) positions[channel] = position;
  }
  return positions;
}

std::optional<bool> SeratoActive(const std::uint8_t *bytes) {
  if (bytes[0] >= status::kSeratoStates) return std::nullopt;
  return bytes[0] == 1;
}

void AskSelectors(MixerReader *reader, MixerStatus *status) {
  reader->Ask(GetInputSelectorInfo, status::kSelectorInfoLength,
              &status->selectors, Positions);
}

void AskAll(MixerReader *reader, MixerStatus *status) {
  reader->Ask(GetFirmwareVersionNumber, status::kFirmwareVersionLength,
              &status->firmware, [](const std::uint8_t *bytes) {
                return std::optional(
                    static_cast<std::uint16_t>(status::LittleEndian16(bytes)));
              });
  reader->Ask(GetCertifyLevel, status::kCertifyLevelLength,
              &status->certificationLevel, [](const std::uint8_t *bytes) {
                return std::optional(status::BigEndian32(bytes));
              });
  AskSelectors(reader, status);
  reader->Ask(GetSeratoActiveInfo, status::kSeratoActiveLength,
              &status->seratoActive, SeratoActive);
}

MixerStatus AskMixer(std::size_t position, const std::string &place,
                     Questions questions) {
  const int number = static_cast<int>(position) + 1;
  MixerStatus status{
      .mixer = {.number = number,
                .state = MixerState::Answered,
                .reason = {},
                .message = {}},
      .failure = std::nullopt,
      .place = place,
      .product = questions == Questions::All ? ProductAt(place) : std::string(),
      .firmware = {},
      .certificationLevel = {},
      .selectors = {},
      .seratoActive = {}};
  // A program that runs for a long time calls this function again and again. It
  // does not try to open a mixer without the permission to open it.
  std::optional<usb::OpenMixer> mixer;
  if (MayBeOpened(place)) mixer.emplace(static_cast<std::int32_t>(position));
  if (!mixer || !*mixer) {
    status.mixer = Unopened(number, place);
    status.failure = status.mixer;
    return status;
  }
  MixerReader reader(mixer->connection(), &status);
  if (questions == Questions::All) {
    AskAll(&reader, &status);
  } else {
    AskSelectors(&reader, &status);
  }
  return status;
}

// Mixers are opened by their position, which changes when a mixer before it is
// unplugged. So when one did not answer and other mixers are attached by now,
// all are asked again.
std::vector<MixerStatus> AskEach(Questions questions) {
  constexpr int kTries = 3;
  std::vector<std::string> places = MixerPlaces();
  for (int tries = 1;; ++tries) {
    std::vector<MixerStatus> mixers(places.size());
    InParallel(places.size(), [&](std::size_t position) {
      mixers[position] = AskMixer(position, places[position], questions);
    });
    const bool allAnswer =
        std::all_of(mixers.begin(), mixers.end(),
                    [](const MixerStatus &mixer) { return mixer.answers(); });
    if (allAnswer || tries == kTries) return mixers;
    std::vector<std::string> now = MixerPlaces();
    if (now == places) return mixers;
    places = std::move(now);
  }
}

}  // namespace

std::vector<MixerStatus> AskEveryMixer() { return AskEach(Questions::All); }

std::vector<MixerStatus> AskForSelectors() {
  return AskEach(Questions::Selectors);
}

bool IsWholeFirmware(std::uint16_t number) {
  return (number & 0xFF) != kUntouched && (number >> 8) != kUntouched;
}

// The last byte of the reply is the lowest one of the number.
bool IsWholeLevel(std::uint32_t level) { return (level & 0xFF) != kUntouched; }

std::string FirmwareVersion(std::uint16_t number) {
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), "%x.%02x",
                static_cast<unsigned>(number >> 8),
                static_cast<unsigned>(number & 0xFF));
  return text.data();
}

}  // namespace ztk::model
