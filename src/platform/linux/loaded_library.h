// SPDX-License-Identifier: MIT
//
// Lazy loading of shared libraries (dlopen on first use), which keeps the start
// of programs short. For each library, a header lists the functions as
//
//   #define ZTK_FOR_EVERY_THING_FUNCTION(Do) Do(thing_new) Do(thing_free)
//
// and uses the list to define a struct of pointers and the functions under
// their own names. A source defines the LoadedLibrary with the soname.
#ifndef ZTK_PLATFORM_LINUX_LOADED_LIBRARY_H_
#define ZTK_PLATFORM_LINUX_LOADED_LIBRARY_H_

#include <dlfcn.h>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>

namespace ztk::platform {

// `Functions` is a struct of pointers. `findAll` sets the pointers, and returns
// false if a function is missing.
template <typename Functions>
class LoadedLibrary {
 public:
  using FindAll = bool (*)(void *library, Functions *functions);

  // The caller keeps the ownership of `soname`.
  constexpr LoadedLibrary(const char *soname, FindAll findAll)
      : soname_(soname), findAll_(findAll) {}

  // Returns the functions, which are valid until the process ends. Returns null
  // if the library is missing, lacks a function or cannot be loaded now; the
  // next call then tries again. May be called from any thread, and from a child
  // process after fork().
  const Functions *Get() {
    const Functions *known = functions_.load();
    return known != nullptr ? known : Load();
  }

 private:
  // The library is never closed, because objects of the library may exist until
  // the process ends.
  const Functions *Load() {
    void *library = dlopen(soname_, RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) return nullptr;
    auto functions = std::make_unique<Functions>();
    if (!findAll_(library, functions.get())) return nullptr;
    const Functions *known = nullptr;
    // Another thread may have set functions_ first.
    return functions_.compare_exchange_strong(known, functions.get())
               ? functions.release()
               : known;
  }

  const char *soname_;
  FindAll findAll_;
  // The pointer is set once and valid until the process ends. There is no lock,
  // because a lock that another thread holds during fork() would stay locked in
  // the child process.
  std::atomic<const Functions *> functions_ = nullptr;
};

// An entry of the section .note.dlopen, in which packaging tools find the
// libraries that are loaded with dlopen(). The format is systemd's "ELF dlopen
// metadata": an ELF note of the owner "FDO" whose content is JSON.
template <std::size_t length>
struct DlopenNote {
  std::uint32_t nameSize = 4;
  std::uint32_t jsonSize = length;
  std::uint32_t type = 0x407C0C0A;
  char name[4] = "FDO";
  alignas(4) char json[length];
};

template <typename Function>
bool FindFunction(void *library, const char *name, Function *function) {
  *function = reinterpret_cast<Function>(dlsym(library, name));
  return *function != nullptr;
}

}  // namespace ztk::platform

// Defines the note about a library. The arguments are string literals: the
// soname, the feature that needs the library, and a description of the feature.
// The alignment is explicit because gcc would use a larger one, which leaves
// gaps between the notes.
#define ZTK_DLOPEN_JSON(soname, feature, description)            \
  "[{\"feature\":\"" feature "\",\"description\":\"" description \
  "\",\"priority\":\"recommended\",\"soname\":[\"" soname "\"]}]"
// NOLINTBEGIN(bugprone-macro-parentheses): these parameters are names.
#define ZTK_DLOPEN_NOTE(soname, feature, description)                   \
  [[gnu::used, gnu::section(".note.dlopen")]] alignas(                  \
      4) constinit const ::ztk::platform::                              \
      DlopenNote<sizeof(ZTK_DLOPEN_JSON(soname, feature, description))> \
          theDlopenNote{.json =                                         \
                            ZTK_DLOPEN_JSON(soname, feature, description)};

// Declares the pointer to a function in the struct `Functions`.
#define ZTK_LOADED_POINTER(name) decltype(&::name) name;

// Finds one function, in the body of a FindAll function.
#define ZTK_FIND_LOADED(name)                                           \
  if (!::ztk::platform::FindFunction(library, #name, &functions->name)) \
    return false;

// Defines a function under its own name. Inside the namespace the name means
// the loaded function, so the function in the header of the library is not
// linked. `functions` is an expression for the struct. It must not be null when
// the function is called.
#define ZTK_LOADED_FUNCTION(functions, name)           \
  inline constexpr auto name = [](auto... arguments) { \
    return functions->name(arguments...);              \
  };
// NOLINTEND(bugprone-macro-parentheses)

#endif  // ZTK_PLATFORM_LINUX_LOADED_LIBRARY_H_
