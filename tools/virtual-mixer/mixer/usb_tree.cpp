// SPDX-License-Identifier: MIT
#include "virtual-mixer/mixer/usb_tree.h"

#include <array>
#include <cstdio>

namespace ztk::virtual_mixer {
namespace {

template <typename... Values>
std::string Format(const char *format, Values... values) {
  std::array<char, 128> text{};
  std::snprintf(text.data(), text.size(), format, values...);
  return text.data();
}

std::string Hex(const Bytes &bytes) {
  std::string text;
  for (const std::uint8_t byte : bytes) {
    text += Format("%02X", static_cast<unsigned>(byte));
  }
  return text;
}

// A text attribute; sysfs ends each with a line end.
std::string Attribute(const char *name, const std::string &value) {
  return "A: " + std::string(name) + "=" + value + "\\n\n";
}

std::string Listed(const Properties &properties) {
  std::string text;
  for (const auto &[name, value] : properties) {
    text += "E: " + name + "=" + value + "\n";
  }
  return text;
}

std::string DevicePath(const Address &address) {
  return address.SysPath().substr(4);  // without "/sys"
}

std::string ProductProperty(const Descriptors &device) {
  return Format("%x/%x/%x", static_cast<unsigned>(device.Vendor()),
                static_cast<unsigned>(device.Product()),
                static_cast<unsigned>(device.Release()));
}

std::string Word(std::uint16_t value) {
  return Format("%04x", static_cast<unsigned>(value));
}
std::string Byte(std::uint8_t value) {
  return Format("%02x", static_cast<unsigned>(value));
}

}  // namespace

std::string Address::Name() const {
  return port == 0 ? Format("usb%d", bus) : Format("%d-%d", bus, port);
}

std::string Address::InterfaceName(const Interface &interface) const {
  return Format("%d-%d:1.%d", bus, port, interface.number);
}

std::string Address::SysPath() const {
  const std::string root = Format("/sys/devices/pci0000:00/0000:00:14.%x/usb%d",
                                  static_cast<unsigned>(bus - 1), bus);
  return port == 0 ? root : root + "/" + Name();
}

std::string Address::Node() const {
  return Format("/dev/bus/usb/%03d/%03d", bus, DeviceNumber());
}

Properties DeviceProperties(const Address &address, const Descriptors &device) {
  return {{"SUBSYSTEM", "usb"},
          {"DEVTYPE", "usb_device"},
          {"DEVNAME", address.Node()},
          {"BUSNUM", Format("%03d", address.bus)},
          {"DEVNUM", Format("%03d", address.DeviceNumber())},
          {"MAJOR", "189"},
          {"MINOR", std::to_string(address.Minor())},
          {"PRODUCT", ProductProperty(device)},
          {"TYPE", std::to_string(device.DeviceClass()) + "/0/0"},
          {"DRIVER", "usb"},
          {"ID_VENDOR_ID", Word(device.Vendor())},
          {"ID_MODEL_ID", Word(device.Product())}};
}

Properties InterfaceProperties(const Descriptors &device,
                               const Interface &interface) {
  return {{"SUBSYSTEM", "usb"},
          {"DEVTYPE", "usb_interface"},
          {"PRODUCT", ProductProperty(device)},
          {"INTERFACE", Format("%d/%d/%d", interface.interfaceClass,
                               interface.subclass, interface.protocol)}};
}

std::string DeviceRecord(const Address &address, const Descriptors &device) {
  Bytes descriptors = device.device;
  descriptors.insert(descriptors.end(), device.configuration.begin(),
                     device.configuration.end());
  return "P: " + DevicePath(address) + "\n" + "N: " + address.Node().substr(5) +
         "=" + Hex(descriptors) + "\n" +
         Listed(DeviceProperties(address, device)) +
         "A: dev=189:" + std::to_string(address.Minor()) + "\n" +
         "H: descriptors=" + Hex(descriptors) + "\n" +
         Attribute("busnum", std::to_string(address.bus)) +
         Attribute("devnum", std::to_string(address.DeviceNumber())) +
         Attribute("devpath", std::to_string(address.port)) +
         Attribute("idVendor", Word(device.Vendor())) +
         Attribute("idProduct", Word(device.Product())) +
         Attribute("bcdDevice", Word(device.Release())) +
         Attribute("bDeviceClass", Byte(device.DeviceClass())) +
         Attribute("bDeviceSubClass", Byte(device.device[5])) +
         Attribute("bDeviceProtocol", Byte(device.device[6])) +
         Attribute("bMaxPacketSize0", std::to_string(device.device[7])) +
         Attribute("bNumConfigurations", "1") +
         Attribute("bNumInterfaces", Format("%2d", device.configuration[4])) +
         Attribute("bConfigurationValue",
                   std::to_string(device.ConfigurationValue())) +
         Attribute("bmAttributes", Byte(device.configuration[7])) +
         Attribute("bMaxPower",
                   std::to_string(2 * device.configuration[8]) + "mA") +
         Attribute("configuration", "") +
         Attribute("maxchild",
                   address.port == 0 ? std::to_string(kPortsOfABus) : "0") +
         Attribute("version", device.device[3] == 2 ? " 2.00" : " 1.10") +
         Attribute("speed", device.speed) +
         Attribute("manufacturer", device.strings[0]) +
         Attribute("product", device.strings[1]) +
         Attribute("serial", device.strings[2]) + "\n";
}

std::string InterfaceRecord(const Address &address, const Descriptors &device,
                            const Interface &interface) {
  return "P: " + DevicePath(address) + "/" + address.InterfaceName(interface) +
         "\n" + Listed(InterfaceProperties(device, interface)) +
         Attribute("bInterfaceNumber", Byte(interface.number)) +
         Attribute("bAlternateSetting", " 0") +
         Attribute("bNumEndpoints", Byte(interface.endpoints)) +
         Attribute("bInterfaceClass", Byte(interface.interfaceClass)) +
         Attribute("bInterfaceSubClass", Byte(interface.subclass)) +
         Attribute("bInterfaceProtocol", Byte(interface.protocol)) + "\n";
}

}  // namespace ztk::virtual_mixer
