// SPDX-License-Identifier: MIT
#include "ztk/report/mixer_report.h"

#include <sys/utsname.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <vector>

#include "ZTKFunc.h"
#include "ZTKOutcome.h"
#include "build_config.h"
#include "cli/strings.h"
#include "usb/USB.h"
#include "usb/mixers.h"
#include "ztk/system/file_text.h"
#include "ztk/system/library_text.h"
#include "ztk/system/places.h"
#include "ztk/system/usb_devices.h"

namespace ztk::program {

namespace {

using Bytes = std::vector<std::uint8_t>;
using Clock = std::chrono::steady_clock;

// Raised when a program that knows only older versions would misread the
// report.
constexpr int kFormatVersion = 1;

constexpr std::uint8_t kVendorRead = 0xC0;
constexpr std::uint8_t kStandardRead = 0x80;
constexpr std::uint8_t kReadRegister = 0;
constexpr std::uint8_t kGetDescriptor = 6;
constexpr std::uint16_t kDevice = 0x0100;  // type in the high byte
constexpr std::uint16_t kConfiguration = 0x0200;
constexpr std::uint16_t kString = 0x0300;
constexpr std::uint16_t kUsEnglish = 0x0409;
constexpr std::uint16_t kDeviceSize = 18;
constexpr std::uint16_t kConfigurationHead = 9;
constexpr std::uint16_t kLongestConfiguration = 4096;
constexpr std::uint16_t kLongestString = 255;

// Each register that can be read, with the length that the library asks for.
struct Register {
  std::uint16_t number;
  const char *name;
  std::uint16_t length;
};
constexpr std::array kRegisters{
    Register{usb::kFirmwareVersionRegister, "firmware version", 2},
    Register{usb::kInputSelectorRegister, "input selectors", 5},
    Register{usb::kSeratoActiveRegister, "Serato active", 2},
    Register{usb::kPortInfoRegister, "port information", 2},
    Register{usb::kCertifyLevelRegister, "certification level", 4}};

std::string Hex(const Bytes &bytes) {
  std::string text;
  for (const std::uint8_t byte : bytes) {
    std::array<char, 4> digits{};
    std::snprintf(digits.data(), digits.size(), text.empty() ? "%02x" : " %02x",
                  static_cast<unsigned>(byte));
    text += digits.data();
  }
  return text;
}

std::string Hex(const char *format, std::uint32_t number) {
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), format, number);
  return text.data();
}

struct Reply {
  usb::Code code = platform::usb::kSuccess;
  Bytes bytes;
  double milliseconds = 0;
};

Reply Read(usb::Connection mixer, std::uint8_t type, std::uint8_t request,
           std::uint16_t value, std::uint16_t index, std::uint16_t length) {
  Reply reply;
  reply.bytes.resize(length);
  const Clock::time_point before = Clock::now();
  reply.code = DeviceRequest(mixer, type, request, value, index,
                             reply.bytes.data(), &length);
  const std::chrono::duration<double, std::milli> taken = Clock::now() - before;
  // Tenths are precise enough, and easier to read.
  reply.milliseconds = std::round(taken.count() * 10) / 10;
  const bool replied = reply.code == platform::usb::kSuccess;
  reply.bytes.resize(replied ? std::min<std::size_t>(length, reply.bytes.size())
                             : 0);
  return reply;
}

Bytes Descriptor(usb::Connection mixer, std::uint16_t typeAndNumber,
                 std::uint16_t language, std::uint16_t length) {
  return Read(mixer, kStandardRead, kGetDescriptor, typeAndNumber, language,
              length)
      .bytes;
}

