// SPDX-License-Identifier: MIT
//
// The path of a settings file is
// <Library>/Preferences/com.tarvix.<model>autosetup.plist.
#ifndef ZTK_STORE_SETTINGS_PATH_H_
#define ZTK_STORE_SETTINGS_PATH_H_

#include "ZTKFunc.h"

namespace ztk::store {

// Makes the path of the settings file of a model. The caller releases it with
// text::Release(). Returns null if the user has no home folder. The file need
// not exist.
ZTKTextRef MakePath(ZTKTextRef model);

}  // namespace ztk::store

#endif  // ZTK_STORE_SETTINGS_PATH_H_
