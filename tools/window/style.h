// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_WINDOW_STYLE_H_
#define ZTK_TOOLS_WINDOW_STYLE_H_

#include <QProxyStyle>

namespace ztk::window {

// The style of the desktop without the icon for the button of a menu bar that
// does not fit. Each menu bar asks for that icon, and Qt loads its plug-ins for
// images to read it, which delays the first frame. The main window gives that
// button an arrow, which needs no image.
class Style : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  QIcon standardIcon(StandardPixmap icon, const QStyleOption *option,
                     const QWidget *widget) const override;
};

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_STYLE_H_
