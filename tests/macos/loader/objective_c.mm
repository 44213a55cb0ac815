// SPDX-License-Identifier: MIT
//
// Registers the Objective-C objects of an image with the runtime of this
// system: registers the selectors, makes the classes from their descriptions,
// and changes constant texts to the layout of GNUstep.
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

// The classes by the address of their description.
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
  // Code finds instance variables by their offsets, so one variable of the
  // whole size is enough.
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
  // The runtime of macOS makes an autorelease pool if there is none.
  [[NSAutoreleasePool alloc] init];
  // By default GNUstep writes property lists in another form than XML.
  [[NSUserDefaults standardUserDefaults]
      registerDefaults:[NSDictionary
                           dictionaryWithObject:@"YES"
                                         forKey:@"GSMacOSXCompatible"]];
}

}  // namespace ztk::loader

extern "C" {

void *darwin__objc_empty_cache;

// This function changes only the register r11, so the arguments of the message
// keep their registers.
__attribute__((preserve_all, used)) void ZTKFindMethod(id object, SEL name,
                                                       IMP *method) {
  *method = objc_msg_lookup(object, name);
}

// The compiler for macOS calls a method through this function.
__attribute__((naked)) void darwin_objc_msgSend() {
  asm volatile("push %rax\n push %rdx\n push %rdx\n mov %rsp, %rdx\n"
               "call ZTKFindMethod@PLT\n"
               "pop %r11\n pop %rdx\n pop %rax\n jmp *%r11\n");
}

id darwin_objc_alloc(Class of) { return [(id)of alloc]; }
id darwin_objc_retain(id object) { return [object retain]; }
void darwin_objc_release(id object) { [object release]; }
void *darwin_objc_autoreleasePoolPush() {
  return [[NSAutoreleasePool alloc] init];
}
void darwin_objc_autoreleasePoolPop(id pool) { [pool drain]; }

}  // extern "C"
