// SPDX-License-Identifier: MIT
#include "window/engine/sentences.h"

#include <QCoreApplication>
#include <QStringList>
#include <iterator>

namespace ztk::window {

namespace {

// The languages of the library's texts. The number of each is its place.
constexpr const char *kLanguages[] = {"en", "ja", "fr", "de",    "it",    "nl",
                                      "es", "ru", "pt", "zh_CN", "zh_TW", "ko"};

struct Sentences {
  Q_DECLARE_TR_FUNCTIONS(Engine)
};

// Sentences of the model; %1 stands for the path of a file. Those that are not
// listed here stay in English.
// clang-format off
constexpr const char *kModelSentences[] = {
    QT_TRANSLATE_NOOP("Model", "you have no home folder"),
    QT_TRANSLATE_NOOP("Model", "its folder does not exist and cannot be made"),
    QT_TRANSLATE_NOOP("Model", "you have no permission"),
    QT_TRANSLATE_NOOP("Model", "the file system is read-only"),
    QT_TRANSLATE_NOOP("Model", "the file system or your quota is full"),
    QT_TRANSLATE_NOOP("Model", "the settings file cannot be read at the moment"),
    QT_TRANSLATE_NOOP("Model", "a folder or a device has the name of the settings file"),
    QT_TRANSLATE_NOOP("Model", "the settings file cannot be written"),
    QT_TRANSLATE_NOOP("Model", "no mixer is attached"),
    QT_TRANSLATE_NOOP("Model", "no mixer can be found"),
    QT_TRANSLATE_NOOP("Model", "the system finds none: it is unplugged or switched off; plug it in and switch it on"),
    QT_TRANSLATE_NOOP("Model", "its USB cable or its power cable may be loose"),
    QT_TRANSLATE_NOOP("Model", "it is attached and may be opened, but it is still starting or hangs; switch it off and on again, or run this command"),
    QT_TRANSLATE_NOOP("Model", "it is attached and may be opened, but requests to it fail; switch it off and on again, or run this command"),
    QT_TRANSLATE_NOOP("Model", "only root may open it, because no udev rule grants you access"),
    QT_TRANSLATE_NOOP("Model", "the rule that grants you access was installed after the mixer was plugged in; this command has the same effect as plugging it in again"),
    QT_TRANSLATE_NOOP("Model", "this is a virtual mixer, and ztk-virtual-mixer forbids it"),
    QT_TRANSLATE_NOOP("Model", "other programs do not receive changes"),
    QT_TRANSLATE_NOOP("Model", "the warning texts are not installed"),
    QT_TRANSLATE_NOOP("Model", "the warning texts are incomplete"),
    QT_TRANSLATE_NOOP("Model", "ztk undo cannot read %1"),
    QT_TRANSLATE_NOOP("Model", "ztk undo cannot use %1"),
    QT_TRANSLATE_NOOP("Model", "ztk undo cannot take back every change: %1 is damaged"),
    QT_TRANSLATE_NOOP("Model", "you have no permission for its folder"),
    QT_TRANSLATE_NOOP("Model", "some of its lines are not changes that ztk has recorded; this starts a new history and keeps the old one"),
    QT_TRANSLATE_NOOP("Model", "you have no permission to read it"),
    QT_TRANSLATE_NOOP("Model", "the settings in %1 are not remembered"),
    QT_TRANSLATE_NOOP("Model", "you had no permission to read the file when a setting was stored, so it was renamed; the command puts it back and replaces the settings stored since"),
    QT_TRANSLATE_NOOP("Model", "the file was damaged when a setting was stored, so it was renamed; once you have repaired it, the command puts it back and replaces the settings stored since"),
    QT_TRANSLATE_NOOP("Model", "%1 cannot be read, so the defaults are used"),
    QT_TRANSLATE_NOOP("Model", "it is not a settings file, or it is damaged"),
    QT_TRANSLATE_NOOP("Model", "settings are not remembered: nothing can be written to %1"),
    QT_TRANSLATE_NOOP("Model", "you have no permission to write there"),
    QT_TRANSLATE_NOOP("Model", "there is no session message bus here, as is usual over ssh and in a container; this starts a shell with one of its own"),
    QT_TRANSLATE_NOOP("Model", "autoapply needs the systemd of your session, which cannot be used (%1); run 'ztk apply' each time you have plugged a mixer in"),
    QT_TRANSLATE_NOOP("Model", "autoapply is off and cannot be turned on, because this system does not run systemd; run 'ztk apply' each time you have plugged a mixer in"),
    QT_TRANSLATE_NOOP("Model", "the file %1, which starts 'ztk apply', is missing; install ztk first"),
    QT_TRANSLATE_NOOP("Model", "there is no session message bus"),
    QT_TRANSLATE_NOOP("Model", "it lies on a file system that is read-only"),
    QT_TRANSLATE_NOOP("Model", "the disk or your quota is full"),
    QT_TRANSLATE_NOOP("Model", "settings are not remembered: there is no folder %1"),
    QT_TRANSLATE_NOOP("Model", "missing folders are created inside a home folder, but not the home folder"),
    QT_TRANSLATE_NOOP("Model", "settings are not remembered: nothing can be written below %1"),
    QT_TRANSLATE_NOOP("Model", "it is a file where a folder has to be"),
    QT_TRANSLATE_NOOP("Model", "settings are not remembered: you have no home folder"),
    QT_TRANSLATE_NOOP("Model", "HOME is not set, and the list of users has no entry for you"),
    QT_TRANSLATE_NOOP("Model", "settings are kept in %1"),
    QT_TRANSLATE_NOOP("Model", "this home is shared with macOS, so both systems use the same ones; this gives this system its own"),
    QT_TRANSLATE_NOOP("Model", "%1: it is damaged, or no settings file"),
    QT_TRANSLATE_NOOP("Model", "ztk runs as root, and the message bus belongs to your own user; run it without sudo"),
    QT_TRANSLATE_NOOP("Model", "this shell does not know the message bus of your session"),
    QT_TRANSLATE_NOOP("Model", "nothing answers at the address in DBUS_SESSION_BUS_ADDRESS; this starts a shell with a message bus of its own"),
    QT_TRANSLATE_NOOP("Model", "the library that reaches the message bus, %1, cannot be loaded"),
    QT_TRANSLATE_NOOP("Model", "ztk watch does not receive changes"),
    QT_TRANSLATE_NOOP("Model", "the library that delivers what is heard, %1, cannot be loaded"),
    QT_TRANSLATE_NOOP("Model", "this system has no USB: its kernel, or a part of it, is not loaded"),
    QT_TRANSLATE_NOOP("Model", "VRM-D6Setup.framework is not in %1"),
    QT_TRANSLATE_NOOP("Model", "VRM-D6Setup.framework has no texts in %1"),
    QT_TRANSLATE_NOOP("Model", "it was busy for a moment"),
    QT_TRANSLATE_NOOP("Model", "there is no %1; this command makes udev create it"),
    QT_TRANSLATE_NOOP("Model", "only root may open it: %1 replaces the rule that grants you access, or is for another mixer"),
    QT_TRANSLATE_NOOP("Model", "the rule grants access to the user who is logged in at this seat, and you are logged in over ssh; this grants %1 access from everywhere"),
    QT_TRANSLATE_NOOP("Model", "the rule grants access to the user who is logged in at this seat, and your session is not the active one there; this grants %1 access from everywhere")};
// clang-format on

// Begins with a capital letter, unless the first word is a command. The
// sentences of the model do not.
QString Sentence(QString text) {
  if (!text.isEmpty() && !text.startsWith(QLatin1String("ztk "))) {
    text[0] = text[0].toUpper();
  }
  return text;
}

QString MixerSentence(const model::Mixer &mixer) {
  switch (mixer.state) {
    case model::MixerState::Answered:
      return {};
    case model::MixerState::Refused:
      return Sentences::tr("Mixer %1 refuses the value.").arg(mixer.number);
    case model::MixerState::Silent:
      return Sentences::tr("Mixer %1 does not answer.").arg(mixer.number);
    case model::MixerState::Gone:
      return Sentences::tr("Mixer %1 was unplugged or switched off.")
          .arg(mixer.number);
    case model::MixerState::NotOpened:
      return Sentences::tr("You have no permission to open mixer %1.")
          .arg(mixer.number);
    case model::MixerState::Failed:
      break;
  }
  return Sentences::tr("The request to mixer %1 failed.").arg(mixer.number);
}

// What a finding with this id says about its mixer.
struct Opening {
  const char *id;
  const char *sentence;
};
// clang-format off
constexpr Opening kOpenings[] = {
    {"silent", QT_TRANSLATE_NOOP("Engine", "Mixer %1 does not answer.")},
    {"refusing", QT_TRANSLATE_NOOP("Engine", "Mixer %1 refuses requests.")},
    {"gone", QT_TRANSLATE_NOOP("Engine", "Mixer %1 was unplugged or switched off.")}};
// clang-format on
constexpr char kNotOpened[] =
    QT_TRANSLATE_NOOP("Engine", "You have no permission to open mixer %1.");

QString WhatFails(const model::Finding &finding) {
  if (finding.mixer == 0) return ModelText(finding.what);
  for (const Opening &opening : kOpenings) {
    if (finding.id == opening.id) {
      return Sentences::tr(opening.sentence).arg(finding.mixer);
    }
  }
  return Sentences::tr(kNotOpened).arg(finding.mixer);
}

QString LanguageCode() {
  //: The code of the language of these translations.
  return Sentences::tr("en");
}

}  // namespace

QString ModelText(const std::string &text) {
  const QString english = QString::fromStdString(text);
  if (english.isEmpty()) return {};
  for (const char *sentence : kModelSentences) {
    const QStringList parts =
        QString::fromLatin1(sentence).split(QStringLiteral("%1"));
    const auto translated = [sentence] {
      return QCoreApplication::translate("Model", sentence);
    };
    if (parts.size() == 1 && english == parts.first()) return translated();
    if (parts.size() == 2 && english.startsWith(parts.first()) &&
        english.endsWith(parts.last())) {
      const QString rest = english.mid(
          parts.first().size(),
          english.size() - parts.first().size() - parts.last().size());
      // The rest can be another sentence.
      return translated().arg(ModelText(rest.toStdString()));
    }
  }
  return english;
}

QString ModelSentence(const std::string &text) {
  return Sentence(ModelText(text));
}

QString WhyNotSent(std::size_t accepted, const model::Reach &reach) {
  if (reach.found() == 0) return Sentences::tr("No mixer is attached.");
  if (accepted == reach.found()) return {};
  QStringList sentences;
  for (const model::Mixer &mixer : reach.mixers) {
    const QString sentence = MixerSentence(mixer);
    if (!sentence.isEmpty()) sentences.append(sentence);
  }
  return sentences.join(QLatin1Char(' '));
}

QString WhyNotStored(const model::MadeChange &change) {
  if (change.result == ZTK_REJECTED) {
    return Sentences::tr("The mixer's library does not accept this choice.");
  }
  return Sentences::tr("Not stored: %1.").arg(ModelText(change.notStored));
}

QString PlaceText(const model::Setting &setting, std::uint32_t channel) {
  if (&setting == &model::kInput) {
    return Sentences::tr("USB input %1").arg(channel + 1);
  }
  if (&setting == &model::kOutput) {
    return Sentences::tr("USB output %1").arg(channel + 1);
  }
  return &setting == &model::kBoost ? Sentences::tr("USB output level")
                                    : Sentences::tr("MIDI channel");
}

QString ChoiceText(const model::Setting &setting, std::uint32_t channel,
                   std::uint32_t index) {
  const auto choice = model::ChoiceAt(setting, channel, index);
  return choice ? QString::fromStdString(choice->text)
                : Sentences::tr("%1, which is not a choice")
                      .arg(static_cast<std::int32_t>(index));
}

std::uint32_t LibraryLanguage() {
  const QString language = LanguageCode();
  for (std::uint32_t i = 0; i < std::size(kLanguages); ++i) {
    if (language == QLatin1String(kLanguages[i])) return i;
  }
  return 0;
}

FindingState Translated(const model::Finding &finding) {
  return {.id = QString::fromStdString(finding.id),
          .what = Sentence(WhatFails(finding)),
          .cause = ModelSentence(finding.cause),
          .command = QString::fromStdString(finding.command),
          .isNote = finding.isNote};
}

}  // namespace ztk::window
