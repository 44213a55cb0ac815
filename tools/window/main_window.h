// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_WINDOW_MAIN_WINDOW_H_
#define ZTK_TOOLS_WINDOW_MAIN_WINDOW_H_

#include <QMainWindow>

namespace ztk::window {

class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  MainWindow();
};

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_MAIN_WINDOW_H_
