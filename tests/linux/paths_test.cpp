// SPDX-License-Identifier: MIT
#include "platform/paths.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "linux/temp_folder.h"
#include "platform/text.h"

namespace {

using ztk::platform::text::OwnedText;
using ztk::test::NamesIn;
using ztk::test::TempFolder;
using ztk::test::Variable;

std::string Library() {
  const OwnedText library(ztk::platform::paths::UserLibrary());
  return library.get() == nullptr ? "(null)" : library.get();
}

class UserLibrary : public testing::Test {
 protected:
  void Make(const std::string &folder) {
    std::filesystem::create_directories(home_ / folder);
  }

  TempFolder home_;
  Variable homeVariable_{"HOME", home_.path()};
  Variable configVariable_{"XDG_CONFIG_HOME", std::nullopt};
};

TEST_F(UserLibrary, IsInTheConfigurationFolderAndIsNotCreated) {
  EXPECT_EQ(Library(), home_ / ".config/tarvix");
  EXPECT_TRUE(NamesIn(home_.path()).empty());
}

TEST_F(UserLibrary, UsesAnAbsoluteConfigurationHome) {
  const Variable config("XDG_CONFIG_HOME", home_ / "elsewhere");
  EXPECT_EQ(Library(), home_ / "elsewhere/tarvix");
}

TEST_F(UserLibrary, IgnoresAnEmptyOrRelativeConfigurationHome) {
  for (const char *value : {"", "config", "./config", "~/config"}) {
    SCOPED_TRACE(value);
    const Variable config("XDG_CONFIG_HOME", value);
    EXPECT_EQ(Library(), home_ / ".config/tarvix");
  }
}

TEST_F(UserLibrary, IsTheLibraryFolderOfAHomeSharedWithMacOs) {
  Make("Library/Preferences");
  EXPECT_EQ(Library(), home_ / "Library");
}

TEST_F(UserLibrary, OfASharedHomeIsTheLinuxFolderIfThatExists) {
  Make("Library/Preferences");
  Make(".config/tarvix");
  EXPECT_EQ(Library(), home_ / ".config/tarvix");
}

TEST_F(UserLibrary, OfASharedHomeMustContainPreferences) {
  Make("Library");
  EXPECT_EQ(Library(), home_ / ".config/tarvix");
}

TEST_F(UserLibrary, OfASharedHomeDoesNotDependOnTheConfigurationHome) {
  Make("Library/Preferences");
  const Variable config("XDG_CONFIG_HOME", home_ / "elsewhere");
  EXPECT_EQ(Library(), home_ / "Library");
}

TEST_F(UserLibrary, WithoutHomeComesFromThePasswordDatabase) {
  const struct passwd *entry = getpwuid(getuid());
  if (entry == nullptr) GTEST_SKIP() << "this user has no entry";
  const std::string home = entry->pw_dir;
  if (std::filesystem::exists(home + "/Library/Preferences")) {
    GTEST_SKIP() << "this user's home is shared with macOS";
  }
  for (const auto &value :
       {std::optional<std::string>(), std::optional<std::string>(""),
        std::optional<std::string>("relative")}) {
    SCOPED_TRACE(value.value_or("unset"));
    const Variable variable("HOME", value);
    EXPECT_EQ(Library(), home + "/.config/tarvix");
  }
}

TEST_F(UserLibrary, IsNullForAUserWithoutAHome) {
  if (getuid() != 0) GTEST_SKIP() << "only root can become another user";
  unsetenv("HOME");
  const int code = ztk::test::ExitCodeOf([] {
    constexpr uid_t kUnusedId = 3'999'999'999U;
    if (setuid(kUnusedId) != 0) return 2;
    return ztk::platform::paths::UserLibrary() == nullptr ? 0 : 1;
  });
  EXPECT_EQ(code, 0);
}

}  // namespace
