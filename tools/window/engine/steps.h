// SPDX-License-Identifier: MIT
//
// What the worker changes, and what became of it.
#ifndef ZTK_TOOLS_WINDOW_ENGINE_STEPS_H_
#define ZTK_TOOLS_WINDOW_ENGINE_STEPS_H_

#include <QList>
#include <QString>
#include <QStringList>
#include <cstdint>

#include "window/engine/readings.h"
#include "window/engine/state.h"

namespace ztk::window {

struct RowOutcome {
  const model::Setting *setting = nullptr;
  std::uint32_t channel = 0;
  std::uint32_t index = 0;
  Delivery delivery = Delivery::Failed;
  int accepted = 0;
  InMixers inMixers = InMixers::NotKnown;
  QString reason;
  QString warning;
};

struct StepOutcome {
  QList<RowOutcome> rows;
  // Where mixers were attached before the step.
  QStringList places;
  // What is stored afterwards.
  StoredState stored;
  // A sentence about the step as a whole; empty where there is none.
  QString report;
};

StepOutcome Choose(const model::Setting &setting, std::uint32_t channel,
                   std::uint32_t index);
StepOutcome UndoLast();
StepOutcome ResendAll();
// The settings in a file of `ztk export`.
StepOutcome ApplyFile(const QString &path);

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_ENGINE_STEPS_H_
