// SPDX-License-Identifier: MIT
#include "virtual-mixer/mixer/recorded_mixer.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <nlohmann/json.hpp>
#include <optional>
#include <stdexcept>

#include "platform/common/file_descriptor.h"
#include "virtual-mixer/mixer/device_model.h"

namespace ztk::virtual_mixer {
namespace {

using Json = nlohmann::json;

constexpr char kFormat[] = "ztk-report";
constexpr int kNewestVersion = 1;
// Far more than a report of every mixer that a computer can have.
constexpr std::size_t kLongestReport = 1 << 20;
constexpr std::size_t kMostMixers = 127;
constexpr std::size_t kLongestReply = 64;
constexpr std::size_t kLongestDescriptor = 4096;
constexpr std::size_t kLongestString = 126;  // characters in a descriptor
constexpr double kLongestDelay = 60000;      // milliseconds

[[noreturn]] void Refuse(const std::string &why) {
  throw std::runtime_error(why);
}

// A value in the report, and where it stands, for the message.
class Field {
 public:
  Field(const Json &value, std::string name)
      : value_(value), name_(std::move(name)) {}

  [[noreturn]] void RefuseAs(const std::string &expected) const {
    Refuse("the report's field " + name_ + " is not " + expected);
  }

  bool IsNull() const { return value_.is_null(); }

  Field Member(const char *key) const {
    if (!value_.is_object()) RefuseAs("an object");
    const std::string name = name_.empty() ? key : name_ + "." + key;
    const auto found = value_.find(key);
    if (found == value_.end()) Refuse("the report has no field " + name);
    return {*found, name};
  }

  std::vector<Field> Elements(std::size_t most) const {
    if (!value_.is_array() || value_.size() > most) {
      RefuseAs("a list of at most " + std::to_string(most));
    }
    std::vector<Field> elements;
    for (std::size_t i = 0; i < value_.size(); ++i) {
      elements.emplace_back(value_[i], name_ + "[" + std::to_string(i) + "]");
    }
    return elements;
  }

  std::string Text() const {
    if (!value_.is_string()) RefuseAs("a text");
    return value_.get<std::string>();
  }

  std::uint16_t RegisterNumber() const {
    const auto number = ParseRegister(Text());
    if (!number) RefuseAs("a register: four hexadecimal digits");
    return *number;
  }

  // Pairs of hexadecimal digits, with or without spaces between them.
  Bytes HexDigits(std::size_t most) const {
    std::string digits = Text();
    std::erase(digits, ' ');
    const auto bytes = ParseBytes(digits, most);
    if (!bytes) {
      RefuseAs("at most " + std::to_string(most) +
               " pairs of hexadecimal digits");
    }
    return *bytes;
  }

  // The number of bytes that a request asked for.
  std::size_t RequestedLength() const {
    const bool inRange =
        value_.is_number_unsigned() && value_ >= 1 && value_ <= kLongestReply;
    if (!inRange) RefuseAs("a number of bytes from 1 to 64");
    return value_.get<std::size_t>();
  }

  double Milliseconds() const {
    const double number = value_.is_number() ? value_.get<double>() : -1;
    if (!(number >= 0 && number <= kLongestDelay)) {
      RefuseAs("a number of milliseconds from 0 to 60000");
    }
    return number;
  }

  // A string descriptor's text; nothing where the device has none.
  std::string DescriptorText() const {
    if (IsNull()) return "";
    const std::string text = Text();
    const bool printable = std::all_of(text.begin(), text.end(), [](char one) {
      return one >= ' ' && one <= '~';
    });
    if (!printable || text.size() > kLongestString) {
      RefuseAs("at most 126 ASCII characters");
    }
    return text;
  }

