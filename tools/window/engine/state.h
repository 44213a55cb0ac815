// SPDX-License-Identifier: MIT
//
// What the window shows: plain values, made by the engine.
#ifndef ZTK_TOOLS_WINDOW_ENGINE_STATE_H_
#define ZTK_TOOLS_WINDOW_ENGINE_STATE_H_

#include <QList>
#include <QString>
#include <QStringList>
#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

#include "ztk/model/settings.h"

namespace ztk::window {

enum class MixerAnswer : std::uint8_t {
  NotAsked,   // not yet
  Answers,    //
  Refuses,    // it refuses requests
  Silent,     // it does not answer
  Gone,       // it was unplugged or switched off
  Forbidden,  // this user may not open it
};

struct MixerState {
  int number = 0;  // from 1, in the order of the bus
  QString place;   // the system's name of the port, "1-2"
  MixerAnswer answer = MixerAnswer::NotAsked;
  // What it told; none where it did not answer.
  std::optional<std::uint32_t> firmware;
  std::optional<std::uint32_t> certifiedLevel;
  std::optional<bool> seratoActive;
  // Of CH1 to CH4, each 0 to 4.
  std::array<std::optional<int>, 4> selectors;

  bool isAttached() const { return answer != MixerAnswer::Gone; }

  bool operator==(const MixerState &) const = default;
};

// What became of the last change of a row.
enum class Delivery : std::uint8_t {
  Idle,            // this window has made no change that still counts
  Sending,         // it waits, or is on its way
  Sent,            // stored, and every mixer has accepted it
  RememberedOnly,  // stored, but not every mixer has accepted it
  Failed,          // not stored
};

// Which mixers have the choice of a row. A mixer cannot be asked for it, so
// this is known only of what this window itself has sent.
enum class InMixers : std::uint8_t {
  NotKnown,  // every mixer may have it, or none
  None,      // no mixer is attached, or none has accepted it
  Every,     // every attached mixer has accepted it
};

// One channel of a setting; the only channel of one without channels.
struct RowState {
  const model::Setting *setting = nullptr;
  std::uint32_t channel = 0;
  // What the settings file holds; none where it holds nothing.
  std::optional<std::uint32_t> stored;
  // What is in effect: the wish that waits, else the stored value, else the
  // default. It can be a number that is no choice, as other programs write the
  // file too.
  std::uint32_t shown = 0;
  // Why the settings file cannot be read; empty where it can.
  QString unreadable;
  Delivery delivery = Delivery::Idle;
  // How many mixers have accepted the last change.
  int accepted = 0;
  InMixers inMixers = InMixers::NotKnown;
  // A sentence for the user: why a change was not sent or not stored. Empty for
  // a change that arrived.
  QString reason;
  // The library's text about a choice that cannot be heard, in the language of
  // the window; empty where there is none.
  QString warning;

  bool operator==(const RowState &) const = default;
};

// What does not work, why, and the command that mends it.
struct FindingState {
  QString id;
  QString what;
  QString cause;
  QString command;
  bool isNote = false;

  bool operator==(const FindingState &) const = default;
};

struct ClubState {
  QString name;
  QString path;

  bool operator==(const ClubState &) const = default;
};

enum class Autoapply : std::uint8_t { Unavailable, Off, On };

struct State {
  // False until the settings were read for the first time.
  bool known = false;
  // False until the mixers were asked for the first time.
  bool mixersKnown = false;
  QList<MixerState> mixers;
  // Every channel of every setting, in the order of model::AllSettings().
  QList<RowState> rows;
  QList<FindingState> findings;
  bool canUndo = false;
  // What undo would do: "USB input 2 → REC OUT"; for several changes only their
  // places: "USB input 1, USB output level".
  QString undoes;
  // Whether changes of other programs are heard, and why not.
  bool hearsOthers = true;
  QString whyNotHeard;
  Autoapply autoapply = Autoapply::Unavailable;
  QString whyNoAutoapply;
  QList<ClubState> clubs;

  const RowState *Row(const model::Setting &setting,
                      std::uint32_t channel) const {
    for (const RowState &row : rows) {
      if (row.setting == &setting && row.channel == channel) return &row;
    }
    return nullptr;
  }

  bool AnyAttached() const {
    return std::any_of(
        mixers.begin(), mixers.end(),
        [](const MixerState &mixer) { return mixer.isAttached(); });
  }

  // A mixer answers, and it is not known whether every mixer has what is
  // remembered. Sending all again ends this.
  bool NeedsSending() const {
    const bool anyAnswers =
        std::any_of(mixers.begin(), mixers.end(), [](const MixerState &mixer) {
          return mixer.answer == MixerAnswer::Answers;
        });
    return anyAnswers &&
           std::any_of(rows.begin(), rows.end(), [](const RowState &row) {
             return row.stored && row.inMixers == InMixers::NotKnown &&
                    (row.delivery == Delivery::Idle ||
                     row.delivery == Delivery::Failed);
           });
  }

  bool operator==(const State &) const = default;
};

// What applying a club would change.
struct ClubPreview {
  struct Line {
    QString place;   // "USB input 2"
    QString before;  // "REC OUT"
    QString after;   // "Post CH2 Fader"
  };
  ClubState club;
  QList<Line> changes;
  // Why the file cannot be applied; empty where it can.
  QString error;
  // The places of what is remembered and not in the club. It stays as it is.
  QStringList kept;
  // It changes nothing that is remembered, but the mixers may not have it.
  bool needsSending = false;
};

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_ENGINE_STATE_H_
