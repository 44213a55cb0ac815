// SPDX-License-Identifier: MIT
#include "notify/callback_registry.h"

#include "api/product_set.h"
#include "notify/announced_settings.h"
#include "notify/observer.h"
#include "platform/text.h"

using namespace ztk;
using namespace ztk::notify;

ZTKChannelCallback InputAudioChangedCallback[kSlots] = {};
ZTKChannelCallback OutputAudioChangedCallback[kSlots] = {};
ZTKIndexCallback BoostLevelChangedCallback[kSlots] = {};
ZTKIndexCallback MidiChannelChangedCallback[kSlots] = {};
ZTKIndexCallback MidiKeyModeChangedCallback[kSlots] = {};

void *InputAudioChangedContext[kSlots] = {};
void *OutputAudioChangedContext[kSlots] = {};
void *BoostLevelChangedContext[kSlots] = {};
void *MidiChannelChangedContext[kSlots] = {};
void *MidiKeyModeChangedContext[kSlots] = {};

UserInfo *inputAudioInfo = nullptr;
UserInfo *outputAudioInfo = nullptr;
UserInfo *boostLevelInfo = nullptr;
UserInfo *midiChannelInfo = nullptr;
UserInfo *midiKeyModeInfo = nullptr;

// NOLINTNEXTLINE(bugprone-reserved-identifier,*-naming): fixed name
void *_ZTKFunc = nullptr;

namespace {

namespace center = platform::notification_center;

// Deliberate: the callbacks of three settings can be unregistered for more
// products than they can be registered for.
constexpr ProductSet kRegisteredFor{10};
constexpr ProductSet kUnregisteredFor{0, 1, 5, 6, 8, 10};
constexpr ProductSet kMidiFor{1};

// A setting with the method that receives its changes, and with its exported
// tables.
template <typename Callback>
struct Registration {
  const AnnouncedSetting &setting;
  const Method &method;
  Callback *callbacks;
  void **contexts;
  UserInfo **lastInfo;
};

constinit const Registration<ZTKChannelCallback> kInputAudioRegistration{
    .setting = kInputAudio,
    .method = kInputAudioChanged,
    .callbacks = InputAudioChangedCallback,
    .contexts = InputAudioChangedContext,
    .lastInfo = &inputAudioInfo};
constinit const Registration<ZTKChannelCallback> kOutputAudioRegistration{
    .setting = kOutputAudio,
    .method = kOutputAudioChanged,
    .callbacks = OutputAudioChangedCallback,
    .contexts = OutputAudioChangedContext,
    .lastInfo = &outputAudioInfo};
constinit const Registration<ZTKIndexCallback> kBoostLevelRegistration{
    .setting = kBoostLevel,
    .method = kBoostLevelChanged,
    .callbacks = BoostLevelChangedCallback,
    .contexts = BoostLevelChangedContext,
    .lastInfo = &boostLevelInfo};
constinit const Registration<ZTKIndexCallback> kMidiChannelRegistration{
    .setting = kMidiChannel,
    .method = kMidiChannelChanged,
    .callbacks = MidiChannelChangedCallback,
    .contexts = MidiChannelChangedContext,
    .lastInfo = &midiChannelInfo};

template <typename Callback>
ZTKResult Register(const Registration<Callback> &registration,
                   std::uint32_t productId, Callback callback, void *context) {
  if (_ZTKFunc == nullptr) _ZTKFunc = AllocateObserver();
  // Deliberate: the pointer to the record of the last announcement is cleared,
  // but the record is not released. The next announcement releases only what
  // the pointer refers to, so this record is never released.
  *registration.lastInfo = nullptr;

  const AnnouncedSetting &setting = registration.setting;
  const platform::text::OwnedText name(
      platform::text::Format(setting.nameFormat, setting.observedModel));
  center::AddObserver(_ZTKFunc, registration.method, name.get());

  registration.callbacks[productId] = callback;
  registration.contexts[productId] = context;
  return ZTK_SUCCESS;
}

// A notification contains a product id. Returns the slot of that product, or -1
// if it has none: another program may have posted any number.
std::int32_t SlotOf(const UserInfo *userInfo) {
  const std::int32_t productId = center::ReadNumber(userInfo, kProductKey);
  return productId >= 0 && productId < kSlots ? productId : -1;
}

void CallWithChannel(const ZTKChannelCallback *callbacks, void **contexts,
                     const UserInfo *userInfo) {
  const std::int32_t slot = SlotOf(userInfo);
  const std::int32_t channel = center::ReadNumber(userInfo, kChannelKey);
  const std::int32_t index = center::ReadNumber(userInfo, kIndexKey);
  if (slot < 0 || callbacks[slot] == nullptr) return;
  callbacks[slot](channel, index, contexts[slot]);
}

void CallWithIndex(const ZTKIndexCallback *callbacks, void **contexts,
                   const UserInfo *userInfo) {
  const std::int32_t slot = SlotOf(userInfo);
  const std::int32_t index = center::ReadNumber(userInfo, kIndexKey);
  if (slot < 0 || callbacks[slot] == nullptr) return;
  callbacks[slot](index, contexts[slot]);
}

}  // namespace

