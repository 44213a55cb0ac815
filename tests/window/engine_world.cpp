// SPDX-License-Identifier: MIT
#include "window/engine_world.h"

#include <QProcess>
#include <QSignalSpy>
#include <QTest>
#include <cstdlib>

namespace ztk::window {

namespace {

// Runs a program; this program's loop goes on meanwhile. Answers what it
// writes.
QString RunProgram(const QString &program, const QStringList &arguments) {
  QProcess process;
  QSignalSpy finished(&process, &QProcess::finished);
  process.start(program, arguments);
  if (!process.waitForStarted()) qFatal("cannot start %s", qPrintable(program));
  if (finished.isEmpty()) finished.wait(kPatience);
  return QString::fromUtf8(process.readAllStandardOutput());
}

}  // namespace

void EngineWorld::initTestCase() {
  if (std::getenv("ZTK_VIRTUAL_MIXER_CONTROL") == nullptr) {
    QSKIP("outside of ztk-virtual-mixer run");
  }
  if (!bus_.Start()) QSKIP("no dbus-daemon to run");
}

void EngineWorld::init() {
  home_ = std::make_unique<test::TempHome>();
  for (const char *name :
       {"XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_DATA_HOME"}) {
    unsetenv(name);
  }
  Mixer({"plug"});
  Mixer({"allow"});
  Mixer({"fault", "none"});
  for (const char *channel : {"1", "2", "3", "4"}) {
    Mixer({"turn", channel, "4"});
  }
  reports_.clear();
}

void EngineWorld::cleanup() {
  engine_.reset();
  home_.reset();
}

void EngineWorld::StartEngine() {
  engine_ = std::make_unique<Engine>();
  connect(engine_.get(), &Engine::reported, this,
          [this](const QString &message) { reports_.append(message); });
  engine_->start();
  EVENTUALLY(state().known && state().mixersKnown);
}

const RowState &EngineWorld::Row(const model::Setting &setting,
                                 std::uint32_t channel) const {
  return *state().Row(setting, channel);
}

QStringList EngineWorld::Problems() const {
  QStringList ids;
  for (const FindingState &finding : state().findings) {
    if (finding.id != QStringLiteral("texts-missing")) ids.append(finding.id);
  }
  return ids;
}

QString EngineWorld::Ztk(const QStringList &arguments) {
  return RunProgram(QStringLiteral("ztk"), arguments);
}

void EngineWorld::ZtkWithoutHistory(const QStringList &arguments) {
  RunProgram(QStringLiteral("env"),
             QStringList{QStringLiteral("XDG_STATE_HOME=/dev/null"),
                         QStringLiteral("ztk")} +
                 arguments);
}

void EngineWorld::Mixer(const QStringList &arguments) {
  RunProgram(QStringLiteral("ztk-virtual-mixer"), arguments);
}

}  // namespace ztk::window
