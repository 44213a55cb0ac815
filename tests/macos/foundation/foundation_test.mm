// SPDX-License-Identifier: MIT
#include "foundation_test.h"

#include <cstdlib>
#include <filesystem>

#include "client.h"
#include "notify/callback_registry.h"

namespace ztk::test {

namespace fs = std::filesystem;

FoundationTest::FoundationTest() : pool_([[NSAutoreleasePool alloc] init]) {
  iokit::StartAfresh();
  fs::remove_all(Preferences());
  fs::create_directories(Preferences());
}

FoundationTest::~FoundationTest() {
  EXPECT_THAT(CurrentWorld().misuse, IsEmpty());
  // The center waits for an observer that does not run its event loop, and all
  // other processes then wait too.
  if (_ZTKFunc != nullptr) {
    [[NSDistributedNotificationCenter defaultCenter]
        removeObserver:(id)_ZTKFunc];
  }
  [pool_ release];
}

void TemporaryRootTest::SetUp() {
  const char *why = std::getenv(kNoRoot);
  if (why != nullptr) GTEST_SKIP() << why;
  for (const char *folder :
       {"/System", "/Library", "/private", "/Applications"}) {
    fs::remove_all(folder);
  }
}

Client::Client(const std::vector<std::string> &words)
    : ChildProcess([&words] {
        std::vector<std::string> line{OwnProgram(), kClient};
        line.insert(line.end(), words.begin(), words.end());
        return line;
      }()) {}

std::string StringOf(ZTKTextRef text) {
  return text == nullptr ? "(null)" : [(NSString *)text UTF8String];
}

NSString *ObjectOf(const std::string &text) {
  return [NSString stringWithUTF8String:text.c_str()];
}

ZTKTextRef TextOf(const std::string &text) {
  return (ZTKTextRef)ObjectOf(text);
}

std::string Preferences() {
  return std::string(std::getenv("HOME")) + "/Library/Preferences";
}

std::string SettingsFile(const std::string &model) {
  return Preferences() + "/com.tarvix." + model + "autosetup.plist";
}

std::string PropertyList(const std::string &entries) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
         "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
         "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
         "<plist version=\"1.0\"><dict>" +
         entries + "</dict></plist>\n";
}

}  // namespace ztk::test
