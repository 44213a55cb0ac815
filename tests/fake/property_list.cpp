// SPDX-License-Identifier: MIT
#include "platform/property_list.h"

#include <string>

#include "fake/world.h"
#include "platform/common/interned_text.h"
#include "platform/common/number_rules.h"

namespace ztk::platform::property_list {

struct Dictionary {
  fake::Entries entries;
};

namespace {

using fake::LogCall;
using fake::LogStep;
using fake::TheWorld;

std::string Describe(const fake::Value &value) {
  if (const auto *number = std::get_if<std::int32_t>(&value)) {
    return std::to_string(*number);
  }
  if (const auto *text = std::get_if<std::string>(&value)) {
    return "\"" + *text + "\"";
  }
  return "(other)";
}

}  // namespace

Dictionary *ReadFile(ZTKTextRef path) {
  LogCall(std::string("read file ") + path);
  const auto file = TheWorld().files.find(path);
  if (file == TheWorld().files.end()) return nullptr;
  ++TheWorld().held.dictionaries;
  return new Dictionary{.entries = file->second};
}

Dictionary *MakeDictionary() {
  LogCall("make dictionary");
  ++TheWorld().held.dictionaries;
  return new Dictionary{};
}

void AddEntriesOfFile(Dictionary *dictionary, ZTKTextRef path) {
  LogCall(std::string("add entries of ") + path);
  const auto file = TheWorld().files.find(path);
  if (file == TheWorld().files.end()) return;
  for (const auto &[key, value] : file->second) {
    dictionary->entries[key] = value;
  }
}

void SetInteger(Dictionary *dictionary, ZTKTextRef key, std::int32_t value) {
  LogCall(std::string("set ") + key + " " + std::to_string(value));
  dictionary->entries[key] = value;
}

bool IntegerValue(const Dictionary *dictionary, ZTKTextRef key,
                  std::int32_t *value) {
  const auto entry = dictionary->entries.find(key);
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
  const auto entry = dictionary->entries.find(key);
  if (entry == dictionary->entries.end()) return nullptr;
  const auto *text = std::get_if<std::string>(&entry->second);
  return text == nullptr ? nullptr : common::Intern(*text);
}

bool WriteAtomically(const Dictionary *dictionary, ZTKTextRef path) {
  std::string step = std::string("write ") + path + " {";
  const char *separator = "";
  for (const auto &[key, value] : dictionary->entries) {
    step += separator + key + "=" + Describe(value);
    separator = ", ";
  }
  LogCall(std::string("write ") + path);
  LogStep(step + "}");
  if (!TheWorld().canWrite) return false;
  TheWorld().files[path] = dictionary->entries;
  return true;
}

void Release(Dictionary *dictionary) {
  if (dictionary == nullptr) return;
  LogCall("release dictionary");
  --TheWorld().held.dictionaries;
  delete dictionary;
}

}  // namespace ztk::platform::property_list
