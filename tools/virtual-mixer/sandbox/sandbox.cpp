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
#include <stdexcept>
#include <utility>

#include "virtual-mixer/mixer/standard_requests.h"

namespace ztk::virtual_mixer {
namespace {

// A file that not even the superuser may open for writing.
constexpr char kReadOnlyForAll[] = "/proc/sys/kernel/ostype";

// Where there can be no folder the testbed ends the whole program.
void CheckTempDir() {
  const char *const variable = std::getenv("TMPDIR");
  const bool isSet = variable != nullptr && *variable != '\0';
  const char *const folder = isSet ? variable : "/tmp";
  if (std::strlen(folder) > Sandbox::kLongestTempDir) {
    throw std::runtime_error("the path in TMPDIR is too long for sockets");
  }
  if (access(folder, W_OK | X_OK) == 0) return;
  throw std::runtime_error(
      std::string("no folder for the mixers can be made in ") + folder + ": " +
      std::strerror(errno) + "; set TMPDIR to one that you may write to");
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

// Removal by hand: umockdev's own tells the event monitors first, which fails
// loudly in a process that is not itself inside.
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

}  // namespace

void Sandbox::TestbedDeleter::operator()(_UMockdevTestbed *testbed) const {
  g_object_unref(testbed);
}

Sandbox::Sandbox(const std::vector<Placement> &placements, LogSink log)
    : log_(std::move(log)),
      front_([this](const auto &node,
                    const auto &request) { return Handle(node, request); },
             [this](const auto &node, const SetupPacket &setup, Outcome outcome,
                    const Bytes &delivered) {
               Observe(node, setup, outcome, delivered);
             }) {
  CheckTempDir();
  testbed_.reset(umockdev_testbed_new());
  gchar *const root = umockdev_testbed_get_root_dir(testbed_.get());
  rootDir_ = root;
  g_free(root);

  std::map<int, int> lastPort;
  for (const Placement &placement : placements) {
    if (lastPort.count(placement.bus) == 0) AddRootHub(placement.bus);
    AddDevice(placement, ++lastPort[placement.bus]);
  }
  if (lastPort.count(1) == 0) AddRootHub(1);
}

Sandbox::~Sandbox() {
  // While umockdev's thread can still carry the last answers.
  front_.Stop();
  testbed_.reset();
}

void Sandbox::AddRootHub(int bus) {
  auto hub = std::make_unique<Device>();
  hub->address = {.bus = bus, .port = 0};
  hub->descriptors = RootHubDescriptors(bus);
  Appear(hub.get());
  devices_.push_back(std::move(hub));
}

void Sandbox::AddDevice(const Placement &placement, int port) {
  if (port > kPortsOfABus) {
    throw std::runtime_error("bus " + std::to_string(placement.bus) +
                             " has no port left");
  }
  auto device = std::make_unique<Device>();
  device->address = {.bus = placement.bus, .port = port};
  if (placement.kind == DeviceKind::Mixer) {
    device->mixer = static_cast<int>(mixers_.size()) + 1;
    device->model = std::make_unique<MixerModel>(device->mixer);
    mixers_.push_back(device.get());
  }
  device->descriptors = DescriptorsOf(placement.kind, device->mixer);
  Appear(device.get());
  devices_.push_back(std::move(device));
}

int Sandbox::OtherCount() const {
  return static_cast<int>(
      std::count_if(devices_.begin(), devices_.end(), [](const auto &device) {
        return !device->model && device->address.port != 0;
      }));
}

MixerStatus Sandbox::Status(int mixer) const {
  const std::lock_guard lock(mutex_);
  const Device &device = Mixer(mixer);
  return {.address = device.address,
          .pluggedIn = device.present,
          .forbidden = device.forbidden,
          .attached = std::nullopt};
}

void Sandbox::WithMixer(int mixer,
                        const std::function<void(MixerModel &)> &visit) {
  const std::lock_guard lock(mutex_);
  visit(*Mixer(mixer).model);
}

void Sandbox::PlugIn(int mixer) {
  const std::lock_guard lock(mutex_);
  Device &device = Mixer(mixer);
  if (device.present) return;
  device.model->SetAttached(true);
  Appear(&device);
}

void Sandbox::Unplug(int mixer) {
  const std::lock_guard lock(mutex_);
  Device &device = Mixer(mixer);
  if (!device.present) return;
  device.model->SetAttached(false);
  Disappear(&device);
}

void Sandbox::SetForbidden(int mixer, bool forbidden) {
  const std::lock_guard lock(mutex_);
  Device &device = Mixer(mixer);
  if (device.forbidden == forbidden) return;
  device.forbidden = forbidden;
  if (!device.present) return;
  forbidden ? HideNode(device) : ShowNode(device);
}

void Sandbox::Appear(Device *device) {
  AttachIoctl(device);
  AddRecord(testbed_.get(), DeviceRecord(device->address, device->descriptors));
  if (device->forbidden) HideNode(*device);
  AddRecord(testbed_.get(),
            InterfaceRecord(device->address, device->descriptors));
  device->present = true;
}

// The socket stays attached while the device is away: umockdev ends a program
// that finds it missing between two steps of opening the node.
void Sandbox::AttachIoctl(Device *device) {
  if (device->answersIoctls) return;
  GError *error = nullptr;
  if (!umockdev_testbed_attach_ioctl(testbed_.get(),
                                     device->address.Node().c_str(),
                                     front_.IoctlBase(), &error)) {
    const std::string why = error == nullptr ? "no reason" : error->message;
    g_clear_error(&error);
    throw std::runtime_error("cannot answer for a device: " + why);
  }
  device->answersIoctls = true;
}

void Sandbox::Disappear(Device *device) {
  const Address &address = device->address;
  const std::string sysPath = address.SysPath();
  // The interface first, as in the kernel: it is part of the device.
  RemoveEntry(testbed_.get(), rootDir_, sysPath + "/" + address.InterfaceName(),
              address.InterfaceName());
  RemoveEntry(testbed_.get(), rootDir_, sysPath, address.Name());
  std::filesystem::remove(
      rootDir_ + "/sys/dev/char/189:" + std::to_string(address.Minor()));
  std::filesystem::remove(rootDir_ + address.Node());
  std::filesystem::remove(rootDir_ + NumbersLink(address));
  device->present = false;
  front_.Abandon(address.Node());
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

// File modes do not hold the superuser back, so the node leads to a file of
// the kernel's that nobody may write.
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

Sandbox::Device *Sandbox::Find(const std::string &node) {
  for (const auto &device : devices_) {
    if (device->address.Node() == node) return device.get();
  }
  return nullptr;
}

Answer Sandbox::Handle(const std::string &node, const ControlRequest &request) {
  const std::lock_guard lock(mutex_);
  Device *const device = Find(node);
  Answer answer;
  if (device == nullptr || !device->present) {
    answer.outcome = Outcome::Gone;
  } else if (device->model) {
    answer = device->model->Handle(request);
    // The fault took it off the bus while the request was under way.
    if (!device->model->Attached()) Disappear(device);
  } else if (IsStandardRequest(request.setup)) {
    std::uint8_t configuration = 1;
    answer.outcome = AnswerStandardRequest(device->descriptors, request.setup,
                                           &configuration, &answer.data);
  } else {
    answer.outcome = Outcome::Stall;
  }
  return answer;
}

void Sandbox::Observe(const std::string &node, const SetupPacket &setup,
                      Outcome outcome, const Bytes &delivered) {
  if (!log_) return;
  // Without the lock: numbers and addresses of devices never change, and a
  // device that disappears ends its requests while the lock is held.
  const Device *const device = Find(node);
  if (device == nullptr || device->mixer == 0) return;
  const std::string line = RequestLine(device->mixer, setup, outcome,
                                       delivered.data(), delivered.size());
  const std::lock_guard lock(logMutex_);
  log_(line);
}

}  // namespace ztk::virtual_mixer
