// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_WINDOW_ROWS_CHOICE_ROW_H_
#define ZTK_TOOLS_WINDOW_ROWS_CHOICE_ROW_H_

#include <QWidget>

#include "window/engine/state.h"

class QComboBox;
class QLabel;

namespace ztk::window {

class WarningSign;

// One channel of a setting: its name, its choices, and what became of the last
// change.
class ChoiceRow : public QWidget {
  Q_OBJECT

 public:
  ChoiceRow(const model::Setting &setting, std::uint32_t channel,
            QWidget *parent = nullptr);

  void showState(const State &state);
  // The active row is the one that clicks in the picture choose for.
  void setActive(bool active);

  const model::Setting &setting() const { return setting_; }
  std::uint32_t channel() const { return channel_; }
  QComboBox *box() const { return box_; }
  QString text() const;
  // The height at which a wire should meet the row.
  int wireHeight() const;

 signals:
  void chosen(const ztk::model::Setting &setting, std::uint32_t channel,
              std::uint32_t index);
  // The keyboard or the mouse has come to this row.
  void entered(ztk::window::ChoiceRow *row);

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;

 private:
  void ShowChoice(std::uint32_t index);

  const model::Setting &setting_;
  const std::uint32_t channel_;
  QLabel *label_;
  QComboBox *box_;
  WarningSign *sign_;
  QLabel *text_;
};

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_ROWS_CHOICE_ROW_H_