// The characters of a string descriptor, with "?" for each that is not ASCII;
// null when the mixer has no such string.
Json StringOf(usb::Connection mixer, std::uint8_t number) {
  if (number == 0) return nullptr;
  const Bytes bytes =
      Descriptor(mixer, static_cast<std::uint16_t>(kString | number),
                 kUsEnglish, kLongestString);
  if (bytes.size() < 2) return nullptr;
  std::string text;
  for (std::size_t i = 2; i + 1 < bytes.size(); i += 2) {
    const bool ascii = bytes[i + 1] == 0 && bytes[i] >= ' ' && bytes[i] <= '~';
    text += ascii ? static_cast<char>(bytes[i]) : '?';
  }
  return text;
}

// The serial number is left out, because it identifies the mixer of a user.
Json DescriptorsOf(usb::Connection mixer) {
  const Bytes device = Descriptor(mixer, kDevice, 0, kDeviceSize);
  const Bytes head = Descriptor(mixer, kConfiguration, 0, kConfigurationHead);
  if (device.size() < kDeviceSize || head.size() < kConfigurationHead) {
    return nullptr;
  }
  const auto whole = static_cast<std::uint16_t>(head[2] | head[3] << 8);
  const Bytes configuration =
      Descriptor(mixer, kConfiguration, 0,
                 std::min<std::uint16_t>(whole, kLongestConfiguration));
  return {{"device", Hex(device)},
          {"configuration", Hex(configuration)},
          {"manufacturer", StringOf(mixer, device[14])},
          {"product", StringOf(mixer, device[15])}};
}

const char *ResultOf(usb::Code code) {
  switch (code) {
    case platform::usb::kSuccess:
      return "reply";
    case platform::usb::kPipeStalled:
      return "refused";
    case platform::usb::kTimeout:
      return "silent";
    case platform::usb::kNoDevice:
      return "gone";
    default:
      return "failed";
  }
}

Json RegistersOf(usb::Connection mixer) {
  Json registers = Json::array();
  for (const Register &one : kRegisters) {
    const Reply reply =
        Read(mixer, kVendorRead, kReadRegister, 0, one.number, one.length);
    Json entry{{"register", Hex("%04x", one.number)},
               {"name", one.name},
               {"length", one.length},
               {"result", ResultOf(reply.code)}};
    if (reply.code == platform::usb::kSuccess) {
      entry["reply"] = Hex(reply.bytes);
    } else {
      entry["code"] = Hex("0x%08X", reply.code);
    }
    entry["milliseconds"] = reply.milliseconds;
    registers.push_back(std::move(entry));
  }
  return registers;
}

Json OrNull(const std::string &text) {
  return text.empty() ? Json(nullptr) : Json(text);
}

Json MixerAt(std::size_t position, const std::string &place,
             const std::string &speed) {
  Json mixer{{"number", position + 1}};
  const usb::OpenMixer opened(static_cast<std::int32_t>(position));
  mixer["access"] = opened ? "ok" : Word(TryToOpen(place).obstacle);
  mixer["speed"] = OrNull(speed);
  mixer["descriptors"] = opened ? DescriptorsOf(opened.connection()) : Json();
  mixer["registers"] =
      opened ? RegistersOf(opened.connection()) : Json::array();
  return mixer;
}

// The results of the getters of the library: the default when nothing is
// remembered.
Json SettingsNow() {
  const auto answered = [](ZTKResult result, std::uint32_t index) {
    return result == ZTK_SUCCESS ? Json(index) : Json();
  };
  Json settings;
  std::uint32_t index = 0;
  for (int channel = 0; channel < 5; ++channel) {
    const ZTKResult result =
        ZTK_GetCurrentUSBInputAudioIndex(ZTK_PRODUCT_VRM_D6, channel, &index);
    settings["inputAudio"].push_back(answered(result, index));
  }
  const ZTKResult result =
      ZTK_GetCurrentBoostLevelIndex(ZTK_PRODUCT_VRM_D6, &index);
  settings["boostLevel"] = answered(result, index);
  return settings;
}

