// SPDX-License-Identifier: MIT
#include "apple_library.h"

#include <dlfcn.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <utility>

#include "support/language_rows.h"

namespace ztk::test {
namespace {

// The folder of the libraries in the package of Debian 13 and later.
constexpr const char *kFolders[] = {
    "/usr/libexec/swift/lib/swift/linux",
    "/usr/lib/swift/linux",
};

std::string FindFolder() {
  for (const char *folder : kFolders) {
    if (std::filesystem::exists(std::string(folder) + "/libFoundation.so")) {
      return folder;
    }
  }
  return "";
}

void *Load(const char *name) {
  return dlopen((FindFolder() + "/" + name).c_str(), RTLD_NOW);
}

void *CoreFoundation() {
  static void *library = Load("libFoundation.so");
  return library;
}

template <typename Function>
Function *Find(const char *name, void *library = CoreFoundation()) {
  void *found = dlsym(library, name);
  if (found == nullptr) ADD_FAILURE() << name << " is not in the library";
  return reinterpret_cast<Function *>(found);
}

using Object = const void *;
using TypeId = unsigned long;

bool HasType(Object object, const char *typeName) {
  const std::string getter = std::string("CF") + typeName + "GetTypeID";
  return Find<TypeId(Object)>("CFGetTypeID")(object) ==
         Find<TypeId()>(getter.c_str())();
}

// Owns an object of CoreFoundation and releases it.
class Owned {
 public:
  explicit Owned(Object object) : object_(object) {}
  ~Owned() {
    if (object_ != nullptr) Find<void(Object)>("CFRelease")(object_);
  }
  Owned(const Owned &) = delete;
  Owned &operator=(const Owned &) = delete;
  Object get() const { return object_; }

 private:
  Object object_;
};

Object MakeText(const std::string &text) {
  constexpr std::uint32_t kUtf8 = 0x08000100;
  return Find<Object(Object, const char *, std::uint32_t)>(
      "CFStringCreateWithCString")(nullptr, text.c_str(), kUtf8);
}

Object MakePropertyList(const std::string &bytes) {
  const Owned data(Find<Object(Object, const char *, long)>("CFDataCreate")(
      nullptr, bytes.data(), static_cast<long>(bytes.size())));
  using Create = Object(Object, Object, unsigned long, long *, Object *);
  long form = 0;
  return Find<Create>("CFPropertyListCreateWithData")(nullptr, data.get(), 0,
                                                      &form, nullptr);
}

std::int32_t IntegerOf(Object value) {
  constexpr long kInt32 = 3;
  std::int32_t integer = 0;
  if (HasType(value, "Number")) {
    Find<bool(Object, long, void *)>("CFNumberGetValue")(value, kInt32,
                                                         &integer);
  } else if (HasType(value, "Boolean")) {
    integer = Find<bool(Object)>("CFBooleanGetValue")(value) ? 1 : 0;
  } else {
    EXPECT_TRUE(HasType(value, "String"));
    integer = Find<std::int32_t(Object)>("CFStringGetIntValue")(value);
  }
  return integer;
}

}  // namespace

void AppleLibrary::SetUp() {
  if (FindFolder().empty()) {
    GTEST_SKIP() << "Debian's package libswiftlang (from Debian 13 on), which "
                    "contains Apple's CoreFoundation, is not installed";
  }
  // If the library is installed but cannot be loaded, the test fails.
  ASSERT_NE(CoreFoundation(), nullptr) << dlerror();
}

std::int32_t AppleLibrary::IntegerOfText(const std::string &text) {
  const Owned object(MakeText(text));
  return IntegerOf(object.get());
}

std::optional<std::int32_t> AppleLibrary::ValueIn(
    const std::string &propertyList) {
  const Owned list(MakePropertyList(propertyList));
  if (list.get() == nullptr || !HasType(list.get(), "Dictionary")) return {};
  const Owned key(MakeText("a"));
  const Object value = Find<Object(Object, Object)>("CFDictionaryGetValue")(
      list.get(), key.get());
  if (value == nullptr) {
    ADD_FAILURE() << "the key is missing";
    return {};
  }
  return IntegerOf(value);
}

std::string AppleLibrary::FolderFor(const char *language) {
  using Choose = int(const char *const *, int, const char *const *, int,
                     const char **, int, int *);
  static void *icu = Load("lib_FoundationICU.so");
  std::array<const char *, 4> chosen{};
  int error = 0;
  const int count = Find<Choose>("ualoc_localizationsToUse", icu)(
      &language, 1, kLanguageFolders,
      static_cast<int>(std::size(kLanguageFolders)), chosen.data(),
      static_cast<int>(chosen.size()), &error);
  EXPECT_EQ(error, 0);
  return count > 0 ? chosen[0] : "";
}

}  // namespace ztk::test
