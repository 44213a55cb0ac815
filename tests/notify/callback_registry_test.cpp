// SPDX-License-Identifier: MIT
//
// Tests which products can be registered and unregistered, and which slots are
// written.
#include "notify/callback_registry.h"

#include <algorithm>
#include <functional>

#include "support/core_test.h"

namespace ztk::test {
namespace {

void OnChannelToo(std::int32_t, std::int32_t, void *) {}
void OnIndexToo(std::int32_t, void *) {}

// A family of settings. Both types of callback are converted to the same type.
struct Family {
  const char *name;
  std::uint32_t productId;
  // Registers the first or the second callback.
  std::function<ZTKResult(std::uint32_t, bool second, void *)> registerOne;
  ZTKResult (*unregister)(std::uint32_t, void *);
  // Returns true if the slot contains the first callback, the second one, or
  // null.
  std::function<bool(int)> holdsFirst;
  std::function<bool(int)> holdsSecond;
  std::function<bool(int)> isEmpty;
  void **contexts;
  std::vector<std::uint32_t> unregisteredFor;
  const char *observation;
};

template <typename Callback>
Family MakeFamily(const char *name, std::uint32_t productId,
                  ZTKResult (*registerIt)(std::uint32_t, Callback, void *),
                  ZTKResult (*unregister)(std::uint32_t, void *),
                  Callback *slots, void **contexts, Callback first,
                  Callback second, std::vector<std::uint32_t> unregisteredFor,
                  const char *observation) {
  return {.name = name,
          .productId = productId,
          .registerOne =
              [=](std::uint32_t id, bool two, void *context) {
                return registerIt(id, two ? second : first, context);
              },
          .unregister = unregister,
          .holdsFirst = [=](int id) { return slots[id] == first; },
          .holdsSecond = [=](int id) { return slots[id] == second; },
          .isEmpty = [=](int id) { return slots[id] == nullptr; },
          .contexts = contexts,
          .unregisteredFor = std::move(unregisteredFor),
          .observation = observation};
}

const Family kFamilies[] = {
    MakeFamily("input audio", 10, ZTK_RegisterInputAudioChangedCallback,
               ZTK_UnregisterInputAudioChangedCallback,
               InputAudioChangedCallback, InputAudioChangedContext, OnChannel,
               OnChannelToo, {0, 1, 5, 6, 8, 10},
               "observe VRM-D6 InputAudio Change with inputAudioChanged:"),
    MakeFamily("output audio", 10, ZTK_RegisterOutputAudioChangedCallback,
               ZTK_UnregisterOutputAudioChangedCallback,
               OutputAudioChangedCallback, OutputAudioChangedContext, OnChannel,
               OnChannelToo, {0, 1, 5, 6, 8, 10},
               "observe VRM-D6 OutputAudio Change with outputAudioChanged:"),
    MakeFamily("boost level", 10, ZTK_RegisterBoostLevelChangedCallback,
               ZTK_UnregisterBoostLevelChangedCallback,
               BoostLevelChangedCallback, BoostLevelChangedContext, OnIndex,
               OnIndexToo, {0, 1, 5, 6, 8, 10},
               "observe VRM-D6 BoostLevel Change with boostLevelChanged:"),
    MakeFamily("MIDI channel", 1, ZTK_RegisterMidiChannelChangedCallback,
               ZTK_UnregisterMidiChannelChangedCallback,
               MidiChannelChangedCallback, MidiChannelChangedContext, OnIndex,
               OnIndexToo, {1},
               "observe VRM-K2 MidiChannel Change with midiChannelChanged:"),
};

constexpr std::uint32_t kIds[] = {
    0,  1,  2,  3,  4,  5,          6,          7,          8,         9,
    10, 11, 12, 32, 42, 0x7FFFFFFF, 0x80000000, 0x8000000A, 0xFFFFFFFF};

class CallbackRegistry : public CoreTest {
 protected:
  // Returns true if no slot of any family has a callback or a context.
  static bool TablesAreBlank() {
    for (int id = 0; id < 11; ++id) {
      if (MidiKeyModeChangedCallback[id] != nullptr) return false;
      if (MidiKeyModeChangedContext[id] != nullptr) return false;
      for (const Family &family : kFamilies) {
        if (!family.isEmpty(id) || family.contexts[id] != nullptr) return false;
      }
    }
    return true;
  }
  // Returns true if there is also no observer.
  static bool IsBlank() { return _ZTKFunc == nullptr && TablesAreBlank(); }

