// SPDX-License-Identifier: MIT
//
// Reading reports of "ztk doctor --report", good and bad ones.
#include "virtual-mixer/mixer/recorded_mixer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "virtual-mixer/mixer/device_bus.h"

namespace {

using namespace ztk::virtual_mixer;
using ::testing::ElementsAre;

// A report of one mixer whose fields a test changes.
struct ReportText {
  std::string format = R"("ztk-report")";
  std::string version = "1";
  std::string access = R"("ok")";
  std::string speed = R"("12")";
  std::string device = R"("12 01 10 01 00 00 00 40 66 66 1b 00 21 03 01 02 )"
                       R"(00 01")";
  // Two interfaces; the second has another setting with an endpoint.
  std::string configuration =
      R"("09 02 2b 00 02 03 00 80 32 09 04 00 00 00 ff 00 00 00 )"
      R"(09 04 01 00 00 01 02 00 00 09 04 01 01 01 01 02 00 00 )"
      R"(07 05 81 05 40 00 01")";
  std::string manufacturer = R"("Maker")";
  std::string product = "null";
  std::string registers =
      R"({"register": "8001", "length": 2, "result": "reply",
          "reply": "21 03", "milliseconds": 3.6},
         {"register": "8002", "length": 5, "result": "reply",
          "reply": "00 01 02", "milliseconds": 0.2},
         {"register": "8004", "length": 2, "result": "refused",
          "milliseconds": 1},
         {"register": "8006", "length": 2, "result": "silent",
          "milliseconds": 1000.9},
         {"register": "8007", "length": 4, "result": "gone",
          "milliseconds": 0})";

  std::string Mixer() const {
    return R"({"number": 1, "access": )" + access + R"(, "speed": )" + speed +
           R"(, "descriptors": {"device": )" + device +
           R"(, "configuration": )" + configuration + R"(, "manufacturer": )" +
           manufacturer + R"(, "product": )" + product +
           R"(}, "registers": [)" + registers + "]}";
  }
  std::string Whole() const {
    return R"({"format": )" + format + R"(, "formatVersion": )" + version +
           R"(, "somethingNew": {}, "mixers": [)" + Mixer() + "]}";
  }
};

std::string Refusal(const std::string &text) {
  try {
    ParseReport(text, Delays::Ignored);
  } catch (const std::exception &error) {
    return error.what();
  }
  return "";
}

std::vector<std::string> FaultTexts(const RecordedMixer &mixer) {
  std::vector<std::string> texts;
  for (const Fault &fault : mixer.faults) texts.push_back(FormatFault(fault));
  return texts;
}

TEST(ParseReport, TakesDescriptorsRepliesAndFailures) {
  const auto mixers = ParseReport(ReportText().Whole(), Delays::Ignored).mixers;
  ASSERT_EQ(mixers.size(), 1u);
  const RecordedMixer &mixer = mixers[0];
  EXPECT_EQ(mixer.descriptors.Product(), 27);
  EXPECT_EQ(mixer.descriptors.Release(), 0x0321);
  EXPECT_EQ(mixer.descriptors.ConfigurationValue(), 3);
  EXPECT_EQ(mixer.descriptors.strings[0], "Maker");
  EXPECT_EQ(mixer.descriptors.strings[1], "");
  EXPECT_EQ(mixer.descriptors.speed, "12");
  ASSERT_EQ(mixer.descriptors.Interfaces().size(), 2u);
  EXPECT_EQ(mixer.descriptors.Interfaces()[1].interfaceClass, 1);
  EXPECT_EQ(mixer.descriptors.Interfaces()[1].subclass, 2);
  EXPECT_THAT(mixer.replies, ElementsAre(std::pair(0x8001, Bytes{0x21, 0x03}),
                                         std::pair(0x8002, Bytes{0, 1, 2})));
  EXPECT_THAT(FaultTexts(mixer),
              ElementsAre("stall@r8004", "silence@r8006", "unplug@r8007"));
}

TEST(ParseReport, TakesDelaysOnlyWhereTheyAreWanted) {
  const auto mixers =
      ParseReport(ReportText().Whole(), Delays::Replayed).mixers;
  ASSERT_EQ(mixers.size(), 1u);
  EXPECT_THAT(FaultTexts(mixers[0]),
              ElementsAre("delay:4@r8001", "stall@r8004", "silence@r8006",
                          "unplug@r8007"));
}

// Only so can what ztk reports of such a mixer be replayed.
TEST(ParseReport, TakesAReplyWithoutBytes) {
  ReportText report;
  report.registers = R"({"register": "8004", "length": 2, "result": "reply",
                         "reply": "", "milliseconds": 1})";
  const auto mixers = ParseReport(report.Whole(), Delays::Ignored).mixers;
  EXPECT_THAT(mixers.at(0).replies, ElementsAre(std::pair(0x8004, Bytes{})));
}

