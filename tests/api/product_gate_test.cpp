// SPDX-License-Identifier: MIT
//
// Calls every function with arguments on both sides of each bound in the table
// (product_gates.h). The tests of the families check what an accepted call
// does.
#include "api/api_test.h"
#include "api/product_gates.h"

namespace ztk::test {
namespace {

class EveryFunction : public ApiTest {
 protected:
  // Returns a world in which a call is refused only because of its arguments.
  static World Complete() {
    World world;
    world.bus = {Mixer()};
    const fake::Entries versions = {{"PackageVersion", "1"},
                                    {"CFBundleShortVersionString", "1"},
                                    {"CFBundleVersion", "1"}};
    world.files = {
        {"/private/var/db/receipts/com.tarvix.VRM-D6.pkg.plist", versions},
        {"/System/Library/Extensions/VRM-D6 USBAudio.kext/Contents/Info.plist",
         versions},
        {"/Applications/Tarvix/VRM-D6/VRM-D6 Setup.app/Contents/Info.plist",
         versions},
        {"/System/Library/Frameworks/VRM-D6Setup.framework/Versions/A/"
         "Resources/Info.plist",
         versions},
        {"/r/English.lproj/Localizable.strings", {{"WARNING2", "warning"}}}};
    world.bundles = {{"/System/Library/Frameworks/VRM-D6Setup.framework",
                      {.resourcePath = "/r", .preferredTexts = {}}}};
    return world;
  }

  // Returns the output after a refusal. Only the firmware query writes it.
  static std::uint32_t LeftByRefusal(const Gate &gate) {
    return std::string(gate.name) == "GetFirmwareVersionIndex" ? 0 : kUntouched;
  }

  static std::string Describe(const Gate &gate, const Arguments &a) {
    return std::string(gate.name) + ", product " + std::to_string(a.product) +
           ", channel " + std::to_string(a.channel) + ", index " +
           std::to_string(a.index) +
           (a.number == nullptr && a.text == nullptr ? ", no output" : "");
  }

  static void Check(const Gate &gate, std::uint32_t product,
                    std::uint32_t channel, std::uint32_t index,
                    bool withOutput) {
    std::uint32_t number = kUntouched;
    ZTKTextRef text = kUntouchedText;
    const bool isNumber = gate.output == Output::Number;
    const bool isText =
        gate.output == Output::Text || gate.output == Output::TextNeverNull;
    const Arguments arguments{
        .product = product,
        .channel = channel,
        .index = index,
        .number = isNumber && withOutput ? &number : nullptr,
        .text = isText && withOutput ? &text : nullptr};
    const bool accepted = gate.Accepts(arguments) && withOutput;
    const ZTKResult result = gate.call(arguments);

    EXPECT_EQ(result != 102, accepted) << Describe(gate, arguments);
    EXPECT_EQ(text != kUntouchedText, accepted && isText)
        << Describe(gate, arguments);
    if (accepted) {
      EXPECT_EQ(number != kUntouched, isNumber) << Describe(gate, arguments);
      if (!CurrentWorld().calls.empty()) CurrentWorld() = Complete();
      return;
    }
    EXPECT_EQ(number, withOutput ? LeftByRefusal(gate) : kUntouched)
        << Describe(gate, arguments);
    EXPECT_THAT(CurrentWorld().calls, IsEmpty()) << Describe(gate, arguments);
    EXPECT_THAT(CurrentWorld().steps, IsEmpty()) << Describe(gate, arguments);
    EXPECT_EQ(CurrentWorld().held, Held{}) << Describe(gate, arguments);
  }

  static void CheckEveryArgument(const Gate &gate) {
    const bool hasOutput = gate.output != Output::None;
    const bool canBeNull = hasOutput && gate.output != Output::TextNeverNull;
    for (const std::uint32_t product : kIds) {
      for (const std::uint32_t channel : kChannels) {
        if (channel > 0 && !gate.TakesChannel()) break;
        for (const std::uint32_t index : kIndexes) {
          Check(gate, product, channel, index, true);
          if (canBeNull) Check(gate, product, channel, index, false);
        }
      }
    }
  }
};

TEST_F(EveryFunction, AcceptsTheArgumentsOfItsRowAndRefusesAllOthers) {
  for (const Gate &gate : kGates) {
    CurrentWorld() = Complete();
    inputAudioInfo = outputAudioInfo = boostLevelInfo = nullptr;
    midiChannelInfo = nullptr;
    CheckEveryArgument(gate);
    if (HasFailure()) FAIL() << "stopped at " << gate.name;
  }
}

TEST_F(EveryFunction, IsInTheTable) {
  // Two functions have two rows.
  EXPECT_EQ(std::size(kGates), 48u + 2u);
}

TEST_F(EveryFunction, Returns102ForAnUnknownProductId) {
  for (const Gate &gate : kGates) {
    if (gate.products == kEveryProduct) continue;
    SCOPED_TRACE(gate.name);
    CurrentWorld() = Complete();
    for (const std::uint32_t product : {7u, 9u, 11u, 32u, 42u, 64u, kAll}) {
      ZTKTextRef text = kUntouchedText;
      std::uint32_t number = kUntouched;
      EXPECT_EQ(gate.call({.product = product,
                           .channel = 0,
                           .index = 0,
                           .number = &number,
                           .text = &text}),
                102u);
    }
    EXPECT_THAT(TakeCalls(), IsEmpty());
  }
}

TEST_F(EveryFunction, ReturnsTheSameIfTheBusCannotBeReadAsWithoutAMixer) {
  for (const Gate &gate : kGates) {
    if (gate.products.empty()) continue;
    const bool isWarningText = gate.output == Output::TextNeverNull;
    SCOPED_TRACE(gate.name);
    CurrentWorld() = Complete();
    inputAudioInfo = outputAudioInfo = boostLevelInfo = nullptr;
    midiChannelInfo = nullptr;
    CurrentWorld().findResult = platform::usb::kError;
    ZTKTextRef text = kUntouchedText;
    std::uint32_t number = kUntouched;
    EXPECT_NE(gate.call({.product = gate.products.back(),
                         .channel = 0,
                         .index = isWarningText ? 101u : 0u,
                         .number = &number,
                         .text = &text}),
              102u);
  }
}

// Only the order of two tests in a function decides these results.
class OrderOfTests : public ApiTest {};

TEST_F(OrderOfTests, FirmwareVersionWritesBeforeTheProductCertifyLevelAfterIt) {
  std::uint32_t number = kUntouched;
  EXPECT_EQ(ZTK_GetMixerCertifyLevel(8, &number), 102u);
  EXPECT_EQ(number, kUntouched);
  EXPECT_EQ(ZTK_GetFirmwareVersionIndex(8, &number), 102u);
  EXPECT_EQ(number, 0u);
}

TEST_F(OrderOfTests, ANullOutputIsTestedBeforeItIsWritten) {
  EXPECT_EQ(ZTK_GetFirmwareVersionIndex(8, nullptr), 102u);
  EXPECT_EQ(ZTK_GetFirmwareVersionIndex(10, nullptr), 102u);
}

TEST_F(OrderOfTests, ReSendingReadsTheFileBeforeItRefusesTheIndex) {
  CurrentWorld().files[kD6File] = {{"MaxLevel", 9}};
  EXPECT_EQ(ZTK_SetCurrentBoostLevelIndex(10), 102u);
  EXPECT_THAT(TakeCalls(), ElementsAre(std::string("read file ") + kD6File,
                                       "release dictionary"));
}

}  // namespace
}  // namespace ztk::test
