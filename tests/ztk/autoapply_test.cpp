// SPDX-License-Identifier: MIT
#include <unistd.h>

#include <filesystem>
#include <memory>

#include "cli_world.h"
#include "fake_user_manager.h"

namespace ztk::test {
namespace {

constexpr char kUnitFile[] = ZTK_DATA_DIR "/ztk/ztk-apply@.service";
constexpr char kPlugInRule[] = "/usr/local/lib/udev/rules.d/71-ztk-apply.rules";

class Autoapply : public CliWorld {
 protected:
  void SetUp() override {
    CliWorld::SetUp();
    if (IsSkipped()) return;
    manager_ = std::make_unique<FakeUserManager>();
  }

  // Runs the script in a mount namespace with these files, whose /usr/local is
  // otherwise empty, and where the system seems to run systemd.
  Result WithFiles(const std::vector<std::string> &files,
                   const std::string &script) {
    std::string setUp =
        "mount -t tmpfs tmpfs /usr/local && mount -t tmpfs tmpfs /run || exit "
        "98\nmkdir -p /run/systemd/system\n";
    for (const std::string &file : files) {
      const std::string folder = std::filesystem::path(file).parent_path();
      setUp += "mkdir -p " + folder + " && touch " + file + " || exit 98\n";
    }
    const std::string unshare =
        geteuid() == 0 ? "unshare --mount" : "unshare --mount --map-root-user";
    return OneMixer(unshare + " true || exit 98\n" + unshare + " sh -c '" +
                    setUp + script + "'");
  }

  std::unique_ptr<FakeUserManager> manager_;
};

#define SKIP_WITHOUT_NAMESPACE(result)     \
  if ((result).status == kNoTemporaryRoot) \
  GTEST_SKIP() << "no mount namespace "    \
                  "here"

TEST_F(Autoapply, IsOffUntilAskedFor) {
  const Result result = OneMixer("ztk autoapply status");
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(
      result.out,
      "Off: the remembered settings are sent when you run 'ztk apply'.\n");
  EXPECT_EQ(result.err, "");
  EXPECT_THAT(manager_->calls(), IsEmpty());
  EXPECT_THAT(Requests(), IsEmpty());
}

TEST_F(Autoapply, MakesTheUnitKnownForGood) {
  Remember("VRM-D6", {{"Output1", 2}});
  const Result result = WithFiles({kUnitFile, kPlugInRule}, "ztk autoapply on");
  SKIP_WITHOUT_NAMESPACE(result);
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(
      result.out,
      "On: the remembered settings are sent to each mixer that is plugged "
      "in.\n");
  EXPECT_EQ(result.err, "");
  EXPECT_THAT(manager_->calls(), ElementsAre("LinkUnitFiles " ZTK_DATA_DIR
                                             "/ztk/ztk-apply@.service 0 1",
                                             "Reload"));
  // Turning it on sends nothing.
  EXPECT_THAT(Requests(), IsEmpty());
}

TEST_F(Autoapply, ForgetsTheUnitWhenTurnedOff) {
  manager_->KnowUnit(true);
  const Result result = OneMixer("ztk autoapply off");
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_THAT(result.out, StartsWith("Off: "));
  EXPECT_THAT(manager_->calls(),
              ElementsAre("DisableUnitFiles ztk-apply@.service 0", "Reload"));
}

TEST_F(Autoapply, MayBeTurnedOffTwice) {
  EXPECT_EQ(OneMixer("ztk autoapply off && ztk autoapply off").status, 0);
}

TEST_F(Autoapply, TellsProgramsWhetherItIsOn) {
  EXPECT_EQ(
      OneObject(OneMixer("ztk autoapply status --json").out)["autoapply"]["on"],
      false);
  manager_->KnowUnit(true);
  EXPECT_EQ(
      OneObject(OneMixer("ztk autoapply status --json").out)["autoapply"]["on"],
      true);
}

TEST_F(Autoapply, NamesTheRuleThatStartsIt) {
  manager_->KnowUnit(true);
  const Result result = WithFiles({kPlugInRule}, "ztk autoapply status --json");
  SKIP_WITHOUT_NAMESPACE(result);
  EXPECT_EQ(OneObject(result.out)["autoapply"]["rule"], kPlugInRule);
}

TEST_F(Autoapply, SaysThatNothingStartsItWithoutTheRule) {
  manager_->KnowUnit(true);
  const Result result = WithFiles({}, "ztk autoapply status");
  SKIP_WITHOUT_NAMESPACE(result);
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.out, StartsWith("On: "));
  EXPECT_THAT(
      SplitLines(result.err),
      ElementsAre(HasSubstr("the udev rule 71-ztk-apply.rules is missing")));
}

TEST_F(Autoapply, NeedsAnInstalledUnit) {
  const Result result = WithFiles({kPlugInRule}, "ztk autoapply on");
  SKIP_WITHOUT_NAMESPACE(result);
  EXPECT_EQ(result.status, 5);
  EXPECT_EQ(result.out, "");
  EXPECT_THAT(SplitLines(result.err),
              ElementsAre(HasSubstr("the file " + std::string(kUnitFile))));
  EXPECT_THAT(manager_->calls(), IsEmpty());
}

TEST_F(Autoapply, SaysWhyItIsRefused) {
  manager_->RefuseWith("Not while the moon is up");
  for (const char *verb : {"on", "off", "status"}) {
    SCOPED_TRACE(verb);
    const Result result = WithFiles({kUnitFile, kPlugInRule},
                                    std::string("ztk autoapply ") + verb);
    SKIP_WITHOUT_NAMESPACE(result);
    EXPECT_EQ(result.status, 5);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err,
              "ztk: autoapply needs the systemd of your session, which cannot "
              "be used (Not while the moon is up); run 'ztk apply' each time "
              "you have plugged a mixer in\n");
  }
}

