// SPDX-License-Identifier: MIT
//
// The USB/IP server with real sockets: clients that connect and disconnect, and
// attaching to a kernel, which a folder of files replaces.
#include <arpa/inet.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "usbip_bytes.h"
#include "virtual-mixer/usbip/usbip_world.h"

namespace ztk::virtual_mixer {
namespace {

namespace fs = std::filesystem;
using test::FromHex;
using test::ImportRequest;
using test::Join;
using test::ListRequest;
using test::MixerRecord;
using test::Read;
using test::Submitted;
using test::Unlinked;
using test::UnlinkMessage;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr char kAskSelectors[] = "c0 00 0000 0280 0500";

std::vector<Placement> Mixers(int count) {
  return std::vector<Placement>(static_cast<std::size_t>(count));
}

class Client {
 public:
  explicit Client(const std::string &address)
      : socket_(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in to{};
    to.sin_family = AF_INET;
    to.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    to.sin_port = htons(static_cast<std::uint16_t>(
        std::stoi(address.substr(address.rfind(':') + 1))));
    EXPECT_EQ(connect(socket_.get(), reinterpret_cast<const sockaddr *>(&to),
                      sizeof to),
              0);
  }

  void Say(const Bytes &bytes) const {
    EXPECT_EQ(send(socket_.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL),
              static_cast<ssize_t>(bytes.size()));
  }
  // Waits for so many bytes; fewer when the server closes before.
  Bytes Hear(std::size_t count) const {
    Bytes heard(count);
    const ssize_t got = recv(socket_.get(), heard.data(), count, MSG_WAITALL);
    heard.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
    return heard;
  }
  // All bytes until the server closes.
  Bytes HearAll() const {
    Bytes all;
    for (Bytes part = Hear(1); !part.empty(); part = Hear(1)) {
      all.push_back(part[0]);
    }
    return all;
  }
  void Import(const std::string &busId) const {
    Say(ImportRequest(busId));
    EXPECT_EQ(Hear(320).size(), 320u);
  }

