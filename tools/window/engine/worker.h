// SPDX-License-Identifier: MIT
//
// The one thread in which the library and the model are used.
#ifndef ZTK_TOOLS_WINDOW_ENGINE_WORKER_H_
#define ZTK_TOOLS_WINDOW_ENGINE_WORKER_H_

#include <QObject>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace ztk::window {

class Worker {
 public:
  using Result = std::function<void()>;
  // Runs in the worker's thread. What it returns is run by the thread of the
  // receiver, unless the receiver is gone by then.
  using Job = std::function<Result()>;

  enum class Kind : std::uint8_t {
    Change,  // the user has asked for it
    Reading  // of something that may have changed; waits for all changes
  };

  explicit Worker(QObject *receiver);
  // Waits until the changes that were asked for are made, also if it was not
  // started, but not for ever: a thread that hangs in a request is left behind.
  ~Worker();
  Worker(const Worker &) = delete;
  Worker &operator=(const Worker &) = delete;

  void Start();
  // A job replaces one of the same name that still waits, at its place.
  void Post(Kind kind, const std::string &name, Job job);

 private:
  // Outlives this object where the thread is left behind.
  struct Shared;
  static void Run(const std::shared_ptr<Shared> &shared);

  std::shared_ptr<Shared> shared_;
};

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_ENGINE_WORKER_H_