 private:
  const Json &value_;
  const std::string name_;
};

Bytes DeviceDescriptor(const Field &field) {
  Bytes bytes = field.HexDigits(kLongestDescriptor);
  if (bytes.size() != 18 || bytes[0] != 18 || bytes[1] != 1) {
    field.RefuseAs("a device descriptor of 18 bytes");
  }
  return bytes;
}

// The descriptors of one configuration, each with its length at its head.
Bytes ConfigurationDescriptor(const Field &field) {
  Bytes bytes = field.HexDigits(kLongestDescriptor);
  const bool whole =
      bytes.size() >= 9 && bytes[0] == 9 && bytes[1] == 2 &&
      static_cast<std::size_t>(bytes[2] | bytes[3] << 8) == bytes.size();
  if (!whole || !AreWellFormed(bytes)) {
    field.RefuseAs("a whole configuration descriptor with an interface");
  }
  return bytes;
}

std::string Speed(const Field &field) {
  constexpr std::array kSpeeds{"1.5", "12", "480", "5000", "10000", "20000"};
  if (field.IsNull()) return "12";
  const std::string speed = field.Text();
  if (std::find(kSpeeds.begin(), kSpeeds.end(), speed) == kSpeeds.end()) {
    field.RefuseAs("a speed of USB: 1.5, 12, 480, 5000, 10000 or 20000");
  }
  return speed;
}

Fault ReadFault(std::uint16_t registerNumber, Fault::Kind kind) {
  Fault fault;
  fault.kind = kind;
  fault.registerNumber = registerNumber;
  fault.direction = Fault::Direction::Read;
  return fault;
}

// What a failure is replayed as.
Fault::Kind KindOf(const Field &result) {
  const std::string word = result.Text();
  if (word == "refused" || word == "failed") return Fault::Kind::Stall;
  if (word == "silent") return Fault::Kind::Silence;
  if (word == "gone") return Fault::Kind::Unplug;
  result.RefuseAs("one of: reply, refused, silent, gone, failed");
}

void AddRegister(const Field &field, Delays delays, RecordedMixer *mixer) {
  const Field name = field.Member("register");
  const std::uint16_t number = name.RegisterNumber();
  if (MixerModel().Replies().count(number) == 0) {
    name.RefuseAs("a register that can be read: 8001, 8002, 8004, 8006, 8007");
  }
  if (!mixer->registers.insert(number).second) {
    name.RefuseAs("a register that the list has only once");
  }
  const std::size_t length = field.Member("length").RequestedLength();
  const double milliseconds = field.Member("milliseconds").Milliseconds();
  const Field result = field.Member("result");
  if (result.Text() != "reply") {
    mixer->faults.push_back(ReadFault(number, KindOf(result)));
    return;
  }
  const Field reply = field.Member("reply");
  mixer->replies[number] = reply.HexDigits(kLongestReply);
  // Deliberate: a mixer may reply with no byte at all, and ztk reports that.
  if (mixer->replies[number].size() > length) {
    reply.RefuseAs("a reply of at most the length that was asked for");
  }
  const auto rounded = static_cast<std::uint32_t>(std::lround(milliseconds));
  if (delays == Delays::Ignored || rounded == 0) return;
  Fault delay = ReadFault(number, Fault::Kind::Delay);
  delay.amount = rounded;
  mixer->faults.push_back(delay);
}

// A register that the report leaves out has no known reply.
void RefuseOtherRegisters(RecordedMixer *mixer) {
  const MixerModel usual;
  for (const auto &entry : usual.Replies()) {
    if (mixer->registers.count(entry.first) > 0) continue;
    mixer->faults.push_back(ReadFault(entry.first, Fault::Kind::Stall));
  }
}

RecordedMixer ReadMixer(const Field &field, Delays delays) {
  RecordedMixer mixer;
  const Field descriptors = field.Member("descriptors");
  mixer.descriptors = {
      .device = DeviceDescriptor(descriptors.Member("device")),
      .configuration =
          ConfigurationDescriptor(descriptors.Member("configuration")),
      .strings = {descriptors.Member("manufacturer").DescriptorText(),
                  descriptors.Member("product").DescriptorText(), ""},
      .speed = Speed(field.Member("speed"))};
  for (const Field &one : field.Member("registers").Elements(16)) {
    AddRegister(one, delays, &mixer);
  }
  RefuseOtherRegisters(&mixer);
  return mixer;
}

void CheckVersion(const Json &report) {
  const auto format = report.is_object() ? report.find("format") : report.end();
  if (!report.is_object() || format == report.end() || *format != kFormat) {
    Refuse("it is not a report of ztk doctor");
  }
  const auto version = report.find("formatVersion");
  if (version == report.end() || !version->is_number_unsigned() ||
      *version == 0) {
    Refuse("the report's field formatVersion is not a number from 1");
  }
  if (*version > kNewestVersion) {
    Refuse("the report has format version " + version->dump() +
           ", and this program understands versions up to " +
           std::to_string(kNewestVersion) + "; install a newer one");
  }
}

std::string FileContents(const std::string &name) {
  const platform::FileDescriptor file(
      open(name.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat status {};
  if (!file.valid() || fstat(file.get(), &status) != 0) {
    Refuse(std::string("it cannot be read: ") + std::strerror(errno));
  }
  if (!S_ISREG(status.st_mode)) Refuse("it is not a regular file");
  std::string text;
  std::array<char, 65536> part{};
  while (text.size() <= kLongestReport) {
    const ssize_t got = read(file.get(), part.data(), part.size());
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) {
      Refuse(std::string("it cannot be read: ") + std::strerror(errno));
    }
    if (got == 0) break;
    text.append(part.data(), static_cast<std::size_t>(got));
  }
  return text;
}

}  // namespace

RecordedMixers ParseReport(const std::string &text, Delays delays) {
  if (text.size() > kLongestReport) {
    Refuse("it has more than 1 MiB, which no report has");
  }
  Json report;
  try {
    report = Json::parse(text);
  } catch (const Json::parse_error &error) {
    Refuse("it is not JSON (byte " + std::to_string(error.byte) + ")");
  }
  CheckVersion(report);
  RecordedMixers recorded;
  std::size_t number = 0;
  for (const Field &field :
       Field(report, "").Member("mixers").Elements(kMostMixers)) {
    ++number;
    if (field.Member("access").Text() == "ok") {
      recorded.mixers.push_back(ReadMixer(field, delays));
    } else {
      recorded.leftOut.push_back(number);
    }
  }
  if (number == 0) Refuse("no mixer was attached when the report was made");
  if (recorded.mixers.empty()) {
    Refuse("no mixer could be opened when the report was made");
  }
  return recorded;
}

RecordedMixers ReadReport(const std::string &file, Delays delays) {
  try {
    return ParseReport(FileContents(file), delays);
  } catch (const std::exception &error) {
    throw std::runtime_error("cannot replay " + file + ": " + error.what());
  }
}

}  // namespace ztk::virtual_mixer