 private:
  platform::FileDescriptor socket_;
};

TEST(UsbipServer, ListsAndServesOverTheNetwork) {
  UsbipWorld world(Mixers(1));
  const std::string address = world.Listen("127.0.0.1:0");
  EXPECT_THAT(address, StartsWith("127.0.0.1:"));
  const Client lister(address);
  lister.Say(ListRequest());
  EXPECT_EQ(lister.HearAll(), Join({FromHex("0111 0005 00000000 00000001"),
                                    MixerRecord(1), FromHex("ff000000")}));
  const Client user(address);
  user.Import("1-1");
  EXPECT_EQ(world.Status(1).attached, true);
  user.Say(Read(1, kAskSelectors, 5));
  EXPECT_EQ(user.Hear(53), Submitted(1, 0, 5, "0004040404"));
}

TEST(UsbipServer, ServesSeveralClientsWhileOneIsSilent) {
  UsbipWorld world(Mixers(2));
  const std::string address = world.Listen("127.0.0.1:0");
  world.WithMixer(1, [](MixerModel &mixer) {
    std::string error;
    mixer.AddFault(*ParseFault("silence", &error));
  });
  const Client first(address);
  const Client second(address);
  const Client idle(address);
  first.Import("1-1");
  second.Import("1-2");
  first.Say(Read(1, kAskSelectors, 5));
  second.Say(test::SubmitMessage(
      {.sequence = 9, .device = 0x00010003, .direction = 1, .length = 5},
      kAskSelectors));
  EXPECT_EQ(second.Hear(53), Submitted(9, 0, 5, "0004040404"));
  first.Say(UnlinkMessage(2, 1));
  EXPECT_EQ(first.Hear(48), Unlinked(2, -104));
}

TEST(UsbipServer, ADelayedAnswerIsSentWithoutBeingAskedFor) {
  UsbipWorld world(Mixers(1));
  world.WithMixer(1, [](MixerModel &mixer) {
    std::string error;
    mixer.AddFault(*ParseFault("delay:20", &error));
  });
  const Client user(world.Listen("127.0.0.1:0"));
  user.Import("1-1");
  user.Say(Read(1, kAskSelectors, 5));
  EXPECT_EQ(user.Hear(53), Submitted(1, 0, 5, "0004040404"));
}

TEST(UsbipServer, UnpluggingClosesTheConnection) {
  UsbipWorld world(Mixers(1));
  const std::string address = world.Listen("127.0.0.1:0");
  const Client user(address);
  user.Import("1-1");
  world.Unplug(1);
  EXPECT_THAT(user.HearAll(), IsEmpty());
  const Client early(address);
  early.Say(ImportRequest("1-1"));
  EXPECT_EQ(early.HearAll(), FromHex("0111 0003 00000004"));
  world.PlugIn(1);
  const Client later(address);
  later.Import("1-1");
}

TEST(UsbipServer, AClientThatGoesFreesItsMixer) {
  UsbipWorld world(Mixers(1));
  const std::string address = world.Listen("127.0.0.1:0");
  { Client(address).Import("1-1"); }
  // The server notices it when it next checks that socket, which it does before
  // it accepts a later client.
  while (*world.Status(1).attached) Client(address).Say(ListRequest());
  Client(address).Import("1-1");
}

TEST(UsbipServer, HostileClientsDoNotDisturbTheOthers) {
  UsbipWorld world(Mixers(1));
  const std::string address = world.Listen("127.0.0.1:0");
  const Client user(address);
  user.Import("1-1");
  unsigned random = 1;
  for (int round = 0; round < 50; ++round) {
    Bytes noise;
    for (int i = 0; i < 200; ++i) {
      random = random * 1103515245U + 12345U;
      noise.push_back(static_cast<std::uint8_t>(random >> 16 & 0xFF));
    }
    if (round % 2 == 0) noise = Join({FromHex("0111 8003"), noise});
    const Client hostile(address);
    hostile.Say(noise);
    // The server may have closed the connection already.
    hostile.Hear(8);
  }
  user.Say(Read(1, kAskSelectors, 5));
  EXPECT_EQ(user.Hear(53), Submitted(1, 0, 5, "0004040404"));
}

TEST(UsbipServer, OneClientTooManyIsTurnedAway) {
  UsbipWorld world(Mixers(1));
  const std::string address = world.Listen("127.0.0.1:0");
  std::vector<std::unique_ptr<Client>> clients;
  for (int i = 0; i < 64; ++i) {
    clients.push_back(std::make_unique<Client>(address));
  }
  EXPECT_THAT(Client(address).HearAll(), IsEmpty());
  clients.back()->Import("1-1");
}

TEST(UsbipServer, CountsOnlyClientsWithoutADevice) {
  UsbipWorld world(SpreadDevices(70, 0, 1));
  const std::string address = world.Listen("127.0.0.1:0");
  std::vector<std::unique_ptr<Client>> clients;
  for (int mixer = 1; mixer <= 70; ++mixer) {
    SCOPED_TRACE(mixer);
    clients.push_back(std::make_unique<Client>(address));
    clients.back()->Import(world.Status(mixer).address.Name());
  }
}

TEST(UsbipServer, SaysWhyItCannotListen) {
  UsbipWorld world(Mixers(0));
  const std::string address = world.Listen("127.0.0.1:0");
  const struct {
    std::string address;
    std::string expected;
  } rows[] = {
      {"", "bad address \"\"; accepted: ADDRESS:PORT, as 127.0.0.1:3240"},
      {"127.0.0.1", "bad address \"127.0.0.1\""},
      {":3240", "bad address \":3240\""},
      {"127.0.0.1:", "bad address \"127.0.0.1:\""},
      {"127.0.0.1:65536", "bad address \"127.0.0.1:65536\""},
      {"127.0.0.1:x", "bad address \"127.0.0.1:x\""},
      {"::1:3240", "bad address \"::1:3240\""},
      {"[]:3240", "bad address \"[]:3240\""},
      {address, "cannot listen at " + address + ": Address already in use"},
      {"192.0.2.1:0", "cannot listen at 192.0.2.1:0: Cannot assign"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.address);
    UsbipWorld other(Mixers(0));
    try {
      other.Listen(row.address);
      ADD_FAILURE() << "it listens";
    } catch (const std::exception &refusal) {
      EXPECT_THAT(refusal.what(), HasSubstr(row.expected));
    }
  }
}

TEST(UsbipServer, NobodyButTheKernelForbidsANode) {
  UsbipWorld world(Mixers(1));
  EXPECT_THROW(world.SetForbidden(1, true), std::runtime_error);
}

// The folder of a virtual host controller.
class Vhci : public testing::Test {
 protected:
  Vhci() {
    std::string made = "/tmp/vhciXXXXXX";
    if (mkdtemp(made.data()) == nullptr) std::abort();
    folder_ = made;
    Put("attach", "");
  }
  ~Vhci() override { fs::remove_all(folder_); }

