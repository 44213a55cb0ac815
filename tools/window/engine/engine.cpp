// SPDX-License-Identifier: MIT
#include "window/engine/engine.h"

#include <QSocketNotifier>
#include <QStringList>
#include <QTimer>
#include <algorithm>
#include <utility>
#include <vector>

#include "window/engine/clubs.h"
#include "window/engine/hearing.h"
#include "window/engine/looks.h"
#include "window/engine/steps.h"
#include "window/engine/usb_watch.h"
#include "window/engine/worker.h"
#include "ztk/system/bus_watch.h"

namespace ztk::window {

namespace {

constexpr int kSelectorMilliseconds = 1000;
constexpr int kSilentSelectorMilliseconds = 10'000;

// A change that waits or is on its way, and what the row showed last.
struct Wish {
  std::uint64_t ticket = 0;  // 0: none
  std::uint32_t index = 0;
};

bool Answers(const MixerState &mixer) {
  return mixer.answer == MixerAnswer::Answers;
}

bool AnyAnswers(const QList<MixerState> &mixers) {
  return std::any_of(mixers.begin(), mixers.end(), Answers);
}

}  // namespace

class Engine::Private {
 public:
  explicit Private(Engine *engine);

  void Start();
  void Choose(const model::Setting &setting, std::uint32_t channel,
              std::uint32_t index);
  // A step that is no choice of a row.
  void PostStep(const char *name, std::function<StepOutcome()> step);
  void Look();
  void LookAtSettings();
  void LookAtClubs();
  void SwitchAutoapplyTo(bool on);
  void SetVisible(bool visible);

  Worker worker;

 private:
  void LookAtProblems();
  void LookAtBus();
  void OnStored(const StoredState &stored);
  void OnOutcome(const StepOutcome &outcome, std::uint64_t ticket);
  void OnRowOutcome(const RowOutcome &outcome, std::uint64_t ticket);
  void OnMixers(const QList<MixerState> &mixers);
  void OnSelectors(const QList<MixerState> &mixers);
  void OnBus(std::shared_ptr<model::BusWatch> bus);
  void MarkUnsent(const QList<MixerState> &mixers);
  static void MarkNoMixer(RowState *row);
  static void MarkLate(RowState *row);
  static QString LateText();
  void TimeSelectors();
  void ReadSelectors();

