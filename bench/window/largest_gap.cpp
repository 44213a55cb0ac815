// SPDX-License-Identifier: MIT
//
// Opens ztk-window beside a mixer that does not answer, and writes the longest
// time in milliseconds in which the window could not react: first from its
// first frame until the mixers were asked, then while a choice was sent.
#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QLocale>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <utility>

#include "window/connect.h"
#include "window/engine/engine.h"
#include "window/main_window.h"
#include "window/style.h"
#include "window/translation.h"

namespace {

using namespace ztk::window;

// The precision of the result.
constexpr int kTickMilliseconds = 1;

// Notices when the event loop does not come back for a long time.
class GapWatch : public QObject {
 public:
  explicit GapWatch(QWidget *window) {
    window->installEventFilter(this);
    timer_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer_, &QTimer::timeout, this, [this] {
      longest_ = std::max(longest_,
                          static_cast<double>(sinceTick_.nsecsElapsed()) / 1e6);
      sinceTick_.start();
    });
  }

  bool eventFilter(QObject * /*watched*/, QEvent *event) override {
    if (event->type() == QEvent::Paint && !timer_.isActive()) {
      sinceTick_.start();
      timer_.start(kTickMilliseconds);
    }
    return false;
  }

  double Take() { return std::exchange(longest_, 0); }

 private:
  QTimer timer_;
  QElapsedTimer sinceTick_;
  double longest_ = 0;
};

}  // namespace

int main(int argc, char **argv) {
  QApplication application(argc, argv);
  QApplication::setStyle(new Style(QApplication::style()));
  Translate(&application, QLocale());
  Engine engine;
  MainWindow window;
  GapWatch gaps(&window);
  Open(&window, &engine);
  enum class Phase { Asking, Sending, Done } phase = Phase::Asking;
  QObject::connect(
      &engine, &Engine::stateChanged, &window,
      [&] {
        const State &state = engine.state();
        if (!state.mixersKnown || phase == Phase::Done) return;
        if (phase == Phase::Asking) {
          phase = Phase::Sending;
          std::printf("%.1f", gaps.Take());
          engine.choose(ztk::model::kInput, 0, 1);
        } else if (state.Row(ztk::model::kInput, 0)->delivery !=
                   Delivery::Sending) {
          phase = Phase::Done;
          std::printf(" %.1f\n", gaps.Take());
          std::fflush(stdout);
          QApplication::quit();
        }
      },
      Qt::QueuedConnection);
  return QApplication::exec();
}
