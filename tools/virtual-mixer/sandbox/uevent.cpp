// SPDX-License-Identifier: MIT
#include "virtual-mixer/sandbox/uevent.h"

#include <arpa/inet.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "platform/common/file_descriptor.h"

namespace ztk::virtual_mixer {
namespace {

namespace fs = std::filesystem;

constexpr std::uint32_t kMagic = 0xFEEDCAFE;
// umockdev's sockets are named event0, event1, ...
constexpr std::string_view kSocketName = "event";

// The header before the properties. Numbers named "...Hash" and the magic are
// in network byte order, as the filters of the kernel read them.
struct Header {
  char prefix[8] = "libudev";
  std::uint32_t magic = htonl(kMagic);
  std::uint32_t headerSize = sizeof(Header);
  std::uint32_t propertiesOffset = sizeof(Header);
  std::uint32_t propertiesLength = 0;
  std::uint32_t subsystemHash = 0;
  std::uint32_t devtypeHash = 0;
  // Bloom filter of the tags; the devices have none.
  std::uint32_t tagsHigh = 0;
  std::uint32_t tagsLow = 0;
};

std::uint32_t LittleEndianWord(std::string_view text) {
  std::uint32_t word = 0;
  for (std::size_t i = 0; i < text.size() && i < 4; ++i) {
    word |= static_cast<std::uint32_t>(static_cast<unsigned char>(text[i]))
            << (8 * i);
  }
  return word;
}

// MurmurHash2 with seed 0, which libudev filters subsystems by.
std::uint32_t Hash(std::string_view text) {
  constexpr std::uint32_t kFactor = 0x5BD1E995;
  auto hash = static_cast<std::uint32_t>(text.size());
  for (; text.size() >= 4; text.remove_prefix(4)) {
    std::uint32_t word = LittleEndianWord(text) * kFactor;
    word ^= word >> 24;
    hash = (hash * kFactor) ^ (word * kFactor);
  }
  if (!text.empty()) hash = (hash ^ LittleEndianWord(text)) * kFactor;
  hash = (hash ^ (hash >> 13)) * kFactor;
  return hash ^ (hash >> 15);
}

std::string ValueOf(const Properties &properties, std::string_view name) {
  for (const auto &[key, value] : properties) {
    if (key == name) return value;
  }
  return "";
}

void SendTo(const std::string &path, const std::string &message) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (path.size() >= sizeof address.sun_path) return;
  std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
  const platform::FileDescriptor sender(
      socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
  sendto(sender.get(), message.data(), message.size(), MSG_NOSIGNAL,
         reinterpret_cast<const sockaddr *>(&address), sizeof address);
}

}  // namespace

std::string LibudevMessage(const Uevent &event) {
  std::string properties;
  const auto add = [&](const std::string &name, const std::string &value) {
    properties += name + "=" + value + '\0';
  };
  add("ACTION", event.action);
  add("DEVPATH", event.devPath);
  for (const auto &[name, value] : event.properties) add(name, value);
  add("SEQNUM", std::to_string(event.sequence));

  Header header;
  header.propertiesLength = static_cast<std::uint32_t>(properties.size());
  header.subsystemHash = htonl(Hash(ValueOf(event.properties, "SUBSYSTEM")));
  header.devtypeHash = htonl(Hash(ValueOf(event.properties, "DEVTYPE")));
  std::string message(reinterpret_cast<const char *>(&header), sizeof header);
  return message + properties;
}

void SendUevent(const std::string &rootDir, const Uevent &event) {
  const std::string message = LibudevMessage(event);
  std::error_code ignored;
  for (const auto &entry : fs::directory_iterator(rootDir, ignored)) {
    const std::string name = entry.path().filename();
    if (name.starts_with(kSocketName)) SendTo(entry.path(), message);
  }
}

}  // namespace ztk::virtual_mixer
