// SPDX-License-Identifier: MIT
#include "window/main_window.h"

namespace ztk::window {

MainWindow::MainWindow() { setWindowTitle(tr("VRM-D6 settings")); }

}  // namespace ztk::window
