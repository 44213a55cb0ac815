// SPDX-License-Identifier: MIT
#include "support/private_bus.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace ztk::test {

namespace {

constexpr char kVariable[] = "DBUS_SESSION_BUS_ADDRESS";

void WriteConfiguration(const std::string &file, const std::string &address) {
  std::ofstream(file) << "<busconfig>"
                         "<type>session</type>"
                         "<auth>EXTERNAL</auth>"
                         "<policy context='default'>"
                         "<allow send_destination='*'/>"
                         "<allow receive_sender='*'/>"
                         "<allow own='*'/>"
                         "</policy>"
                      << "<listen>" << address << "</listen></busconfig>";
}

[[noreturn]] void RunDaemon(const char *configuration, int addressPipe) {
  // The bus also ends if the test crashes.
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  dup2(addressPipe, STDOUT_FILENO);
  // The daemon reports limits that it is not allowed to raise. The tests do not
  // need them.
  const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
  dup2(nowhere, STDERR_FILENO);
  execlp("dbus-daemon", "dbus-daemon", configuration, "--print-address",
         "--nofork", static_cast<char *>(nullptr));
  _exit(127);
}

// Waits until a text arrives, and returns true. Returns false if the other end
// is closed first.
bool WaitForText(int descriptor) {
  char text[256];
  ssize_t length = 0;
  do {
    length = read(descriptor, text, sizeof(text));
  } while (length < 0 && errno == EINTR);
  return length > 0;
}

}  // namespace

PrivateBus::PrivateBus() {
  std::string folder = std::filesystem::temp_directory_path() / "busXXXXXX";
  if (mkdtemp(folder.data()) == nullptr) std::abort();
  folder_ = folder;
  address_ = "unix:path=" + folder_ + "/bus";
  const char *former = std::getenv(kVariable);
  if (former != nullptr) formerAddress_ = former;
  setenv(kVariable, address_.c_str(), 1);
}

PrivateBus::~PrivateBus() {
  Stop();
  if (formerAddress_.has_value()) {
    setenv(kVariable, formerAddress_->c_str(), 1);
  } else {
    unsetenv(kVariable);
  }
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

bool PrivateBus::Start() {
  const std::string file = folder_ + "/bus.conf";
  WriteConfiguration(file, address_);
  const std::string configuration = "--config-file=" + file;
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) return false;
  daemon_ = fork();
  if (daemon_ == 0) RunDaemon(configuration.c_str(), ends[1]);
  close(ends[1]);
  const bool listening = daemon_ > 0 && WaitForText(ends[0]);
  close(ends[0]);
  if (!listening) Stop();
  return listening;
}

void PrivateBus::Stop() {
  if (daemon_ <= 0) return;
  kill(daemon_, SIGKILL);
  while (waitpid(daemon_, nullptr, 0) < 0 && errno == EINTR) {
  }
  daemon_ = -1;
  std::error_code ignored;
  std::filesystem::remove(folder_ + "/bus", ignored);
}

void PrivateBus::Suspend() {
  kill(daemon_, SIGSTOP);
  int status = 0;
  while (waitpid(daemon_, &status, WUNTRACED) < 0 && errno == EINTR) {
  }
}

void PrivateBus::Resume() { kill(daemon_, SIGCONT); }

}  // namespace ztk::test