TEST_F(Autoapply, CannotBeTurnedOnWithoutSystemd) {
  manager_.reset();
  const Result result =
      WithFiles({kPlugInRule}, "rm -r /run/systemd/system; ztk autoapply on");
  SKIP_WITHOUT_NAMESPACE(result);
  EXPECT_EQ(result.status, 5);
  EXPECT_EQ(result.out, "");
  // This is the reason, although the unit's file is missing too.
  EXPECT_EQ(result.err,
            "ztk: autoapply is off and cannot be turned on, because this "
            "system does not run systemd; run 'ztk apply' each time you have "
            "plugged a mixer in\n");
}

TEST_F(Autoapply, IsOffWithoutSystemd) {
  manager_.reset();
  for (const char *verb : {"off", "status"}) {
    SCOPED_TRACE(verb);
    const Result result =
        WithFiles({kPlugInRule}, "rm -r /run/systemd/system; ztk autoapply " +
                                     std::string(verb));
    SKIP_WITHOUT_NAMESPACE(result);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(
        result.out,
        "Off: the remembered settings are sent when you run 'ztk apply'.\n");
    // Someone who turns it off does not want to turn it on.
    EXPECT_EQ(result.err,
              verb == std::string("off")
                  ? ""
                  : "ztk: warning: autoapply is off and cannot be turned on, "
                    "because this system does not run systemd; run 'ztk apply' "
                    "each time you have plugged a mixer in\n");
  }
}

TEST_F(Autoapply, SaysThatThereIsNoBus) {
  const Result result = WithFiles(
      {},
      "DBUS_SESSION_BUS_ADDRESS=unix:path=/nowhere ztk autoapply off --json");
  SKIP_WITHOUT_NAMESPACE(result);
  EXPECT_EQ(result.status, 5);
  EXPECT_EQ(OneObject(result.out)["error"]["code"], "failed");
  EXPECT_THAT(result.err, StartsWith("ztk: autoapply "));
}

}  // namespace
}  // namespace ztk::test
