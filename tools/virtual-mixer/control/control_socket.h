// SPDX-License-Identifier: MIT
//
// The Unix socket over which programs control virtual mixers that run: one
// command line and one answer line for each connection.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_CONTROL_CONTROL_SOCKET_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_CONTROL_CONTROL_SOCKET_H_

#include <chrono>
#include <functional>
#include <string>
#include <string_view>
#include <thread>

#include "platform/common/file_descriptor.h"

namespace ztk::virtual_mixer {

// Names the socket's path to programs.
inline constexpr char kControlVariable[] = "ZTK_VIRTUAL_MIXER_CONTROL";

class ControlServer {
 public:
  // Gets a line without its end and returns the answer, also without one.
  // Called on the server's thread.
  using Handler = std::function<std::string(std::string_view line)>;

  // Time that a client has to send its whole line, and then to take the whole
  // answer: clients are served one after another.
  static constexpr std::chrono::milliseconds kPatience{2000};

  // Listens at `path`, which only this user (and root) can connect to, as long
  // as this object exists. Throws std::runtime_error if it cannot.
  ControlServer(const std::string &path, Handler handler,
                std::chrono::milliseconds patience = kPatience);
  ~ControlServer();
  ControlServer(const ControlServer &) = delete;
  ControlServer &operator=(const ControlServer &) = delete;

 private:
  void Serve();
  void Answer(int connection);

  const Handler handler_;
  const std::chrono::milliseconds patience_;
  platform::FileDescriptor listener_;
  // Readable once the server is to end.
  platform::FileDescriptor ended_;
  std::thread thread_;
};

// A command waits for the mixers and, where they are attached to a kernel, for
// the kernel, which needs seconds for each mixer that is plugged in.
inline constexpr std::chrono::seconds kLongestCommand{600};

// Sends one command and returns the answer. Throws std::runtime_error when
// there is no whole answer within this time.
std::string AskControl(const std::string &path, const std::string &line,
                       std::chrono::milliseconds longest = kLongestCommand);

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_CONTROL_CONTROL_SOCKET_H_
