// SPDX-License-Identifier: MIT
//
// Whether announcements can reach other programs.
#ifndef ZTK_TOOLS_ZTK_SYSTEM_SESSION_BUS_H_
#define ZTK_TOOLS_ZTK_SYSTEM_SESSION_BUS_H_

namespace ztk::model {

// True when there is a session bus that other programs could listen on.
bool SessionBusAnswers();

// The name of the library for the session bus if it cannot be loaded; else
// null.
const char *MissingBusLibrary();
// The name of the library with the event loop for callbacks if it cannot be
// loaded; else null.
const char *MissingLoopLibrary();

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_SYSTEM_SESSION_BUS_H_
