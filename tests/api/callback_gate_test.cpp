// SPDX-License-Identifier: MIT
//
// Tests which products can be registered and unregistered. The calls of the
// callbacks are tested in tests/notify/callback_registry_test.cpp.
#include <algorithm>

#include "api/api_test.h"
#include "api/product_gates.h"

namespace ztk::test {
namespace {

void *Context() {
  static int context = 0;
  return &context;
}

// All slots contain a callback, so that a refused call that writes to a slot is
// detected.
class CallbackGates : public ApiTest {
 protected:
  CallbackGates() { FillEverySlot(); }

  static void FillEverySlot() {
    for (int i = 0; i < notify::kSlots; ++i) {
      InputAudioChangedCallback[i] = OnChannel;
      OutputAudioChangedCallback[i] = OnChannel;
      BoostLevelChangedCallback[i] = OnIndex;
      MidiChannelChangedCallback[i] = OnIndex;
      MidiKeyModeChangedCallback[i] = OnIndex;
      InputAudioChangedContext[i] = Context();
      OutputAudioChangedContext[i] = Context();
      BoostLevelChangedContext[i] = Context();
      MidiChannelChangedContext[i] = Context();
      MidiKeyModeChangedContext[i] = Context();
    }
  }

  // Returns the slots whose callback or context has changed.
  static Steps ChangedSlots() {
    Steps changed;
    const auto look = [&changed](const std::string &family, int slot,
                                 bool callback, bool context) {
      const std::string where = family + " " + std::to_string(slot);
      if (callback) changed.push_back(where + " callback");
      if (context) changed.push_back(where + " context");
    };
    for (int i = 0; i < notify::kSlots; ++i) {
      look("input", i, InputAudioChangedCallback[i] != OnChannel,
           InputAudioChangedContext[i] != Context());
      look("output", i, OutputAudioChangedCallback[i] != OnChannel,
           OutputAudioChangedContext[i] != Context());
      look("boost", i, BoostLevelChangedCallback[i] != OnIndex,
           BoostLevelChangedContext[i] != Context());
      look("midi", i, MidiChannelChangedCallback[i] != OnIndex,
           MidiChannelChangedContext[i] != Context());
      look("key mode", i, MidiKeyModeChangedCallback[i] != OnIndex,
           MidiKeyModeChangedContext[i] != Context());
    }
    return changed;
  }
};

TEST_F(CallbackGates, RegisterAcceptsOneProductAndUnregisterSix) {
  using Unregister = ZTKResult (*)(std::uint32_t, void *);
  const struct {
    const char *family;
    Unregister call;
  } rows[] = {{"input", ZTK_UnregisterInputAudioChangedCallback},
              {"output", ZTK_UnregisterOutputAudioChangedCallback},
              {"boost", ZTK_UnregisterBoostLevelChangedCallback}};
  for (const auto &row : rows) {
    for (const std::uint32_t product : kIds) {
      SCOPED_TRACE(std::string(row.family) + " " + std::to_string(product));
      FillEverySlot();
      const bool served = std::find(kSixProducts.begin(), kSixProducts.end(),
                                    product) != kSixProducts.end();
      EXPECT_EQ(row.call(product, Context()), served ? 100u : 102u);
      const Steps expected = {std::string(row.family) + " " +
                              std::to_string(product) + " callback"};
      EXPECT_EQ(ChangedSlots(), served ? expected : Steps{});
    }
  }
  EXPECT_EQ(ZTK_RegisterInputAudioChangedCallback(8, OnChannel, nullptr), 102u);
  EXPECT_EQ(ZTK_RegisterOutputAudioChangedCallback(8, OnChannel, nullptr),
            102u);
  EXPECT_EQ(ZTK_RegisterBoostLevelChangedCallback(8, OnIndex, nullptr), 102u);
}

TEST_F(CallbackGates, ARefusedRegisterChangesNothing) {
  for (const std::uint32_t product : kIds) {
    SCOPED_TRACE(product);
    ZTK_RegisterMidiKeyModeChangedCallback(product, nullptr, nullptr);
    ZTK_UnregisterMidiKeyModeChangedCallback(product, nullptr);
    if (product != 1) {
      ZTK_RegisterMidiChannelChangedCallback(product, nullptr, nullptr);
      ZTK_UnregisterMidiChannelChangedCallback(product, nullptr);
    }
    if (product != 10) {
      ZTK_RegisterInputAudioChangedCallback(product, nullptr, nullptr);
      ZTK_RegisterOutputAudioChangedCallback(product, nullptr, nullptr);
      ZTK_RegisterBoostLevelChangedCallback(product, nullptr, nullptr);
    }
  }
  EXPECT_THAT(ChangedSlots(), IsEmpty());
  EXPECT_EQ(_ZTKFunc, nullptr);
  EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(CallbackGates, RegisterAcceptsANullCallback) {
  EXPECT_EQ(ZTK_RegisterInputAudioChangedCallback(10, nullptr, nullptr), 100u);
  EXPECT_EQ(ZTK_RegisterMidiChannelChangedCallback(1, nullptr, nullptr), 100u);
  EXPECT_THAT(ChangedSlots(),
              ElementsAre("midi 1 callback", "midi 1 context",
                          "input 10 callback", "input 10 context"));
}

}  // namespace
}  // namespace ztk::test
