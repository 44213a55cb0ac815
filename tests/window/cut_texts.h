// SPDX-License-Identifier: MIT
#ifndef ZTK_TESTS_WINDOW_CUT_TEXTS_H_
#define ZTK_TESTS_WINDOW_CUT_TEXTS_H_

#include <QStringList>

class QWidget;

namespace ztk::window {

// The texts of labels, buttons, choice boxes and tabs inside the widget that
// have less room than they need.
QStringList CutTexts(const QWidget &window);

// Lets layouts come to rest: a text that wraps changes the height of others.
void SettleLayouts();

}  // namespace ztk::window

#endif  // ZTK_TESTS_WINDOW_CUT_TEXTS_H_
