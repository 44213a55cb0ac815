// SPDX-License-Identifier: MIT
#include "window/events/announcement_listener.h"

#include <QAbstractEventDispatcher>
#include <cstdint>
#include <utility>

#include "ztk/model/settings.h"
#include "ztk/system/event_loop.h"

namespace ztk::window {

namespace {

// Observers of the library live as long as the process.
AnnouncementListener *theListener = nullptr;

// Called by the library, which can be in the middle of a list of callbacks: the
// rest is done when the loop is reached again.
void OnChange(std::int32_t /*channel*/, std::int32_t /*index*/,
              void * /*context*/) noexcept {
  if (theListener != nullptr) emit theListener->announced();
}

void OnIndexChange(std::int32_t index, void *context) noexcept {
  OnChange(0, index, context);
}

// Whether this program's event loop is the one through which the library
// delivers changes. Qt uses it on Debian, unless the environment forbids it.
bool LoopDelivers() {
  const QAbstractEventDispatcher *dispatcher =
      QAbstractEventDispatcher::instance();
  return dispatcher != nullptr &&
         (dispatcher->inherits("QEventDispatcherGlib") ||
          dispatcher->inherits("QCocoaEventDispatcher"));
}

}  // namespace

AnnouncementListener::AnnouncementListener(QObject *parent) : QObject(parent) {}

AnnouncementListener::~AnnouncementListener() {
  if (theListener == this) theListener = nullptr;
}

void AnnouncementListener::Start() {
  if (!LoopDelivers()) {
    whyDeaf_ = tr(
        "Changes by other programs are not shown, because QT_NO_GLIB is set. "
        "Start the window without it.");
    emit deafnessChanged();
    emit ready();
    return;
  }
  connector_ = std::make_unique<Worker>(this);
  connector_->Post(Worker::Kind::Reading, "bus", [this]() -> Worker::Result {
    const auto bus = std::make_shared<model::BusWatch>();
    return [this, bus] { OnConnected(bus); };
  });
  connector_->Start();
}

void AnnouncementListener::OnConnected(std::shared_ptr<model::BusWatch> bus) {
  connector_.reset();
  bus_ = std::move(bus);
  CheckBus();
  // Each registration would wait a second for a bus that does not answer.
  if (whyDeaf_.isEmpty()) Register();
  emit ready();
}

void AnnouncementListener::CheckBus() {
  notifier_.reset();
  const QString before = whyDeaf_;
  if (!bus_->IsAlive()) {
    whyDeaf_ = tr(
        "Changes by other programs are not shown, because the message bus of "
        "the session is missing or has ended. Once there is one, start the "
        "window again.");
  } else if (bus_->descriptor() >= 0) {
    notifier_ = std::make_unique<QSocketNotifier>(bus_->descriptor(),
                                                  QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this,
            &AnnouncementListener::CheckBus, Qt::QueuedConnection);
  }
  if (whyDeaf_ != before) emit deafnessChanged();
}

void AnnouncementListener::Register() {
  // A second registration would be a second delivery.
  static bool registered = false;
  theListener = this;
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

}  // namespace ztk::window
