// SPDX-License-Identifier: MIT
#include "platform/property_list.h"

#include <string>

#include "fake/world.h"
#include "platform/common/number_rules.h"
#include "support/plain_text.h"

namespace ztk::platform::property_list {

struct Dictionary {
  fake::Entries entries;
};

struct Change {
  std::string path;
};

namespace {

using fake::CurrentWorld;
using fake::LogCall;
using fake::LogStep;
using test::Plain;

std::string Describe(const fake::Value &value) {
  if (const auto *number = std::get_if<std::int32_t>(&value)) {
    return std::to_string(*number);
  }
  if (const auto *text = std::get_if<std::string>(&value)) {
    return "\"" + *text + "\"";
  }
  return "(other)";
}

// Returns the result of reading the file. Sets *entries if it can be read.
ReadResult Find(const std::string &path, fake::Entries *entries) {
  const auto failure = CurrentWorld().readFailures.find(path);
  if (failure != CurrentWorld().readFailures.end()) return failure->second;
  const auto file = CurrentWorld().files.find(path);
  if (file == CurrentWorld().files.end()) return {.state = ReadState::Absent};
  *entries = file->second;
  return {.state = ReadState::Read};
}

}  // namespace

ReadResult Read(ZTKTextRef path, Dictionary **dictionary) {
  LogCall(std::string("read file ") + Plain(path));
  *dictionary = nullptr;
  fake::Entries entries;
  const ReadResult result = Find(Plain(path), &entries);
  if (result.state == ReadState::Read) {
    ++CurrentWorld().held.dictionaries;
    *dictionary = new Dictionary{.entries = entries};
  }
  return result;
}

Dictionary *ReadFile(ZTKTextRef path) {
  Dictionary *dictionary = nullptr;
  Read(path, &dictionary);
  return dictionary;
}

Change *BeginChange(ZTKTextRef path) {
  LogCall(std::string("begin change of ") + Plain(path));
  ++CurrentWorld().held.changes;
  return new Change{.path = Plain(path)};
}

void EndChange(Change *change) {
  if (change == nullptr) return;
  LogCall("end change of " + change->path);
  --CurrentWorld().held.changes;
  delete change;
}

Dictionary *MakeDictionary() {
  LogCall("make dictionary");
  ++CurrentWorld().held.dictionaries;
  return new Dictionary{};
}

ReadResult AddEntriesOfFile(Dictionary *dictionary, ZTKTextRef path) {
  LogCall(std::string("add entries of ") + Plain(path));
  fake::Entries entries;
  const ReadResult result = Find(Plain(path), &entries);
  for (const auto &[key, value] : entries) dictionary->entries[key] = value;
  return result;
}

void SetInteger(Dictionary *dictionary, ZTKTextRef key, std::int32_t value) {
  LogCall(std::string("set ") + Plain(key) + " " + std::to_string(value));
  dictionary->entries[Plain(key)] = value;
}

void RemoveEntry(Dictionary *dictionary, ZTKTextRef key) {
  LogCall(std::string("remove ") + Plain(key));
  dictionary->entries.erase(Plain(key));
}

bool IntegerValue(const Dictionary *dictionary, ZTKTextRef key,
                  std::int32_t *value) {
  const auto entry = dictionary->entries.find(Plain(key));
  if (entry == dictionary->entries.end()) return false;
  if (const auto *number = std::get_if<std::int32_t>(&entry->second)) {
    *value = *number;
    return true;
  }
  if (const auto *text = std::get_if<std::string>(&entry->second)) {
    *value = common::IntegerFromText(*text);
    return true;
  }
  return false;
}

ZTKTextRef TextValue(const Dictionary *dictionary, ZTKTextRef key) {
  const auto entry = dictionary->entries.find(Plain(key));
  if (entry == dictionary->entries.end()) return nullptr;
  const auto *text = std::get_if<std::string>(&entry->second);
  return text == nullptr ? nullptr : test::PermanentText(*text);
}

bool WriteAtomically(const Dictionary *dictionary, ZTKTextRef path,
                     int *error) {
  std::string step = std::string("write ") + Plain(path) + " {";
  const char *separator = "";
  for (const auto &[key, value] : dictionary->entries) {
    step += separator + key + "=" + Describe(value);
    separator = ", ";
  }
  LogCall(std::string("write ") + Plain(path));
  LogStep(step + "}");
  if (!CurrentWorld().canWrite) {
    if (error != nullptr) *error = CurrentWorld().writeError;
    return false;
  }
  CurrentWorld().files[Plain(path)] = dictionary->entries;
  return true;
}

void Release(Dictionary *dictionary) {
  if (dictionary == nullptr) return;
  LogCall("release dictionary");
  --CurrentWorld().held.dictionaries;
  delete dictionary;
}

}  // namespace ztk::platform::property_list
