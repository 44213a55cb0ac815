// SPDX-License-Identifier: MIT
//
// Where the settings files are:
// <Library>/Preferences/com.tarvix.<model>autosetup.plist.
#ifndef ZTK_STORE_SETTINGS_PATH_H_
#define ZTK_STORE_SETTINGS_PATH_H_

#include "ZTKFunc.h"

namespace ztk::store {

// Makes the path of the model's file; the caller releases it with
// text::Release(). Null if the user has no home folder. The file may not exist.
ZTKTextRef MakePath(ZTKTextRef model);

}  // namespace ztk::store

#endif  // ZTK_STORE_SETTINGS_PATH_H_
