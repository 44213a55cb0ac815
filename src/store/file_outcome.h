// SPDX-License-Identifier: MIT
//
// Notes in the record of the call (ZTKOutcome.h) how reading or storing a file
// ended.
#ifndef ZTK_STORE_FILE_OUTCOME_H_
#define ZTK_STORE_FILE_OUTCOME_H_

#include "platform/property_list.h"

namespace ztk::store {

void RecordReading(const platform::property_list::ReadResult &result);

// For a file that a call reads and then replaces. `read` tells how the reading
// ended, `written` whether the file was replaced. `error` is the error number
// of the system for the writing, or 0 if there is none.
void RecordStoring(const platform::property_list::ReadResult &read,
                   bool written, int error);

// The user has no home folder, so there is no file.
void RecordReadingWithoutHome();
void RecordStoringWithoutHome();

}  // namespace ztk::store

#endif  // ZTK_STORE_FILE_OUTCOME_H_
