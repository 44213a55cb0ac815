// SPDX-License-Identifier: MIT
#include "virtual-mixer/sandbox/sandbox.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <umockdev.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <set>
#include <stdexcept>
#include <utility>

#include "cli/strings.h"
#include "virtual-mixer/sandbox/uevent.h"

namespace ztk::virtual_mixer {
namespace {

// A file that not even the superuser may open for writing.
constexpr char kReadOnlyForAll[] = "/proc/sys/kernel/ostype";

// The testbed ends the whole program when it cannot make its folder.
void CheckTempDir() {
  std::string folder = cli::Variable("TMPDIR");
  if (folder.empty()) folder = "/tmp";
  if (folder.size() > Sandbox::kLongestTempDir) {
    throw std::runtime_error("the path in TMPDIR is too long for sockets");
  }
  if (access(folder.c_str(), W_OK | X_OK) == 0) return;
  throw std::runtime_error("no folder for the mixers can be made in " + folder +
                           ": " + std::strerror(errno) +
                           "; set TMPDIR to one that you may write to");
}

void AddRecord(UMockdevTestbed *testbed, const std::string &record) {
  GError *error = nullptr;
  if (umockdev_testbed_add_from_string(testbed, record.c_str(), &error)) {
    return;
  }
  const std::string why = error == nullptr ? "no reason" : error->message;
  g_clear_error(&error);
  throw std::runtime_error("cannot add a device: " + why);
}

// Removes the files of an entry. umockdev_testbed_remove_device() would send an
// event first, which fails with a message in a process outside the sandbox.
void RemoveEntry(UMockdevTestbed *testbed, const std::string &root,
                 const std::string &sysPath, const std::string &name) {
  if (umockdev_in_mock_environment() != FALSE) {
    umockdev_testbed_uevent(testbed, sysPath.c_str(), "remove");
  }
  std::filesystem::remove(root + "/sys/bus/usb/devices/" + name);
  std::filesystem::remove_all(root + sysPath);
}

// umockdev keeps the node's numbers in a link named after it.
std::string NumbersLink(const Address &address) {
  std::string name = address.Node().substr(std::strlen("/dev/"));
  std::replace(name.begin(), name.end(), '/', '_');
  return "/dev/.node/" + name;
}

// The first device of each bus is its root hub. Bus 1 is always there.
std::vector<Placement> WithRootHubs(const std::vector<Placement> &placements) {
  std::set<int> buses;
  std::vector<Placement> all;
  const auto addHub = [&](int bus) {
    if (!buses.insert(bus).second) return;
    all.push_back(
        {.kind = DeviceKind::RootHub, .bus = bus, .recorded = nullptr});
  };
  for (const Placement &placement : placements) {
    addHub(placement.bus);
    all.push_back(placement);
  }
  addHub(1);
  return all;
}

}  // namespace

void Sandbox::TestbedDeleter::operator()(_UMockdevTestbed *testbed) const {
  g_object_unref(testbed);
}

Sandbox::Sandbox(const std::vector<Placement> &placements, LogSink log)
    : bus_(WithRootHubs(placements), DeviceBus::Configuration::AtOnce,
           std::move(log),
           [this](const Device &device) {
             device.pluggedIn ? Appear(device) : Disappear(device);
           }),
      front_({.connect =
                  [this](const auto &node) {
                    return bus_.Connect(positions_.at(node));
                  },
              .isValid =
                  [this](const auto &connection) {
                    return bus_.IsValid(connection);
                  },
              .answer =
                  [this](const auto &connection, const auto &request) {
                    return bus_.Handle(connection, request);
                  },
              .log =
                  [this](std::size_t device, const SetupPacket &setup,
                         TransferStatus status, const Bytes &delivered) {
                    bus_.Log(device, setup, status, delivered);
                  }}) {
  CheckTempDir();
  testbed_.reset(umockdev_testbed_new());
  gchar *const root = umockdev_testbed_get_root_dir(testbed_.get());
  rootDir_ = root;
  g_free(root);
  mark_ = FolderMark(rootDir_);

  forbidden_.resize(bus_.Count());
  for (std::size_t i = 0; i < bus_.Count(); ++i) {
    positions_[bus_.At(i).address.Node()] = i;
  }
  for (std::size_t i = 0; i < bus_.Count(); ++i) {
    AttachIoctl(bus_.At(i));
    Appear(bus_.At(i));
  }
}

Sandbox::~Sandbox() {
  // The thread of umockdev, which the testbed owns, sends the last answers of
  // Stop().
  front_.Stop();
  testbed_.reset();
}

MixerStatus Sandbox::Status(int mixer) const {
  MixerStatus status;
  bus_.WithDevice(bus_.PositionOf(mixer), [&](Device &device) {
    status = {.address = device.address,
              .pluggedIn = device.pluggedIn,
              .forbidden = forbidden_[device.position],
              .attached = std::nullopt};
  });
  return status;
}

void Sandbox::WithMixer(int mixer,
                        const std::function<void(MixerModel &)> &visit) {
  bus_.WithMixer(mixer, visit);
}

void Sandbox::SetForbidden(int mixer, bool forbidden) {
  bus_.WithDevice(bus_.PositionOf(mixer), [&](Device &device) {
    if (forbidden_[device.position] == forbidden) return;
    forbidden_[device.position] = forbidden;
    if (!device.pluggedIn) return;
    forbidden ? HideNode(device) : ShowNode(device);
  });
}

void Sandbox::Appear(const Device &device) {
  AddRecord(testbed_.get(), DeviceRecord(device.address, device.descriptors));
  if (forbidden_[device.position]) HideNode(device);
  for (const Interface &interface : device.descriptors.Interfaces()) {
    AddRecord(testbed_.get(),
              InterfaceRecord(device.address, device.descriptors, interface));
  }
  Announce(device);
}

// Sends the events of the device and its interfaces to programs that listen
// through libudev. In a process inside the sandbox umockdev sends them.
void Sandbox::Announce(const Device &device) {
  if (umockdev_in_mock_environment() != FALSE) return;
  const char *const action = device.pluggedIn ? "add" : "remove";
  const Address &address = device.address;
  const std::string devPath = address.SysPath().substr(std::strlen("/sys"));
  const auto send = [&](const std::string &path, const Properties &properties) {
    SendUevent(rootDir_, {.action = action,
                          .devPath = path,
                          .properties = properties,
                          .sequence = ++ueventSequence_});
  };
  const auto sendDevice = [&] {
    send(devPath, DeviceProperties(address, device.descriptors));
  };
  // The kernel's order: a device is added before its interfaces, and removed
  // after them.
  if (device.pluggedIn) sendDevice();
  for (const Interface &interface : device.descriptors.Interfaces()) {
    send(devPath + "/" + address.InterfaceName(interface),
         InterfaceProperties(device.descriptors, interface));
  }
  if (!device.pluggedIn) sendDevice();
}

// The socket stays attached while the device is unplugged. If a program is just
// opening the node and the socket is missing, umockdev ends that program.
void Sandbox::AttachIoctl(const Device &device) {
  GError *error = nullptr;
  if (umockdev_testbed_attach_ioctl(testbed_.get(),
                                    device.address.Node().c_str(),
                                    front_.IoctlBase(), &error)) {
    return;
  }
  const std::string why = error == nullptr ? "no reason" : error->message;
  g_clear_error(&error);
  throw std::runtime_error("cannot emulate the requests to a device: " + why);
}

void Sandbox::Disappear(const Device &device) {
  const Address &address = device.address;
  const std::string sysPath = address.SysPath();
  // The interfaces first, as in the kernel: they are part of the device.
  for (const Interface &interface : device.descriptors.Interfaces()) {
    const std::string name = address.InterfaceName(interface);
    RemoveEntry(testbed_.get(), rootDir_, sysPath + "/" + name, name);
  }
  RemoveEntry(testbed_.get(), rootDir_, sysPath, address.Name());
  std::filesystem::remove(
      rootDir_ + "/sys/dev/char/189:" + std::to_string(address.Minor()));
  std::filesystem::remove(rootDir_ + address.Node());
  std::filesystem::remove(rootDir_ + NumbersLink(address));
  front_.Abandon(device.position);
  Announce(device);
}

void Sandbox::ShowNode(const Device &device) {
  const std::filesystem::path node = rootDir_ + device.address.Node();
  std::filesystem::remove(node);
  Bytes bytes = device.descriptors.device;
  bytes.insert(bytes.end(), device.descriptors.configuration.begin(),
               device.descriptors.configuration.end());
  std::ofstream(node, std::ios::binary)
      .write(reinterpret_cast<const char *>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
}

// File modes do not apply to the superuser, so the node becomes a link to a
// file of the kernel that nobody may write.
void Sandbox::HideNode(const Device &device) {
  const std::filesystem::path node = rootDir_ + device.address.Node();
  std::filesystem::remove(node);
  std::filesystem::create_symlink(kReadOnlyForAll, node);
  const int opened = open(node.c_str(), O_RDWR | O_CLOEXEC);
  if (opened < 0 && errno == EACCES) return;
  if (opened >= 0) close(opened);
  throw std::runtime_error(std::string(kReadOnlyForAll) +
                           " is not read-only here, so no mixer can be "
                           "forbidden");
}

}  // namespace ztk::virtual_mixer
