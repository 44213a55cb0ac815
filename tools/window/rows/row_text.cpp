// SPDX-License-Identifier: MIT
#include "window/rows/row_text.h"

#include <QCoreApplication>
#include <QStringList>

#include "ztk/model/routing.h"

namespace ztk::window {

namespace {

struct Row {
  Q_DECLARE_TR_FUNCTIONS(Row)
};

std::optional<std::uint32_t> SelectorOf(const RowState &row) {
  if (row.setting != &model::kInput) return std::nullopt;
  return model::DecidingSelector(row.channel, row.shown);
}

QString NotStoredText() {
  return Row::tr("Nothing is remembered; this is the default.");
}

QString SentText(const RowState &row) {
  if (!row.stored) {
    const QString sent = row.accepted == 1 ? Row::tr("Sent to the mixer.")
                                           : Row::tr("Sent to %n mixers.",
                                                     nullptr, row.accepted);
    return sent + QLatin1Char(' ') + NotStoredText();
  }
  if (row.accepted == 1) return Row::tr("Sent to the mixer, and remembered.");
  return Row::tr("Sent to %n mixers, and remembered.", nullptr, row.accepted);
}

QString IdleText(const RowState &row) {
  if (!row.stored) return NotStoredText();
  return row.inMixers == InMixers::None
             ? Row::tr("Remembered; no mixer has it.")
             : Row::tr("Remembered; not confirmed.");
}

QString RememberedOnlyText(const RowState &row) {
  if (row.accepted > 0) return SentText(row);
  return row.stored ? Row::tr("Remembered only.") : NotStoredText();
}

QString DeliveryText(const RowState &row) {
  switch (row.delivery) {
    case Delivery::Idle:
      return IdleText(row);
    case Delivery::Sending:
      return Row::tr("Sending…");
    case Delivery::Sent:
      return SentText(row);
    case Delivery::RememberedOnly:
      return RememberedOnlyText(row) + QLatin1Char(' ') + row.reason;
    case Delivery::Failed:
      break;
  }
  return row.reason;
}

}  // namespace

QString RowLabel(const model::Setting &setting, std::uint32_t channel) {
  if (&setting == &model::kInput) {
    return Row::tr("USB &%1 records:").arg(channel + 1);
  }
  if (&setting == &model::kOutput) {
    return Row::tr("USB &%1 plays on:").arg(channel + 1);
  }
  if (&setting == &model::kBoost) return Row::tr("USB output &level:");
  return Row::tr("MIDI &channel:");
}

QList<const MixerState *> SilencingMixers(const RowState &row,
                                          const State &state) {
  QList<const MixerState *> silencing;
  const auto lane = SelectorOf(row);
  if (!lane) return silencing;
  for (const MixerState &mixer : state.mixers) {
    const auto &position = mixer.selectors[*lane];
    if (position && *position != model::kAudiblePosition) {
      silencing.append(&mixer);
    }
  }
  return silencing;
}

QStringList SilenceTexts(const RowState &row, const State &state) {
  QStringList turns;
  for (const MixerState *mixer : SilencingMixers(row, state)) {
    const std::uint32_t lane = *SelectorOf(row);
    const int position = *mixer->selectors[lane];
    turns.append(
        state.mixers.size() == 1
            ? Row::tr("USB %1 is silent: turn the selector of CH%2 from %3 to "
                      "%4.")
                  .arg(row.channel + 1)
                  .arg(lane + 1)
                  .arg(position)
                  .arg(model::kAudiblePosition)
            : Row::tr("USB %1 is silent: turn the selector of CH%2 on mixer "
                      "%5 from %3 to %4.")
                  .arg(row.channel + 1)
                  .arg(lane + 1)
                  .arg(position)
                  .arg(model::kAudiblePosition)
                  .arg(mixer->number));
  }
  return turns;
}

RowText TextOf(const RowState &row, const State &state) {
  if (!row.unreadable.isEmpty()) {
    return {.text = row.unreadable, .details = {}, .needsAttention = true};
  }
  const QStringList warnings = SilenceTexts(row, state);
  const QStringList sentences =
      warnings + QStringList(DeliveryText(row).trimmed());
  return {.text = sentences.join(QLatin1Char(' ')),
          .details = warnings.isEmpty() ? QString() : row.warning,
          .needsAttention = !warnings.isEmpty() ||
                            row.delivery == Delivery::RememberedOnly ||
                            row.delivery == Delivery::Failed};
}

}  // namespace ztk::window