TEST(ParseReport, RefusesTheReadsThatTheReportDoesNotHave) {
  ReportText report;
  report.registers = "";
  const auto mixers = ParseReport(report.Whole(), Delays::Ignored).mixers;
  EXPECT_THAT(FaultTexts(mixers.at(0)),
              ElementsAre("stall@r8001", "stall@r8002", "stall@r8004",
                          "stall@r8006", "stall@r8007"));
}

TEST(ParseReport, LeavesMixersOutThatCouldNotBeOpened) {
  ReportText denied;
  denied.access = R"("not-permitted")";
  denied.device = "null";
  EXPECT_EQ(Refusal(denied.Whole()),
            "no mixer could be opened when the report was made");
  const std::string both = R"({"format": "ztk-report", "formatVersion": 1,)"
                           R"( "mixers": [)" +
                           denied.Mixer() + "," + ReportText().Mixer() + "]}";
  const RecordedMixers recorded = ParseReport(both, Delays::Ignored);
  EXPECT_EQ(recorded.mixers.size(), 1u);
  EXPECT_THAT(recorded.leftOut, ElementsAre(1u));
}

TEST(ParseReport, SaysInOneSentenceWhatIsWrong) {
  const auto with = [](auto change) {
    ReportText report;
    change(&report);
    return report.Whole();
  };
  const struct {
    std::string text;
    std::string expected;
  } rows[] = {
      {"", "it is not JSON (byte 1)"},
      {"{\"format\":", "it is not JSON (byte 11)"},
      {"[1]", "it is not a report of ztk doctor"},
      {"{}", "it is not a report of ztk doctor"},
      {R"({"format": "other"})", "it is not a report of ztk doctor"},
      {with([](ReportText *r) { r->version = "2"; }),
       "the report has format version 2, and this program understands versions "
       "up to 1; install a newer one"},
      {with([](ReportText *r) { r->version = "\"1\""; }),
       "the report's field formatVersion is not a number from 1"},
      {with([](ReportText *r) { r->version = "0"; }),
       "the report's field formatVersion is not a number from 1"},
      {R"({"format": "ztk-report", "formatVersion": 1})",
       "the report has no field mixers"},
      {R"({"format": "ztk-report", "formatVersion": 1, "mixers": 3})",
       "the report's field mixers is not a list of at most 127"},
      {R"({"format": "ztk-report", "formatVersion": 1, "mixers": [3]})",
       "the report's field mixers[0] is not an object"},
      {with([](ReportText *r) { r->speed = "\"fast\""; }),
       "the report's field mixers[0].speed is not a speed of USB: 1.5, 12, "
       "480, 5000, 10000 or 20000"},
      {with([](ReportText *r) { r->device = "\"12 01\""; }),
       "the report's field mixers[0].descriptors.device is not a device "
       "descriptor of 18 bytes"},
      {with([](ReportText *r) { r->device = "\"12 0\""; }),
       "the report's field mixers[0].descriptors.device is not at most 4096 "
       "pairs of hexadecimal digits"},
      {with([](ReportText *r) { r->configuration = "\"09 02 09 00\""; }),
       "the report's field mixers[0].descriptors.configuration is not a whole "
       "configuration descriptor with an interface"},
      // A descriptor with a length of 0 must not be read for ever.
      {with([](ReportText *r) {
         r->configuration = "\"09 02 0b 00 01 01 00 80 32 00 00\"";
       }),
       "the report's field mixers[0].descriptors.configuration is not a whole "
       "configuration descriptor with an interface"},
      {with([](ReportText *r) {
         r->configuration = "\"09 02 0b 00 01 01 00 80 32 09 04\"";
       }),
       "the report's field mixers[0].descriptors.configuration is not a whole "
       "configuration descriptor with an interface"},
      {with([](ReportText *r) { r->product = R"("a\nb")"; }),
       "the report's field mixers[0].descriptors.product is not at most 126 "
       "ASCII characters"},
      {with([](ReportText *r) { r->registers = "7"; }),
       "the report's field mixers[0].registers[0] is not an object"},
      {with([](ReportText *r) {
         r->registers = R"({"register": "8003", "milliseconds": 0})";
       }),
       "the report's field mixers[0].registers[0].register is not a register "
       "that can be read: 8001, 8002, 8004, 8006, 8007"},
      {with([](ReportText *r) {
         r->registers = R"({"register": "8001", "length": 2,
                            "result": "reply", "milliseconds": -1, "reply": "00"})";
       }),
       "the report's field mixers[0].registers[0].milliseconds is not a number "
       "of milliseconds from 0 to 60000"},
      {with([](ReportText *r) {
         r->registers = R"({"register": "8001", "length": 2,
                            "result": "maybe",
                            "milliseconds": 1})";
       }),
       "the report's field mixers[0].registers[0].result is not one of: reply, "
       "refused, silent, gone, failed"},
      {with([](ReportText *r) {
         r->registers = R"({"register": "8001", "length": 2,
                            "result": "reply", "milliseconds": 1})";
       }),
       "the report has no field mixers[0].registers[0].reply"},
      {with([](ReportText *r) {
         r->registers = R"({"register": "8001", "length": 2,
                            "result": "reply", "milliseconds": 1, "reply": "xy"})";
       }),
       "the report's field mixers[0].registers[0].reply is not at most 64 "
       "pairs of hexadecimal digits"},
      {with([](ReportText *r) {
         r->registers = R"({"register": "8001", "length": "two",
                            "result": "reply", "milliseconds": 1,
                            "reply": "00"})";
       }),
       "the report's field mixers[0].registers[0].length is not a number of "
       "bytes from 1 to 64"},
      {with([](ReportText *r) {
         r->registers = R"({"register": "8001", "length": 0,
                            "result": "refused", "milliseconds": 1})";
       }),
       "the report's field mixers[0].registers[0].length is not a number of "
       "bytes from 1 to 64"},
      {with([](ReportText *r) {
         r->registers = R"({"register": "8001", "length": 2,
                            "result": "reply", "milliseconds": 1,
                            "reply": "00 01 02"})";
       }),
       "the report's field mixers[0].registers[0].reply is not a reply of at "
       "most the length that was asked for"},
      {with([](ReportText *r) {
         r->registers = R"({"register": "8001", "length": 2,
                            "result": "silent", "milliseconds": 1},
                           {"register": "8001", "length": 2,
                            "result": "silent", "milliseconds": 1})";
       }),
       "the report's field mixers[0].registers[1].register is not a register "
       "that the list has only once"},
      {std::string(2 << 20, ' '),
       "it has more than 1 MiB, which no report has"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.text.substr(0, 200));
    EXPECT_EQ(Refusal(row.text), row.expected);
  }
}

