// SPDX-License-Identifier: MIT
#include "ztk/output.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>

#include "cli/terminal.h"
#include "platform/common/file_descriptor.h"

namespace ztk::program {

namespace {

// Waits until a non-blocking stream accepts more bytes.
bool WaitUntilWritable(int stream) {
  pollfd polled{.fd = stream, .events = POLLOUT, .revents = 0};
  return poll(&polled, 1, -1) > 0 || errno == EINTR;
}

bool WriteTo(int stream, const std::string &text) {
  return platform::WriteAll(text, [stream](const char *data, std::size_t size) {
    ssize_t written = write(stream, data, size);
    while (written < 0 && errno == EAGAIN && WaitUntilWritable(stream)) {
      written = write(stream, data, size);
    }
    return written;
  });
}

}  // namespace

void PrepareStreams() {
  std::signal(SIGPIPE, SIG_IGN);
  for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
    if (fcntl(stream, F_GETFD) >= 0 || errno != EBADF) continue;
    // open() uses the lowest free number, which is that of the closed stream.
    // The folder "/" always exists, and a folder can be neither read nor
    // written.
    if (open("/", O_RDONLY | O_DIRECTORY) < 0) return;
  }
}

bool WriteOutput(const std::string &text) {
  return WriteTo(STDOUT_FILENO, text);
}

void WriteError(const std::string &line) {
  WriteTo(STDERR_FILENO, cli::MessageLine("ztk", line));
}

void WriteLineEnd() { WriteTo(STDERR_FILENO, "\n"); }

int Print(const std::string &command, const Report &report, const Form &form) {
  bool succeeded = true;
  int error = 0;
  if (!report.written || (form.json && report.problem)) {
    succeeded = WriteOutput(
        form.json ? JsonLine(command, report) + "\n"
        : form.quiet && !report.isAnswer
            ? std::string()
            : cli::WrapLines(report.text,
                             {.columns = cli::Columns(STDOUT_FILENO),
                              .emphasis = cli::ShowsEmphasis(STDOUT_FILENO)}));
    error = errno;
  }
  for (const std::string &warning : report.warnings) {
    WriteError("warning: " + warning);
  }
  for (const std::string &line : report.errors) WriteError(line);
  if (report.problem) WriteError(report.problem->message);
  if (!succeeded) {
    // A reader that has ended, such as head, does not want the rest.
    if (error != EPIPE) {
      WriteError(std::string("cannot write the output: ") +
                 std::strerror(error) + "; the output is lost");
    }
    return static_cast<int>(ExitCode::Failed);
  }
  return static_cast<int>(report.problem ? report.problem->exit
                                         : ExitCode::Done);
}

}  // namespace ztk::program
