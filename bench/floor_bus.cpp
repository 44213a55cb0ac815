// SPDX-License-Identifier: MIT
//
// Sends one signal on the session bus, without a D-Bus library.
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <ctime>

#include "floor_parts.h"

namespace ztk::bench::floor {
namespace {

constexpr int kBufferSize = 8 << 20;
constexpr char kAuthentication[] =
    "\0AUTH EXTERNAL\r\nDATA\r\nNEGOTIATE_UNIX_FD\r\nBEGIN\r\n";
// The bus sends this line as the last one before the messages.
constexpr char kAgreed[] = "AGREE_UNIX_FD\r\n";

// A message starts with a fixed header, which has the two lengths at these
// offsets. The header fields are padded to a multiple of 8 bytes.
constexpr std::size_t kFixedHeader = 24;
constexpr std::size_t kBodyLengthAt = 4;
constexpr std::size_t kFieldsLengthAt = 12;
constexpr std::size_t kFieldsAt = 16;

constexpr char kHello[] =
    "l\1\0\1\0\0\0\0\1\0\0\0m\0\0\0"
    "\1\1o\0\25\0\0\0/org/freedesktop/DBus\0\0\0"
    "\3\1s\0\5\0\0\0Hello\0\0\0"
    "\2\1s\0\24\0\0\0org.freedesktop.DBus\0\0\0\0"
    "\6\1s\0\24\0\0\0org.freedesktop.DBus\0\0\0";
constexpr char kSignalHeader[] =
    "l\4\1\1d\0\0\0\2\0\0\0\225\0\0\0"
    "\1\1o\0)\0\0\0/com/tarvix/DistributedNotificationCenter\0\0\0\0\0\0\0"
    "\2\1s\0(\0\0\0com.tarvix.DistributedNotificationCenter"
    "\0\0\0\0\0\0\0\0"
    "\3\1s\0\f\0\0\0Notification\0\0\0\0"
    "\10\1g\0\7sa{si}b\0\0\0";
constexpr char kSignalBody[] =
    "\30\0\0\0VRM-D6 InputAudio Change\0\0\0\0"
    "8\0\0\0\0\0\0\0"
    "\t\0\0\0ProductID\0\0\0\n\0\0\0\0\0\0\0"
    "\7\0\0\0Channel\0\0\0\0\0"
    "\5\0\0\0Index\0\0\0\0\0\0\0"
    "\1\0\0";  // and the zero byte that ends the literal
static_assert(sizeof kHello == 128);
static_assert(sizeof kSignalHeader == 168);
static_assert(sizeof kSignalBody == 100);
constexpr std::size_t kChannelAt = 76;
constexpr std::size_t kIndexAt = 92;

sockaddr_un address;
socklen_t addressLength;
char body[sizeof kSignalBody];

void EnlargeBuffer(int socket, int option, int forcedOption) {
  int size = 0;
  socklen_t length = sizeof size;
  getsockopt(socket, SOL_SOCKET, option, &size, &length);
  setsockopt(socket, SOL_SOCKET, option, &kBufferSize, sizeof kBufferSize);
  getsockopt(socket, SOL_SOCKET, option, &size, &length);
  setsockopt(socket, SOL_SOCKET, forcedOption, &kBufferSize,
             sizeof kBufferSize);
}

// Makes the calls with which the library's bus client reads the properties of
// the socket.
void AskAboutPeer(int socket) {
  char answer[256];
  socklen_t length = sizeof(ucred);
  getsockopt(socket, SOL_SOCKET, SO_PEERCRED, answer, &length);
  length = 64;
  getsockopt(socket, SOL_SOCKET, SO_PEERSEC, answer, &length);
  length = sizeof answer;
  getsockopt(socket, SOL_SOCKET, SO_PEERGROUPS, answer, &length);
  struct stat status;
  fstat(socket, &status);
  length = sizeof(int);
  getsockopt(socket, SOL_SOCKET, SO_ACCEPTCONN, answer, &length);
  sockaddr_storage own;
  length = sizeof own;
  getsockname(socket, reinterpret_cast<sockaddr *>(&own), &length);
}

bool Send(int socket, const iovec *parts, std::size_t count) {
  msghdr message = {};
  message.msg_iov = const_cast<iovec *>(parts);
  message.msg_iovlen = count;
  return sendmsg(socket, &message, MSG_DONTWAIT | MSG_NOSIGNAL) > 0;
}

bool Send(int socket, const char *bytes, std::size_t size) {
  const iovec part = {.iov_base = const_cast<char *>(bytes), .iov_len = size};
  return Send(socket, &part, 1);
}

// Receives the available bytes. Tries to receive before it waits, as the
// library does, and waits for at most one second. Returns 0 if no bytes arrive.
std::size_t Receive(int socket, char *bytes, std::size_t size) {
  for (;;) {
    char control[256];
    iovec part = {.iov_base = bytes, .iov_len = size};
    msghdr message = {};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    message.msg_control = control;
    message.msg_controllen = sizeof control;
    const ssize_t got =
        recvmsg(socket, &message, MSG_DONTWAIT | MSG_CMSG_CLOEXEC);
    if (got > 0) return static_cast<std::size_t>(got);
    if (got == 0 || errno != EAGAIN) return 0;
    pollfd waiting = {.fd = socket, .events = POLLIN, .revents = 0};
    const timespec second = {.tv_sec = 1, .tv_nsec = 0};
    if (ppoll(&waiting, 1, &second, nullptr) <= 0) return 0;
  }
}

bool ReceiveAll(int socket, char *bytes, std::size_t size) {
  for (std::size_t done = 0; done < size;) {
    const std::size_t got = Receive(socket, bytes + done, size - done);
    if (got == 0) return false;
    done += got;
  }
  return true;
}

bool Authenticate(int socket) {
  if (!Send(socket, kAuthentication, sizeof kAuthentication - 1)) return false;
  char answer[256];
  std::size_t length = 0;
  constexpr std::size_t kEnd = sizeof kAgreed - 1;
  do {
    const std::size_t got =
        Receive(socket, answer + length, sizeof answer - length);
    if (got == 0) return false;
    length += got;
  } while (length < kEnd ||
           std::memcmp(answer + length - kEnd, kAgreed, kEnd) != 0);
  return true;
}

std::size_t NumberAt(const char *bytes) {
  std::uint32_t number = 0;
  std::memcpy(&number, bytes, sizeof number);
  return number;
}

bool SayHello(int socket) {
  char reply[512];
  if (!Send(socket, kHello, sizeof kHello)) return false;
  if (!ReceiveAll(socket, reply, kFixedHeader)) return false;
  const std::size_t fields = (NumberAt(reply + kFieldsLengthAt) + 7) & ~7UL;
  const std::size_t whole =
      kFieldsAt + fields + NumberAt(reply + kBodyLengthAt);
  if (whole > sizeof reply) return false;
  return ReceiveAll(socket, reply + kFixedHeader, whole - kFixedHeader);
}

}  // namespace

const char *PrepareBus() {
  constexpr char kPrefix[] = "unix:path=";
  constexpr std::size_t kPrefixLength = sizeof kPrefix - 1;
  const char *bus = std::getenv("DBUS_SESSION_BUS_ADDRESS");
  if (bus == nullptr || std::strncmp(bus, kPrefix, kPrefixLength) != 0) {
    return "DBUS_SESSION_BUS_ADDRESS is not a socket's path";
  }
  const char *path = bus + kPrefixLength;
  const std::size_t length = std::strcspn(path, ",;");
  if (length >= sizeof address.sun_path) return "the bus has too long a path";
  address.sun_family = AF_UNIX;
  std::memcpy(address.sun_path, path, length);
  addressLength =
      static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + length);
  std::memcpy(body, kSignalBody, sizeof body);
  return nullptr;
}

void AnnounceIndex(std::uint32_t channel, std::uint32_t index) {
  const int bus =
      socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
  if (bus < 0) return;
  EnlargeBuffer(bus, SO_RCVBUF, SO_RCVBUFFORCE);
  EnlargeBuffer(bus, SO_SNDBUF, SO_SNDBUFFORCE);
  if (connect(bus, reinterpret_cast<const sockaddr *>(&address),
              addressLength) == 0) {
    AskAboutPeer(bus);
    if (Authenticate(bus) && SayHello(bus)) {
      std::memcpy(body + kChannelAt, &channel, sizeof channel);
      std::memcpy(body + kIndexAt, &index, sizeof index);
      const iovec parts[] = {{.iov_base = const_cast<char *>(kSignalHeader),
                              .iov_len = sizeof kSignalHeader},
                             {.iov_base = body, .iov_len = sizeof body}};
      Send(bus, parts, 2);
    }
  }
  close(bus);
}

}  // namespace ztk::bench::floor
