// SPDX-License-Identifier: MIT
//
// Opens the window, waits until it shows the state of all attached mixers, and
// writes a picture of it. scripts/take-screenshots runs this program.
//
// Usage: take_screenshot FILE [dark] [send] [USB channel:number of the
// choice]...
//   send  sends all that is remembered again first
#include <QApplication>
#include <QPalette>
#include <QStyleFactory>
#include <QTimer>
#include <cstdio>
#include <cstring>

#include "window/connect.h"
#include "window/engine/engine.h"
#include "window/main_window.h"
#include "window/translation.h"

namespace {

using namespace ztk::window;

// The colours that a desktop with a dark theme sets.
QPalette DarkPalette() {
  const QColor window(45, 45, 45);
  const QColor text(238, 238, 238);
  QPalette palette(text, window.lighter(130), window.lighter(160),
                   window.darker(150), window.lighter(110), text, Qt::white,
                   QColor(30, 30, 30), window);
  palette.setColor(QPalette::Highlight, QColor(53, 132, 228));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, QColor(120, 174, 237));
  for (const auto role :
       {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, QColor(140, 140, 140));
  }
  return palette;
}

bool IsSettled(const State &state) {
  if (!state.known || !state.mixersKnown) return false;
  for (const RowState &row : state.rows) {
    if (row.delivery == Delivery::Sending) return false;
  }
  return true;
}

}  // namespace

int main(int argc, char **argv) {
  QApplication application(argc, argv);
  if (argc < 2) return 2;
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  Translate(&application, QLocale());
  Engine engine;
  MainWindow window;
  Connect(&window, &engine);
  bool sends = false;
  for (int i = 2; i < argc; ++i) {
    unsigned channel = 0;
    unsigned choice = 0;
    if (std::strcmp(argv[i], "dark") == 0) {
      QApplication::setPalette(DarkPalette());
    } else if (std::strcmp(argv[i], "send") == 0) {
      sends = true;
    } else if (std::sscanf(argv[i], "%u:%u", &channel, &choice) == 2) {
      engine.choose(ztk::model::kInput, channel - 1, choice - 1);
    }
  }
  // The whole window is drawn, even if it is larger than the screen, because
  // nobody looks at the screen.
  window.resize(QSize(880, 800) * window.logicalDpiX() / 96);
  window.show();
  engine.start();

  // The findings come after the mixers, and a silent mixer takes seconds.
  QTimer rest;
  rest.setSingleShot(true);
  rest.setInterval(1200);
  QObject::connect(&engine, &Engine::stateChanged, &rest, [&] {
    if (!IsSettled(engine.state())) return;
    if (sends) engine.resendAll();
    sends = false;
    rest.start();
  });
  bool saved = false;
  QObject::connect(&rest, &QTimer::timeout, &window, [&] {
    saved = window.grab().save(QString::fromLocal8Bit(argv[1]));
    QApplication::quit();
  });
  QApplication::exec();
  return saved ? 0 : 1;
}
