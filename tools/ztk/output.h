// SPDX-License-Identifier: MIT
//
// The standard streams. Nothing is buffered: what was written has left the
// process, and a failure is known at once.
#ifndef ZTK_TOOLS_ZTK_OUTPUT_H_
#define ZTK_TOOLS_ZTK_OUTPUT_H_

#include <string>

#include "ztk/report.h"

namespace ztk::program {

// To be called before anything is opened. A standard stream that is closed
// gets a descriptor that cannot be written, so that no connection to a mixer or
// bus takes its number and receives text. A pipe whose reader has gone becomes
// a failed write instead of a signal.
void PrepareStreams();

// False when not all of it could be written.
bool WriteOutput(const std::string &text);

// A line on the error stream, which only a terminal may break, between words;
// nobody is left to tell when that fails.
void WriteError(const std::string &line);

// Ends a line that the terminal has begun, on the error stream.
void WriteLineEnd();

// Writes the report, in the form asked for, and answers the exit status.
int Print(const std::string &command, const Report &report, bool json);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_OUTPUT_H_