  void Put(const std::string &name, const std::string &text) const {
    std::ofstream(folder_ / name) << text;
  }
  std::string Attached() const {
    std::ostringstream text;
    text << std::ifstream(folder_ / "attach").rdbuf();
    return text.str();
  }
  std::string Refusal() const {
    const Descriptors mixer = MixerDescriptors(1);
    try {
      usbip::AttachToKernel(folder_,
                            {.address = {.bus = 1, .port = 1},
                             .descriptors = &mixer,
                             .configuration = 0},
                            3);
    } catch (const std::exception &refusal) {
      return refusal.what();
    }
    return "";
  }

  fs::path folder_;
};

constexpr char kHeadings[] = "hub port sta spd dev      sockfd local_busid\n";

TEST_F(Vhci, TakesTheFirstFreePortOfTheRightHub) {
  Put("status", std::string(kHeadings) +
                    "hs  0000 006 002 00010002 000003 1-1\n"
                    "hs  0001 005 000 00000000 000003 0-0\n"
                    "hs  0002 004 000 00000000 000000 0-0\n"
                    "ss  0008 004 000 00000000 000000 0-0\n");
  EXPECT_EQ(Refusal(), "");
  EXPECT_EQ(Attached(), "2 3 65538 2");
}

TEST_F(Vhci, LooksAtTheOtherControllersToo) {
  Put("status", std::string(kHeadings) +
                    "hs  0000 006 002 00010002 000003 1-1\n"
                    "ss  0001 004 000 00000000 000000 0-0\n");
  Put("status.1",
      std::string(kHeadings) + "hs  0016 004 000 00000000 000000 0-0\n");
  EXPECT_EQ(Refusal(), "");
  EXPECT_EQ(Attached(), "16 3 65538 2");
}

TEST_F(Vhci, SaysWhatIsMissingAndWhatToDo) {
  Put("status",
      std::string(kHeadings) + "hs  0000 006 002 00010002 000003 1-1\n");
  EXPECT_THAT(Refusal(), HasSubstr("every port of the kernel's virtual host "
                                   "controller is in use; serve fewer"));
  fs::remove(folder_ / "attach");
  EXPECT_THAT(Refusal(), HasSubstr("/attach: No such file or directory"));
  fs::remove_all(folder_);
  EXPECT_THAT(Refusal(), HasSubstr("is missing); load it with: sudo modprobe "
                                   "vhci-hcd; or serve with --listen"));
}

TEST_F(Vhci, OnlyRootMayAttach) {
  if (geteuid() == 0) {
    // Root has every right, so the test runs with another identity.
    ASSERT_EQ(chmod(folder_.c_str(), 0755), 0);
    ASSERT_EQ(chmod((folder_ / "attach").c_str(), 0644), 0);
    ASSERT_EQ(seteuid(65534), 0);
  } else {
    ASSERT_EQ(chmod((folder_ / "attach").c_str(), 0444), 0);
  }
  const std::string refusal = Refusal();
  if (getuid() == 0) {
    ASSERT_EQ(seteuid(0), 0);
  }
  EXPECT_THAT(refusal, StartsWith("only root may attach devices to this "
                                  "kernel; start this with sudo; or serve"));
}

}  // namespace
}  // namespace ztk::virtual_mixer
