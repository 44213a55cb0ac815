// SPDX-License-Identifier: MIT
//
// Tests the test double: it detects every reference that is not released, and
// every use of an object that does not exist.
#include <IOKit/IOCFPlugIn.h>
#include <IOKit/IOKitLib.h>
#include <IOKit/usb/IOUSBLib.h>
#include <mach/mach.h>

#include "iokit_test.h"

namespace ztk::test {
namespace {

class IOKitDouble : public testing::Test {
 protected:
  IOKitDouble() {
    iokit::StartAfresh();
    CurrentWorld().bus = {Mixer()};
  }

  static mach_port_t Port() {
    mach_port_t port = MACH_PORT_NULL;
    EXPECT_EQ(IOMasterPort(MACH_PORT_NULL, &port), 0);
    return port;
  }
  static io_iterator_t Iterator() {
    io_iterator_t iterator = IO_OBJECT_NULL;
    EXPECT_EQ(IOServiceGetMatchingServices(
                  MACH_PORT_NULL, IOServiceMatching("IOUSBDevice"), &iterator),
              0);
    return iterator;
  }
  static io_service_t Service() { return IOIteratorNext(Iterator()); }
  static IOCFPlugInInterface **PlugIn() {
    IOCFPlugInInterface **plugIn = nullptr;
    SInt32 score = 0;
    EXPECT_EQ(IOCreatePlugInInterfaceForService(
                  Service(), kIOUSBDeviceUserClientTypeID,
                  kIOCFPlugInInterfaceID, &plugIn, &score),
              0);
    return plugIn;
  }
  static IOUSBDeviceInterface **Interface() {
    IOCFPlugInInterface **plugIn = PlugIn();
    LPVOID interface = nullptr;
    EXPECT_EQ(
        (*plugIn)->QueryInterface(
            plugIn, CFUUIDGetUUIDBytes(kIOUSBDeviceInterfaceID), &interface),
        0);
    return static_cast<IOUSBDeviceInterface **>(interface);
  }

  static const std::vector<std::string> &Misuse() {
    return CurrentWorld().misuse;
  }
};

TEST_F(IOKitDouble, CountsReferencesByKind) {
  Interface();
  Port();
  EXPECT_EQ(CurrentWorld().held, (Held{.ports = 1,
                                       .iterators = 1,
                                       .services = 1,
                                       .plugIns = 1,
                                       .interfaces = 1}));
  EXPECT_THAT(Misuse(), IsEmpty());
}

TEST_F(IOKitDouble, CountsTheMasterPortByReferences) {
  const mach_port_t port = Port();
  EXPECT_EQ(Port(), port);
  EXPECT_EQ(CurrentWorld().held, (Held{.ports = 2}));
  EXPECT_EQ(mach_port_deallocate(mach_task_self(), port), 0);
  EXPECT_EQ(CurrentWorld().held, (Held{.ports = 1}));
}

TEST_F(IOKitDouble, KeepsTheContentsOfADictionary) {
  const std::int32_t value = 27;
  CFMutableDictionaryRef matching = IOServiceMatching("IOUSBDevice");
  const CFNumberRef number =
      CFNumberCreate(kCFAllocatorDefault, kCFNumberSInt32Type, &value);
  const CFStringRef key = CFStringCreateWithCString(
      kCFAllocatorDefault, "idProduct", kCFStringEncodingASCII);
  CFDictionarySetValue(matching, key, number);
  CFRelease(key);
  EXPECT_EQ(CurrentWorld().held,
            (Held{.dictionaries = 1, .numbers = 2, .strings = 1}));
  io_iterator_t iterator = IO_OBJECT_NULL;
  IOServiceGetMatchingServices(MACH_PORT_NULL, matching, &iterator);
  EXPECT_EQ(CurrentWorld().held, (Held{.numbers = 1, .iterators = 1}));
  EXPECT_THAT(Misuse(), IsEmpty());
}

TEST_F(IOKitDouble, DetectsAPortThatIsReleasedTwice) {
  const mach_port_t port = Port();
  mach_port_deallocate(mach_task_self(), port);
  mach_port_deallocate(mach_task_self(), port);
  EXPECT_THAT(Misuse(),
              ElementsAre("mach_port_deallocate after the last release of a "
                          "master port"));
}

TEST_F(IOKitDouble, DetectsAnObjectThatIsReleasedTwice) {
  const io_service_t service = Service();
  IOObjectRelease(service);
  IOObjectRelease(service);
  EXPECT_THAT(Misuse(), ElementsAre("released too often: service"));
}

TEST_F(IOKitDouble, DetectsAPortUsedAsAnObjectAndAnObjectUsedAsAPort) {
  IOObjectRelease(Port());
  mach_port_deallocate(mach_task_self(), Service());
  IOObjectRelease(IO_OBJECT_NULL);
  EXPECT_THAT(
      Misuse(),
      ElementsAre("IOObjectRelease on what is no object of the registry",
                  "mach_port_deallocate on what is no master port",
                  "IOObjectRelease on what is no object of the registry"));
}

TEST_F(IOKitDouble, DetectsTheUseOfAReleasedIterator) {
  const io_iterator_t iterator = Iterator();
  IOObjectRelease(iterator);
  EXPECT_EQ(IOIteratorNext(iterator), IO_OBJECT_NULL);
  EXPECT_THAT(Misuse(),
              ElementsAre("IOIteratorNext after the last release of a "
                          "iterator"));
}

TEST_F(IOKitDouble, DetectsTheUseOfAConsumedDictionary) {
  CFMutableDictionaryRef matching = IOServiceMatching("IOUSBDevice");
  io_iterator_t iterator = IO_OBJECT_NULL;
  IOServiceGetMatchingServices(MACH_PORT_NULL, matching, &iterator);
  CFRelease(matching);
  EXPECT_THAT(Misuse(),
              ElementsAre("CFRelease after the last release of a dictionary"));
}

TEST_F(IOKitDouble, DetectsTheUseOfAReleasedInterface) {
  IOUSBDeviceInterface **interface = Interface();
  UInt16 vendor = 7;
  (*interface)->Release(interface);
  EXPECT_NE((*interface)->GetDeviceVendor(interface, &vendor), 0);
  EXPECT_EQ(vendor, 7);
  (*interface)->Release(interface);
  EXPECT_THAT(Misuse(), ElementsAre("GetDeviceVendor after the last release of "
                                    "a interface",
                                    "released too often: interface"));
}

TEST_F(IOKitDouble, DetectsADeviceThatIsOpened) {
  IOUSBDeviceInterface **interface = Interface();
  (*interface)->USBDeviceOpen(interface);
  EXPECT_THAT(Misuse(), ElementsAre("a device was opened"));
}

TEST_F(IOKitDouble, DetectsARequestForAnotherInterface) {
  IOCFPlugInInterface **plugIn = PlugIn();
  LPVOID interface = plugIn;
  EXPECT_NE((*plugIn)->QueryInterface(
                plugIn, CFUUIDGetUUIDBytes(kIOCFPlugInInterfaceID), &interface),
            0);
  EXPECT_EQ(interface, nullptr);
  EXPECT_THAT(Misuse(), ElementsAre("QueryInterface for another interface"));
}

TEST_F(IOKitDouble, DetectsWrongReferences) {
  int nothing = 0;
  CFRelease(&nothing);
  EXPECT_THAT(Misuse(), ElementsAre("CFRelease on what is no object"));
}

}  // namespace
}  // namespace ztk::test