namespace ztk::notify {

void InputAudioChanged(const UserInfo *userInfo) {
  CallWithChannel(InputAudioChangedCallback, InputAudioChangedContext,
                  userInfo);
}

void OutputAudioChanged(const UserInfo *userInfo) {
  CallWithChannel(OutputAudioChangedCallback, OutputAudioChangedContext,
                  userInfo);
}

void BoostLevelChanged(const UserInfo *userInfo) {
  CallWithIndex(BoostLevelChangedCallback, BoostLevelChangedContext, userInfo);
}

void MidiChannelChanged(const UserInfo *userInfo) {
  CallWithIndex(MidiChannelChangedCallback, MidiChannelChangedContext,
                userInfo);
}

void MidiKeyModeChanged(const UserInfo *userInfo) {
  CallWithIndex(MidiKeyModeChangedCallback, MidiKeyModeChangedContext,
                userInfo);
}

}  // namespace ztk::notify

ZTKResult ZTK_RegisterInputAudioChangedCallback(uint32_t productId,
                                                ZTKChannelCallback callback,
                                                void *context) {
  if (!kRegisteredFor.Has(productId)) return ZTK_REJECTED;
  return Register(kInputAudioRegistration, productId, callback, context);
}

ZTKResult ZTK_UnregisterInputAudioChangedCallback(uint32_t productId,
                                                  void * /*ignored*/) {
  if (!kUnregisteredFor.Has(productId)) return ZTK_REJECTED;
  InputAudioChangedCallback[productId] = nullptr;
  return ZTK_SUCCESS;
}

ZTKResult ZTK_RegisterOutputAudioChangedCallback(uint32_t productId,
                                                 ZTKChannelCallback callback,
                                                 void *context) {
  if (!kRegisteredFor.Has(productId)) return ZTK_REJECTED;
  return Register(kOutputAudioRegistration, productId, callback, context);
}

ZTKResult ZTK_UnregisterOutputAudioChangedCallback(uint32_t productId,
                                                   void * /*ignored*/) {
  if (!kUnregisteredFor.Has(productId)) return ZTK_REJECTED;
  OutputAudioChangedCallback[productId] = nullptr;
  return ZTK_SUCCESS;
}

ZTKResult ZTK_RegisterBoostLevelChangedCallback(uint32_t productId,
                                                ZTKIndexCallback callback,
                                                void *context) {
  if (!kRegisteredFor.Has(productId)) return ZTK_REJECTED;
  return Register(kBoostLevelRegistration, productId, callback, context);
}

ZTKResult ZTK_UnregisterBoostLevelChangedCallback(uint32_t productId,
                                                  void * /*ignored*/) {
  if (!kUnregisteredFor.Has(productId)) return ZTK_REJECTED;
  BoostLevelChangedCallback[productId] = nullptr;
  return ZTK_SUCCESS;
}

ZTKResult ZTK_RegisterMidiChannelChangedCallback(uint32_t productId,
                                                 ZTKIndexCallback callback,
                                                 void *context) {
  if (!kMidiFor.Has(productId)) return ZTK_REJECTED;
  return Register(kMidiChannelRegistration, productId, callback, context);
}

ZTKResult ZTK_UnregisterMidiChannelChangedCallback(uint32_t productId,
                                                   void * /*ignored*/) {
  if (!kMidiFor.Has(productId)) return ZTK_REJECTED;
  MidiChannelChangedCallback[productId] = nullptr;
  return ZTK_SUCCESS;
}

ZTKResult ZTK_RegisterMidiKeyModeChangedCallback(uint32_t /*productId*/,
                                                 ZTKIndexCallback /*callback*/,
                                                 void * /*context*/) {
  return ZTK_REJECTED;
}

ZTKResult ZTK_UnregisterMidiKeyModeChangedCallback(uint32_t /*productId*/,
                                                   void * /*ignored*/) {
  return ZTK_REJECTED;
}
