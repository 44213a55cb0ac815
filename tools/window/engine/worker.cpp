// SPDX-License-Identifier: MIT
#include "window/engine/worker.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <utility>

namespace ztk::window {

namespace {

// Longer than any request that ends, and the waiting for the history.
constexpr std::chrono::seconds kPatience{15};

struct NamedJob {
  std::string name;
  Worker::Job job;
};

}  // namespace

struct Worker::Shared {
  std::mutex mutex;
  std::condition_variable changed;
  std::deque<NamedJob> changes;
  std::deque<NamedJob> readings;
  QObject *receiver = nullptr;
  bool started = false;
  bool stopping = false;
  bool ended = false;

  // The next job; none when the worker is to end. Called with the lock held.
  Job Next(std::unique_lock<std::mutex> *lock) {
    changed.wait(*lock, [this] {
      return stopping || !changes.empty() || !readings.empty();
    });
    if (stopping) readings.clear();
    std::deque<NamedJob> &queue = changes.empty() ? readings : changes;
    if (queue.empty()) return nullptr;
    Job job = std::move(queue.front().job);
    queue.pop_front();
    return job;
  }
};

Worker::Worker(QObject *receiver) : shared_(std::make_shared<Shared>()) {
  shared_->receiver = receiver;
}

Worker::~Worker() {
  std::unique_lock lock(shared_->mutex);
  shared_->receiver = nullptr;
  shared_->stopping = true;
  shared_->changed.notify_all();
  if (!shared_->started && !shared_->changes.empty()) Start();
  if (!shared_->started) return;
  shared_->changed.wait_for(lock, kPatience, [this] { return shared_->ended; });
}

void Worker::Start() {
  shared_->started = true;
  std::thread([shared = shared_] { Run(shared); }).detach();
}

void Worker::Post(Kind kind, const std::string &name, Job job) {
  const std::lock_guard lock(shared_->mutex);
  std::deque<NamedJob> &queue =
      kind == Kind::Change ? shared_->changes : shared_->readings;
  const auto waiting =
      std::find_if(queue.begin(), queue.end(),
                   [&name](const NamedJob &one) { return one.name == name; });
  if (waiting != queue.end()) {
    waiting->job = std::move(job);
    return;
  }
  queue.push_back({.name = name, .job = std::move(job)});
  shared_->changed.notify_all();
}

void Worker::Run(const std::shared_ptr<Shared> &shared) {
  std::unique_lock lock(shared->mutex);
  while (const Job job = shared->Next(&lock)) {
    lock.unlock();
    Result result = job();
    lock.lock();
    if (!result || shared->receiver == nullptr) continue;
    QMetaObject::invokeMethod(shared->receiver, std::move(result),
                              Qt::QueuedConnection);
  }
  shared->ended = true;
  shared->changed.notify_all();
}

}  // namespace ztk::window
