// SPDX-License-Identifier: MIT
//
// The way from a program to the owner of a world of mixers: a Unix socket, one
// command line and one answer line for each connection.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_CONTROL_CONTROL_SOCKET_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_CONTROL_CONTROL_SOCKET_H_

#include <functional>
#include <string>
#include <string_view>
#include <thread>

#include "common/file_descriptor.h"

namespace ztk::virtual_mixer {

// Names the socket's path to programs.
inline constexpr char kControlVariable[] = "ZTK_VIRTUAL_MIXER_CONTROL";

class ControlServer {
 public:
  // Gets a line without its end and gives the answer, also without one. Called
  // on the server's thread.
  using Handler = std::function<std::string(std::string_view line)>;

  // Listens at `path` until it goes. Throws std::runtime_error if it cannot.
  ControlServer(const std::string &path, Handler handler);
  ~ControlServer();
  ControlServer(const ControlServer &) = delete;
  ControlServer &operator=(const ControlServer &) = delete;

 private:
  void Serve();
  void Answer(int connection);

  const Handler handler_;
  FileDescriptor listener_;
  // Readable once the server is to end.
  FileDescriptor ended_;
  std::thread thread_;
};

// Sends one command and returns the answer. Throws std::runtime_error when
// nobody answers.
std::string AskControl(const std::string &path, const std::string &line);

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_CONTROL_CONTROL_SOCKET_H_
