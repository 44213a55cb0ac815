// SPDX-License-Identifier: MIT
//
// Records how reading or storing a file ended, for ZTKOutcome.h.
#ifndef ZTK_STORE_FILE_OUTCOME_H_
#define ZTK_STORE_FILE_OUTCOME_H_

#include "platform/property_list.h"

namespace ztk::store {

void RecordReading(const platform::property_list::ReadResult &result);

// For a file that a call reads and then replaces. `read` is the result of the
// reading. `written` says whether the file was replaced; if it was not, `error`
// is the error number of the system, or 0 if there is none.
void RecordStoring(const platform::property_list::ReadResult &read,
                   bool written, int error);

// The user has no home folder, so there is no file.
void RecordReadingWithoutHome();
void RecordStoringWithoutHome();

}  // namespace ztk::store

#endif  // ZTK_STORE_FILE_OUTCOME_H_