  Engine *engine_;
  State &state_;
  std::vector<Wish> wishes_;  // of the rows
  std::uint64_t lastTicket_ = 0;
  QStringList late_;  // places of mixers plugged in since the window knows them
  bool visible_ = true;
  Hearing hearing_;
  UsbWatch usb_;
  QTimer selectors_;
  std::shared_ptr<model::BusWatch> bus_;
  std::unique_ptr<QSocketNotifier> busNotifier_;
};

Engine::Private::Private(Engine *engine)
    : worker(engine),
      engine_(engine),
      state_(engine->state_),
      hearing_(engine),
      usb_(engine) {
  state_.rows = EmptyRows();
  wishes_.resize(static_cast<std::size_t>(state_.rows.size()));
  selectors_.setSingleShot(true);
  connect(&hearing_, &Hearing::heard, engine, [this] { LookAtSettings(); });
  connect(&usb_, &UsbWatch::changed, engine, [this] { Look(); });
  connect(&selectors_, &QTimer::timeout, engine, [this] { ReadSelectors(); });
}

void Engine::Private::Start() {
  hearing_.Register();
  LookAtSettings();
  Look();
  LookAtBus();
  LookAtClubs();
  worker.Post(Worker::Kind::Look, "autoapply", [this]() -> Worker::Result {
    const AutoapplyLook look = window::LookAtAutoapply();
    return [this, look] {
      state_.autoapply = look.state;
      state_.whyNoAutoapply = look.why;
      emit engine_->stateChanged();
    };
  });
  worker.Start();
}

void Engine::Private::Choose(const model::Setting &setting,
                             std::uint32_t channel, std::uint32_t index) {
  for (qsizetype i = 0; i < state_.rows.size(); ++i) {
    RowState &row = state_.rows[i];
    if (row.setting != &setting || row.channel != channel) continue;
    const std::uint64_t ticket = ++lastTicket_;
    wishes_[static_cast<std::size_t>(i)] = {.ticket = ticket, .index = index};
    row.shown = index;
    row.delivery = Delivery::Sending;
    row.reason.clear();
    row.warning.clear();
    const std::string name = setting.name + std::to_string(channel);
    worker.Post(
        Worker::Kind::Change, name,
        [this, &setting, channel, index, ticket]() -> Worker::Result {
          const StepOutcome outcome = window::Choose(setting, channel, index);
          return [this, outcome, ticket] { OnOutcome(outcome, ticket); };
        });
    emit engine_->stateChanged();
    return;
  }
}

void Engine::Private::PostStep(const char *name,
                               std::function<StepOutcome()> step) {
  // No two of these replace each other: "undo" twice takes back two steps.
  const std::string unique = name + std::to_string(++lastTicket_);
  worker.Post(Worker::Kind::Change, unique,
              [this, step = std::move(step)]() -> Worker::Result {
                const StepOutcome outcome = step();
                return [this, outcome] { OnOutcome(outcome, 0); };
              });
}

void Engine::Private::Look() {
  worker.Post(Worker::Kind::Look, "mixers", [this]() -> Worker::Result {
    const QList<MixerState> mixers = LookAtMixers();
    return [this, mixers] { OnMixers(mixers); };
  });
  LookAtProblems();
}

void Engine::Private::LookAtProblems() {
  worker.Post(Worker::Kind::Look, "problems", [this]() -> Worker::Result {
    const QList<FindingState> findings = FindProblems();
    return [this, findings] {
      if (state_.findings == findings) return;
      state_.findings = findings;
      emit engine_->stateChanged();
    };
  });
}

void Engine::Private::LookAtSettings() {
  worker.Post(Worker::Kind::Look, "settings", [this]() -> Worker::Result {
    const StoredState stored = ReadStored();
    return [this, stored] { OnStored(stored); };
  });
}

void Engine::Private::LookAtClubs() {
  worker.Post(Worker::Kind::Look, "clubs", [this]() -> Worker::Result {
    const QList<ClubState> clubs = FindClubs();
    return [this, clubs] {
      state_.clubs = clubs;
      emit engine_->stateChanged();
    };
  });
}

void Engine::Private::LookAtBus() {
  if (!LoopDelivers()) {
    state_.hearsOthers = false;
    state_.whyNotHeard = Engine::tr(
        "Changes by other programs are not shown, because QT_NO_GLIB is set. "
        "Start the window without it.");
    return;
  }
  worker.Post(Worker::Kind::Look, "bus", [this]() -> Worker::Result {
    const auto bus = std::make_shared<model::BusWatch>();
    return [this, bus] { OnBus(bus); };
  });
}

void Engine::Private::OnBus(std::shared_ptr<model::BusWatch> bus) {
  bus_ = std::move(bus);
  busNotifier_.reset();
  state_.hearsOthers = bus_->IsAlive();
  if (!state_.hearsOthers) {
    state_.whyNotHeard = Engine::tr(
        "Changes by other programs are not shown, because the message bus of "
        "the session is missing or has ended. Once there is one, start the "
        "window again.");
  } else if (bus_->descriptor() >= 0) {
    busNotifier_ = std::make_unique<QSocketNotifier>(bus_->descriptor(),
                                                     QSocketNotifier::Read);
    connect(
        busNotifier_.get(), &QSocketNotifier::activated, engine_,
        [this] { OnBus(bus_); }, Qt::QueuedConnection);
  }
  emit engine_->stateChanged();
}

void Engine::Private::OnStored(const StoredState &stored) {
  for (qsizetype i = 0; i < state_.rows.size(); ++i) {
    RowState &row = state_.rows[i];
    const StoredRow &now = stored.rows[i];
    Wish &wish = wishes_[static_cast<std::size_t>(i)];
    row.unreadable = now.unreadable;
    const bool changed = row.stored != now.stored;
    row.stored = now.stored;
    // Until an own change has arrived, an older value must not be shown again.
    if (wish.ticket != 0) continue;
    row.shown = row.stored.value_or(row.setting->defaultIndex(row.channel));
    if (changed && row.stored != wish.index) {
      row.delivery = Delivery::Idle;
      row.accepted = 0;
      row.reason.clear();
      row.warning.clear();
    }
  }
  state_.canUndo = stored.canUndo;
  state_.undoes = stored.undoes;
  state_.known = true;
  emit engine_->stateChanged();
}

void Engine::Private::OnOutcome(const StepOutcome &outcome,
                                std::uint64_t ticket) {
  bool allArrived = true;
  for (const RowOutcome &row : outcome.rows) {
    OnRowOutcome(row, ticket);
    allArrived = allArrived && row.delivery == Delivery::Sent;
  }
  OnStored(outcome.stored);
  if (!allArrived) Look();
  if (!outcome.report.isEmpty()) emit engine_->reported(outcome.report);
}

void Engine::Private::OnRowOutcome(const RowOutcome &outcome,
                                   std::uint64_t ticket) {
  for (qsizetype i = 0; i < state_.rows.size(); ++i) {
    RowState &row = state_.rows[i];
    if (row.setting != outcome.setting || row.channel != outcome.channel) {
      continue;
    }
    Wish &wish = wishes_[static_cast<std::size_t>(i)];
    // A newer wish waits, and the row shows that one.
    if (wish.ticket != 0 && wish.ticket != ticket) return;
    wish = {.ticket = 0, .index = outcome.index};
    row.delivery = outcome.delivery;
    row.accepted = outcome.accepted;
    row.reason = outcome.reason;
    row.warning = outcome.warning;
  }
}

// A mixer that was plugged in meanwhile has none of the settings, unless the
// system sends them to it.
void Engine::Private::MarkUnsent(const QList<MixerState> &mixers) {
  if (!state_.mixersKnown) return;
  const bool hadLate = !late_.isEmpty();
  QStringList late;
  bool isNew = false;
  bool isBack = false;
  for (const MixerState &mixer : mixers) {
    if (late_.contains(mixer.place)) late.append(mixer.place);
    if (!Answers(mixer)) continue;
    const auto before = std::find_if(
        state_.mixers.begin(), state_.mixers.end(),
        [&](const MixerState &one) { return one.place == mixer.place; });
    if (before == state_.mixers.end() || before->answer == MixerAnswer::Gone) {
      isNew = true;
      if (!late.contains(mixer.place)) late.append(mixer.place);
    } else {
      isBack = isBack || !Answers(*before);
    }
  }
  late_ = late;
  for (RowState &row : state_.rows) {
    if (mixers.isEmpty()) {
      MarkNoMixer(&row);
    } else if (isNew && state_.autoapply != Autoapply::On) {
      MarkLate(&row);
    } else if (hadLate && late_.isEmpty() && row.reason == LateText()) {
      // The mixer that did not have it is away again.
      row.delivery = row.accepted > 0 ? Delivery::Sent : Delivery::Idle;
      row.reason.clear();
    } else if (isBack && row.delivery == Delivery::RememberedOnly) {
      // That it does not answer is not true any more.
      row.reason.clear();
    }
  }
}

void Engine::Private::MarkNoMixer(RowState *row) {
  if (row->delivery != Delivery::Sent &&
      row->delivery != Delivery::RememberedOnly) {
    return;
  }
  row->delivery = Delivery::RememberedOnly;
  row->accepted = 0;
  row->reason = Engine::tr("No mixer is attached.");
}

void Engine::Private::MarkLate(RowState *row) {
  if (!row->stored || row->delivery == Delivery::Sending) return;
  row->delivery = Delivery::RememberedOnly;
  row->reason = LateText();
}

QString Engine::Private::LateText() {
  return Engine::tr(
      "A mixer was plugged in since. Send all again, so that it gets this "
      "choice.");
}

void Engine::Private::OnMixers(const QList<MixerState> &mixers) {
  MarkUnsent(mixers);
  state_.mixers = mixers;
  state_.mixersKnown = true;
  TimeSelectors();
  emit engine_->stateChanged();
}

void Engine::Private::OnSelectors(const QList<MixerState> &mixers) {
  bool same = mixers.size() == state_.mixers.size();
  bool changed = false;
  for (qsizetype i = 0; same && i < mixers.size(); ++i) {
    MixerState &mixer = state_.mixers[i];
    same = mixer.place == mixers[i].place && mixer.answer == mixers[i].answer;
    if (!same || mixer.selectors == mixers[i].selectors) continue;
    mixer.selectors = mixers[i].selectors;
    changed = true;
  }
  if (changed) {
    // The library's sentences were about the selectors as they were.
    for (RowState &row : state_.rows) row.warning.clear();
    emit engine_->stateChanged();
  }
  if (same) {
    TimeSelectors();
  } else {
    Look();
  }
}

void Engine::Private::TimeSelectors() {
  selectors_.stop();
  if (!visible_ || state_.mixers.isEmpty()) return;
  selectors_.start(AnyAnswers(state_.mixers) ? kSelectorMilliseconds
                                             : kSilentSelectorMilliseconds);
}

void Engine::Private::ReadSelectors() {
  worker.Post(Worker::Kind::Look, "selectors", [this]() -> Worker::Result {
    const QList<MixerState> mixers = LookAtSelectors();
    return [this, mixers] { OnSelectors(mixers); };
  });
}

void Engine::Private::SetVisible(bool visible) {
  if (visible == visible_) return;
  visible_ = visible;
  if (visible) {
    Look();
  } else {
    selectors_.stop();
  }
}

void Engine::Private::SwitchAutoapplyTo(bool on) {
  worker.Post(Worker::Kind::Change, "autoapply",
              [this, on]() -> Worker::Result {
                QString error;
                AutoapplyLook look;
                try {
                  look = SwitchAutoapply(on);
                } catch (const std::runtime_error &failure) {
                  error = QString::fromUtf8(failure.what());
                  look = LookAtAutoapply();
                }
                return [this, look, error] {
                  state_.autoapply = look.state;
                  state_.whyNoAutoapply = look.why;
                  emit engine_->stateChanged();
                  if (!error.isEmpty()) emit engine_->reported(error);
                };
              });
}

Engine::Engine(QObject *parent)
    : QObject(parent), private_(std::make_unique<Private>(this)) {}

Engine::~Engine() = default;

void Engine::start() { private_->Start(); }

void Engine::choose(const model::Setting &setting, std::uint32_t channel,
                    std::uint32_t index) {
  private_->Choose(setting, channel, index);
}

void Engine::undo() { private_->PostStep("undo", UndoLast); }

void Engine::resendAll() { private_->PostStep("resend", ResendAll); }

void Engine::setAutoapply(bool on) { private_->SwitchAutoapplyTo(on); }

void Engine::checkNow() { private_->Look(); }

void Engine::setVisible(bool visible) { private_->SetVisible(visible); }

void Engine::previewClub(const QString &path) {
  private_->worker.Post(
      Worker::Kind::Look, "preview", [this, path]() -> Worker::Result {
        const ClubPreview preview = PreviewOf(path);
        return [this, preview] { emit clubPreviewed(preview); };
      });
}

void Engine::applyClub(const QString &path) {
  private_->PostStep("apply", [path] { return ApplyFile(path); });
}

void Engine::saveClub(const QString &name) {
  private_->worker.Post(
      Worker::Kind::Change, "save " + name.toStdString(),
      [this, name]() -> Worker::Result {
        const QString problem = SaveClub(name);
        return [this, name, problem] {
          private_->LookAtClubs();
          emit reported(problem.isEmpty()
                            ? tr("Saved as “%1”.").arg(ListedClubName(name))
                            : problem);
        };
      });
}

void Engine::lookAtClubs() { private_->LookAtClubs(); }

}  // namespace ztk::window
