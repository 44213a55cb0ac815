// SPDX-License-Identifier: MIT
#include "ztk/output.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>

#include "cli/terminal.h"

namespace ztk::program {

namespace {

// Waits until a stream that does not block can take more.
bool WaitUntilWritable(int stream) {
  pollfd polled{.fd = stream, .events = POLLOUT, .revents = 0};
  return poll(&polled, 1, -1) > 0 || errno == EINTR;
}

bool WriteAll(int stream, const std::string &text) {
  std::size_t done = 0;
  while (done < text.size()) {
    const ssize_t written =
        write(stream, text.data() + done, text.size() - done);
    if (written >= 0) {
      done += static_cast<std::size_t>(written);
    } else if (errno == EAGAIN) {
      if (!WaitUntilWritable(stream)) return false;
    } else if (errno != EINTR) {
      return false;
    }
  }
  return true;
}

}  // namespace

void PrepareStreams() {
  std::signal(SIGPIPE, SIG_IGN);
  for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
    if (fcntl(stream, F_GETFD) >= 0 || errno != EBADF) continue;
    // open() takes the lowest free number, which is this one. A folder can
    // neither be read nor written, and this one always exists.
    if (open("/", O_RDONLY | O_DIRECTORY) < 0) return;
  }
}

bool WriteOutput(const std::string &text) {
  return WriteAll(STDOUT_FILENO, text);
}

void WriteError(const std::string &line) {
  WriteAll(STDERR_FILENO, cli::MessageLine("ztk", line));
}

void WriteLineEnd() { WriteAll(STDERR_FILENO, "\n"); }

int Print(const std::string &command, const Report &report, const Form &form) {
  bool written = true;
  int error = 0;
  if (!report.written || (form.json && report.problem)) {
    written = WriteOutput(
        form.json ? JsonLine(command, report) + "\n"
        : form.quiet
            ? std::string()
            : cli::LaidOut(report.text,
                           {.columns = cli::Columns(STDOUT_FILENO),
                            .emphasis = cli::ShowsEmphasis(STDOUT_FILENO)}));
    error = errno;
  }
  for (const std::string &warning : report.warnings) {
    WriteError("warning: " + warning);
  }
  for (const std::string &line : report.errors) WriteError(line);
  if (report.problem) WriteError(report.problem->message);
  if (!written) {
    WriteError(std::string("cannot write the output: ") + std::strerror(error) +
               "; the output is lost");
    return static_cast<int>(ExitCode::Failed);
  }
  return static_cast<int>(report.problem ? report.problem->exit
                                         : ExitCode::Done);
}

}  // namespace ztk::program
