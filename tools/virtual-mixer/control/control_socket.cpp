// SPDX-License-Identifier: MIT
#include "virtual-mixer/control/control_socket.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <utility>

namespace ztk::virtual_mixer {
namespace {

// A client that says nothing must not keep the others waiting.
constexpr timeval kPatience{.tv_sec = 2, .tv_usec = 0};
constexpr std::size_t kLongestLine = 1 << 20;

sockaddr_un AddressOf(const std::string &path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (path.size() >= sizeof address.sun_path) {
    throw std::runtime_error("the path of the control socket is too long: " +
                             path);
  }
  std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
  return address;
}

FileDescriptor MakeSocket() {
  FileDescriptor made(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  if (made.Get() < 0) throw std::runtime_error("cannot make a socket");
  return made;
}

const sockaddr *Generic(const sockaddr_un *address) {
  return reinterpret_cast<const sockaddr *>(address);
}

bool SendLine(int connection, const std::string &line) {
  return WriteAll(line + '\n',
                  [connection](const char *data, std::size_t size) {
                    return send(connection, data, size, MSG_NOSIGNAL);
                  });
}

// One line without its end; false when the other side stops before it.
bool ReceiveLine(int connection, std::string *line) {
  std::array<char, 4096> part{};
  while (line->size() < kLongestLine) {
    const ssize_t got = recv(connection, part.data(), part.size(), 0);
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) return false;
    line->append(part.data(), static_cast<std::size_t>(got));
    const std::size_t end = line->find('\n');
    if (end == std::string::npos) continue;
    line->resize(end);
    return true;
  }
  return false;
}

}  // namespace

ControlServer::ControlServer(const std::string &path, Handler handler)
    : handler_(std::move(handler)),
      listener_(MakeSocket()),
      ended_(eventfd(0, EFD_CLOEXEC)) {
  const sockaddr_un address = AddressOf(path);
  if (ended_.Get() < 0 ||
      bind(listener_.Get(), Generic(&address), sizeof address) != 0 ||
      listen(listener_.Get(), 16) != 0) {
    throw std::runtime_error("cannot listen at " + path + ": " +
                             std::strerror(errno));
  }
  thread_ = std::thread([this] { Serve(); });
}

ControlServer::~ControlServer() {
  const std::uint64_t one = 1;
  if (write(ended_.Get(), &one, sizeof one) == sizeof one) thread_.join();
}

void ControlServer::Serve() {
  std::array<pollfd, 2> watched{
      {{listener_.Get(), POLLIN, 0}, {ended_.Get(), POLLIN, 0}}};
  while (true) {
    if (poll(watched.data(), watched.size(), -1) < 0) continue;
    if (watched[1].revents != 0) return;
    if (watched[0].revents == 0) continue;
    const FileDescriptor connection(
        accept4(listener_.Get(), nullptr, nullptr, SOCK_CLOEXEC));
    if (connection.Get() >= 0) Answer(connection.Get());
  }
}

void ControlServer::Answer(int connection) {
  setsockopt(connection, SOL_SOCKET, SO_RCVTIMEO, &kPatience, sizeof kPatience);
  setsockopt(connection, SOL_SOCKET, SO_SNDTIMEO, &kPatience, sizeof kPatience);
  std::string line;
  if (ReceiveLine(connection, &line)) SendLine(connection, handler_(line));
}

std::string AskControl(const std::string &path, const std::string &line) {
  const sockaddr_un address = AddressOf(path);
  const FileDescriptor connection = MakeSocket();
  if (connect(connection.Get(), Generic(&address), sizeof address) != 0) {
    if (errno == EACCES) {
      throw std::runtime_error("the mixers at " + path +
                               " are another user's; only who started them, "
                               "or root, may change them");
    }
    throw std::runtime_error("the mixers at " + path + " have ended");
  }
  std::string answer;
  if (!SendLine(connection.Get(), line) ||
      !ReceiveLine(connection.Get(), &answer)) {
    throw std::runtime_error("the mixers do not answer");
  }
  return answer;
}

}  // namespace ztk::virtual_mixer
