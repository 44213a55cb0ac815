// SPDX-License-Identifier: MIT
//
// Sends signals with any signature and any body to two observers. There is no
// bus, because a bus would reject malformed signals.
//
// The input is a byte of flags, then the body. Flag 1: the signature is in the
// input, as a byte with its length and its characters; otherwise it is the
// correct one. Flag 2: the body starts with an observed name. Flag 4: this name
// is the second one.
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

#include "platform/linux/bus_connection.h"
#include "platform/linux/bus_message.h"
#include "platform/linux/bus_source.h"
#include "platform/linux/sd_bus_header.h"
#include "platform/notification_center.h"

// In this namespace, the functions of sd-bus are those of the loaded library.
namespace ztk::platform::notification_center {

namespace {

constexpr char kName[] = "VRM-D6 InputAudio Change";
// The match rule cannot contain this name, so every signal is read.
constexpr char kUnquotableName[] = "it's";

void Require(bool condition) {
  if (!condition) std::abort();
}

void Take(void *observer, const UserInfo *userInfo) {
  auto *sum = static_cast<std::int64_t *>(observer);
  *sum += ReadNumber(userInfo, "ProductID");
  *sum += ReadNumber(userInfo, "Channel");
  *sum += ReadNumber(userInfo, "Index");
}

void Pad(std::string *bytes, std::size_t alignment) {
  while (bytes->size() % alignment != 0) bytes->push_back('\0');
}

void PutNumber(std::string *bytes, std::size_t number) {
  for (int shift = 0; shift < 32; shift += 8) {
    bytes->push_back(static_cast<char>(number >> shift & 0xFF));
  }
}

void PutText(std::string *bytes, std::string_view text) {
  PutNumber(bytes, text.size());
  bytes->append(text).push_back('\0');
}

// Appends a field of the message's header: its number, its type and its value.
void PutField(std::string *bytes, char field, char type,
              std::string_view text) {
  Pad(bytes, 8);
  bytes->push_back(field);
  bytes->append({'\1', type, '\0'});
  if (type == 'g') {
    bytes->push_back(static_cast<char>(text.size()));
    bytes->append(text).push_back('\0');
  } else {
    PutText(bytes, text);
  }
}

// Returns a signal in the D-Bus wire format, little-endian.
std::string Signal(std::string_view signature, std::string_view body) {
  std::string fields;
  PutField(&fields, 1, 'o', kBusPath);
  PutField(&fields, 2, 's', kBusInterface);
  PutField(&fields, 3, 's', kBusMember);
  if (!signature.empty()) PutField(&fields, 8, 'g', signature);

  std::string bytes = {'l', '\4', '\1', '\1'};
  PutNumber(&bytes, body.size());
  PutNumber(&bytes, 1);
  PutNumber(&bytes, fields.size());
  bytes.append(fields);
  Pad(&bytes, 8);
  return bytes.append(body);
}

// Two connected sockets. The observers receive from one, and the other sends
// the input.
class Wire {
 public:
  Wire() : receiver_(NewBus()), sender_(NewBus()) {
    int ends[2];
    Require(socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0,
                       ends) == 0);
    sd_id128_t id{};
    id.bytes[0] = 1;
    Require(sd_bus_set_server(receiver_.get(), 1, id) >= 0);
    Start(receiver_.get(), ends[0]);
    Start(sender_.get(), ends[1]);
    while (sd_bus_is_ready(receiver_.get()) <= 0 ||
           sd_bus_is_ready(sender_.get()) <= 0) {
      Require(sd_bus_process(receiver_.get(), nullptr) >= 0);
      Require(sd_bus_process(sender_.get(), nullptr) >= 0);
    }
    Observe(kName);
    Observe(kUnquotableName);
  }

  // Returns false if the receiver has closed the connection.
  bool Deliver(const std::string &bytes) {
    const ssize_t sent = send(sd_bus_get_fd(sender_.get()), bytes.data(),
                              bytes.size(), MSG_NOSIGNAL);
    if (sent != static_cast<ssize_t>(bytes.size())) return false;
    int progress = 0;
    while ((progress = sd_bus_process(receiver_.get(), nullptr)) > 0) {
    }
    return progress == 0 && sd_bus_is_open(receiver_.get()) > 0;
  }

 private:
  static OwnedBus NewBus() {
    Require(SdBus() != nullptr);
    sd_bus *bus = nullptr;
    Require(sd_bus_new(&bus) >= 0);
    return OwnedBus(bus);
  }
  static void Start(sd_bus *bus, int descriptor) {
    Require(sd_bus_set_fd(bus, descriptor, descriptor) >= 0);
    Require(sd_bus_set_anonymous(bus, 1) >= 0);
    Require(sd_bus_start(bus) >= 0);
  }
  void Observe(const char *name) {
    auto registration = std::make_unique<Registration>(
        Registration{.observer = &sum_, .code = Take, .name = name});
    Require(AddRegistration(receiver_.get(), &registration));
  }

  std::int64_t sum_ = 0;
  OwnedBus receiver_;
  OwnedBus sender_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data,
                                      std::size_t size) {
  // The connection is used for many inputs, because making it takes longer than
  // using it.
  static std::unique_ptr<Wire> wire;
  if (size == 0) return 0;
  std::string_view input(reinterpret_cast<const char *>(data), size);
  const int flags = data[0];
  input.remove_prefix(1);

  std::string_view signature = "sa{si}b";
  if ((flags & 1) != 0 && !input.empty()) {
    const auto length = static_cast<unsigned char>(input[0]);
    signature = input.substr(1, length);
    input.remove_prefix(std::min<std::size_t>(1U + length, input.size()));
  }
  std::string body;
  if ((flags & 2) != 0) {
    PutText(&body, (flags & 4) != 0 ? kUnquotableName : kName);
    Pad(&body, 4);
  }
  body.append(input);

  if (wire == nullptr) wire = std::make_unique<Wire>();
  if (!wire->Deliver(Signal(signature, body))) wire.reset();
  return 0;
}

}  // namespace ztk::platform::notification_center
