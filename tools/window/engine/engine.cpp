// SPDX-License-Identifier: MIT
#include "window/engine/engine.h"

#include <QTimer>
#include <algorithm>
#include <utility>
#include <vector>

#include "window/engine/clubs.h"
#include "window/engine/readings.h"
#include "window/engine/row_tracker.h"
#include "window/engine/steps.h"
#include "window/engine/worker.h"
#include "window/events/announcement_listener.h"
#include "window/events/usb_watch.h"
#include "ztk/model/products.h"

namespace ztk::window {

namespace {

constexpr int kSelectorMilliseconds = 1000;
constexpr int kSilentSelectorMilliseconds = 10'000;

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
  void CheckMixers();  // and for problems
  void ReadSettings();
  void TakeStored(const StoredState &stored);
  void ReadClubs();
  void SwitchAutoapplyTo(bool on);
  void SetVisible(bool visible);

  Worker worker;

 private:
  void ReadProblems();
  void ReadAutoapplyStatus();
  void OnOutcome(const StepOutcome &outcome, std::uint64_t choice);
  void OnMixers(const QList<MixerState> &mixers);
  void OnSelectors(const QList<MixerState> &mixers);
  void OnDeafness();
  void ShowAutoapply(const AutoapplyStatus &status);
  void TimeSelectors();
  void ReadSelectors();

  Engine *engine_;
  State &state_;
  RowTracker rows_;
  std::uint64_t steps_ = 0;  // that were asked for
  bool visible_ = true;
  AnnouncementListener listener_;
  UsbWatch usb_;
  QTimer selectors_;
};

Engine::Private::Private(Engine *engine)
    : worker(engine),
      engine_(engine),
      state_(engine->state_),
      rows_(&engine->state_),
      listener_(engine),
      usb_(engine) {
  selectors_.setSingleShot(true);
  connect(&listener_, &AnnouncementListener::ready, engine,
          [this] { worker.Start(); });
  connect(&listener_, &AnnouncementListener::announced, engine,
          [this] { ReadSettings(); });
  connect(&listener_, &AnnouncementListener::deafnessChanged, engine,
          [this] { OnDeafness(); });
  connect(&usb_, &UsbWatch::changed, engine, [this] { CheckMixers(); });
  connect(&selectors_, &QTimer::timeout, engine, [this] { ReadSelectors(); });
}

void Engine::Private::Start() {
  usb_.Start();
  ReadSettings();
  CheckMixers();
  ReadClubs();
  ReadAutoapplyStatus();
  listener_.Start();
}

void Engine::Private::Choose(const model::Setting &setting,
                             std::uint32_t channel, std::uint32_t index) {
  const std::uint64_t choice = rows_.TakeChoice(setting, channel, index);
  if (choice == 0) return;
  const std::string name = setting.name + std::to_string(channel);
  worker.Post(Worker::Kind::Change, name,
              [this, &setting, channel, index, choice]() -> Worker::Result {
                const StepOutcome outcome =
                    window::Choose(setting, channel, index);
                return [this, outcome, choice] { OnOutcome(outcome, choice); };
              });
  emit engine_->stateChanged();
}

void Engine::Private::PostStep(const char *name,
                               std::function<StepOutcome()> step) {
  // No two of these replace each other: "undo" twice takes back two steps.
  const std::string unique = name + std::to_string(++steps_);
  worker.Post(Worker::Kind::Change, unique,
              [this, step = std::move(step)]() -> Worker::Result {
                const StepOutcome outcome = step();
                return [this, outcome] { OnOutcome(outcome, 0); };
              });
}

void Engine::Private::CheckMixers() {
  worker.Post(Worker::Kind::Reading, "mixers", [this]() -> Worker::Result {
    const QList<MixerState> mixers = AskMixers();
    return [this, mixers] { OnMixers(mixers); };
  });
  ReadProblems();
}

void Engine::Private::ReadProblems() {
  worker.Post(Worker::Kind::Reading, "problems", [this]() -> Worker::Result {
    const QList<FindingState> findings = FindProblems();
    return [this, findings] {
      if (state_.findings == findings) return;
      state_.findings = findings;
      emit engine_->stateChanged();
    };
  });
}

void Engine::Private::ReadSettings() {
  worker.Post(Worker::Kind::Reading, "settings", [this]() -> Worker::Result {
    const StoredState stored = ReadStored();
    return [this, stored] { TakeStored(stored); };
  });
}

void Engine::Private::TakeStored(const StoredState &stored) {
  rows_.TakeStored(stored);
  emit engine_->stateChanged();
}

void Engine::Private::ReadClubs() {
  worker.Post(Worker::Kind::Reading, "clubs", [this]() -> Worker::Result {
    const QList<ClubState> clubs = FindClubs();
    return [this, clubs] {
      state_.clubs = clubs;
      emit engine_->stateChanged();
    };
  });
}

void Engine::Private::OnDeafness() {
  state_.whyNotHeard = listener_.whyDeaf();
  state_.hearsOthers = state_.whyNotHeard.isEmpty();
  emit engine_->stateChanged();
}

void Engine::Private::OnOutcome(const StepOutcome &outcome,
                                std::uint64_t choice) {
  rows_.TakeOutcome(outcome, choice);
  emit engine_->stateChanged();
  const bool allArrived = std::all_of(
      outcome.rows.begin(), outcome.rows.end(),
      [](const RowOutcome &row) { return row.delivery == Delivery::Sent; });
  if (!allArrived) CheckMixers();
  if (!outcome.report.isEmpty()) emit engine_->reported(outcome.report);
}

void Engine::Private::OnMixers(const QList<MixerState> &mixers) {
  rows_.TakeMixers(mixers);
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
    CheckMixers();
  }
}

