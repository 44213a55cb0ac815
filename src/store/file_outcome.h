// SPDX-License-Identifier: MIT
//
// Records the results of reading and storing a file, which the functions of
// ZTKOutcome.h return.
#ifndef ZTK_STORE_FILE_OUTCOME_H_
#define ZTK_STORE_FILE_OUTCOME_H_

#include "platform/property_list.h"

namespace ztk::store {

void RecordReading(const platform::property_list::ReadResult &result);

// For a file that a call reads and then replaces. `read` is the result of the
// reading, and is recorded too. `written` says whether the file was replaced;
// if it was not, `error` is the error number of the system, or 0 if there is
// none. If the file could not be read, `error` is ignored.
void RecordStoring(const platform::property_list::ReadResult &read,
                   bool written, int error);

// Record that there is no file, because the user has no home folder.
void RecordReadingWithoutHome();
void RecordStoringWithoutHome();

}  // namespace ztk::store

#endif  // ZTK_STORE_FILE_OUTCOME_H_