const char *RequestWord(std::uint32_t result) {
  switch (result) {
    case ZTK_REQUEST_NONE:
      return "none";
    case ZTK_REQUEST_ACCEPTED:
      return "accepted";
    case ZTK_REQUEST_REFUSED:
      return "refused";
    case ZTK_REQUEST_SILENT:
      return "silent";
    case ZTK_REQUEST_GONE:
      return "gone";
    case ZTK_REQUEST_NOT_PERMITTED:
      return "not-permitted";
    default:
      return "failed";
  }
}

// The record of a call of the library that asks each mixer and changes nothing.
Json LastOutcome() {
  std::uint32_t version = 0;
  ZTK_GetFirmwareVersionIndex(ZTK_PRODUCT_VRM_D6, &version);
  ZTKOutcome outcome{};
  outcome.size = sizeof outcome;
  ZTK_GetLastOutcome(&outcome);
  Json mixers = Json::array();
  for (std::uint32_t i = 0; i < outcome.mixersListed; ++i) {
    const ZTKRequestOutcome &read = outcome.mixers[i].read;
    mixers.push_back({{"read", RequestWord(read.result)},
                      {"length", read.length},
                      {"systemCode", read.systemCode}});
  }
  return {{"call", "ZTK_GetFirmwareVersionIndex"},
          {"mixersFound", outcome.mixersFound},
          {"mixers", mixers}};
}

Json Versions() {
  ZTKTextRef library = nullptr;
  const bool found =
      ZTK_GetLibraryVersionText(ZTK_PRODUCT_VRM_D6, &library) == ZTK_SUCCESS;
  utsname system{};
  uname(&system);
  return {{"ztk", build::kVersion},
          {"library", found ? Json(Utf8(library)) : Json()},
          {"system", std::string(system.sysname) + " " + system.release + " " +
                         system.machine}};
}

// Paths below the user's home begin with "~".
std::string WithoutHome(std::string text) {
  const std::string home = cli::Variable("HOME");
  if (home.size() < 2) return text;
  for (std::size_t at = text.find(home); at != std::string::npos;
       at = text.find(home, at + 1)) {
    text.replace(at, home.size(), "~");
  }
  return text;
}

// Leaves out causes and commands, which can contain the name of the user.
Json FindingList(const Json &findings) {
  Json list = Json::array();
  for (const Json &finding : findings) {
    list.push_back(
        {{"part", finding["part"]},
         {"id", finding["id"]},
         {"severity", finding["severity"]},
         {"finding", WithoutHome(finding["finding"].get<std::string>())}});
  }
  return list;
}

}  // namespace

Json MakeMixerReport(const Json &findings) {
  const std::vector<std::string> places = MixerPlaces();
  Json others = Json::array();
  std::map<std::string, std::string> speeds;
  for (const UsbDevice &device : UsbDevices()) {
    speeds[device.place] = device.speed;
    const bool isMixer =
        std::find(places.begin(), places.end(), device.place) != places.end();
    if (isMixer) continue;
    others.push_back({{"class", OrNull(device.deviceClass)},
                      {"speed", OrNull(device.speed)}});
  }
  Json mixers = Json::array();
  for (std::size_t i = 0; i < places.size(); ++i) {
    mixers.push_back(MixerAt(i, places[i], speeds[places[i]]));
  }
  return {{"format", "ztk-report"},
          {"formatVersion", kFormatVersion},
          {"versions", Versions()},
          {"mixers", std::move(mixers)},
          {"otherDevices", std::move(others)},
          {"settings", SettingsNow()},
          {"lastOutcome", LastOutcome()},
          {"findings", FindingList(findings)}};
}

std::string WriteMixerReport(const Json &report, const std::string &file) {
  const std::string text =
      report.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
  model::File opened = model::OpenFile(file, "we");
  const bool written = opened && std::fwrite(text.data(), 1, text.size(),
                                             opened.get()) == text.size();
  // Closing writes what is still in the buffer.
  if (written && std::fclose(opened.release()) == 0) return "";
  return "the report cannot be written to " + cli::Quoted(file) + ": " +
         std::strerror(errno);
}

}  // namespace ztk::program
