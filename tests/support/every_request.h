// SPDX-License-Identifier: MIT
//
// All functions of the library that send requests, with the requests that one
// mixer receives, as text. The tests of the recording port, of the sandbox and
// of a real kernel use the same list.
#ifndef ZTK_TESTS_SUPPORT_EVERY_REQUEST_H_
#define ZTK_TESTS_SUPPORT_EVERY_REQUEST_H_

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "ZTKFunc.h"
#include "usb/USB.h"

namespace ztk::test {

struct EveryRequestRow {
  const char *name;
  std::function<void()> call;
  std::vector<std::string> lines;
};

// Returns a function that opens the first mixer and calls `request` with the
// connection.
inline std::function<void()> OnTheMixer(
    const std::function<void(usb::Connection)> &request) {
  return [request] {
    usb::Connection slot = nullptr;
    ASSERT_EQ(open_pipes(&slot, 0), 0u);
    request(slot);
    closeUSB(&slot);
  };
}

inline std::vector<EveryRequestRow> RequestFunctionRows() {
  using usb::Connection;
  static std::uint8_t buffer[8];
  return {
      {"firmware",
       OnTheMixer([](Connection m) { GetFirmwareVersionNumber(m, buffer, 2); }),
       {"mixer 1: c0 00 0000 8001 0002 -> 36 04"}},
      {"selectors, 5 bytes",
       OnTheMixer([](Connection m) { GetInputSelectorInfo(m, buffer, 5); }),
       {"mixer 1: c0 00 0000 8002 0005 -> 00 04 04 04 04"}},
      {"selectors, 4 bytes",
       OnTheMixer([](Connection m) { GetInputSelectorInfo(m, buffer, 4); }),
       {"mixer 1: c0 00 0000 8002 0004 -> 00 04 04 04"}},
      {"Serato",
       OnTheMixer([](Connection m) { GetSeratoActiveInfo(m, buffer, 2); }),
       {"mixer 1: c0 00 0000 8004 0002 -> 00 00"}},
      {"port",
       OnTheMixer([](Connection m) { GetPortInfo(m, buffer, 2); }),
       {"mixer 1: c0 00 0000 8006 0002 -> 00 00"}},
      {"certification",
       OnTheMixer([](Connection m) { GetCertifyLevel(m, buffer, 4); }),
       {"mixer 1: c0 00 0000 8007 0004 -> 00 00 00 01"}},
      {"mixer output, for USB input audio",
       OnTheMixer([](Connection m) { SetMixerOutputSetting(m, 0x0206); }),
       {"mixer 1: 40 03 0206 8002 0000"}},
      {"mixer input, for USB output audio",
       OnTheMixer([](Connection m) { SetMixerInputSetting(m, 0x0204); }),
       {"mixer 1: 40 03 0204 8016 0000"}},
      {"level",
       OnTheMixer([](Connection m) { SetUSBOutputLevelSetting(m, 0x0300); }),
       {"mixer 1: 40 03 0300 8003 0000"}},
      {"MIDI channel",
       OnTheMixer([](Connection m) { SetMidiChannelSetting(m, 0x0F00); }),
       {"mixer 1: 40 03 0f00 8004 0000"}},
      {"MIDI key mode",
       OnTheMixer([](Connection m) { SetMidiKeyModeSetting(m, 0x0001); }),
       {"mixer 1: 40 03 0001 8005 0000"}},
  };
}

inline std::vector<EveryRequestRow> SetterRows() {
  return {
      {"set input",
       [] { EXPECT_EQ(ZTK_SetUSBInputAudio(10, 1, 2), 100u); },
       {"mixer 1: 40 03 0206 8002 0000",
        "mixer 1: c0 00 0000 8002 0005 -> 00 04 04 04 04"}},
      {"set input directly",
       [] { EXPECT_EQ(ZTK_SetUSBInputAudioDirect(10, 2, 0, 3), 100u); },
       {"mixer 1: 40 03 1303 8002 0000",
        "mixer 1: c0 00 0000 8002 0005 -> 00 04 04 04 04"}},
      {"input again",
       [] { EXPECT_EQ(ZTK_SetCurrentUSBInputAudio(10, 1), 100u); },
       {"mixer 1: 40 03 0206 8002 0000"}},
      {"set output",
       [] { EXPECT_EQ(ZTK_SetUSBOutputAudio(8, 1, 2), 100u); },
       {"mixer 1: 40 03 0204 8016 0000",
        "mixer 1: c0 00 0000 8002 0004 -> 00 04 04 04"}},
      {"output again",
       [] { EXPECT_EQ(ZTK_SetCurrentUSBOutputAudio(8, 1), 100u); },
       {"mixer 1: 40 03 0204 8016 0000"}},
      {"default output",
       [] { EXPECT_EQ(ZTK_SetUSBOutputAudioDefault(8, 1), 100u); },
       {"mixer 1: 40 03 0201 8016 0000",
        "mixer 1: c0 00 0000 8002 0004 -> 00 04 04 04"}},
      {"set boost",
       [] { EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 0), 100u); },
       {"mixer 1: 40 03 0300 8003 0000"}},
      {"boost again",
       [] { EXPECT_EQ(ZTK_SetCurrentBoostLevelIndex(10), 100u); },
       {"mixer 1: 40 03 0300 8003 0000"}},
      {"set MIDI channel",
       [] { EXPECT_EQ(ZTK_SetMidiChannelIndex(1, 15), 100u); },
       {"mixer 1: 40 03 0f00 8004 0000"}},
      {"refused MIDI channel",
       [] { EXPECT_EQ(ZTK_SetMidiChannelIndex(1, 16), 102u); },
       {}},
      {"key mode", [] { EXPECT_EQ(ZTK_SetMidiKeyModeIndex(1, 0), 102u); }, {}},
  };
}

