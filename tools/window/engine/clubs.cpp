// SPDX-License-Identifier: MIT
#include "window/engine/clubs.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>
#include <algorithm>

#include "window/engine/sentences.h"
#include "ztk/model/exchange.h"
#include "ztk/model/remembered.h"

namespace ztk::window {

namespace {

constexpr char kSuffix[] = ".json";

struct Clubs {
  Q_DECLARE_TR_FUNCTIONS(Engine)
};

QDir Folder() {
  return QDir(
      QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
      QStringLiteral("/tarvix/clubs"));
}

// Returns the name of the file for a club. A character that no file name may
// contain is replaced by "-", and a dot at the beginning gets one before it.
QString FileName(const QString &name) {
  QString file = name.trimmed();
  for (QChar &letter : file) {
    if (letter == QLatin1Char('/') ||
        letter.category() == QChar::Other_Control) {
      letter = QLatin1Char('-');
    }
  }
  if (file.startsWith(QLatin1Char('.'))) file.prepend(QLatin1Char('-'));
  return file + QLatin1String(kSuffix);
}

// The places of what is remembered and not in the file.
QStringList KeptPlaces(const ClubFile &file,
                       model::SettingsSnapshot *settings) {
  QStringList kept;
  for (const model::Setting *setting : model::AllSettings()) {
    for (std::uint32_t channel = 0; channel < model::ChannelsToWalk(*setting);
         ++channel) {
      const bool isInFile = std::any_of(
          file.changes.begin(), file.changes.end(),
          [setting, channel](const model::Change &change) {
            return change.setting == setting && change.channel == channel;
          });
      if (!isInFile && settings->Remembered(*setting, channel)) {
        kept.append(PlaceText(*setting, channel));
      }
    }
  }
  return kept;
}

ClubState ClubAt(const QString &path) {
  return {.name = QFileInfo(path).completeBaseName(), .path = path};
}

}  // namespace

QList<ClubState> FindClubs() {
  QList<ClubState> clubs;
  const QFileInfoList files = Folder().entryInfoList(
      {QLatin1Char('*') + QLatin1String(kSuffix)}, QDir::Files, QDir::Name);
  for (const QFileInfo &file : files) clubs.append(ClubAt(file.filePath()));
  return clubs;
}

QString ListedClubName(const QString &name) {
  return ClubAt(FileName(name)).name;
}

ClubFile ReadClub(const QString &path) {
  ClubFile club;
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    club.error =
        Clubs::tr("The file cannot be read: %1.").arg(file.errorString());
    return club;
  }
  const QByteArray text = file.read(qint64{model::kLargestImport} + 1);
  if (static_cast<std::size_t>(text.size()) > model::kLargestImport) {
    club.error = Clubs::tr("The file is too large to hold settings.");
    return club;
  }
  model::ImportedSettings import = model::ParseImport(text.toStdString());
  if (import.errorCount > 0) {
    club.error = Clubs::tr("The file contains an error: %1.")
                     .arg(QString::fromStdString(import.errors.front()));
    return club;
  }
  club.changes = std::move(import.changes);
  return club;
}

ClubPreview PreviewOf(const QString &path, const ClubFile &file) {
  ClubPreview preview{
      .club = ClubAt(path), .changes = {}, .error = file.error, .kept = {}};
  model::SettingsSnapshot settings;
  for (const model::Change &change : file.changes) {
    const model::Setting &setting = *change.setting;
    const auto before = settings.Remembered(setting, change.channel);
    if (before == change.index) continue;
    preview.changes.append(
        {.place = PlaceText(setting, change.channel),
         .before =
             before ? ChoiceText(setting, change.channel, *before) : QString(),
         .after = ChoiceText(setting, change.channel, change.index)});
  }
  if (file.error.isEmpty()) preview.kept = KeptPlaces(file, &settings);
  return preview;
}

bool NeedsSending(const ClubFile &file,
                  const std::vector<std::uint32_t> &attached,
                  const State &state) {
  if (state.NeedsSending()) return true;
  // No mixer would accept what belongs to another model.
  const auto isForAttached = [&attached](const model::Change &change) {
    return attached.empty() || std::find(attached.begin(), attached.end(),
                                         change.product) != attached.end();
  };
  return state.AnyAttached() &&
         std::any_of(
             file.changes.begin(), file.changes.end(),
             [&](const model::Change &change) {
               const RowState *row = state.Row(*change.setting, change.channel);
               return row != nullptr && row->inMixers != InMixers::Every &&
                      isForAttached(change);
             });
}

QString SaveClub(const QString &name) {
  if (name.trimmed().isEmpty()) return Clubs::tr("The club needs a name.");
  const model::ExportedSettings settings = model::ExportSettings();
  if (!settings.unreadable.empty()) {
    return Clubs::tr("The settings file cannot be read: %1.")
        .arg(ModelText(settings.unreadable.front()));
  }
  const QDir folder = Folder();
  QSaveFile file(folder.filePath(FileName(name)));
  if (!folder.mkpath(QStringLiteral(".")) || !file.open(QIODevice::WriteOnly) ||
      file.write(settings.text.data(),
                 static_cast<qint64>(settings.text.size())) < 0 ||
      !file.commit()) {
    return Clubs::tr("The club cannot be saved: %1.").arg(file.errorString());
  }
  if (settings.leftOut.empty()) return {};
  return Clubs::tr("Saved, but not everything: %1.")
      .arg(QString::fromStdString(settings.leftOut.front()));
}

QString DeleteClub(const QString &path) {
  QFile file(path);
  if (file.remove() || !file.exists()) {
    return Clubs::tr("Deleted “%1”.").arg(ClubAt(path).name);
  }
  return Clubs::tr("The club “%1” cannot be deleted: %2.")
      .arg(ClubAt(path).name, file.errorString());
}

}  // namespace ztk::window
