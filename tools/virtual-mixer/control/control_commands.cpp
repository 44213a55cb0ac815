// SPDX-License-Identifier: MIT
#include "virtual-mixer/control/control_commands.h"

#include <array>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <sstream>
#include <stdexcept>
#include <vector>

#include "cli/strings.h"
#include "virtual-mixer/mixer/fault.h"

namespace ztk::virtual_mixer {
namespace {

using Json = nlohmann::ordered_json;
using Words = std::vector<std::string>;

// Thrown by a command that cannot be executed; the text becomes the answer.
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

std::vector<int> ChosenMixers(const MixerWorld &world,
                              const std::string &text) {
  const int count = world.MixerCount();
  if (count == 0) {
    throw Refusal("there are no mixers here; start run or serve with -n 1");
  }
  if (text == "all") {
    std::vector<int> all;
    for (int mixer = 1; mixer <= count; ++mixer) all.push_back(mixer);
    return all;
  }
  const auto number =
      cli::ParseNumber(text, 1, static_cast<std::uint32_t>(count));
  if (!number) {
    throw Refusal("no mixer \"" + text + "\"; there are " +
                  std::to_string(count) + ", counted from 1");
  }
  return {static_cast<int>(*number)};
}

// How messages name the mixers that this word chose.
std::string Named(const std::string &word, std::size_t count) {
  if (word != "all") return "mixer " + word;
  return std::to_string(count) + (count == 1 ? " mixer" : " mixers");
}

void Turn(MixerWorld *world, int mixer, const Words &words) {
  const auto channel = cli::ParseNumber(words[2], 1, kSelectors);
  const auto position = cli::ParseNumber(words[3], 0, 255);
  if (!channel) {
    throw Refusal("no channel \"" + words[2] + "\"; selectors have 1 to 4");
  }
  if (!position) {
    throw Refusal("no position \"" + words[3] + "\"; accepted: 0 to 255");
  }
  world->WithMixer(mixer, [&](MixerModel &model) {
    model.TurnSelector(static_cast<int>(*channel) - 1,
                       static_cast<std::uint8_t>(*position));
  });
}

void SetFault(MixerWorld *world, int mixer, const Words &words) {
  if (words[2] == "none") {
    world->WithMixer(mixer, [](MixerModel &model) { model.ClearFaults(); });
    return;
  }
  std::string error;
  const auto fault = ParseFault(words[2], &error);
  if (!fault) throw Refusal(error);
  world->WithMixer(mixer, [&](MixerModel &model) { model.AddFault(*fault); });
}

void SetReply(MixerWorld *world, int mixer, const Words &words) {
  const auto registerNumber = ParseRegister(words[2]);
  const auto bytes = ParseBytes(words[3]);
  if (!bytes) {
    throw Refusal("bad bytes \"" + words[3] +
                  "\"; accepted: 1 to 64 pairs of hexadecimal digits");
  }
  bool known = false;
  world->WithMixer(mixer, [&](MixerModel &model) {
    known = registerNumber && model.SetReply(*registerNumber, *bytes);
  });
  if (!known) {
    throw Refusal("no register \"" + words[2] +
                  "\" to read; accepted: 8001, 8002, 8004, 8006, 8007");
  }
}

// A command that changes mixers.
struct ControlCommand {
  std::string_view name;
  std::size_t words;
  std::string_view usage;
  void (*run)(MixerWorld *, int mixer, const Words &);
};

constexpr std::array<ControlCommand, 7> kCommands{{
    {"turn", 4, "turn M CHANNEL POSITION", Turn},
    {"fault", 3, "fault M FAULT", SetFault},
    {"reply", 4, "reply M REGISTER HEX", SetReply},
    {"plug", 2, "plug M",
     [](MixerWorld *world, int mixer, const Words &) { world->PlugIn(mixer); }},
    {"unplug", 2, "unplug M",
     [](MixerWorld *world, int mixer, const Words &) { world->Unplug(mixer); }},
    {"forbid", 2, "forbid M",
     [](MixerWorld *world, int mixer, const Words &) {
       world->SetForbidden(mixer, true);
     }},
    {"allow", 2, "allow M",
     [](MixerWorld *world, int mixer, const Words &) {
       world->SetForbidden(mixer, false);
     }},
}};

Json MixerState(MixerWorld *world, int mixer) {
  const MixerStatus status = world->Status(mixer);
  Json state{{"number", mixer}, {"pluggedIn", status.pluggedIn}};
  if (status.attached) {
    state["busId"] = status.address.Name();
    state["attached"] = *status.attached;
  } else {
    state["forbidden"] = status.forbidden;
    state["bus"] = status.address.bus;
    state["device"] = status.address.DeviceNumber();
    state["node"] = status.address.Node();
  }
  world->WithMixer(mixer, [&](const MixerModel &model) {
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

std::string Show(MixerWorld *world) {
  Json state{{"mixers", Json::array()}, {"otherDevices", world->OtherCount()}};
  for (int mixer = 1; mixer <= world->MixerCount(); ++mixer) {
    state["mixers"].push_back(MixerState(world, mixer));
  }
  return "ok " + state.dump();
}

std::string Run(MixerWorld *world, const Words &words) {
  if (words.size() == 1 && words[0] == "show") return Show(world);
  for (const ControlCommand &command : kCommands) {
    if (words.empty() || command.name != words[0]) continue;
    if (command.words != words.size()) {
      throw Refusal("the form is: " + std::string(command.usage));
    }
    const std::vector<int> mixers = ChosenMixers(*world, words[1]);
    for (const int mixer : mixers) command.run(world, mixer, words);
    return "ok " + Named(words[1], mixers.size());
  }
  throw Refusal(
      "unknown command; accepted: turn, fault, reply, plug, unplug, forbid, "
      "allow, show");
}

std::string DescribeMixer(const Json &mixer) {
  std::ostringstream text;
  text << "mixer " << mixer["number"].get<int>() << "  ";
  if (mixer.contains("busId")) {
    text << "bus id " << mixer["busId"].get<std::string>();
  } else {
    text << "bus " << mixer["bus"].get<int>() << " device "
         << mixer["device"].get<int>();
  }
  text << (mixer["pluggedIn"].get<bool>() ? "" : "  unplugged")
       << (mixer.value("forbidden", false) ? "  forbidden" : "")
       << (mixer.value("attached", false) ? "  attached" : "") << "\n";
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

std::string RunControlCommand(MixerWorld *world, std::string_view line) {
  try {
    return Run(world, Split(line));
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
