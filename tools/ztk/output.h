// SPDX-License-Identifier: MIT
//
// Writing to the standard streams. Nothing is buffered: after a call the text
// has left the process, or the failure is known.
#ifndef ZTK_TOOLS_ZTK_OUTPUT_H_
#define ZTK_TOOLS_ZTK_OUTPUT_H_

#include <string>

#include "ztk/report.h"

namespace ztk::program {

// Must be called before the program opens anything. A closed standard stream
// gets a descriptor that cannot be written; otherwise a connection to a mixer
// or bus would get its number and receive text. Writing to a pipe without a
// reader becomes an error instead of a signal.
void PrepareStreams();

// Writes a text to the standard output. Returns false, and sets errno, if a
// part of the text could not be written.
bool WriteOutput(const std::string &text);

// Writes a message to the error stream, wrapped in a terminal. A failure is
// ignored.
void WriteError(const std::string &line);

// Writes a line end to the error stream.
void WriteLineEnd();

// The form in which the user asked for the report.
struct Form {
  bool json = false;
  bool quiet = false;  // no text that only says what was done
};

// Writes the report and returns the exit status.
int Print(const std::string &command, const Report &report, const Form &form);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_OUTPUT_H_
