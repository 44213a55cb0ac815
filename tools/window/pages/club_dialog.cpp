// SPDX-License-Identifier: MIT
#include "window/pages/club_dialog.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

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

}  // namespace

ClubDialog::ClubDialog(const ClubPreview &preview, QWidget *parent)
    : QDialog(parent) {
  setWindowTitle(tr("Apply a club"));
  auto *introduction = new QLabel(Introduction(preview), this);
  introduction->setWordWrap(true);
  introduction->setTextFormat(Qt::PlainText);
  auto *buttons = new QDialogButtonBox(this);
  if (preview.error.isEmpty() && !preview.changes.isEmpty()) {
    buttons->addButton(tr("&Apply"), QDialogButtonBox::AcceptRole);
    buttons->addButton(QDialogButtonBox::Cancel);
  } else {
    buttons->addButton(QDialogButtonBox::Close);
  }
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  const int unit = fontMetrics().height();
  introduction->setMinimumWidth(20 * unit);
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(unit, unit, unit, unit);
  layout->setSpacing(unit);
  layout->addWidget(introduction);
  layout->addWidget(TableOf(preview, this));
  layout->addWidget(buttons);
}

}  // namespace ztk::window
