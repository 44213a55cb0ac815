// SPDX-License-Identifier: MIT
#include "window/engine/hearing.h"

#include <QAbstractEventDispatcher>
#include <cstdint>

#include "ztk/model/settings.h"
#include "ztk/system/event_loop.h"

namespace ztk::window {

namespace {

// Observers of the library live as long as the process.
Hearing *theHearing = nullptr;

// Called by the library, which can be in the middle of a list of callbacks: the
// rest is done when the loop is reached again.
void OnChange(std::int32_t /*channel*/, std::int32_t /*index*/,
              void * /*context*/) noexcept {
  if (theHearing != nullptr) emit theHearing->heard();
}

void OnIndexChange(std::int32_t index, void *context) noexcept {
  OnChange(0, index, context);
}

}  // namespace

Hearing::Hearing(QObject *parent) : QObject(parent) {}

Hearing::~Hearing() {
  if (theHearing == this) theHearing = nullptr;
}

void Hearing::Register() {
  // A second registration would be a second delivery.
  static bool registered = false;
  theHearing = this;
  if (registered) return;
  registered = true;
  ZTK_RegisterInputAudioChangedCallback(model::kInput.product, OnChange,
                                        nullptr);
  ZTK_RegisterBoostLevelChangedCallback(model::kBoost.product, OnIndexChange,
                                        nullptr);
  ZTK_RegisterMidiChannelChangedCallback(model::kMidi.product, OnIndexChange,
                                         nullptr);
  model::ListenToOutputAudio(OnChange, nullptr);
}

bool LoopDelivers() {
  const QAbstractEventDispatcher *dispatcher =
      QAbstractEventDispatcher::instance();
  return dispatcher != nullptr &&
         (dispatcher->inherits("QEventDispatcherGlib") ||
          dispatcher->inherits("QCocoaEventDispatcher"));
}

}  // namespace ztk::window
