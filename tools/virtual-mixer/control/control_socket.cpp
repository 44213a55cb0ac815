// SPDX-License-Identifier: MIT
#include "virtual-mixer/control/control_socket.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <utility>

namespace ztk::virtual_mixer {
namespace {

using Clock = std::chrono::steady_clock;

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

platform::FileDescriptor MakeSocket() {
  platform::FileDescriptor made(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  if (made.get() < 0) throw std::runtime_error("cannot make a socket");
  return made;
}

const sockaddr *Generic(const sockaddr_un *address) {
  return reinterpret_cast<const sockaddr *>(address);
}

// Waits until the socket can be read or written. False at the deadline.
bool WaitFor(int socket, short events, Clock::time_point deadline) {
  while (true) {
    const auto left =
        std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
    if (left.count() <= 0) return false;
    pollfd watched{.fd = socket, .events = events, .revents = 0};
    const int ready =
        poll(&watched, 1,
             static_cast<int>(std::min<std::int64_t>(left.count(), INT_MAX)));
    if (ready > 0) return true;
    if (ready < 0 && errno != EINTR) return false;
  }
}

// False when the other side closes, or has not taken all by the deadline.
bool SendLine(int connection, const std::string &line,
              Clock::time_point deadline) {
  return platform::WriteAll(
      line + '\n', [&](const char *data, std::size_t size) {
        if (!WaitFor(connection, POLLOUT, deadline)) return ssize_t{0};
        const ssize_t sent =
            send(connection, data, size, MSG_NOSIGNAL | MSG_DONTWAIT);
        if (sent < 0 && errno == EAGAIN) errno = EINTR;  // to be tried again
        return sent;
      });
}

// Reads one line without its end. False when the other side stops before the
// end of the line, or has not sent all of it by the deadline.
bool ReceiveLine(int connection, std::string *line,
                 Clock::time_point deadline) {
  std::array<char, 4096> part{};
  while (line->size() < kLongestLine) {
    if (!WaitFor(connection, POLLIN, deadline)) return false;
    const ssize_t got =
        recv(connection, part.data(), part.size(), MSG_DONTWAIT);
    if (got < 0 && (errno == EINTR || errno == EAGAIN)) continue;
    if (got <= 0) return false;
    line->append(part.data(), static_cast<std::size_t>(got));
    const std::size_t end = line->find('\n');
    if (end == std::string::npos) continue;
    line->resize(end);
    return true;
  }
  return false;
}

// Binds the socket to the path and gives it the mode 0600, whatever the umask:
// never more on the way, as the mode is that of the descriptor without the bits
// of the umask, and not less in the end.
bool BindPrivately(int listener, const std::string &path) {
  const sockaddr_un address = AddressOf(path);
  return fchmod(listener, 0600) == 0 &&
         bind(listener, Generic(&address), sizeof address) == 0 &&
         chmod(path.c_str(), 0600) == 0;
}

}  // namespace

ControlServer::ControlServer(const std::string &path, Handler handler,
                             std::chrono::milliseconds patience)
    : handler_(std::move(handler)),
      patience_(patience),
      listener_(MakeSocket()),
      ended_(eventfd(0, EFD_CLOEXEC)) {
  if (!ended_.valid() || !BindPrivately(listener_.get(), path) ||
      listen(listener_.get(), 16) != 0) {
    throw std::runtime_error("cannot listen at " + path + ": " +
                             std::strerror(errno));
  }
  thread_ = std::thread([this] { Serve(); });
}

ControlServer::~ControlServer() {
  const std::uint64_t one = 1;
  if (write(ended_.get(), &one, sizeof one) == sizeof one) thread_.join();
}

void ControlServer::Serve() {
  std::array<pollfd, 2> watched{
      {{listener_.get(), POLLIN, 0}, {ended_.get(), POLLIN, 0}}};
  while (true) {
    if (poll(watched.data(), watched.size(), -1) < 0) continue;
    if (watched[1].revents != 0) return;
    if (watched[0].revents == 0) continue;
    const platform::FileDescriptor connection(
        accept4(listener_.get(), nullptr, nullptr, SOCK_CLOEXEC));
    if (connection.get() >= 0) Answer(connection.get());
  }
}

void ControlServer::Answer(int connection) {
  std::string line;
  if (!ReceiveLine(connection, &line, Clock::now() + patience_)) return;
  const std::string answer = handler_(line);
  SendLine(connection, answer, Clock::now() + patience_);
}

std::string AskControl(const std::string &path, const std::string &line,
                       std::chrono::milliseconds longest) {
  const sockaddr_un address = AddressOf(path);
  const platform::FileDescriptor connection = MakeSocket();
  if (connect(connection.get(), Generic(&address), sizeof address) != 0) {
    if (errno == EACCES) {
      throw std::runtime_error("the mixers at " + path +
                               " are another user's; only who started them, "
                               "or root, may change them");
    }
    throw std::runtime_error("the mixers at " + path + " have ended");
  }
  const Clock::time_point deadline = Clock::now() + longest;
  std::string answer;
  if (!SendLine(connection.get(), line, deadline) ||
      !ReceiveLine(connection.get(), &answer, deadline)) {
    throw std::runtime_error("the mixers do not answer");
  }
  return answer;
}

}  // namespace ztk::virtual_mixer
