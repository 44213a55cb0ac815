// SPDX-License-Identifier: MIT
#include <string>

#include "api/api_test.h"

namespace ztk::test {
namespace {

class ResultCodes : public ApiTest {};

TEST_F(ResultCodes, AreTheFiveNumbersThatProgramsCompareWith) {
  EXPECT_EQ(ZTK_SUCCESS, 100u);
  EXPECT_EQ(ZTK_WARNING, 101u);
  EXPECT_EQ(ZTK_REJECTED, 102u);
  EXPECT_EQ(ZTK_CONNECTED, 103u);
  EXPECT_EQ(ZTK_NOT_CONNECTED, 104u);
}

class GetProductId : public ApiTest {
 protected:
  struct Found {
    ZTKResult result;
    std::uint32_t id;
    bool operator==(const Found &) const = default;
  };
  static Found Find(const char *name) {
    std::uint32_t id = kUntouched;
    const ZTKResult result =
        ZTK_GetProductId(name == nullptr ? nullptr : PermanentText(name), &id);
    return {.result = result, .id = id};
  }
};

TEST_F(GetProductId, KnowsNineModels) {
  const struct {
    const char *name;
    std::uint32_t expected;
  } rows[] = {{"VRM-Q8X", 0}, {"VRM-K2", 1}, {"VRM-Q8S", 2},
              {"VRC-H7", 3},  {"VRM-Q9", 4}, {"VRM-L4", 5},
              {"VRM-E3", 6},  {"VRM-B5", 8}, {"VRM-D6", 10}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(Find(row.name), (Found{.result = 100, .id = row.expected}));
  }
}

TEST_F(GetProductId, FindsAModelAnywhereInUpperOrLowerCase) {
  for (const char *name : {"vrm-d6", "Vrm-D6", "vRM-d6", "Tarvix VRM-D6",
                           "VRM-D6 USB Audio", "my old vrm-d6 (studio)",
                           "xVRM-D6x", "VRM-D66", "Gr\u00fcner vrm-d6"}) {
    SCOPED_TRACE(name);
    EXPECT_EQ(Find(name), (Found{.result = 100, .id = 10}));
  }
}

TEST_F(GetProductId, ReturnsTheModelThatIsFirstInTheListNotInTheText) {
  const struct {
    const char *name;
    std::uint32_t expected;
  } rows[] = {{"VRM-D6 VRM-B5", 8},           {"VRM-B5 VRM-D6", 8},
              {"vrm-b5 vrm-e3", 6},           {"VRM-E3 VRM-L4", 5},
              {"VRM-L4 VRM-Q9", 4},           {"VRM-Q9 VRC-H7", 3},
              {"VRC-H7 VRM-Q8S", 2},          {"VRM-Q8S VRM-K2", 1},
              {"VRM-K2 VRM-Q8X", 0},          {"VRM-D6 and VRM-Q8X", 0},
              {"VRM-D6VRM-B5VRM-E3VRM-K2", 1}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(Find(row.name), (Found{.result = 100, .id = row.expected}));
  }
}

TEST_F(GetProductId, RejectsANameWithoutAModelAndDoesNotWriteTheOutput) {
  for (const char *name : {"", "VRM-D", "vrm-d", "RM-D6", "VRM D6", "VRM-D 6",
                           "VRMD6", "VRM-Q8", "VRC-D6", "D6", "mixer"}) {
    SCOPED_TRACE(name);
    EXPECT_EQ(Find(name), (Found{.result = 102, .id = kUntouched}));
  }
}

TEST_F(GetProductId, NeverReturnsTheUnusedNumbersSevenAndNine) {
  for (const char *name : {"7", "9", "VRM-7", "VRM-9", "VRM-A7", "VRM-C9",
                           "VRM-H7", "VRC-Q9", "VRM-D7", "VRM-D9"}) {
    SCOPED_TRACE(name);
    EXPECT_EQ(Find(name), (Found{.result = 102, .id = kUntouched}));
  }
}

TEST_F(GetProductId, RejectsANullNameAndANullOutput) {
  EXPECT_EQ(Find(nullptr), (Found{.result = 102, .id = kUntouched}));
  EXPECT_EQ(ZTK_GetProductId(ZTK_TEXT("VRM-D6"), nullptr), 102u);
  EXPECT_EQ(ZTK_GetProductId(nullptr, nullptr), 102u);
}

TEST_F(GetProductId, DoesNotChangeTheCallersTextAndUsesNoPlatform) {
  CurrentWorld().bus = {Mixer()};
  std::string name = "vrm-d6 in lower case";
  std::uint32_t id = 0;
  EXPECT_EQ(ZTK_GetProductId(PermanentText(name), &id), 100u);
  EXPECT_EQ(name, "vrm-d6 in lower case");
  EXPECT_THAT(TakeCalls(), IsEmpty());
}

class IsUSBConnection : public ApiTest {};

TEST_F(IsUSBConnection, ReturnsWhetherAtLeastOneMixerIsCounted) {
  Device othersMixer = Mixer();
  othersMixer.vendor = 0x6667;
  Device otherProduct = Mixer();
  otherProduct.product = 28;
  const struct {
    const char *name;
    Bus bus;
    ZTKResult expected;
  } rows[] = {
      {"no device", {}, 104},
      {"other devices only", {OtherDevice(), OtherDevice()}, 104},
      {"product 27 of another maker", {othersMixer}, 104},
      {"another product of the maker", {otherProduct}, 104},
      {"one mixer", {Mixer()}, 103},
      {"one behind other devices", {OtherDevice(), otherProduct, Mixer()}, 103},
      {"two mixers", {Mixer(), Mixer()}, 103},
      {"one that does not open", {UnreachableMixer()}, 103},
      {"one without plug-in", {WithoutPlugIn(Mixer())}, 103},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    StartAfresh(row.bus);
    EXPECT_EQ(ZTK_IsUSBConnection(10), row.expected);
    EXPECT_THAT(TakeSteps(), ElementsAre("count"));
    EXPECT_EQ(CurrentWorld().held, OneCount());
  }
}

TEST_F(IsUSBConnection, ReturnsTheSameForEveryProduct) {
  for (const std::uint32_t id :
       {0u, 1u, 7u, 8u, 10u, 11u, 32u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
    SCOPED_TRACE(id);
    StartAfresh();
    EXPECT_EQ(ZTK_IsUSBConnection(id), 104u);
    CurrentWorld().bus = {Mixer()};
    EXPECT_EQ(ZTK_IsUSBConnection(id), 103u);
    EXPECT_THAT(TakeSteps(), ElementsAre("count", "count"));
  }
}

TEST_F(IsUSBConnection, CountsNoMixersIfTheBusCannotBeRead) {
  CurrentWorld().bus = {Mixer()};
  CurrentWorld().hasMatching = false;
  EXPECT_EQ(ZTK_IsUSBConnection(10), 104u);
  CurrentWorld().hasMatching = true;
  CurrentWorld().findResult = platform::usb::kError;
  EXPECT_EQ(ZTK_IsUSBConnection(10), 104u);
  CurrentWorld().findResult = 0;
  CurrentWorld().hasIterator = false;
  EXPECT_EQ(ZTK_IsUSBConnection(10), 104u);
  CurrentWorld().hasIterator = true;
  EXPECT_EQ(ZTK_IsUSBConnection(10), 103u);
}

}  // namespace
}  // namespace ztk::test
