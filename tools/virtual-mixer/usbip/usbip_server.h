// SPDX-License-Identifier: MIT
//
// The sockets of the USB/IP server: one thread listens and serves all clients.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_USBIP_USBIP_SERVER_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_USBIP_USBIP_SERVER_H_

#include <list>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "platform/common/file_descriptor.h"
#include "virtual-mixer/usbip/usbip_session.h"

namespace ztk::virtual_mixer::usbip {

// Address to listen at: "127.0.0.1:3240", "[::1]:3240", "localhost:0".
struct ListenAddress {
  std::string host;
  std::string port;
};
// Throws std::runtime_error with what is accepted.
ListenAddress ParseListenAddress(const std::string &text);

class Server {
 public:
  explicit Server(Devices *devices);
  // Clients that still wait for an answer lose their device.
  ~Server();
  Server(const Server &) = delete;
  Server &operator=(const Server &) = delete;

  // Accepts clients at this address from now on. Returns the address with the
  // real port in place of 0. Throws std::runtime_error when it cannot. To be
  // called once.
  std::string Listen(const ListenAddress &address);
  // Serves a client that has its device already.
  void Adopt(platform::FileDescriptor socket, const Lease &lease);
  // Makes the thread check whether devices have gone.
  void Wake();

 private:
  struct Client {
    platform::FileDescriptor socket;
    std::unique_ptr<Session> session;
    bool closed = false;
  };
  // Of the clients that have no device yet. Each of the others has a device of
  // its own, so their number is limited too.
  static constexpr std::size_t kMostWithoutDevice = 64;

  void Serve();
  int PollTimeout() const;
  // False when the server has to end.
  bool TakeNewcomers();
  void Accept();
  void Read(Client *client);
  static void Write(Client *client);

  Devices *const devices_;
  std::mutex mutex_;
  // Guarded by mutex_; the thread takes them over.
  std::vector<Client> newcomers_;
  platform::FileDescriptor newListener_;
  bool stopping_ = false;
  // Used by the thread only.
  platform::FileDescriptor listener_;
  std::list<Client> clients_;
  // Readable when a guarded member has changed.
  platform::FileDescriptor woken_;
  std::thread thread_;
};

}  // namespace ztk::virtual_mixer::usbip

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_USBIP_USBIP_SERVER_H_
