// SPDX-License-Identifier: MIT
#include "window/style.h"

#include <QIcon>

namespace ztk::window {

QIcon Style::standardIcon(StandardPixmap icon, const QStyleOption *option,
                          const QWidget *widget) const {
  if (icon == SP_ToolBarHorizontalExtensionButton) return {};
  return QProxyStyle::standardIcon(icon, option, widget);
}

}  // namespace ztk::window
