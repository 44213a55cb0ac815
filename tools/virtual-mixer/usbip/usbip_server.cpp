// SPDX-License-Identifier: MIT
#include "virtual-mixer/usbip/usbip_server.h"

#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstring>
#include <stdexcept>
#include <utility>

#include "cli/strings.h"

namespace ztk::virtual_mixer::usbip {
namespace {

using Clock = Session::Clock;

constexpr int kOn = 1;

[[noreturn]] void Refuse(const ListenAddress &address, const std::string &why) {
  throw std::runtime_error("cannot listen at " + address.host + ":" +
                           address.port + ": " + why);
}

std::string BoundPort(int listener) {
  sockaddr_storage bound{};
  socklen_t size = sizeof bound;
  getsockname(listener, reinterpret_cast<sockaddr *>(&bound), &size);
  const std::uint16_t port =
      bound.ss_family == AF_INET6
          ? reinterpret_cast<const sockaddr_in6 *>(&bound)->sin6_port
          : reinterpret_cast<const sockaddr_in *>(&bound)->sin_port;
  return std::to_string(ntohs(port));
}

// A listening socket; none, with errno set, when this address cannot be used.
platform::FileDescriptor ListenAt(const addrinfo &found) {
  platform::FileDescriptor made(
      socket(found.ai_family, found.ai_socktype | SOCK_CLOEXEC | SOCK_NONBLOCK,
             found.ai_protocol));
  if (made.get() < 0) return made;
  setsockopt(made.get(), SOL_SOCKET, SO_REUSEADDR, &kOn, sizeof kOn);
  if (bind(made.get(), found.ai_addr, found.ai_addrlen) != 0 ||
      listen(made.get(), 16) != 0) {
    const int why = errno;
    made = platform::FileDescriptor();
    errno = why;
  }
  return made;
}

// The kernel of the client takes the socket over and does not close it when the
// network fails, so the server has to notice it.
void PrepareClient(int socket) {
  setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &kOn, sizeof kOn);
  setsockopt(socket, SOL_SOCKET, SO_KEEPALIVE, &kOn, sizeof kOn);
}

}  // namespace

ListenAddress ParseListenAddress(const std::string &text) {
  const std::size_t colon = text.rfind(':');
  ListenAddress address;
  if (colon != std::string::npos) {
    address.host = text.substr(0, colon);
    address.port = text.substr(colon + 1);
  }
  const bool bracketed = address.host.size() > 2 &&
                         address.host.front() == '[' &&
                         address.host.back() == ']';
  const bool bare = address.host.find_first_of("[]:") == std::string::npos;
  if (address.host.empty() || (!bracketed && !bare) ||
      !cli::ParseNumber(address.port, 0, 65535)) {
    throw std::runtime_error("bad address \"" + text +
                             "\"; accepted: ADDRESS:PORT, as 127.0.0.1:3240 "
                             "or [::1]:3240");
  }
  return address;
}

Server::Server(Devices *devices)
    : devices_(devices), woken_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
  if (woken_.get() < 0) throw std::runtime_error("cannot make an event");
  thread_ = std::thread([this] { Serve(); });
}

Server::~Server() {
  {
    const std::lock_guard lock(mutex_);
    stopping_ = true;
  }
  Wake();
  thread_.join();
}

std::string Server::Listen(const ListenAddress &address) {
  std::string host = address.host;
  if (host.front() == '[') host = host.substr(1, host.size() - 2);
  addrinfo wanted{};
  wanted.ai_socktype = SOCK_STREAM;
  wanted.ai_flags = AI_PASSIVE;
  addrinfo *found = nullptr;
  const int failure =
      getaddrinfo(host.c_str(), address.port.c_str(), &wanted, &found);
  if (failure != 0) Refuse(address, gai_strerror(failure));
  platform::FileDescriptor made;
  for (const addrinfo *one = found; one != nullptr && made.get() < 0;
       one = one->ai_next) {
    made = ListenAt(*one);
  }
  const int why = errno;
  freeaddrinfo(found);
  if (made.get() < 0) Refuse(address, std::strerror(why));
  const std::string bound = address.host + ":" + BoundPort(made.get());
  {
    const std::lock_guard lock(mutex_);
    newListener_ = std::move(made);
  }
  Wake();
  return bound;
}

