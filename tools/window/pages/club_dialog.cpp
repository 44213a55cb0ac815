// SPDX-License-Identifier: MIT
#include "window/pages/club_dialog.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "window/rows/wrapped_text.h"

namespace ztk::window {

namespace {

QString Introduction(const ClubPreview &preview) {
  if (!preview.error.isEmpty()) {
    return ClubDialog::tr("“%1” cannot be applied. %2")
        .arg(preview.club.name, preview.error);
  }
  if (preview.changes.isEmpty()) {
    return ClubDialog::tr(
               "“%1” changes nothing: all of its settings are "
               "remembered already.")
        .arg(preview.club.name);
  }
  return ClubDialog::tr("“%1” changes these settings:").arg(preview.club.name);
}

QWidget *TableOf(const ClubPreview &preview, QWidget *parent) {
  auto *table = new QWidget(parent);
  auto *grid = new QGridLayout(table);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(table->fontMetrics().height());
  int line = 0;
  for (const ClubPreview::Line &change : preview.changes) {
    auto *place = new QLabel(change.place, table);
    QFont bold = place->font();
    bold.setBold(true);
    place->setFont(bold);
    grid->addWidget(place, line, 0);
    grid->addWidget(new QLabel(change.before, table), line, 1);
    grid->addWidget(new QLabel(QStringLiteral("→"), table), line, 2);
    grid->addWidget(new QLabel(change.after, table), line, 3);
    ++line;
  }
  return table;
}

QLabel *KeptLabel(const ClubPreview &preview, QWidget *parent) {
  auto *label =
      new WrappedText(ClubDialog::tr("Not in this club, and not changed: %1.")
                          .arg(preview.kept.join(QStringLiteral(", "))),
                      parent);
  label->setObjectName(QStringLiteral("kept"));
  return label;
}

}  // namespace

ClubDialog::ClubDialog(const ClubPreview &preview, QWidget *parent)
    : QDialog(parent),
      introduction_(new WrappedText(Introduction(preview), this)),
      buttons_(new QDialogButtonBox(this)) {
  setWindowTitle(tr("Apply a club"));
  if (preview.error.isEmpty() && !preview.changes.isEmpty()) {
    buttons_->addButton(tr("&Apply"), QDialogButtonBox::AcceptRole);
    buttons_->addButton(QDialogButtonBox::Cancel);
  } else {
    buttons_->addButton(QDialogButtonBox::Close);
  }
  connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
  const int unit = fontMetrics().height();
  introduction_->setMinimumWidth(20 * unit);
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(unit, unit, unit, unit);
  layout->setSpacing(unit);
  layout->addWidget(introduction_);
  layout->addWidget(TableOf(preview, this));
  if (!preview.kept.isEmpty()) layout->addWidget(KeptLabel(preview, this));
  layout->addWidget(buttons_);
}

void ClubDialog::OfferSending(const QString &why, QAction *send) {
  introduction_->setText(introduction_->text() + QLatin1Char('\n') + why);
  QPushButton *button =
      buttons_->addButton(send->text(), QDialogButtonBox::ActionRole);
  connect(button, &QPushButton::clicked, this, [this, send] {
    send->trigger();
    reject();
  });
}

}  // namespace ztk::window