void Engine::Private::TimeSelectors() {
  selectors_.stop();
  if (!visible_ || state_.mixers.isEmpty()) return;
  selectors_.start(AnyAnswers(state_.mixers) ? kSelectorMilliseconds
                                             : kSilentSelectorMilliseconds);
}

void Engine::Private::ReadSelectors() {
  worker.Post(Worker::Kind::Reading, "selectors", [this]() -> Worker::Result {
    const QList<MixerState> mixers = AskForSelectors();
    return [this, mixers] { OnSelectors(mixers); };
  });
}

void Engine::Private::SetVisible(bool visible) {
  if (visible == visible_) return;
  visible_ = visible;
  if (visible) {
    CheckMixers();
  } else {
    selectors_.stop();
  }
}

void Engine::Private::ShowAutoapply(const AutoapplyStatus &status) {
  state_.autoapply = status.state;
  state_.whyNoAutoapply = status.why;
  emit engine_->stateChanged();
}

void Engine::Private::ReadAutoapplyStatus() {
  worker.Post(Worker::Kind::Reading, "autoapply", [this]() -> Worker::Result {
    const AutoapplyStatus status = ReadAutoapply();
    return [this, status] { ShowAutoapply(status); };
  });
}

void Engine::Private::SwitchAutoapplyTo(bool on) {
  worker.Post(Worker::Kind::Change, "autoapply",
              [this, on]() -> Worker::Result {
                const QString error = SwitchAutoapply(on);
                const AutoapplyStatus status = ReadAutoapply();
                return [this, status, error] {
                  ShowAutoapply(status);
                  if (!error.isEmpty()) emit engine_->reported(error);
                };
              });
}

Engine::Engine(QObject *parent)
    : QObject(parent), private_(std::make_unique<Private>(this)) {}

Engine::~Engine() = default;

void Engine::readRows() { private_->TakeStored(ReadRows()); }

void Engine::start() { private_->Start(); }

void Engine::choose(const model::Setting &setting, std::uint32_t channel,
                    std::uint32_t index) {
  private_->Choose(setting, channel, index);
}

void Engine::undo() { private_->PostStep("undo", UndoLast); }

void Engine::resendAll() { private_->PostStep("resend", ResendAll); }

void Engine::setAutoapply(bool on) { private_->SwitchAutoapplyTo(on); }

void Engine::checkNow() { private_->CheckMixers(); }

void Engine::setVisible(bool visible) { private_->SetVisible(visible); }

void Engine::previewClub(const QString &path) {
  private_->worker.Post(
      Worker::Kind::Reading, "preview", [this, path]() -> Worker::Result {
        const ClubFile file = ReadClub(path);
        ClubPreview preview = PreviewOf(path, file);
        const auto attached = model::AttachedProducts();
        return [this, file, preview, attached]() mutable {
          preview.needsSending = preview.error.isEmpty() &&
                                 preview.changes.isEmpty() &&
                                 NeedsSending(file, attached, state());
          emit clubPreviewed(preview);
        };
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
          private_->ReadClubs();
          emit reported(problem.isEmpty()
                            ? tr("Saved as “%1”.").arg(ListedClubName(name))
                            : problem);
        };
      });
}

void Engine::deleteClub(const QString &path) {
  private_->worker.Post(Worker::Kind::Change, "delete " + path.toStdString(),
                        [this, path]() -> Worker::Result {
                          const QString report = DeleteClub(path);
                          return [this, report] {
                            private_->ReadClubs();
                            emit reported(report);
                          };
                        });
}

void Engine::readClubs() { private_->ReadClubs(); }

}  // namespace ztk::window