void Server::Adopt(platform::FileDescriptor socket, const Lease &lease) {
  {
    const std::lock_guard lock(mutex_);
    newcomers_.push_back({.socket = std::move(socket),
                          .session = std::make_unique<Session>(devices_, lease),
                          .closed = false});
  }
  Wake();
}

void Server::Wake() {
  const std::uint64_t one = 1;
  // It fails only when the count is at its limit, and then the thread wakes
  // anyway.
  [[maybe_unused]] const ssize_t written =
      write(woken_.get(), &one, sizeof one);
}

void Server::Serve() {
  std::vector<pollfd> watched;
  while (true) {
    if (!TakeNewcomers()) break;
    watched.assign({{woken_.get(), POLLIN, 0}, {listener_.get(), POLLIN, 0}});
    for (const Client &client : clients_) {
      short events = client.session->WantsInput() ? POLLIN : 0;
      if (!client.session->Output().empty()) events |= POLLOUT;
      watched.push_back({client.socket.get(), events, 0});
    }
    if (poll(watched.data(), watched.size(), PollTimeout()) < 0) continue;
    std::uint64_t count = 0;
    [[maybe_unused]] const ssize_t got =
        read(woken_.get(), &count, sizeof count);
    const Clock::time_point now = Clock::now();
    std::size_t at = 2;
    for (Client &client : clients_) {
      if (watched[at++].revents != 0) Read(&client);
      client.session->Continue(now);
      Write(&client);
    }
    clients_.remove_if([](const Client &client) { return client.closed; });
    if (watched[1].revents != 0) Accept();
  }
  clients_.clear();
}

int Server::PollTimeout() const {
  std::optional<Clock::time_point> next;
  for (const Client &client : clients_) {
    const auto due = client.session->NextDue();
    if (due && (!next || *due < *next)) next = due;
  }
  if (!next) return -1;
  const auto wait =
      std::chrono::ceil<std::chrono::milliseconds>(*next - Clock::now());
  return static_cast<int>(std::clamp<std::int64_t>(wait.count(), 0, INT_MAX));
}

bool Server::TakeNewcomers() {
  const std::lock_guard lock(mutex_);
  for (Client &client : newcomers_) clients_.push_back(std::move(client));
  newcomers_.clear();
  if (newListener_.get() >= 0) listener_ = std::move(newListener_);
  return !stopping_;
}

void Server::Accept() {
  platform::FileDescriptor socket(
      accept4(listener_.get(), nullptr, nullptr, SOCK_CLOEXEC));
  if (!socket.valid()) return;
  // One too many is turned away, so that nobody can use all descriptors up.
  const auto withoutDevice = std::count_if(
      clients_.begin(), clients_.end(),
      [](const Client &client) { return !client.session->HasDevice(); });
  if (static_cast<std::size_t>(withoutDevice) >= kMostWithoutDevice) return;
  PrepareClient(socket.get());
  clients_.push_back(
      {.socket = std::move(socket),
       .session = std::make_unique<Session>(devices_, Clock::now()),
       .closed = false});
}

void Server::Read(Client *client) {
  std::array<std::uint8_t, 16384> part{};
  if (!client->session->WantsInput()) return;
  const ssize_t got =
      recv(client->socket.get(), part.data(), part.size(), MSG_DONTWAIT);
  if (got > 0) {
    client->session->Receive(part.data(), static_cast<std::size_t>(got),
                             Clock::now());
  } else if (got == 0 || (errno != EAGAIN && errno != EINTR)) {
    client->closed = true;
  }
}

void Server::Write(Client *client) {
  Session &session = *client->session;
  while (!session.Output().empty() && !client->closed) {
    const ssize_t sent =
        send(client->socket.get(), session.Output().data(),
             session.Output().size(), MSG_NOSIGNAL | MSG_DONTWAIT);
    if (sent > 0) {
      session.Sent(static_cast<std::size_t>(sent));
      continue;
    }
    if (errno == EINTR) continue;
    if (errno != EAGAIN) client->closed = true;
    break;
  }
  if (session.Ended() && session.Output().empty()) client->closed = true;
}

}  // namespace ztk::virtual_mixer::usbip
