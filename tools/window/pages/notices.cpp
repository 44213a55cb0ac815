// SPDX-License-Identifier: MIT
#include "window/pages/notices.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QFrame>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "window/rows/warning_sign.h"
#include "window/rows/wrapped_text.h"
#include "ztk/model/mixers/mixer_status.h"

namespace ztk::window {

namespace {

// How long the button tells that it has copied the command.
constexpr int kCopiedMilliseconds = 2000;

// More mixers that answer share one line.
constexpr int kMixersWithALine = 2;

bool Answers(const MixerState &mixer) {
  return mixer.answer == MixerAnswer::Answers;
}

QString FactsOf(const MixerState &mixer) {
  QStringList facts(Notices::tr("Mixer %1 answers").arg(mixer.number));
  if (mixer.firmware) {
    facts.append(Notices::tr("firmware %1")
                     .arg(QString::fromStdString(model::FirmwareVersion(
                         static_cast<std::uint16_t>(*mixer.firmware)))));
  }
  if (mixer.certifiedLevel) {
    facts.append(Notices::tr("certified level %1").arg(*mixer.certifiedLevel));
  }
  if (mixer.seratoActive) {
    facts.append(*mixer.seratoActive ? Notices::tr("Serato is active")
                                     : Notices::tr("Serato is not active"));
  }
  return facts.join(QStringLiteral(" · "));
}

QString TextOf(const MixerState &mixer) {
  switch (mixer.answer) {
    case MixerAnswer::NotAsked:
      return Notices::tr("Mixer %1 is being asked…").arg(mixer.number);
    case MixerAnswer::Answers:
      return FactsOf(mixer);
    case MixerAnswer::Refuses:
      return Notices::tr("Mixer %1 refuses requests.").arg(mixer.number);
    case MixerAnswer::Silent:
      return Notices::tr("Mixer %1 does not answer.").arg(mixer.number);
    case MixerAnswer::Gone:
      return Notices::tr("Mixer %1 was unplugged or switched off.")
          .arg(mixer.number);
    case MixerAnswer::Forbidden:
      break;
  }
  return Notices::tr("Mixer %1 is attached, but you may not open it.")
      .arg(mixer.number);
}

void MakeSelectable(QLabel *label) {
  label->setTextInteractionFlags(Qt::TextSelectableByMouse |
                                 Qt::TextSelectableByKeyboard);
  label->setFocusPolicy(Qt::NoFocus);
}

QLabel *Wrapped(const QString &text, QWidget *parent) {
  auto *label = new WrappedText(text, parent);
  MakeSelectable(label);
  return label;
}

// The command, and a button that copies it.
QLayout *CommandLine(const QString &command, QWidget *parent) {
  auto *text = Wrapped(command, parent);
  QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  fixed.setPointSizeF(text->font().pointSizeF());
  text->setFont(fixed);
  text->setObjectName(QStringLiteral("command"));
  auto *copy = new QPushButton(Notices::tr("Copy"), parent);
  copy->setAccessibleName(Notices::tr("Copy the command %1").arg(command));
  const QString copied = Notices::tr("Copied");
  copy->setMinimumWidth(
      QPushButton(copied).sizeHint().expandedTo(copy->sizeHint()).width());
  QObject::connect(copy, &QPushButton::clicked, copy, [command, copied, copy] {
    QGuiApplication::clipboard()->setText(command);
    copy->setText(copied);
    QTimer::singleShot(kCopiedMilliseconds, copy,
                       [copy] { copy->setText(Notices::tr("Copy")); });
  });
  auto *line = new QHBoxLayout;
  line->addWidget(text, 1);
  line->addWidget(copy, 0, Qt::AlignTop);
  return line;
}

QWidget *BoxOf(const FindingState &finding, QWidget *parent) {
  auto *box = new QFrame(parent);
  box->setFrameShape(QFrame::StyledPanel);
  box->setAutoFillBackground(true);
  box->setBackgroundRole(QPalette::Base);
  box->setObjectName(QStringLiteral("finding"));
  const int unit = box->fontMetrics().height();
  auto *what = Wrapped(finding.what, box);
  QFont bold = what->font();
  bold.setBold(true);
  what->setFont(bold);
  auto *words = new QVBoxLayout;
  words->setSpacing(unit / 4);
  words->addWidget(what);
  if (!finding.cause.isEmpty()) {
    words->addWidget(Wrapped(finding.cause, box));
  }
  if (!finding.command.isEmpty()) {
    words->addLayout(CommandLine(finding.command, box));
  }
  auto *layout = new QHBoxLayout(box);
  layout->setContentsMargins(unit / 2, unit / 2, unit / 2, unit / 2);
  layout->setSpacing(unit / 2);
  if (!finding.isNote) {
    layout->addWidget(new WarningSign(box), 0, Qt::AlignTop);
  }
  layout->addLayout(words, 1);
  return box;
}

}  // namespace

QString MixerText(const State &state) {
  if (!state.mixersKnown) return Notices::tr("Looking for mixers…");
  if (state.mixers.isEmpty()) {
    return Notices::tr(
        "No mixer is attached. What you choose is remembered, and can be sent "
        "when a mixer is plugged in.");
  }
  const auto answering =
      std::count_if(state.mixers.begin(), state.mixers.end(), Answers);
  QStringList lines;
  if (answering > kMixersWithALine) {
    lines.append(
        Notices::tr("%n mixers answer.", nullptr, static_cast<int>(answering)));
  }
  for (const MixerState &mixer : state.mixers) {
    if (answering > kMixersWithALine && Answers(mixer)) continue;
    lines.append(TextOf(mixer));
  }
  return lines.join(QLatin1Char('\n'));
}

QList<FindingState> BannerOf(const State &state) {
  QList<FindingState> findings = state.findings;
  const bool named = std::any_of(findings.begin(), findings.end(),
                                 [](const FindingState &finding) {
                                   return finding.id == QLatin1String("no-bus");
                                 });
  if (!state.hearsOthers && !named) {
    findings.append(
        {.id = QStringLiteral("deaf"),
         .what = Notices::tr("Changes of other programs are not shown here."),
         .cause = state.whyNotHeard,
         .command = {}});
  }
  return findings;
}

Notices::Notices(QWidget *parent)
    : QWidget(parent),
      mixers_(new WrappedText(this)),
      layout_(new QVBoxLayout(this)) {
  const int unit = fontMetrics().height();
  layout_->setContentsMargins(unit, unit / 2, unit, 0);
  layout_->setSpacing(unit / 2);
  layout_->addWidget(mixers_);
  mixers_->setObjectName(QStringLiteral("mixers"));
}

void Notices::showState(const State &state) {
  const QString text = MixerText(state);
  if (mixers_->text() != text) mixers_->setText(text);
  // A text that can be selected is laid out as a document, which takes longer,
  // so it is not one in the first frame.
  if (state.mixersKnown) MakeSelectable(mixers_);
  const QList<FindingState> findings = BannerOf(state);
  if (findings != shown_) ShowFindings(findings);
}

void Notices::ShowFindings(const QList<FindingState> &findings) {
  shown_ = findings;
  delete banner_;
  banner_ = nullptr;
  if (findings.isEmpty()) return;
  banner_ = new QWidget(this);
  auto *layout = new QVBoxLayout(banner_);
  layout->setContentsMargins(0, 0, 0, 0);
  for (const FindingState &finding : findings) {
    layout->addWidget(BoxOf(finding, banner_));
  }
  layout_->addWidget(banner_);
}

}  // namespace ztk::window
