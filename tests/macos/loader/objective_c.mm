// SPDX-License-Identifier: MIT
//
// The objects of an image on this system's runtime: selectors are made known,
// classes are made from their descriptions, constant texts get the layout of
// GNUstep's, in place.
#import <Foundation/Foundation.h>

#include <objc/message.h>
#include <objc/runtime.h>

#include <map>

#include "image.h"

namespace ztk::loader {
namespace {

struct MethodList {
  std::uint32_t entrySize, count;
  struct {
    SEL name;
    const char *types;
    IMP code;
  } methods[];
};

struct ClassData {
  std::uint32_t flags, instanceStart, instanceSize, reserved;
  const std::uint8_t *layout;
  const char *name;
  const MethodList *methods;
};

struct ClassObject {
  ClassObject *meta;
  Class super;
  void *cache, *table;
  ClassData *data;
};

struct ConstantText {
  void *kind;
  std::uint64_t flags;
  const char *bytes;
  std::uint64_t length;
};

// By the place of their description.
std::map<void *, Class> theClasses;

SEL Known(SEL name) {
  return sel_registerName(reinterpret_cast<const char *>(name));
}

void AddMethods(Class to, const MethodList *list) {
  for (std::uint32_t i = 0; list != nullptr && i < list->count; ++i) {
    const auto &method = list->methods[i];
    class_addMethod(to, Known(method.name), method.code, method.types);
  }
}

void MakeClass(ClassObject *described) {
  const ClassData &data = *described->data;
  Class made = objc_allocateClassPair(described->super, data.name, 0);
  if (made == Nil) Fail(std::string("no class can be made of ") + data.name);
  // Variables are found by their offsets, so that one of the whole size does.
  if (data.instanceSize > data.instanceStart) {
    class_addIvar(made, "all", data.instanceSize - data.instanceStart, 3, "?");
  }
  AddMethods(made, data.methods);
  objc_registerClassPair(made);
  AddMethods(object_getClass((id)made), described->meta->data->methods);
  theClasses[described] = made;
}

}  // namespace

void *ClassNamed(const std::string &name) {
  constexpr char kClass[] = "_OBJC_CLASS_$_";
  if (name == "___CFConstantStringClassReference") {
    return (void *)objc_getClass("NSConstantString");
  }
  if (!name.starts_with(kClass)) return nullptr;
  return (void *)objc_getClass(name.c_str() + sizeof kClass - 1);
}

void RegisterObjectiveC(const Image &image) {
  for (SEL &name : image.Row<SEL>("__objc_selrefs")) name = Known(name);
  for (ConstantText &text : image.Row<ConstantText>("__cfstring")) {
    text.flags = reinterpret_cast<std::uint64_t>(text.bytes);
    text.bytes = reinterpret_cast<const char *>(text.length);
  }
  for (ClassObject *one : image.Row<ClassObject *>("__objc_classlist")) {
    MakeClass(one);
  }
  for (const char *row : {"__objc_classrefs", "__objc_superrefs"}) {
    for (void *&reference : image.Row<void *>(row)) {
      const auto own = theClasses.find(reference);
      if (own != theClasses.end()) reference = (void *)own->second;
    }
  }
}

void PrepareFoundation() {
  // The runtime of macOS makes a pool where there is none.
  [[NSAutoreleasePool alloc] init];
  // GNUstep writes property lists in a form of its own unless it is told so.
  [[NSUserDefaults standardUserDefaults]
      registerDefaults:[NSDictionary
                           dictionaryWithObject:@"YES"
                                         forKey:@"GSMacOSXCompatible"]];
}

}  // namespace ztk::loader

extern "C" {

void *darwin__objc_empty_cache;

// As the compiler of macOS calls a method; the arguments stay where they are.
__attribute__((naked)) void darwin_objc_msgSend() {
  asm volatile("push %rbp\n mov %rsp, %rbp\n sub $192, %rsp\n"
               "mov %rdi, (%rsp)\n mov %rsi, 8(%rsp)\n mov %rdx, 16(%rsp)\n"
               "mov %rcx, 24(%rsp)\n mov %r8, 32(%rsp)\n mov %r9, 40(%rsp)\n"
               "mov %rax, 48(%rsp)\n"
               "movups %xmm0, 64(%rsp)\n movups %xmm1, 80(%rsp)\n"
               "movups %xmm2, 96(%rsp)\n movups %xmm3, 112(%rsp)\n"
               "movups %xmm4, 128(%rsp)\n movups %xmm5, 144(%rsp)\n"
               "movups %xmm6, 160(%rsp)\n movups %xmm7, 176(%rsp)\n"
               "call objc_msg_lookup@PLT\n mov %rax, %r11\n"
               "mov (%rsp), %rdi\n mov 8(%rsp), %rsi\n mov 16(%rsp), %rdx\n"
               "mov 24(%rsp), %rcx\n mov 32(%rsp), %r8\n mov 40(%rsp), %r9\n"
               "mov 48(%rsp), %rax\n"
               "movups 64(%rsp), %xmm0\n movups 80(%rsp), %xmm1\n"
               "movups 96(%rsp), %xmm2\n movups 112(%rsp), %xmm3\n"
               "movups 128(%rsp), %xmm4\n movups 144(%rsp), %xmm5\n"
               "movups 160(%rsp), %xmm6\n movups 176(%rsp), %xmm7\n"
               "leave\n jmp *%r11\n");
}

id darwin_objc_alloc(Class of) { return [(id)of alloc]; }
id darwin_objc_alloc_init(Class of) { return [[(id)of alloc] init]; }
id darwin_objc_retain(id object) { return [object retain]; }
void darwin_objc_release(id object) { [object release]; }
id darwin_objc_autorelease(id object) { return [object autorelease]; }
void *darwin_objc_autoreleasePoolPush() {
  return [[NSAutoreleasePool alloc] init];
}
void darwin_objc_autoreleasePoolPop(id pool) { [pool drain]; }
bool darwin_objc_opt_isKindOfClass(id object, Class of) {
  return [object isKindOfClass:of];
}
bool darwin_objc_opt_respondsToSelector(id object, SEL name) {
  return [object respondsToSelector:name];
}
Class darwin_objc_opt_class(id object) { return [object class]; }

}  // extern "C"
