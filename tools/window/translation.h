// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_WINDOW_TRANSLATION_H_
#define ZTK_TOOLS_WINDOW_TRANSLATION_H_

#include <QLocale>
#include <QObject>

namespace ztk::window {

// Shows the texts of this program in this language, if it has a translation,
// until the owner is destroyed.
void Translate(QObject *owner, const QLocale &locale);

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_TRANSLATION_H_