  int context_ = 0;
  int otherContext_ = 0;
};

class Register : public CallbackRegistry {};

TEST_F(Register, AcceptsOneProductOfEachFamilyAndIgnoresOthers) {
  for (const Family &family : kFamilies) {
    SCOPED_TRACE(family.name);
    for (const std::uint32_t id : kIds) {
      if (id == family.productId) continue;
      SCOPED_TRACE(id);
      EXPECT_EQ(family.registerOne(id, false, &context_), 102u);
      EXPECT_TRUE(IsBlank());
      EXPECT_THAT(TakeCalls(), IsEmpty());
    }
  }
  for (const Family &family : kFamilies) {
    SCOPED_TRACE(family.name);
    EXPECT_EQ(family.registerOne(family.productId, false, &context_), 100u);
  }
}

TEST_F(Register, AddsAnObserverWithTheNameAndMethodOfTheFamily) {
  for (const Family &family : kFamilies) {
    SCOPED_TRACE(family.name);
    family.registerOne(family.productId, false, &context_);
    EXPECT_THAT(TakeCalls(), ElementsAre(family.observation));
    EXPECT_EQ(CurrentWorld().observations.back().observer, _ZTKFunc);
  }
}

TEST_F(Register, StoresCallbackAndContextOnlyInTheSlotOfTheProduct) {
  for (const Family &family : kFamilies) {
    SCOPED_TRACE(family.name);
    const int slot = static_cast<int>(family.productId);
    family.registerOne(family.productId, false, &context_);
    EXPECT_TRUE(family.holdsFirst(slot));
    EXPECT_EQ(family.contexts[slot], &context_);
    for (int other = 0; other < 11; ++other) {
      if (other == slot) continue;
      EXPECT_TRUE(family.isEmpty(other));
      EXPECT_EQ(family.contexts[other], nullptr);
    }
    family.registerOne(family.productId, false, nullptr);
    family.unregister(family.productId, nullptr);
    EXPECT_TRUE(TablesAreBlank())
        << "the tables of another setting were written";
  }
}

// If a notification arrives while the observer is being added, the slot must
// have its old content: the new callback must not run before Register has
// returned.
TEST_F(Register, AddsTheObserverBeforeItStoresTheCallback) {
  for (const Family &family : kFamilies) {
    SCOPED_TRACE(family.name);
    CurrentWorld().onObserve = [&family] {
      EXPECT_TRUE(family.isEmpty(static_cast<int>(family.productId)));
      EXPECT_EQ(family.contexts[family.productId], nullptr);
    };
    int context = 0;
    EXPECT_EQ(family.registerOne(family.productId, false, &context), 100u);
    EXPECT_FALSE(family.isEmpty(static_cast<int>(family.productId)));
  }
  EXPECT_EQ(CurrentWorld().observations.size(), 4u);
}

TEST_F(Register, MakesOneObserverForAllFamilies) {
  EXPECT_EQ(_ZTKFunc, nullptr);
  kFamilies[2].registerOne(10, false, nullptr);
  void *const observer = _ZTKFunc;
  EXPECT_NE(observer, nullptr);
  for (const Family &family : kFamilies) {
    family.registerOne(family.productId, false, nullptr);
    EXPECT_EQ(_ZTKFunc, observer);
  }
}

TEST_F(Register, AddsARegistrationEveryTime) {
  for (const Family &family : kFamilies) {
    SCOPED_TRACE(family.name);
    family.registerOne(family.productId, false, nullptr);
    family.registerOne(family.productId, true, nullptr);
    family.unregister(family.productId, nullptr);
    family.registerOne(family.productId, false, nullptr);
    EXPECT_THAT(TakeSteps(), ElementsAre(family.observation, family.observation,
                                         family.observation));
  }
}

TEST_F(Register, OverwritesCallbackAndContext) {
  for (const Family &family : kFamilies) {
    SCOPED_TRACE(family.name);
    const int slot = static_cast<int>(family.productId);
    family.registerOne(family.productId, false, &context_);
    family.registerOne(family.productId, true, &otherContext_);
    EXPECT_TRUE(family.holdsSecond(slot));
    EXPECT_EQ(family.contexts[slot], &otherContext_);
  }
}

TEST_F(Register, AcceptsANullCallbackAndStillAddsAnObserver) {
  EXPECT_EQ(ZTK_RegisterInputAudioChangedCallback(10, nullptr, &context_),
            100u);
  EXPECT_EQ(InputAudioChangedCallback[10], nullptr);
  EXPECT_EQ(InputAudioChangedContext[10], &context_);
  EXPECT_EQ(ZTK_RegisterMidiChannelChangedCallback(1, nullptr, &context_),
            100u);
  EXPECT_EQ(MidiChannelChangedContext[1], &context_);
  EXPECT_THAT(TakeSteps(),
              ElementsAre(kFamilies[0].observation, kFamilies[3].observation));
}

class Unregister : public CallbackRegistry {};

TEST_F(Unregister, ServesMoreProductsThanRegisterDoes) {
  for (const Family &family : kFamilies) {
    SCOPED_TRACE(family.name);
    for (const std::uint32_t id : kIds) {
      SCOPED_TRACE(id);
      const bool served = std::find(family.unregisteredFor.begin(),
                                    family.unregisteredFor.end(),
                                    id) != family.unregisteredFor.end();
      EXPECT_EQ(family.unregister(id, nullptr), served ? 100u : 102u);
    }
  }
  EXPECT_TRUE(IsBlank());
  EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(Unregister, ClearsTheCallbackAndKeepsContextAndObserver) {
  for (const Family &family : kFamilies) {
    SCOPED_TRACE(family.name);
    const int slot = static_cast<int>(family.productId);
    family.registerOne(family.productId, false, &context_);
    void *const observer = _ZTKFunc;
    TakeCalls();
    EXPECT_EQ(family.unregister(family.productId, &otherContext_), 100u);
    EXPECT_TRUE(family.isEmpty(slot));
    EXPECT_EQ(family.contexts[slot], &context_);
    EXPECT_EQ(_ZTKFunc, observer);
    EXPECT_THAT(TakeCalls(), IsEmpty());
  }
}

TEST_F(Unregister, ClearsOnlyTheSlotOfTheProduct) {
  for (int id = 0; id < 11; ++id) {
    InputAudioChangedCallback[id] = OnChannel;
    OutputAudioChangedCallback[id] = OnChannel;
    BoostLevelChangedCallback[id] = OnIndex;
    MidiChannelChangedCallback[id] = OnIndex;
  }
  for (const Family &family : kFamilies) {
    SCOPED_TRACE(family.name);
    for (const std::uint32_t id : kIds) family.unregister(id, nullptr);
    for (int id = 0; id < 11; ++id) {
      SCOPED_TRACE(id);
      const bool emptied = std::find(family.unregisteredFor.begin(),
                                     family.unregisteredFor.end(),
                                     static_cast<std::uint32_t>(id)) !=
                           family.unregisteredFor.end();
      EXPECT_EQ(family.isEmpty(id), emptied);
    }
  }
}

TEST_F(Unregister, DoesNotChangeTheOtherFamilies) {
  for (const Family &family : kFamilies) {
    family.registerOne(family.productId, false, nullptr);
  }
  ZTK_UnregisterOutputAudioChangedCallback(10, nullptr);
  EXPECT_EQ(OutputAudioChangedCallback[10], nullptr);
  EXPECT_EQ(InputAudioChangedCallback[10], OnChannel);
  EXPECT_EQ(BoostLevelChangedCallback[10], OnIndex);
  EXPECT_EQ(MidiChannelChangedCallback[1], OnIndex);
}

class RegisterMidiKeyMode : public CallbackRegistry {};

TEST_F(RegisterMidiKeyMode, RejectsEveryProduct) {
  for (const std::uint32_t id : kIds) {
    SCOPED_TRACE(id);
    EXPECT_EQ(ZTK_RegisterMidiKeyModeChangedCallback(id, OnIndex, &context_),
              102u);
    EXPECT_EQ(ZTK_UnregisterMidiKeyModeChangedCallback(id, &context_), 102u);
  }
  EXPECT_TRUE(IsBlank());
  EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(RegisterMidiKeyMode, DoesNotChangeASlotThatAProgramWrote) {
  MidiKeyModeChangedCallback[1] = OnIndex;
  ZTK_UnregisterMidiKeyModeChangedCallback(1, nullptr);
  EXPECT_EQ(MidiKeyModeChangedCallback[1], OnIndex);
  MidiKeyModeChangedCallback[1] = nullptr;
}

}  // namespace
}  // namespace ztk::test
