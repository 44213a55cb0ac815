// SPDX-License-Identifier: MIT
//
// Tests of the engine run inside the sandbox of ztk-virtual-mixer, with two
// mixers. Each test has a home of its own and begins with both mixers plugged
// in and without faults.
#ifndef ZTK_TESTS_WINDOW_ENGINE_WORLD_H_
#define ZTK_TESTS_WINDOW_ENGINE_WORLD_H_

#include <QObject>
#include <QStringList>
#include <memory>

#include "support/private_bus.h"
#include "support/temp_home.h"
#include "window/engine/engine.h"

namespace ztk::window {

class EngineWorld : public QObject {
  Q_OBJECT

 protected slots:
  void initTestCase();
  void init();
  void cleanup();

 protected:
  // Starts the engine and waits until it knows settings and mixers.
  void StartEngine();
  void EndEngine() { engine_.reset(); }
  Engine &engine() { return *engine_; }
  const State &state() const { return engine_->state(); }
  const RowState &Row(const model::Setting &setting,
                      std::uint32_t channel) const;

  // What does not work, by the words for programs. That texts are not installed
  // is left out: it depends on the machine that builds.
  QStringList Problems() const;

  // Run a program and wait for its end, while the engine goes on. The mixer is
  // a number, or "all".
  QString Ztk(const QStringList &arguments);
  // As a program does that does not record what it changes.
  void ZtkWithoutHistory(const QStringList &arguments);
  void Mixer(const QStringList &arguments);

  test::PrivateBus &bus() { return bus_; }
  const test::TempHome &home() const { return *home_; }
  QStringList reports() const { return reports_; }

 private:
  test::PrivateBus bus_;
  std::unique_ptr<test::TempHome> home_;
  std::unique_ptr<Engine> engine_;
  QStringList reports_;
};

// Another program can take a second, and a silent mixer seconds.
inline constexpr int kPatience = 20'000;

}  // namespace ztk::window

// Waits until the condition holds.
// Not QTRY_VERIFY_WITH_TIMEOUT(): in newer versions of Qt it converts between
// types of integers, about which gcc warns.
#define EVENTUALLY(condition)                                            \
  QVERIFY2(QTest::qWaitFor([&] { return static_cast<bool>(condition); }, \
                           ::ztk::window::kPatience),                    \
           #condition)

#endif  // ZTK_TESTS_WINDOW_ENGINE_WORLD_H_