TEST(ReadReport, NamesTheFileThatCannotBeRead) {
  const auto refusal = [](const std::string &file) -> std::string {
    try {
      ReadReport(file, Delays::Ignored);
    } catch (const std::exception &error) {
      return error.what();
    }
    return "";
  };
  EXPECT_EQ(refusal("/no/such/file"),
            "cannot replay /no/such/file: it cannot be read: No such file or "
            "directory");
  EXPECT_EQ(refusal("/dev/null"),
            "cannot replay /dev/null: it is not a regular file");
}

TEST(Replay, AnswersAsTheRecordedMixerDid) {
  auto mixers = ParseReport(ReportText().Whole(), Delays::Ignored).mixers;
  Placement placement;
  placement.recorded =
      std::make_shared<const RecordedMixer>(std::move(mixers.at(0)));
  DeviceBus bus({placement}, DeviceBus::Configuration::ByKernel, nullptr,
                nullptr);
  const auto ask = [&](const SetupPacket &setup) {
    return bus.Handle(bus.Connect(0), {.setup = setup, .data = {}});
  };
  EXPECT_EQ(ask({0x80, 6, 0x0100, 0, 18}).data,
            (Bytes{18, 1, 0x10, 0x01, 0, 0, 0, 64, 0x66, 0x66, 27, 0, 0x21,
                   0x03, 1, 2, 0, 1}));
  EXPECT_EQ(ask({0x80, 6, 0x0200, 0, 255}).data.size(), 43u);
  EXPECT_EQ(ask({0x80, 6, 0x0301, 0, 255}).data,
            (Bytes{12, 3, 'M', 0, 'a', 0, 'k', 0, 'e', 0, 'r', 0}));
  // Its device descriptor names no serial number.
  EXPECT_EQ(ask({0x80, 6, 0x0303, 0, 255}).status, TransferStatus::Stall);
  EXPECT_EQ(ask({0x00, 9, 1, 0, 0}).status, TransferStatus::Stall);
  EXPECT_EQ(ask({0x00, 9, 3, 0, 0}).status, TransferStatus::Ok);
  EXPECT_EQ(ask({0xC0, 0, 0, 0x8001, 2}).data, (Bytes{0x21, 0x03}));
  EXPECT_EQ(ask({0xC0, 0, 0, 0x8002, 5}).data, (Bytes{0, 1, 2}));
  EXPECT_EQ(ask({0xC0, 0, 0, 0x8004, 2}).status, TransferStatus::Stall);
  // Only the read was seen to fail.
  EXPECT_EQ(ask({0x40, 3, 0x0100, 0x8004, 0}).status, TransferStatus::Ok);
  EXPECT_EQ(ask({0xC0, 0, 0, 0x8006, 2}).status, TransferStatus::Silence);
  EXPECT_EQ(ask({0xC0, 0, 0, 0x8007, 4}).status, TransferStatus::Gone);
  bus.WithMixer(1, [](MixerModel &model) {
    EXPECT_THAT(
        model.Replies(),
        ElementsAre(std::pair(0x8001, Bytes{0x21, 0x03}),
                    std::pair(0x8002, Bytes{0, 1, 2}),
                    std::pair(0x8004, Bytes{}), std::pair(0x8006, Bytes{}),
                    std::pair(0x8007, Bytes{})));
  });
}

}  // namespace
