// SPDX-License-Identifier: MIT
#include "first_frame.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QTimer>
#include <QWidget>
#include <chrono>
#include <cstdio>

namespace ztk::bench {

namespace {

// Everything has been asked and shown by then.
constexpr std::chrono::seconds kSettled{3};
constexpr std::chrono::seconds kIdle{10};

double MillisecondsSinceStart() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  const double started = qgetenv("BENCH_STARTED").toDouble();
  return (std::chrono::duration<double, std::nano>(now).count() - started) /
         1e6;
}

// The number behind a word in a file of /proc.
long NumberBehind(const QString &path, const QByteArray &word) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray &line : file.readAll().split('\n')) {
    if (line.startsWith(word)) {
      return line.mid(word.size()).simplified().split(' ')[0].toLong();
    }
  }
  return 0;
}

// Of all threads.
long Wakings() {
  long sum = 0;
  const QString tasks = QStringLiteral("/proc/self/task/");
  for (const QString &task :
       QDir(tasks).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    sum += NumberBehind(tasks + task + QStringLiteral("/status"),
                        "voluntary_ctxt_switches:");
  }
  return sum;
}

class FrameWatch : public QObject {
 public:
  explicit FrameWatch(QWidget *window) : QObject(window) {
    window->installEventFilter(this);
  }

  bool eventFilter(QObject * /*watched*/, QEvent *event) override {
    if (event->type() != QEvent::Paint || seen_) return false;
    seen_ = true;
    // When the loop is reached again the frame is drawn.
    QTimer::singleShot(0, this, [this] {
      first_ = MillisecondsSinceStart();
      if (!qEnvironmentVariableIsSet("BENCH_FIRST_FRAME_ONLY")) return;
      std::printf("%.1f\n", first_);
      std::fflush(stdout);
      QApplication::quit();
    });
    QTimer::singleShot(kSettled, this, [this] { wakings_ = Wakings(); });
    QTimer::singleShot(kSettled + kIdle, this, [this] {
      const long wakings = Wakings() - wakings_;
      const long memory =
          NumberBehind(QStringLiteral("/proc/self/smaps_rollup"), "Pss:");
      std::printf("%.1f %ld %ld\n", first_, memory, wakings);
      std::fflush(stdout);
      QApplication::quit();
    });
    return false;
  }

 private:
  bool seen_ = false;
  double first_ = 0;
  long wakings_ = 0;
};

}  // namespace

int MeasureFirstFrame(QWidget *window) {
  new FrameWatch(window);
  return QApplication::exec();
}

}  // namespace ztk::bench
