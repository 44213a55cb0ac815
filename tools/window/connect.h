// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_WINDOW_CONNECT_H_
#define ZTK_TOOLS_WINDOW_CONNECT_H_

namespace ztk::window {

class Engine;
class MainWindow;

// The window shows the engine's state from now on, and the engine does what the
// window asks for.
void Connect(MainWindow *window, Engine *engine);

// Connects both and shows the window. Its first frame shows what is remembered;
// the engine starts after that frame, because it would delay it.
void Open(MainWindow *window, Engine *engine);

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_CONNECT_H_
