// SPDX-License-Identifier: MIT
//
// Measures a window: the time until it has drawn itself, and what it costs when
// nothing happens.
#ifndef ZTK_BENCH_FIRST_FRAME_H_
#define ZTK_BENCH_FIRST_FRAME_H_

class QWidget;

namespace ztk::bench {

// Runs the application with the window, which is shown already. Writes one line
// and ends the application: milliseconds from the moment that the variable
// BENCH_STARTED names (nanoseconds of the monotonic clock) until the first
// frame, kilobytes of memory, and how often a thread was woken in ten seconds
// in which nothing happened.
int MeasureFirstFrame(QWidget *window);

}  // namespace ztk::bench

#endif  // ZTK_BENCH_FIRST_FRAME_H_