inline std::vector<EveryRequestRow> QueryRows() {
  static std::uint32_t value;
  static ZTKTextRef text;
  return {
      {"connection", [] { EXPECT_EQ(ZTK_IsUSBConnection(10), 103u); }, {}},
      {"certification level",
       [] { EXPECT_EQ(ZTK_GetMixerCertifyLevel(10, &value), 100u); },
       {"mixer 1: c0 00 0000 8007 0004 -> 00 00 00 01"}},
      {"firmware version",
       [] { EXPECT_EQ(ZTK_GetFirmwareVersionIndex(10, &value), 100u); },
       {"mixer 1: c0 00 0000 8001 0002 -> 36 04"}},
      {"selector position",
       [] { EXPECT_EQ(ZTK_GetMixerInputSelectorStatus(10, 4, &value), 100u); },
       {"mixer 1: c0 00 0000 8002 0005 -> 00 04 04 04 04"}},
      {"Serato state",
       [] { EXPECT_EQ(ZTK_GetMixerSeratoActiveStatus(10, &value), 100u); },
       {"mixer 1: c0 00 0000 8004 0002 -> 00 00"}},
      {"warning",
       [] {
         EXPECT_EQ(ZTK_GetWarningTextForSetUSBAudioInput(10, 1, 101, 99, &text),
                   100u);
       },
       {"mixer 1: c0 00 0000 8006 0002 -> 00 00"}},
  };
}

// Makes every call in order. There must be one mixer and no settings file.
// `takeLines` returns the request lines since its last call.
inline void ExpectEveryRequest(
    const std::function<std::vector<std::string>()> &takeLines) {
  for (const auto &rows : {RequestFunctionRows(), SetterRows(), QueryRows()}) {
    for (const EveryRequestRow &row : rows) {
      SCOPED_TRACE(row.name);
      row.call();
      EXPECT_EQ(takeLines(), row.lines);
    }
  }
}

}  // namespace ztk::test

#endif  // ZTK_TESTS_SUPPORT_EVERY_REQUEST_H_
