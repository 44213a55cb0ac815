// SPDX-License-Identifier: MIT
#include "control_commands.h"

#include <array>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <sstream>
#include <stdexcept>
#include <vector>

#include "fault.h"

namespace ztk::virtual_mixer {
namespace {

using Json = nlohmann::ordered_json;
using Words = std::vector<std::string>;

// Thrown by a command; becomes its answer.
class Refusal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

Words Split(std::string_view line) {
  std::istringstream stream{std::string(line)};
  Words words;
  for (std::string word; stream >> word;) words.push_back(word);
  return words;
}

std::string Word(std::uint16_t value) {
  std::array<char, 5> digits{};
  std::snprintf(digits.data(), digits.size(), "%04x",
                static_cast<unsigned>(value));
  return digits.data();
}

std::vector<int> ChosenMixers(const Sandbox &sandbox, const std::string &text) {
  const int count = sandbox.MixerCount();
  if (text == "all") {
    std::vector<int> all;
    for (int mixer = 1; mixer <= count; ++mixer) all.push_back(mixer);
    return all;
  }
  const auto number =
      count == 0 ? std::nullopt
                 : ParseNumber(text, 1, static_cast<std::uint32_t>(count));
  if (!number) {
    throw Refusal("no mixer \"" + text + "\"; there are " +
                  std::to_string(count) + ", counted from 1");
  }
  return {static_cast<int>(*number)};
}

void Turn(Sandbox *sandbox, int mixer, const Words &words) {
  const auto channel = ParseNumber(words[2], 1, kSelectors);
  const auto position = ParseNumber(words[3], 0, 255);
  if (!channel) {
    throw Refusal("no channel \"" + words[2] + "\"; selectors have 1 to 4");
  }
  if (!position) {
    throw Refusal("no position \"" + words[3] + "\"; accepted: 0 to 255");
  }
  sandbox->WithMixer(mixer, [&](MixerModel &model) {
    model.TurnSelector(static_cast<int>(*channel) - 1,
                       static_cast<std::uint8_t>(*position));
  });
}

void SetFault(Sandbox *sandbox, int mixer, const Words &words) {
  if (words[2] == "none") {
    sandbox->WithMixer(mixer, [](MixerModel &model) { model.ClearFaults(); });
    return;
  }
  std::string error;
  const auto fault = ParseFault(words[2], &error);
  if (!fault) throw Refusal(error);
  sandbox->WithMixer(mixer, [&](MixerModel &model) { model.AddFault(*fault); });
}

void SetReply(Sandbox *sandbox, int mixer, const Words &words) {
  const auto registerNumber = ParseRegister(words[2]);
  const auto bytes = ParseBytes(words[3]);
  if (!bytes) {
    throw Refusal("bad bytes \"" + words[3] +
                  "\"; accepted: 1 to 64 pairs of hexadecimal digits");
  }
  bool known = false;
  sandbox->WithMixer(mixer, [&](MixerModel &model) {
    known = registerNumber && model.SetReply(*registerNumber, *bytes);
  });
  if (!known) {
    throw Refusal("no register \"" + words[2] +
                  "\" to read; accepted: 8001, 8002, 8004, 8006, 8007");
  }
}

// Every command that is done to mixers.
struct Command {
  std::string_view name;
  std::size_t words;
  std::string_view usage;
  void (*run)(Sandbox *, int mixer, const Words &);
};

constexpr std::array<Command, 7> kCommands{{
    {"turn", 4, "turn M CHANNEL POSITION", Turn},
    {"fault", 3, "fault M FAULT", SetFault},
    {"reply", 4, "reply M REGISTER HEX", SetReply},
    {"plug", 2, "plug M",
     [](Sandbox *sandbox, int mixer, const Words &) {
       sandbox->PlugIn(mixer);
     }},
    {"unplug", 2, "unplug M",
     [](Sandbox *sandbox, int mixer, const Words &) {
       sandbox->Unplug(mixer);
     }},
    {"forbid", 2, "forbid M",
     [](Sandbox *sandbox, int mixer, const Words &) {
       sandbox->SetForbidden(mixer, true);
     }},
    {"allow", 2, "allow M",
     [](Sandbox *sandbox, int mixer, const Words &) {
       sandbox->SetForbidden(mixer, false);
     }},
}};

Json MixerState(Sandbox *sandbox, int mixer) {
  const MixerStatus status = sandbox->Status(mixer);
  Json state{{"number", mixer},
             {"pluggedIn", status.pluggedIn},
             {"forbidden", status.forbidden},
             {"bus", status.address.bus},
             {"device", status.address.DeviceNumber()},
             {"node", status.address.Node()}};
  sandbox->WithMixer(mixer, [&](const MixerModel &model) {
    state["selectors"] = Json::array();
    for (int channel = 0; channel < kSelectors; ++channel) {
      state["selectors"].push_back(model.SelectorPosition(channel));
    }
    state["replies"] = Json::object();
    for (const auto &[number, bytes] : model.Replies()) {
      state["replies"][Word(number)] = HexBytes(bytes.data(), bytes.size());
    }
    state["lastWritten"] = Json::object();
    for (const auto &[number, value] : model.LastWritten()) {
      state["lastWritten"][Word(number)] =
          value ? Json(Word(*value)) : Json(nullptr);
    }
    state["faults"] = Json::array();
    for (const Fault &fault : model.Faults()) {
      state["faults"].push_back(FormatFault(fault));
    }
  });
  return state;
}

std::string Show(Sandbox *sandbox) {
  Json state{{"mixers", Json::array()},
             {"otherDevices", sandbox->OtherCount()}};
  for (int mixer = 1; mixer <= sandbox->MixerCount(); ++mixer) {
    state["mixers"].push_back(MixerState(sandbox, mixer));
  }
  return "ok " + state.dump();
}

std::string Run(Sandbox *sandbox, const Words &words) {
  if (words.size() == 1 && words[0] == "show") return Show(sandbox);
  for (const Command &command : kCommands) {
    if (words.empty() || command.name != words[0]) continue;
    if (command.words != words.size()) {
      throw Refusal("the form is: " + std::string(command.usage));
    }
    for (const int mixer : ChosenMixers(*sandbox, words[1])) {
      command.run(sandbox, mixer, words);
    }
    return "ok";
  }
  throw Refusal(
      "unknown command; accepted: turn, fault, reply, plug, unplug, forbid, "
      "allow, show");
}

std::string DescribeMixer(const Json &mixer) {
  std::ostringstream text;
  text << "mixer " << mixer["number"].get<int>() << "  bus "
       << mixer["bus"].get<int>() << " device " << mixer["device"].get<int>()
       << (mixer["pluggedIn"].get<bool>() ? "" : "  unplugged")
       << (mixer["forbidden"].get<bool>() ? "  forbidden" : "") << "\n";
  text << "  selectors ";
  for (const Json &position : mixer["selectors"]) {
    text << " " << position.get<int>();
  }
  text << "\n  replies   ";
  const char *separator = " ";
  for (const auto &[number, bytes] : mixer["replies"].items()) {
    text << separator << number << ": " << bytes.get<std::string>();
    separator = ", ";
  }
  text << "\n  written   ";
  separator = " ";
  for (const auto &[number, value] : mixer["lastWritten"].items()) {
    text << separator << number << ": "
         << (value.is_null() ? "-" : value.get<std::string>());
    separator = ", ";
  }
  text << "\n  faults    ";
  if (mixer["faults"].empty()) text << " none";
  for (const Json &fault : mixer["faults"]) {
    text << " " << fault.get<std::string>();
  }
  text << "\n";
  return text.str();
}

}  // namespace

std::string RunControlCommand(Sandbox *sandbox, std::string_view line) {
  try {
    return Run(sandbox, Split(line));
  } catch (const std::exception &refusal) {
    return std::string("error ") + refusal.what();
  }
}

std::string DescribeState(const std::string &json) {
  const Json state = Json::parse(json);
  std::string text;
  for (const Json &mixer : state["mixers"]) text += DescribeMixer(mixer);
  if (state["mixers"].empty()) text += "no mixers\n";
  text += "other devices: " + std::to_string(state["otherDevices"].get<int>()) +
          "\n";
  return text;
}

}  // namespace ztk::virtual_mixer
